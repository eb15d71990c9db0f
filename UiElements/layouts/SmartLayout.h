// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/layouts/FlowLayout.h>

/// A layout whose items flow and wrap. It limits or fixes the number of items per row, and aligns
/// each row by itself. An item that would just fit wraps: a row is at least a pixel wider than what
/// it holds.
class UIELEMENTS_EXPORT SmartLayout : public FlowLayout
{
    Q_OBJECT

public:
    /// Makes the layout of \a parent. Spacings are those of FlowLayout.
    ///
    /// With Qt::AlignLeft rows stay at the left, with Qt::AlignCenter they are centred, and with
    /// any other value, Qt::AlignHCenter included, they move to the right, in any layout direction.
    /// \a maximumItemsPerRow is -1 for no limit, otherwise positive. With \a useWidgetSizing,
    /// widgets are measured and placed directly and not through their items: size policies, size
    /// limits and the alignment of an item are ignored.
    SmartLayout(QWidget *parent, QMargins margins, int hSpacing, int vSpacing,
                Qt::AlignmentFlag alignment, int maximumItemsPerRow, bool useWidgetSizing);
    ~SmartLayout() override;

    /// Sets the limit of items per row, -1 for none. A row that wraps early for lack of width
    /// lowers the limit for the rows below it. With a limit of 1, every item gets its widget's size
    /// hint. Does not invalidate: takes effect at the next layout pass.
    void setMaximumItemsPerRow(int value);

    /// Sets the number of items in each row, regardless of their width and the limit; 0, the
    /// default, for none. Does not invalidate.
    void setFixedItemsPerRow(int value);

    /// Removes all items and deletes their widgets later. The items themselves stay alive without
    /// an owner: code that keeps pointers to them may use and delete them.
    void clear();

protected:
    int doLayout(const QRect &rect, bool apply) const override;

private:
    bool shouldBreakLine(int nextX, int spaceX, int lineHeight, int itemLimit,
                         const QRect &effectiveRect, int index) const;
    QSize sizeOf(QLayoutItem &item) const;
    QSize placedSizeOf(QLayoutItem &item, const QSize &size) const;
    int shiftFor(int spareWidth) const;
    void place(QLayoutItem &item, const QRect &rect) const;

    int m_maximumItemsPerRow;
    int m_fixedItemsPerRow = 0;
    bool m_useWidgetSizing;
};
