// SPDX-License-Identifier: Apache-2.0
#include "CheckBoxPictures.h"

#include <QGuiApplication>
#include <QPainterPath>

using namespace CheckBoxPictures;

namespace {

/// Returns where box and text are placed along \a total in a widget that is \a width wide.
int horizontalPlace(const OxaCheckBox &checkBox, double total)
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

/// Paints the box of \a look with its top left corner at the origin.
void paintBox(QPainter *painter, const QSize &size, const QColor &border, const QColor &background,
              const Look &look)
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
QColor colorOf(const OxaColorSet &set, QStyle::State state)
{
    if (!state.testFlag(QStyle::State_Enabled))
        return set.disabled;
    return state.testFlag(QStyle::State_On) ? set.checked : set.normal;
}

} // namespace

CheckBoxPictures::Places CheckBoxPictures::placesIn(const OxaCheckBox &checkBox)
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

void CheckBoxPictures::paint(QPainter *painter, const OxaCheckBox &checkBox, const Look &look)
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
    QRectF square(QPoint(x, (boxSize.height() - tick.height()) / 2), tick);
    DrawUtils::fitRectangle(square, 1.0);
    QPainterPath path;
    path.addRect(square.normalized());
    painter->fillPath(path, colorOf(iconColors, look.state));
}
