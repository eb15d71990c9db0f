// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "LineEdit.h"

/// A field for what a list is searched for. Escape clears it.
class SearchField : public LineEdit
{
    Q_OBJECT

public:
    /// Makes an empty field, which tells by \a hint what is searched.
    explicit SearchField(const QString &hint, QWidget *parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent *event) override;
};
