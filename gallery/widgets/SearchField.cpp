// SPDX-License-Identifier: Apache-2.0
#include "SearchField.h"

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
