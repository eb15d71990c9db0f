// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/Faces.h"

#include <UiElements/svg/DrawUtils.h>
#include <UiElements/widgets/OxaCheckBox.h>

#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionButton>

#include <cmath>
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
constexpr int radius = 2;

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
    int radius = CheckBoxPictures::radius;
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

/// Returns where box and text are placed along \a total in a widget that is \a width wide.
inline int horizontalPlace(const OxaCheckBox &checkBox, double total)
{
    const bool isMirrored = QGuiApplication::isRightToLeft();
    const double space = checkBox.width() - total;
    switch (checkBox.getTextHorAlign()) {
    case OxaEnum::HorAlign::LeftAlign:
        return qRound(isMirrored ? space : 0.0);
    case OxaEnum::HorAlign::CenterAlign:
        return qRound(space / 2);
    case OxaEnum::HorAlign::RightAlign:
        return qRound(isMirrored ? 0.0 : space);
    }
    return 0;
}

/// Returns the places for a check box that fills its rectangle.
inline Places placesIn(const OxaCheckBox &checkBox)
{
    const QSize boxSize = checkBox.getCheckboxSize();
    const QMargins padding = checkBox.getSvgIconPadding();
    const int width = checkBox.width() - boxSize.width() - checkBox.getTextLeftPadding()
            - checkBox.getTextRightPadding() - padding.left() - padding.right();
    const int flags = Qt::AlignVCenter | (checkBox.getWordWrap() ? Qt::TextWordWrap : 0);
    const QRect bound(0, 0, width - 1, checkBox.sizeHint().height() - 1);
    Places places;
    places.textRect = checkBox.fontMetrics().boundingRect(bound, flags, checkBox.text());
    const int lineWidth = checkBox.getWordWrap() ? places.textRect.width() : width;
    places.text = checkBox.fontMetrics().elidedText(checkBox.text(), checkBox.getElideMode(),
                                                    lineWidth);
    const QMargins textMargins(checkBox.getTextLeftPadding(), 0, checkBox.getTextRightPadding(), 0);
    const auto [box, text,
                total] = DrawUtils::calculateIconTextOffset(boxSize, places.textRect.size(),
                                                            textMargins, padding,
                                                            checkBox.getSvgIconAlignment());
    places.box = box;
    places.textOffset = text;
    // Both are centred on the height of the text, which begins at the top.
    places.block = QPoint(horizontalPlace(checkBox, total.x()),
                          qRound((places.textRect.height() - total.y()) / 2));
    return places;
}

/// Paints the box of \a look with its top left corner at the origin.
inline void paintBox(QPainter *painter, const QSize &size, const QColor &border,
                     const QColor &background, const Look &look)
{
    painter->setPen(border);
    painter->setBrush(background);
    if (!look.isRounded) {
        painter->drawRect(0, 0, size.width(), size.height());
        return;
    }
    const int half = look.radius / 2;
    QPainterPath path;
    path.addRoundedRect(QRectF(QGuiApplication::isRightToLeft() ? -margin : margin, 0,
                               size.width() - half, size.height() - half),
                        look.radius, look.radius);
    painter->fillPath(path, background);
    painter->setBrush(Qt::NoBrush);
    painter->drawPath(path);
}

/// Returns the colour of \a set for \a state, which is one of normal, checked and disabled.
inline QColor colorOf(const OxaColorSet &set, QStyle::State state)
{
    if (!state.testFlag(QStyle::State_Enabled))
        return set.disabled;
    return state.testFlag(QStyle::State_On) ? set.checked : set.normal;
}

/// Paints \a checkBox with a square tick in its icon size, and without a focus frame.
inline void paint(QPainter *painter, const OxaCheckBox &checkBox, const Look &look)
{
    const Places places = placesIn(checkBox);
    const QSize boxSize = checkBox.getCheckboxSize();
    const QSize tick = checkBox.getSvgIconSize();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(places.block);
    painter->save();
    painter->translate(places.textOffset);
    painter->setPen(colorOf(textColors, look.state));
    painter->drawText(places.textRect, Qt::AlignVCenter | Qt::TextWordWrap, places.text);
    painter->restore();
    painter->translate(places.box);
    paintBox(painter, boxSize, colorOf(borderColors, look.state),
             colorOf(look.hasTick ? checkedColors : uncheckedColors, look.state), look);
    if (!look.hasTick)
        return;
    const int x = (boxSize.width() - tick.width()) / 2
            + (QGuiApplication::isRightToLeft() ? -margin : margin);
    QRectF square(x, (boxSize.height() - tick.height()) / 2, tick.width(), tick.height());
    DrawUtils::fitRectangle(square, 1.0);
    QPainterPath path;
    path.addRect(square.normalized());
    painter->fillPath(path, colorOf(iconColors, look.state));
}

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
