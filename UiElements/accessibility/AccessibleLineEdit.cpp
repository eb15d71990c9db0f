// SPDX-License-Identifier: Apache-2.0
#include "AccessibleLineEdit_p.h"

void *AccessibleLineEdit::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface *>(this)
                                              : AccessibleWidget::interface_cast(type);
}

void AccessibleLineEdit::selection(int index, int *start, int *end) const
{
    qtsText()->selection(index, start, end);
}

int AccessibleLineEdit::selectionCount() const { return qtsText()->selectionCount(); }

void AccessibleLineEdit::addSelection(int start, int end) { qtsText()->addSelection(start, end); }

void AccessibleLineEdit::removeSelection(int index) { qtsText()->removeSelection(index); }

void AccessibleLineEdit::setSelection(int index, int start, int end)
{
    qtsText()->setSelection(index, start, end);
}

int AccessibleLineEdit::cursorPosition() const { return qtsText()->cursorPosition(); }

void AccessibleLineEdit::setCursorPosition(int position) { qtsText()->setCursorPosition(position); }

QString AccessibleLineEdit::text(int start, int end) const { return qtsText()->text(start, end); }

QString AccessibleLineEdit::textBeforeOffset(int offset, QAccessible::TextBoundaryType boundary,
                                             int *start, int *end) const
{
    return qtsText()->textBeforeOffset(offset, boundary, start, end);
}

QString AccessibleLineEdit::textAfterOffset(int offset, QAccessible::TextBoundaryType boundary,
                                            int *start, int *end) const
{
    return qtsText()->textAfterOffset(offset, boundary, start, end);
}

QString AccessibleLineEdit::textAtOffset(int offset, QAccessible::TextBoundaryType boundary,
                                         int *start, int *end) const
{
    const int count = characterCount();
    const int wanted = offset == -2 ? cursorPosition() : offset;
    const bool isSearched = boundary == QAccessible::WordBoundary
            || boundary == QAccessible::SentenceBoundary;
    const bool isAtEnd = isSearched && count > 0 && (wanted == -1 || wanted == count);
    return qtsText()->textAtOffset(isAtEnd ? count - 1 : offset, boundary, start, end);
}

int AccessibleLineEdit::characterCount() const { return qtsText()->characterCount(); }

QRect AccessibleLineEdit::characterRect(int offset) const
{
    return qtsText()->characterRect(offset);
}

int AccessibleLineEdit::offsetAtPoint(const QPoint &point) const
{
    return qtsText()->offsetAtPoint(point);
}

void AccessibleLineEdit::scrollToSubstring(int start, int end)
{
    qtsText()->scrollToSubstring(start, end);
}

QString AccessibleLineEdit::attributes(int offset, int *start, int *end) const
{
    return qtsText()->attributes(offset, start, end);
}
