// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/fonts/FontManagerEnum.h>
#include <UiElements/fonts/OxaFont.h>

#include <QObject>

class QWidget;

/// Keeps a widget's font on a font token: the behaviour behind UIELEMENTS_FONT_BLOCK.
///
/// A member of the widget that it serves. Its constructor sets the widget's font to the default
/// token.
class UIELEMENTS_EXPORT OxaFontBlock
{
    Q_DISABLE_COPY_MOVE(OxaFontBlock)

public:
    /// Serves \a widget, which must outlive the block.
    explicit OxaFontBlock(QWidget *widget);
    ~OxaFontBlock() = default;

    /// Returns the token. The default token at first.
    OxaFont::Token token() const { return m_token; }

    /// Stores \a token, sets the widget's font to the token's font, with families for further
    /// scripts if \a useFallbackFamilies is true, and calls update(), also when nothing differs.
    void setToken(OxaFont::Token token, bool useFallbackFamilies);

    /// Returns the view whose scaled fonts the widget follows. FontType::Default, none, at first.
    FontManagerEnum::FontType type() const { return m_type; }

    /// Stores \a type and calls update(); does nothing if it is the same.
    void setType(FontManagerEnum::FontType type);

    /// Sets the widget's font to the token's font in its view, and again whenever that view's fonts
    /// change. Without a view or a font manager the widget keeps its font and stops following;
    /// without an OxaApplication a warning is logged as well. If other code deletes the view's
    /// fonts, the widget keeps its font until the next update.
    void update();

private:
    QWidget *const m_widget;
    OxaFont::Token m_token = OxaFont::Token::Default;
    FontManagerEnum::FontType m_type = FontManagerEnum::FontType::Default;
    QMetaObject::Connection m_connection;
};

/// Declares the font members of a themed widget class. Place it after UIELEMENTS_THEME_BLOCK,
/// without a semicolon; it leaves the access at private.
///
/// Properties: `fontToken`, the step of the type scale, and `fontType`, the view whose scaling the
/// font follows. setFontToken() sets the token's font at once, with families for further scripts if
/// `useFallbackFamilies` is true. setFontType() does nothing if the type is the same. With a type
/// other than Default the font comes from that view's scaled fonts, and again whenever they change;
/// updateFont() fetches it again.
#define UIELEMENTS_FONT_BLOCK                                                                      \
    Q_PROPERTY(OxaFont::Token fontToken READ getFontToken WRITE setFontToken)                      \
    Q_PROPERTY(FontManagerEnum::FontType fontType READ getFontType WRITE setFontType)              \
                                                                                                   \
public:                                                                                            \
    OxaFont::Token getFontToken() const { return m_fontBlock.token(); }                            \
    void setFontToken(OxaFont::Token token, bool useFallbackFamilies = false)                      \
    {                                                                                              \
        m_fontBlock.setToken(token, useFallbackFamilies);                                          \
    }                                                                                              \
    FontManagerEnum::FontType getFontType() const { return m_fontBlock.type(); }                   \
    void setFontType(FontManagerEnum::FontType type) { m_fontBlock.setType(type); }                \
    void updateFont() { m_fontBlock.update(); }                                                    \
                                                                                                   \
private:                                                                                           \
    OxaFontBlock m_fontBlock { this };
