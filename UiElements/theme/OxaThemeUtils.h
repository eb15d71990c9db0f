// SPDX-License-Identifier: Apache-2.0
#pragma once

// Longer than other headers: one namespace for everything about colours.

#include <UiElements/UiElementsExport.h>
#include <UiElements/theme/OxaCSSData.h>
#include <UiElements/theme/OxaColorSet.h>

#include <QString>

class QJsonObject;
class QWidget;

/// Colours by name: documents, the application's stores, and the style language.
///
/// The readers of documents and the style language are pure functions on values and need no
/// application object. Functions that read or write a store find it through the IOxaApplication of
/// the process; without one, stores are empty and setters do nothing. GUI thread only.
namespace OxaThemeUtils {

/// How a widget relates to the application's theme.
enum class AppThemeType {
    Global = 0,   ///< "global": the application's current theme, whichever it is.
    Light = 1,    ///< "light": always the light appearance.
    Dark = 2,     ///< "dark": always the dark appearance.
    Inverted = 3, ///< "inverted": the opposite of the application's theme.
};

/// What a colour set is used for: one enumerator for each colour directive of the style language.
enum class ColorSetType {
    Background = 0, ///< "$backgroundColors:"
    Border = 1,     ///< "$borderColors:"
    Text = 2,       ///< "$textColors:"
};

/// The result of expanding a style text.
struct CSSParserResult
{
    OxaColorSet backgroundColorSet; ///< The background set; not valid when there is none.
    OxaColorSet borderColorSet;     ///< The border set; not valid when there is none.
    OxaColorSet textColorSet;       ///< The text set; not valid when there is none.
    OxaCSSData oxaCSS;              ///< The structured form of the style text.
    QString expandedStyleSheet;     ///< The finished Qt style sheet.
};

// Theme types

/// Returns the word for \a themeType; a value outside the enumeration gives "global".
UIELEMENTS_EXPORT QString themeTypeToString(AppThemeType themeType);

/// Returns the theme type whose word is exactly \a text, compared case-sensitively; every other
/// text, the empty one included, gives AppThemeType::Global.
UIELEMENTS_EXPORT AppThemeType stringToThemeType(const QString &text);

/// Returns the effective theme type of \a widget: its own "themeType" property if that names a type
/// other than global, otherwise that of its window. Null gives AppThemeType::Global.
UIELEMENTS_EXPORT AppThemeType getThemeTypeOfWidget(const QWidget *widget);

/// Makes \a root and all themed widgets below it, or with null those of the whole process, take the
/// current colours. Call it after the stores or the application's flags have changed.
///
/// Parents come before their children. Each widget expands its style text and emits cssChanged()
/// and themeTypeChanged(), but its type stays, and no child takes over another one. Any other
/// widget with a "themeType" property has it set again. Slots may delete and make widgets.
UIELEMENTS_EXPORT void refreshThemedWidgets(QWidget *root = nullptr);

// Documents

/// Reads the JSON object in the file at \a path. A file that can't be opened, or that holds no JSON
/// object, gives an empty object and no warning.
UIELEMENTS_EXPORT QJsonObject readJsonObject(const QString &path);

/// Reads a colour document. All or nothing: a colour without a name (silently), a colour with a
/// value out of range or an alias of a colour that isn't defined yet (each with a warning) gives an
/// empty palette.
UIELEMENTS_EXPORT OxaColorPalette parseOxaColorsFromJson(const QJsonObject &document);

/// Reads the colour document in the file at \a path; one that can't be read is silently empty.
UIELEMENTS_EXPORT OxaColorPalette parseOxaColorsFromJson(const QString &path);

/// Reads a colour-set document whose states name colours of \a palette; with an empty palette the
/// states hold their "rgba" themselves. All or nothing: without a "tokens" object, or with a set
/// that has no usable "normal", the result is empty and a warning says why. A state that is missing
/// or unusable silently takes the set's normal colour.
UIELEMENTS_EXPORT OxaColorSetMap parseOxaColorSetsFromJson(const QJsonObject &document,
                                                           const OxaColorPalette &palette);

/// Reads the colour-set document in the file at \a path.
UIELEMENTS_EXPORT OxaColorSetMap parseOxaColorSetsFromJson(const QString &path,
                                                           const OxaColorPalette &palette);

// Stores. A reference is valid until the store is replaced: keep it for one call only.

/// Returns the application's ordinary store, which shows its current theme.
UIELEMENTS_EXPORT const OxaColorSetMap &getAppOxaColorSets();

/// Returns the application's inverted store, which shows the opposite of its current theme.
UIELEMENTS_EXPORT const OxaColorSetMap &getAppInvertedOxaColorSets();

/// Returns the application's token map.
UIELEMENTS_EXPORT const OxaColorTokenMap &getAppOxaColorTokens();

/// Replaces the ordinary store with a copy of \a colorSets; IOxaApplication::colorSetsChanged
/// follows, also when nothing differs.
UIELEMENTS_EXPORT void setAppOxaColorSets(const OxaColorSetMap &colorSets);

/// Replaces the inverted store with a copy of \a colorSets; IOxaApplication::colorSetsChanged
/// follows, also when nothing differs.
UIELEMENTS_EXPORT void setAppInvertedOxaColorSets(const OxaColorSetMap &colorSets);

/// Replaces the token map with a copy of \a colorTokens. No signal follows.
UIELEMENTS_EXPORT void setAppOxaColorTokens(const OxaColorTokenMap &colorTokens);

/// Returns the store for \a themeType under the application's current flags. In high contrast that
/// is always the ordinary one.
UIELEMENTS_EXPORT const OxaColorSetMap &getOxaColorSetsByThemeType(AppThemeType themeType);

/// Returns the set called \a name (UTF-8) in the store for \a themeType. A name that the store
/// lacks logs a warning and gives a default set; an empty name does so without the warning.
UIELEMENTS_EXPORT OxaColorSet getColorSet(const std::string &name, AppThemeType themeType);

/// Returns the set called \a name in the theme of \a widget. If the store lacks it, a message in
/// the logging category "uielements.theme", which is off by default, also names the widget.
UIELEMENTS_EXPORT OxaColorSet getColorSet(const std::string &name, const QWidget *widget);

/// The same for a \a widget that knows its \a themeType, which takes long to look up.
UIELEMENTS_EXPORT OxaColorSet getColorSet(const std::string &name, AppThemeType themeType,
                                          const QWidget *widget);

/// Returns the set "transparent", with Qt::transparent in all six states. It is valid.
UIELEMENTS_EXPORT OxaColorSet transparentColourSet();

/// True when the application's high contrast theme is on.
UIELEMENTS_EXPORT bool isHighContrastEnabled();

// The style language

/// Expands \a styleText into a Qt style sheet whose rules have \a selector, with the colours of
/// \a colorSets. An empty style text, selector or store returns the text as it is. A directive that
/// can't be expanded stays in the sheet, and so does a colour reference, with a warning.
UIELEMENTS_EXPORT CSSParserResult parseCSS(const QString &selector, const QString &styleText,
                                           const OxaColorSetMap &colorSets);

/// Expands \a styleText for \a widget, which must not be null: the selector is its object name, or
/// else its class. The store is that of the widget's theme type; \a colorSets is used only if that
/// type is global. Sets the widget's dynamic property "rectangularCornerMask", and
/// "focusBorderRadius" if the text has a radius.
UIELEMENTS_EXPORT CSSParserResult parseCSS(QWidget *widget, const QString &styleText,
                                           const OxaColorSetMap &colorSets);

/// Returns \a data as a style text: the directives first, the plain style sheet after them.
/// OxaCSSData::noBorder is computed again from the sides and the radius.
UIELEMENTS_EXPORT QString convertToOxaCSS(OxaCSSData data);

/// Removes the first directive of each kind from \a styleText and trims what is left.
UIELEMENTS_EXPORT void removeOxaCSSFromStyleSheet(QString &styleText);

/// Returns the trimmed value of the first colour directive of \a type in \a styleText, or an empty
/// string without one.
UIELEMENTS_EXPORT QString getColorSetNameFromString(ColorSetType type, const QString &styleText);

/// Returns an HTML style element that gives links the colours of the set "button-hyperlink-text"
/// for \a themeType: normal for links and visited links, hovered under the pointer.
UIELEMENTS_EXPORT QString getHyperlinkCSS(AppThemeType themeType);

} // namespace OxaThemeUtils
