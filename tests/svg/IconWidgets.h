// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/svg/OxaSvgAnchorButton.h>
#include <UiElements/svg/OxaSvgLabel.h>
#include <UiElements/svg/OxaSvgPushButton.h>

#include <QTest>

#include <functional>
#include <memory>
#include <vector>

/// One class with an icon, for the tests of the icon block.
struct IconWidget
{
    const char *name;
    std::function<std::unique_ptr<QWidget>()> make;
    std::function<void(QWidget &, const QMargins &)> setPadding;
    std::function<QMargins(const QWidget &)> padding;
    std::function<void(QWidget &)> refresh;
};

/// Describes \a Widget.
template <typename Widget>
IconWidget iconWidget()
{
    return {
        Widget::staticMetaObject.className(),
        [] { return std::make_unique<Widget>(); },
        [](QWidget &widget, const QMargins &padding) {
            static_cast<Widget &>(widget).setSvgIconPadding(padding);
        },
        [](const QWidget &widget) {
            return static_cast<const Widget &>(widget).getSvgIconPadding();
        },
        [](QWidget &widget) { static_cast<Widget &>(widget).refreshSvgIconColorSet(); },
    };
}

/// Every class with an icon.
inline const std::vector<IconWidget> &iconWidgets()
{
    static const std::vector<IconWidget> widgets = {
        iconWidget<OxaSvgLabel>(),
        iconWidget<OxaSvgPushButton>(),
        iconWidget<OxaSvgAnchorButton>(),
    };
    return widgets;
}

/// Adds a data row for each of them, under the column "row".
inline void addIconWidgets()
{
    QTest::addColumn<int>("row");
    int row = 0;
    for (const IconWidget &widget : iconWidgets())
        QTest::newRow(widget.name) << row++;
}

/// Declares `tested`, the class of the current row, and `widget`, an object of it.
#define FETCH_ICON_WIDGET                                                                          \
    QFETCH(const int, row);                                                                        \
    const IconWidget &tested = iconWidgets().at(std::size_t(row));                                 \
    const std::unique_ptr<QWidget> widget = tested.make()
