// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/layouts/AutoGridLayout.h>
#include <UiElements/layouts/FixedItemRatioLayoutNotSupportScroll.h>
#include <UiElements/layouts/SmartLayout.h>

#include <QLabel>

#include <vector>

/// Widgets in layouts, for benchmarks.
namespace Tiles {

/// A label with a size hint.
class Tile : public QLabel
{
public:
    Tile(const QSize &size, QWidget *parent) : QLabel(QStringLiteral("tile"), parent), m_size(size)
    {
    }
    QSize sizeHint() const override { return m_size; }

private:
    const QSize m_size;
};

/// Which layout a window has. Spacings are those of the style.
enum class Kind { AutoGrid, Smart, SmartByWidgets, FixedRatio };

struct KindName
{
    Kind kind;
    const char *name;
};
constexpr KindName kinds[] = {
    { Kind::AutoGrid, "AutoGridLayout" },
    { Kind::Smart, "SmartLayout" },
    { Kind::SmartByWidgets, "SmartLayout by widgets" },
    { Kind::FixedRatio, "FixedItemRatioLayoutNotSupportScroll" },
};

struct CountName
{
    int count;
    const char *name;
};
constexpr CountName counts[] = { { 1000, "1,000" }, { 10000, "10,000" } };

inline FlowLayout *makeLayout(Kind kind, QWidget *parent)
{
    constexpr int ofTheStyle = -1;
    const QMargins margins(8, 8, 8, 8);
    switch (kind) {
    case Kind::AutoGrid:
        return new AutoGridLayout(parent, margins, ofTheStyle, ofTheStyle);
    case Kind::Smart:
    case Kind::SmartByWidgets:
        return new SmartLayout(parent, margins, ofTheStyle, ofTheStyle, Qt::AlignCenter, -1,
                               kind == Kind::SmartByWidgets);
    case Kind::FixedRatio:
        break;
    }
    auto *layout = new FixedItemRatioLayoutNotSupportScroll(parent, margins, ofTheStyle,
                                                            ofTheStyle);
    layout->setItemData({ 0.5625F, 4, 16, 4 });
    return layout;
}

/// A window with \a count tiles of various sizes in a layout.
class Window : public QWidget
{
public:
    Window(Kind kind, int count) : layout(makeLayout(kind, this))
    {
        for (int i = 0; i < count; ++i) {
            layout->addWidget(new Tile(QSize(20 + i * 7 % 40, 16 + i * 5 % 24), this));
            items.push_back(layout->itemAt(i));
        }
    }

    FlowLayout *const layout;
    std::vector<QLayoutItem *> items;
};

} // namespace Tiles
