// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ClientPanel.h"
#include "support/ColorSets.h"

#include <UiElements/emoji/OxaEmojiPushButton.h>
#include <UiElements/movies/OxaGifButton.h>
#include <UiElements/movies/OxaGifLabel.h>
#include <UiElements/svg/OxaPillTabButton.h>
#include <UiElements/svg/OxaSvgAnchorButton.h>
#include <UiElements/svg/OxaSvgLabel.h>
#include <UiElements/widgets/AlertBanner.h>
#include <UiElements/widgets/ContainerWidget.h>
#include <UiElements/widgets/OxaCheckBox.h>
#include <UiElements/widgets/OxaComboBox.h>
#include <UiElements/widgets/OxaDateTimeEdit.h>
#include <UiElements/widgets/OxaDialog.h>
#include <UiElements/widgets/OxaFrame.h>
#include <UiElements/widgets/OxaLineEdit.h>
#include <UiElements/widgets/OxaListView.h>
#include <UiElements/widgets/OxaListWidget.h>
#include <UiElements/widgets/OxaMainWindow.h>
#include <UiElements/widgets/OxaMenu.h>
#include <UiElements/widgets/OxaNotification.h>
#include <UiElements/widgets/OxaProgressBar.h>
#include <UiElements/widgets/OxaRadioButton.h>
#include <UiElements/widgets/OxaSeparator.h>
#include <UiElements/widgets/OxaSlider.h>
#include <UiElements/widgets/OxaSplitter.h>
#include <UiElements/widgets/OxaStackedWidget.h>
#include <UiElements/widgets/OxaTabBar.h>
#include <UiElements/widgets/OxaTextBrowser.h>
#include <UiElements/widgets/OxaTextEdit.h>
#include <UiElements/widgets/OxaTextInput.h>
#include <UiElements/widgets/OxaTextInputFactory.h>
#include <UiElements/widgets/OxaTimeEdit.h>
#include <UiElements/widgets/OxaToggleButton.h>
#include <UiElements/widgets/OxaTreeView.h>
#include <UiElements/widgets/OxaUnderlineButton.h>
#include <UiElements/widgets/OxaVMenu.h>
#include <UiElements/widgets/OxaWidget.h>
#include <UiElements/widgets/PopupWidget.h>

#include <QTest>

#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

/// One themed widget class, for the tests of the theme block.
struct ThemedClass
{
    /// How a class differs from the usual case: it is made with a parent alone and follows it, has
    /// fonts, and starts without a style text in the default font.
    enum Trait {
        NoTraits = 0,
        NoFont = 1,           ///< Has no font members.
        StyledBackground = 2, ///< Is OxaThemeBlock::Form::StyledBackground.
        StartsStyled = 4,     ///< Has a style text or a font of its own from the start.
        FollowsNoParent = 8,  ///< Does not follow the parent that it is made with.
        HasName = 16,         ///< Is made with its class's name as object name.
        WritesItsText = 32,   ///< With an object name, writes its style text at each new type.
        FollowsNoName = 64,   ///< Does not follow its object name.
        IsWindow = 128,       ///< Is made as a window, which no other window gives a theme type.
    };
    using Make = std::function<std::unique_ptr<QWidget>(QWidget *parent)>;

    bool is(Trait trait) const { return (traits & trait) != 0; }

    /// Returns what a style text of a widget from make() selects it by.
    QString selector() const
    {
        return QString::fromLatin1(is(HasName) ? "#" : "") + QLatin1String(name);
    }

    const char *name;
    int traits;
    std::vector<const char *> colorSets; ///< Those that it asks for itself.
    Make make;
    std::function<OxaThemeUtils::AppThemeType(const QWidget &)> themeType;
    std::function<OxaCSSData(const QWidget &)> cssData;
    std::function<void(QWidget &, const OxaCSSData &)> setCSSData;
};

/// Describes \a Widget, which is made by \a make.
template <typename Widget>
ThemedClass themedClass(int traits, const std::vector<const char *> &colorSets,
                        const ThemedClass::Make &make)
{
    return {
        Widget::staticMetaObject.className(),
        traits,
        colorSets,
        make,
        [](const QWidget &widget) { return static_cast<const Widget &>(widget).getThemeType(); },
        [](const QWidget &widget) { return static_cast<const Widget &>(widget).getOxaCSS(); },
        [](QWidget &widget, const OxaCSSData &data) { static_cast<Widget &>(widget).setCSS(data); },
    };
}

/// The same for a class that is made with a parent alone.
template <typename Widget>
ThemedClass themedClass(int traits = ThemedClass::NoTraits,
                        const std::vector<const char *> &colorSets = {})
{
    return themedClass<Widget>(traits, colorSets,
                               [](QWidget *parent) { return std::make_unique<Widget>(parent); });
}

/// Makes a text input that looks the same in all its states.
inline std::unique_ptr<QWidget> makeTextInput(QWidget *parent)
{
    return std::unique_ptr<QWidget>(OxaTextInputFactory({}).make(parent));
}

/// Makes a button that shows nothing.
inline std::unique_ptr<QWidget> makeGifButton(QWidget *parent)
{
    return std::make_unique<OxaGifButton>(parent, QString(), QSize(8, 8), QString(), QSize(8, 8));
}

/// Makes a popup without content.
inline std::unique_ptr<QWidget> makePopup(QWidget *parent)
{
    return std::make_unique<PopupWidget>(parent, WidgetData(OxaThemeUtils::AppThemeType::Global));
}

