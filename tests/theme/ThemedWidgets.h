// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/ColorSets.h"

#include <UiElements/emoji/OxaEmojiPushButton.h>
#include <UiElements/svg/OxaPillTabButton.h>
#include <UiElements/svg/OxaSvgAnchorButton.h>
#include <UiElements/svg/OxaSvgLabel.h>
#include <UiElements/widgets/OxaToggleButton.h>
#include <UiElements/widgets/OxaUnderlineButton.h>
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
    using Form = OxaThemeBlock::Form;

    /// Whether the class starts without a style text and in the default font.
    enum class Start { Plain, Own };

    const char *name;
    const QMetaObject *metaObject;
    const QMetaObject *baseMetaObject;
    Font font;
    Form form;
    Start start;
    std::function<std::unique_ptr<QWidget>(QWidget *parent)> make;
    std::function<OxaThemeUtils::AppThemeType(const QWidget &)> themeType;
    std::function<OxaCSSData(const QWidget &)> cssData;
    std::function<void(QWidget &, const OxaCSSData &)> setCSSData;
};

/// Describes \a Widget, which derives from \a Base: a Qt class, or another themed one.
template <typename Widget, typename Base>
ThemedClass themedClass(ThemedClass::Font font = ThemedClass::Font::Yes,
                        ThemedClass::Form form = ThemedClass::Form::Full,
                        ThemedClass::Start start = ThemedClass::Start::Plain)
{
    return {
        Widget::staticMetaObject.className(),
        &Widget::staticMetaObject,
        &Base::staticMetaObject,
        font,
        form,
        start,
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
    using Start = ThemedClass::Start;
    static const std::vector<ThemedClass> classes = {
        themedClass<OxaLabel, QLabel>(),
        themedClass<OxaPushButton, QPushButton>(),
        themedClass<OxaWidget, QWidget>(Font::Yes, Form::StyledBackground),
        // These inherit the block.
        themedClass<OxaEmojiLabel, OxaLabel>(),
        themedClass<OxaEmojiPushButton, OxaEmojiLabel>(),
        themedClass<OxaPillTabButton, OxaSvgPushButton>(Font::Yes, Form::Full, Start::Own),
        themedClass<OxaSvgAnchorButton, OxaSvgPushButton>(),
        themedClass<OxaSvgLabel, OxaLabel>(),
        themedClass<OxaSvgPushButton, OxaPushButton>(),
        themedClass<OxaToggleButton, OxaPushButton>(Font::Yes, Form::Full, Start::Own),
        themedClass<OxaUnderlineButton, OxaPushButton>(),
    };
    return classes;
}

/// Returns a store with the set "panel" and those that classes ask for by themselves, all in
/// \a color.
inline OxaColorSetMap storeWith(const char *color)
{
    OxaColorSetMap store;
    for (const char *name : { "panel", "button-hyperlink-text", "oxa-underlineButton-background",
                              "oxa-underlineButton-text" })
        store.emplace(name, ColorSets::make(QString::fromLatin1(name), { color }));
    return store;
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

/// Adds those rows for the classes of \a form.
inline void addThemedClasses(ThemedClass::Form form)
{
    addThemedClasses([form](const ThemedClass &themed) { return themed.form == form; });
}

/// Adds those rows for the classes that start plain.
inline void addPlainThemedClasses()
{
    addThemedClasses(
            [](const ThemedClass &themed) { return themed.start == ThemedClass::Start::Plain; });
}

/// Declares `themed`, the class of the test's current row.
#define FETCH_THEMED_CLASS                                                                         \
    QFETCH(const int, row);                                                                        \
    const ThemedClass &themed = themedClasses().at(std::size_t(row))
