// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/layouts/FlowLayout.h>

/// A row of widgets in reading direction that wraps if there is no room for all of them. Widgets
/// are as high as their row, or centred in it if their size policy says so.
class WrapLayout : public FlowLayout
{
    Q_OBJECT

public:
    /// Makes the layout, for \a parent if not null, with \a spacing pixels around its items.
    explicit WrapLayout(int spacing, QWidget *parent = nullptr);

private:
    struct Row
    {
        std::vector<QLayoutItem *> items;
        QSize size;
    };

    std::vector<Row> rowsIn(int width) const;
    void place(const Row &row, const QRect &area, int y) const;
    int doLayout(const QRect &rect, bool apply) const override;
};
