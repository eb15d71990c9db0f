// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/fonts/FontManagerEnum.h>
#include <UiElements/fonts/OxaFont.h>

#include <QObject>

class QWidget;

/// Keeps a widget's font on a font token: the behaviour behind UIELEMENTS_FONT_BLOCK.
///
/// A member of the widget that it serves; making it sets the widget's font to the default token.
class UIELEMENTS_EXPORT FontBlock
{
    Q_DISABLE_COPY_MOVE(FontBlock)

public:
    /// Serves \a widget, which must outlive the block.
    explicit FontBlock(QWidget *widget);
    ~FontBlock() = default;

    OxaFont::Token token() const { return m_token; }
    void setToken(OxaFont::Token token, bool useFallbackFamilies);

    FontManagerEnum::FontType type() const { return m_type; }
    void setType(FontManagerEnum::FontType type);

    void update();

private:
    QWidget *const m_widget;
    OxaFont::Token m_token = OxaFont::Token::Default;
    FontManagerEnum::FontType m_type = FontManagerEnum::FontType::Default;
    QMetaObject::Connection m_connection;
};

/// Declares the font members of a themed widget class. Stands after UIELEMENTS_THEME_BLOCK, without
/// a semicolon, and leaves the access at private.
///
/// Properties: `fontToken`, the step of the type scale, and `fontType`, the view whose scaling the
/// font follows. setFontToken() takes the token's font at once, and with `useFallbackFamilies` the
/// families for further scripts. setFontType() does nothing when the type is the same. With a type
/// other than Default the font comes from that view's scaled fonts, and again whenever they change;
/// updateFont() fetches it anew.
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
    FontBlock m_fontBlock { this };
