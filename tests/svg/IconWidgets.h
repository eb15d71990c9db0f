// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/svg/OxaSvgAnchorButton.h>
#include <UiElements/svg/OxaSvgLabel.h>
#include <UiElements/svg/OxaSvgPushButton.h>
#include <UiElements/widgets/OxaCheckBox.h>

#include <QTest>

#include <functional>
#include <memory>
#include <vector>

/// One class with an icon, for the tests of the icon block.
struct IconWidget
{
    const char *name;
    bool hasOwnIcon; ///< Starts with an icon, in a set of its own, which it takes with each theme.
    std::function<std::unique_ptr<QWidget>()> make;
    std::function<void(QWidget &, const QMargins &)> setPadding;
    std::function<QMargins(const QWidget &)> padding;
    std::function<void(QWidget &)> refresh;
};

/// Describes \a Widget, which is made by \a make.
template <typename Widget>
IconWidget iconWidget(bool hasOwnIcon, const std::function<std::unique_ptr<QWidget>()> &make)
{
    return {
        Widget::staticMetaObject.className(),
        hasOwnIcon,
        make,
        [](QWidget &widget, const QMargins &padding) {
            static_cast<Widget &>(widget).setSvgIconPadding(padding);
        },
        [](const QWidget &widget) {
            return static_cast<const Widget &>(widget).getSvgIconPadding();
        },
        [](QWidget &widget) { static_cast<Widget &>(widget).refreshSvgIconColorSet(); },
    };
}

/// The same for a class that starts without an icon.
template <typename Widget>
IconWidget iconWidget()
{
    return iconWidget<Widget>(false, [] { return std::make_unique<Widget>(); });
}

/// Makes a check box that shows its icon, in the size of other icons and with room for it.
inline std::unique_ptr<QWidget> makeCheckedBox()
{
    auto box = std::make_unique<OxaCheckBox>();
    box->setChecked(true);
    box->setText(QStringLiteral("x"));
    box->setCheckboxSize(QSize(20, 20));
    return box;
}

/// Every class with an icon.
inline const std::vector<IconWidget> &iconWidgets()
{
    static const std::vector<IconWidget> widgets = {
        iconWidget<OxaSvgLabel>(),
        iconWidget<OxaSvgPushButton>(),
        iconWidget<OxaSvgAnchorButton>(),
        iconWidget<OxaCheckBox>(true, &makeCheckedBox),
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

/// Adds those rows for the classes that have no icon before they are given one.
inline void addPlainIconWidgets()
{
    QTest::addColumn<int>("row");
    int row = 0;
    for (const IconWidget &widget : iconWidgets()) {
        if (!widget.hasOwnIcon)
            QTest::newRow(widget.name) << row;
        ++row;
    }
}

/// Declares `tested`, the class of the current row, and `widget`, an object of it.
#define FETCH_ICON_WIDGET                                                                          \
    QFETCH(const int, row);                                                                        \
    const IconWidget &tested = iconWidgets().at(std::size_t(row));                                 \
    const std::unique_ptr<QWidget> widget = tested.make()