/// Every themed widget class of the library, and one of a client. A new one is one row.
inline const std::vector<ThemedClass> &themedClasses()
{
    using T = ThemedClass;
    static const std::vector<const char *> linkColors = { "button-hyperlink-text" };
    static const std::vector<const char *> bannerColors = {
        "alertBackground-warning",
        "alertText-warning",
        "button-hyperlink-text",
        "oxa-footer-warning-icon",
    };
    static const std::vector<const char *> checkBoxColors = {
        "background-primary",
        "checkbox-checked-background",
        "checkbox-unchecked-background",
        "oxa-default-text",
        "oxa-reaction-list-item-gradient-background-end-color",
        "oxa-recorder-comboBox-border",
    };
    static const std::vector<const char *> comboBoxColors = {
        "oxa-rills-combobox-background",
        "oxa-rills-combobox-border",
        "oxa-rills-combobox-dropdown-arrow",
        "oxa-rills-combobox-text",
    };
    static const std::vector<ThemedClass> classes = {
        themedClass<OxaCheckBox>(T::NoTraits, checkBoxColors),
        themedClass<OxaComboBox>(T::WritesItsText, comboBoxColors),
        themedClass<OxaDateTimeEdit>(),
        themedClass<OxaDialog>(T::IsWindow),
        themedClass<OxaFrame>(),
        themedClass<OxaLabel>(T::NoTraits, linkColors),
        themedClass<OxaLineEdit>(),
        themedClass<OxaListView>(),
        themedClass<OxaListWidget>(),
        themedClass<OxaMainWindow>(T::NoFont | T::StyledBackground | T::FollowsNoParent
                                   | T::FollowsNoName | T::IsWindow),
        themedClass<OxaMenu>(T::IsWindow),
        themedClass<OxaProgressBar>(T::NoFont,
                                    { "oxa-percentage-indicator-possessive", "oxa-progressbar" },
                                    [](QWidget *parent) {
                                        return std::make_unique<OxaProgressBar>(parent, 10);
                                    }),
        themedClass<OxaPushButton>(),
        themedClass<OxaRadioButton>(T::NoTraits, { "background-primary" }),
        themedClass<OxaSlider>(T::NoFont),
        themedClass<OxaSplitter>(),
        themedClass<OxaStackedWidget>(),
        themedClass<OxaTextBrowser>(),
        themedClass<OxaTextEdit>(),
        themedClass<OxaTimeEdit>(),
        themedClass<OxaTreeView>(),
        themedClass<OxaWidget>(T::StyledBackground),
        // These inherit the block.
        themedClass<ContainerWidget>(T::StyledBackground | T::HasName),
        themedClass<AlertBanner>(T::StyledBackground | T::StartsStyled | T::HasName, bannerColors),
        themedClass<OxaEmojiLabel>(T::NoTraits, linkColors),
        themedClass<OxaEmojiPushButton>(T::NoTraits, linkColors),
        themedClass<OxaGifButton>(T::NoTraits, linkColors, &makeGifButton),
        themedClass<OxaGifLabel>(T::NoTraits, linkColors),
        themedClass<OxaNotification>(T::StyledBackground),
        themedClass<OxaPillTabButton>(T::StartsStyled),
        themedClass<OxaSeparator>(T::StyledBackground, { "legacy-separator-primary" }),
        themedClass<OxaSvgAnchorButton>(),
        themedClass<OxaSvgLabel>(T::NoTraits, linkColors),
        themedClass<OxaSvgPushButton>(),
        themedClass<OxaTabBar>(T::StyledBackground | T::HasName),
        themedClass<OxaTextInput>(T::StyledBackground | T::StartsStyled | T::HasName, {},
                                  &makeTextInput),
        themedClass<OxaToggleButton>(T::StartsStyled),
        themedClass<OxaUnderlineButton>(T::NoTraits,
                                        { "oxa-underlineButton-background",
                                          "oxa-underlineButton-text" }),
        themedClass<OxaVMenu>(T::StyledBackground | T::HasName),
        themedClass<PopupWidget>(T::StyledBackground | T::HasName | T::IsWindow,
                                 { "background-primary", "oxa-default-border",
                                   "oxa-popupDropShadow" },
                                 &makePopup),
        themedClass<ClientPanel>(T::NoFont | T::FollowsNoParent, { "client-frame" },
                                 &ClientPanel::make),
    };
    return classes;
}

/// Returns a store with the set "panel" and those that classes ask for themselves, all in
/// \a color.
inline OxaColorSetMap storeWith(const char *color)
{
    OxaColorSetMap store;
    const auto add = [&](const char *name) {
        store.emplace(name, ColorSets::make(QString::fromLatin1(name), { color }));
    };
    add("panel");
    for (const ThemedClass &themed : themedClasses())
        std::for_each(themed.colorSets.begin(), themed.colorSets.end(), add);
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

/// Adds those rows for the classes without any of \a traits.
inline void addThemedClassesBut(int traits)
{
    addThemedClasses([traits](const ThemedClass &themed) { return (themed.traits & traits) == 0; });
}

/// Declares `themed`, the class of the test's current row.
#define FETCH_THEMED_CLASS                                                                         \
    QFETCH(const int, row);                                                                        \
    const ThemedClass &themed = themedClasses().at(std::size_t(row))
