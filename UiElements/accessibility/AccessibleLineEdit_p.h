// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "AccessibleWidget_p.h"

/// What assistive technology is told of a line edit: what Qt tells, but for the last word or
/// sentence, for which Qt 5.15 would search without an end.
class AccessibleLineEdit : public AccessibleWidget, public QAccessibleTextInterface
{
public:
    using AccessibleWidget::AccessibleWidget;

    void *interface_cast(QAccessible::InterfaceType type) override;

    void selection(int index, int *start, int *end) const override;
    int selectionCount() const override;
    void addSelection(int start, int end) override;
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    using AccessibleWidget::text;
    QString text(int start, int end) const override;
    QString textBeforeOffset(int offset, QAccessible::TextBoundaryType boundary, int *start,
                             int *end) const override;
    QString textAfterOffset(int offset, QAccessible::TextBoundaryType boundary, int *start,
                            int *end) const override;

    /// At the end of the text, and for -1, returns the last word or sentence.
    QString textAtOffset(int offset, QAccessible::TextBoundaryType boundary, int *start,
                         int *end) const override;

    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint &point) const override;
    void scrollToSubstring(int start, int end) override;
    QString attributes(int offset, int *start, int *end) const override;

private:
    QAccessibleTextInterface *qtsText() const { return qts()->textInterface(); }
};
