// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaPushButton.h>
#include <UiElements/widgets/OxaWidget.h>

#include <QTest>

#include <functional>
#include <memory>
#include <vector>

/// One themed widget class, as the tests of the theme block see it.
struct ThemedClass
{
    /// Whether the class has the font members of the block.
    enum class Font { Yes, No };

    /// What happens to the expanded sheet and the object name in setCSS().
    using Form = ThemeBlock::Form;

    const char *name;
    const QMetaObject *metaObject;
    const QMetaObject *qtMetaObject;
    Font font;
    Form form;
    std::function<std::unique_ptr<QWidget>(QWidget *parent)> make;
    std::function<OxaThemeUtils::AppThemeType(const QWidget &)> themeType;
    std::function<OxaCSSData(const QWidget &)> cssData;
    std::function<void(QWidget &, const OxaCSSData &)> setCSSData;
};

/// Describes \a Widget, which derives from \a QtClass.
template <typename Widget, typename QtClass>
ThemedClass themedClass(ThemedClass::Font font = ThemedClass::Font::Yes,
                        ThemedClass::Form form = ThemedClass::Form::Full)
{
    return {
        Widget::staticMetaObject.className(),
        &Widget::staticMetaObject,
        &QtClass::staticMetaObject,
        font,
        form,
        [](QWidget *parent) { return std::make_unique<Widget>(parent); },
        [](const QWidget &widget) { return static_cast<const Widget &>(widget).getThemeType(); },
        [](const QWidget &widget) { return static_cast<const Widget &>(widget).getOxaCSS(); },
        [](QWidget &widget, const OxaCSSData &data) { static_cast<Widget &>(widget).setCSS(data); },
    };
}

/// Every themed widget class of the library. A new one is one row.
inline const std::vector<ThemedClass> &themedClasses()
{
    using Font = ThemedClass::Font;
    using Form = ThemedClass::Form;
    static const std::vector<ThemedClass> classes = {
        themedClass<OxaLabel, QLabel>(),
        themedClass<OxaPushButton, QPushButton>(),
        themedClass<OxaWidget, QWidget>(Font::Yes, Form::StyledBackground),
    };
    return classes;
}

/// Adds a data row for each themed class that \a isWanted, under the column "row".
inline void addThemedClasses(const std::function<bool(const ThemedClass &)> &isWanted = {})
{
    QTest::addColumn<int>("row");
    int row = 0;
    for (const ThemedClass &themed : themedClasses()) {
        if (!isWanted || isWanted(themed))
            QTest::newRow(themed.name) << row;
        ++row;
    }
}

/// Declares `themed`, the class of the test's current row.
#define FETCH_THEMED_CLASS                                                                         \
    QFETCH(const int, row);                                                                        \
    const ThemedClass &themed = themedClasses().at(std::size_t(row))
