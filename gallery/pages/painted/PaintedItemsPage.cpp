// SPDX-License-Identifier: Apache-2.0
#include "PaintedItemCard.h"
#include "pages/widgets/Pages.h"
#include "shell/Page.h"

#include <QVBoxLayout>

namespace {

QString tr(const char *text) { return Page::tr(text); }

void prepareBalloon(PropertyControls &controls)
{
    constexpr int largestPart = 40;
    constexpr int furthest = 160;
    controls.setRange("arrowOffset", -furthest, furthest);
    controls.setRange("arrowSize", 0, largestPart);
    controls.setRange("radius", 0, largestPart);
    controls.setRange("borderWidth", 0, 12);
    controls.setRange("topMargin", 0, largestPart);
}

void prepareHalfPill(PropertyControls &controls) { controls.setRange("borderWidth", 0, 12); }

} // namespace

Page *Pages::makePaintedItems(QWidget *parent)
{
    auto *page = new Page(
            tr("Painted items"),
            tr("Shapes that QML files use as items, painted with the theme's colours. A control is "
               "named after the property that it sets."),
            parent);
    page->body()->addWidget(new PaintedItemCard(
            tr("OxaBalloon"),
            tr("The shape of a popup. Its arrow stops at the corners, wherever arrowOffset moves "
               "it, and topMargin shortens it from below. The arrow is aligned along its side: "
               "left and right do not matter at the sides."),
            QStringLiteral("painted/Balloon.qml"), prepareBalloon));
    page->body()->addWidget(new PaintedItemCard(
            tr("OxaHalfPill"),
            tr("A bar with one round end. A border is drawn on each side that has one; the round "
               "end has one if its side has."),
            QStringLiteral("painted/HalfPill.qml"), prepareHalfPill));
    page->body()->addStretch(1);
    return page;
}
