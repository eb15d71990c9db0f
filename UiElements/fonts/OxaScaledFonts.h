// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/fonts/FontManagerEnum.h>
#include <UiElements/fonts/OxaFont.h>

#include <QObject>

/// The fonts of one view that the user can enlarge, such as the messaging view.
///
/// C++ asks for a token's font with getFont(); QML binds to the properties. The application's font
/// scale factor is applied when the table is made and whenever the scaling factor is set to
/// Regular; other changes of it leave the table unchanged. OxaFontManager makes and owns it.
class UIELEMENTS_EXPORT OxaScaledFonts : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QFont Display MEMBER m_display NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont H1 MEMBER m_h1 NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont BannerTertiary MEMBER m_bannerTertiary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont BannerPrimary MEMBER m_bannerPrimary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont BannerSecondary MEMBER m_bannerSecondary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont H2 MEMBER m_h2 NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont Title MEMBER m_title NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont HeaderPrimary MEMBER m_headerPrimary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont HighlightPrimary MEMBER m_highlightPrimary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont H3 MEMBER m_h3 NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont SubheaderPrimary MEMBER m_subheaderPrimary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont BodyPrimary MEMBER m_bodyPrimary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont HyperlinkPrimary MEMBER m_hyperlinkPrimary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont SubheaderSecondary MEMBER m_subheaderSecondary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont HighlightSecondary MEMBER m_highlightSecondary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont HeaderSecondary MEMBER m_headerSecondary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont BodySecondary MEMBER m_bodySecondary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont HyperlinkSecondary MEMBER m_hyperlinkSecondary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont HighlightCompact MEMBER m_highlightCompact NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont BodyCompact MEMBER m_bodyCompact NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont LabelCompact MEMBER m_labelCompact NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont CodeBlocks MEMBER m_codeBlocks NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont Default MEMBER m_default NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont H4 MEMBER m_h4 NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont H5 MEMBER m_h5 NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont H6 MEMBER m_h6 NOTIFY fontTokenChanged)

public:
    /// Makes the table at the regular size.
    explicit OxaScaledFonts(QObject *parent = nullptr);

    /// Returns a copy of the font for \a token. Several tokens share a font, and a token without
    /// one of its own gets the default font.
    QFont getFont(OxaFont::Token token) const;

    /// Gives twelve of the fonts the pixel sizes of \a factor; Regular rebuilds the whole table.
    /// The sizes are absolute: the application's factor does not change them. Emits
    /// fontTokenChanged() once, also when nothing differs.
    void setScalingFactor(FontManagerEnum::FontScalingFactor factor);

Q_SIGNALS:
    /// A font was replaced, or the scaling factor was set.
    void fontTokenChanged();

private:
    struct Entry;
    static const Entry entries[];
    static QFont OxaScaledFonts::*const tokenFonts[];

    void initializeTokens();

    QFont m_display;
    QFont m_h1;
    QFont m_bannerTertiary;
    QFont m_bannerPrimary;
    QFont m_bannerSecondary;
    QFont m_h2;
    QFont m_title;
    QFont m_headerPrimary;
    QFont m_highlightPrimary;
    QFont m_h3;
    QFont m_subheaderPrimary;
    QFont m_bodyPrimary;
    QFont m_hyperlinkPrimary;
    QFont m_subheaderSecondary;
    QFont m_highlightSecondary;
    QFont m_headerSecondary;
    QFont m_bodySecondary;
    QFont m_hyperlinkSecondary;
    QFont m_highlightCompact;
    QFont m_bodyCompact;
    QFont m_labelCompact;
    QFont m_codeBlocks;
    QFont m_default;
    QFont m_h4;
    QFont m_h5;
    QFont m_h6;
};
