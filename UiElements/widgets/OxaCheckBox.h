// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/fonts/OxaFontBlock.h>
#include <UiElements/svg/OxaSvgIconBlock.h>
#include <UiElements/theme/OxaNamedColorSet.h>
#include <UiElements/theme/OxaThemeBlock.h>
#include <UiElements/widgets/OxaElisionBlock.h>

#include <QCheckBox>

/// A check box that paints box, tick, text and focus frame in the theme's colours: those of the
/// sets "oxa-default-text", "oxa-recorder-comboBox-border", "checkbox-checked-background",
/// "checkbox-unchecked-background", "oxa-reaction-list-item-gradient-background-end-color" (the
/// tick) and "background-primary" (the focus frame). What a set that does not exist would colour is
/// not painted.
///
/// The tick is an SVG icon, which the properties of the icon block describe, and `svgIconAlignment`
/// is the side of the text on which the box stands. It shows while the box is checked, not while it
/// is partially checked. The whole widget can be clicked. Of a style sheet, `color` and rules for
/// the indicator do not show; `background` does.
///
/// With word wrap, which is on by default, sizeHint() is for the present width, and there is no
/// heightForWidth(). Switch it off for a text of one line. For a longer one set a minimum width,
/// and call updateGeometry() after the width has changed.
///
/// "$textColors:" of a style text colours the text until the theme type changes, and so does
/// `svgIconColorSet` the tick: then both take their own sets again.
class UIELEMENTS_EXPORT OxaCheckBox : public QCheckBox
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QCheckBox)
    UIELEMENTS_FONT_BLOCK
    UIELEMENTS_ELISION_BLOCK
    UIELEMENTS_SVG_ICON_BLOCK
    Q_PROPERTY(QSize checkboxSize READ getCheckboxSize WRITE setCheckboxSize)
    Q_PROPERTY(bool useDefaultStyle READ isDefaultStyle WRITE setIsDefaultStyle)
    Q_PROPERTY(bool wordWrap READ getWordWrap WRITE setWordWrap)

public:
    /// Makes a check box without a text, whose box has round corners where it is \a rounded.
    explicit OxaCheckBox(QWidget *parent = nullptr, bool rounded = false);

    /// Returns the size of the box in pixels, 14 by 14 at first.
    QSize getCheckboxSize() const;

    /// Sets the size of the box, and of the tick to 4 pixels less each way. Repaints.
    void setCheckboxSize(const QSize &size);

    /// Returns the space around the box in pixels.
    int getCheckboxMargin() const;

    /// True when the check box paints itself as described here, as it does by default; else it is
    /// Qt's.
    bool isDefaultStyle() const;

    /// Sets whether the check box paints itself. Repaints.
    void setIsDefaultStyle(bool isDefault);

    /// True when a text that is too long goes on in the next line, as it does by default.
    bool getWordWrap() const;

    /// Sets whether a long text is wrapped. Repaints.
    void setWordWrap(bool wrap);

    /// Returns the width of the box with the paddings of text and icon, in pixels.
    int geTextPadding() const;

    /// Returns how the text is aligned and wrapped.
    int textFlags() const;

    /// Returns the size of box and text, which is wrapped to the present width.
    QSize sizeHint() const override;

Q_SIGNALS:
    /// The pointer came onto the check box.
    void mouseEntered();

    /// The pointer left the check box.
    void mouseExited();

protected:
    /// Returns \a text elided to the width less the elide padding, twice \a sideMargin and
    /// \a extraWidth; with Qt::ElideNone, \a text itself.
    QString getElidedText(const QString &text, int extraWidth, int sideMargin) const;

    /// Returns the width less the elide padding, in pixels.
    int getLineWidth() const;

    bool hitButton(const QPoint &position) const override;
    void paintEvent(QPaintEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;

protected Q_SLOTS:
    /// Looks all colour sets up again. Runs at each change of the theme type.
    virtual void onThemeChanged();

private:
    void onCSSChanged();
    void onSvgIconColorSetChanged(const OxaColorSet &colorSet);
    void onSvgIconSizeChanged(const QSize &size);

    OxaNamedColorSet m_defaultTextColors { QStringLiteral("oxa-default-text") };
    OxaColorSet m_textColors;
    OxaNamedColorSet m_borderColors { QStringLiteral("oxa-recorder-comboBox-border") };
    OxaNamedColorSet m_iconColors { QStringLiteral(
            "oxa-reaction-list-item-gradient-background-end-color") };
    OxaNamedColorSet m_checkedColors { QStringLiteral("checkbox-checked-background") };
    OxaNamedColorSet m_uncheckedColors { QStringLiteral("checkbox-unchecked-background") };
    OxaNamedColorSet m_focusColors { QStringLiteral("background-primary") };
    QSize m_checkboxSize { 14, 14 };
    bool m_isDefaultStyle = true;
    bool m_wordWrap = true;
    const bool m_isRounded;
};
