// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/Faces.h"

#include <UiElements/svg/DrawUtils.h>
#include <UiElements/widgets/OxaCheckBox.h>

#include <QPainter>
#include <QStyleOptionButton>

#include <functional>

/// Check boxes in colours that tell their parts apart, and pictures of them.
namespace CheckBoxPictures {

const OxaColorSet textColors = Faces::colors(QStringLiteral("oxa-default-text"), 235);
const OxaColorSet borderColors = Faces::colors(QStringLiteral("oxa-recorder-comboBox-border"), 230);
const OxaColorSet iconColors =
        Faces::colors(QStringLiteral("oxa-reaction-list-item-gradient-background-end-color"), 175);
const OxaColorSet checkedColors = Faces::colors(QStringLiteral("checkbox-checked-background"), 80);
const OxaColorSet uncheckedColors = Faces::colors(QStringLiteral("checkbox-unchecked-background"),
                                                  35);
const OxaColorSet focusColors(QStringLiteral("background-primary"), QColor(200, 100, 30));

inline OxaColorSetMap store()
{
    return ColorSets::storeOf(
            { textColors, borderColors, iconColors, checkedColors, uncheckedColors, focusColors });
}

/// A tick that fills the size of its icon.
const QString squareTick = QStringLiteral(":/widgets/square.svg");

/// As odd as the height of a line, so that the box stands on whole pixels.
constexpr QSize oddSize(15, 15);
constexpr QSize paperSize(160, 60);
constexpr int margin = 3;
constexpr int boxRadius = 2;

/// Returns the inside of a box of 24 by 14 beside a line of text in a widget that is \a width wide,
/// without lines and corners.
inline QRect insideOfBox(int width)
{
    return { QGuiApplication::isRightToLeft() ? width - 22 : 6, 7, 16, 9 };
}

/// What a check box is to look like, as the reference pictures are painted.
struct Look
{
    bool isRounded = false;
    bool hasTick = true;
    int radius = boxRadius;
    QStyle::State state = QStyle::State_Enabled | QStyle::State_On;
};

/// The places of a check box's parts.
struct Places
{
    QRect textRect; ///< In the text's own coordinates.
    QString text;   ///< As it is elided.
    QPoint block;
    QPointF box;
    QPointF textOffset;
};

/// Returns the places for a check box that fills its rectangle.
Places placesIn(const OxaCheckBox &checkBox);

/// Paints \a checkBox with a square tick in its icon size, and without a focus frame.
void paint(QPainter *painter, const OxaCheckBox &checkBox, const Look &look);

/// Returns what \a draw paints on white paper in the font of \a checkBox.
inline QImage drawing(const OxaCheckBox &checkBox, const std::function<void(QPainter *)> &draw)
{
    return Pixels::drawing(paperSize, [&](QPainter *painter) {
        painter->setFont(checkBox.font());
        draw(painter);
    });
}

/// Returns an option for \a checkBox in \a state.
inline QStyleOption optionFor(const OxaCheckBox &checkBox, QStyle::State state)
{
    QStyleOption option;
    option.rect = checkBox.rect();
    option.state = state;
    return option;
}

/// Paints \a checkBox by drawCheckbox(), with \a tick, which may be null.
inline void drawCheckbox(QPainter *painter, const OxaCheckBox &checkBox, const Look &look,
                         const std::unique_ptr<OxaSvgIcon> &tick, const OxaColorSet &focus = {})
{
    DrawUtils::drawCheckbox(painter, &checkBox, optionFor(checkBox, look.state), tick, textColors,
                            borderColors, look.hasTick ? checkedColors : uncheckedColors, focus,
                            look.isRounded, look.radius);
}

/// Returns a square tick in the icon size of \a checkBox.
inline std::unique_ptr<OxaSvgIcon> makeTick(const OxaCheckBox &checkBox)
{
    auto tick = std::make_unique<OxaSvgIcon>(squareTick);
    tick->setIconSize(checkBox.getSvgIconSize());
    tick->setColorSet(iconColors);
    return tick;
}

} // namespace CheckBoxPictures

Q_DECLARE_METATYPE(QStyle::State)
