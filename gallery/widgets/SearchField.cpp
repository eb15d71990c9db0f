// SPDX-License-Identifier: Apache-2.0
#include "SearchField.h"

#include <QKeyEvent>

namespace {

constexpr int fieldWidth = 320;

} // namespace

SearchField::SearchField(const QString &hint, QWidget *parent) : LineEdit(parent)
{
    setPlaceholderText(hint);
    setAccessibleName(tr("Search"));
    setClearButtonEnabled(true);
    setFixedWidth(fieldWidth);
}

void SearchField::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && !text().isEmpty())
        clear();
    else
        LineEdit::keyPressEvent(event);
}
