// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/layouts/FlowLayout.h>

/// Two columns of one width where there is room for both, else one column. Widgets beside each
/// other are equally high, and the last row takes the height that is left.
class ColumnsLayout : public FlowLayout
{
    Q_OBJECT

public:
    /// Makes the layout of \a parent, or of nobody yet. Spacings are in pixels.
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
