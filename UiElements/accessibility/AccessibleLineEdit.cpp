// SPDX-License-Identifier: Apache-2.0
#include "AccessibleLineEdit_p.h"

void LineText::selection(int index, int *start, int *end) const
{
    m_qts->selection(index, start, end);
}

int LineText::selectionCount() const { return m_qts->selectionCount(); }

void LineText::addSelection(int start, int end) { m_qts->addSelection(start, end); }

void LineText::removeSelection(int index) { m_qts->removeSelection(index); }

void LineText::setSelection(int index, int start, int end)
{
    m_qts->setSelection(index, start, end);
}

int LineText::cursorPosition() const { return m_qts->cursorPosition(); }

void LineText::setCursorPosition(int position) { m_qts->setCursorPosition(position); }

QString LineText::text(int start, int end) const { return m_qts->text(start, end); }

QString LineText::textBeforeOffset(int offset, QAccessible::TextBoundaryType boundary, int *start,
                                   int *end) const
{
    return m_qts->textBeforeOffset(offset, boundary, start, end);
}

QString LineText::textAfterOffset(int offset, QAccessible::TextBoundaryType boundary, int *start,
                                  int *end) const
{
    return m_qts->textAfterOffset(offset, boundary, start, end);
}

QString LineText::textAtOffset(int offset, QAccessible::TextBoundaryType boundary, int *start,
                               int *end) const
{
    const int count = characterCount();
    const int wanted = offset == -2 ? cursorPosition() : offset;
    const bool isSearched = boundary == QAccessible::WordBoundary
            || boundary == QAccessible::SentenceBoundary;
    const bool isAtEnd = isSearched && count > 0 && (wanted == -1 || wanted == count);
    return m_qts->textAtOffset(isAtEnd ? count - 1 : offset, boundary, start, end);
}

int LineText::characterCount() const { return m_qts->characterCount(); }

QRect LineText::characterRect(int offset) const { return m_qts->characterRect(offset); }

int LineText::offsetAtPoint(const QPoint &point) const { return m_qts->offsetAtPoint(point); }

void LineText::scrollToSubstring(int start, int end) { m_qts->scrollToSubstring(start, end); }

QString LineText::attributes(int offset, int *start, int *end) const
{
    return m_qts->attributes(offset, start, end);
}

void *AccessibleLineEdit::interface_cast(QAccessible::InterfaceType type)
{
    void *const qts = AccessibleWidget::interface_cast(type); // A client's own may have no text.
    const bool isText = qts && type == QAccessible::TextInterface;
    return isText ? static_cast<QAccessibleTextInterface *>(&m_text) : qts;
}
