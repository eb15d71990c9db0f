// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "LineEdit.h"

/// A field for searching a list. Escape clears it.
class SearchField : public LineEdit
{
    Q_OBJECT

public:
    /// Makes an empty field, whose \a hint says what is searched.
    explicit SearchField(const QString &hint, QWidget *parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent *event) override;
};
