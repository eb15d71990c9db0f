// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "AccessibleWidget_p.h"

/// The text of a line edit as Qt tells it, but for the last word or sentence, for which Qt 5.15
/// would search without an end.
class LineText final : public QAccessibleTextInterface
{
    Q_DISABLE_COPY_MOVE(LineText)

public:
    /// Asks \a qts, which has to outlive this.
    explicit LineText(QAccessibleTextInterface *qts) : m_qts(qts) { }

    void selection(int index, int *start, int *end) const override;
    int selectionCount() const override;
    void addSelection(int start, int end) override;
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
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
    QAccessibleTextInterface *const m_qts;
};

/// What assistive technology is told of a line edit.
class AccessibleLineEdit : public AccessibleWidget
{
public:
    AccessibleLineEdit(QWidget *widget, QAccessibleInterface *qts)
        : AccessibleWidget(widget, qts), m_text(qts->textInterface())
    {
    }

    void *interface_cast(QAccessible::InterfaceType type) override;

private:
    LineText m_text;
};
