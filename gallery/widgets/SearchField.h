// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "widgets/LineEdit.h"

/// A field for what a list is searched for.
class SearchField : public LineEdit
{
    Q_OBJECT

public:
    /// Makes an empty field, which tells by \a hint what is searched.
    explicit SearchField(const QString &hint, QWidget *parent = nullptr);
};
