// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/layouts/FlowLayout.h>

/// Two columns of equal width if there is room, else one column. Widgets beside each other have the
/// same height, and the last row takes the remaining height.
class ColumnsLayout : public FlowLayout
{
    Q_OBJECT

public:
    /// Makes the layout, for \a parent if not null. Spacings are in pixels.
    ColumnsLayout(int hSpacing, int vSpacing, QWidget *parent = nullptr);

    /// Appends \a widget, which spans both columns.
    void addWideWidget(QWidget *widget);

private:
    struct Columns
    {
        std::size_t count;
        int width;
    };
    struct Row
    {
        std::vector<QLayoutItem *> items;
        int itemWidth;
        int height;
    };

    bool isWide(const QLayoutItem *item) const;
    Columns columnsIn(int width) const;
    std::vector<Row> rowsIn(int width) const;
    void place(const Row &row, const QRect &area) const;
    int doLayout(const QRect &rect, bool apply) const override;

    std::vector<const QLayoutItem *> m_wideItems;
};
