// SPDX-License-Identifier: Apache-2.0
#include "DrawUtils.h"

#include "IconTextPlacement_p.h"

#include <UiElements/svg/OxaSvgIcon.h>
#include <UiElements/theme/FocusFrame_p.h>
#include <UiElements/theme/StateColor_p.h>
#include <UiElements/widgets/OxaCheckBox.h>

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>

namespace {

/// The text as it is painted, and where its lines stand before they are placed.
struct CheckBoxText
{
    QRect bounds;
    QString elided;
};

CheckBoxText textOf(const OxaCheckBox &box)
{
    const QSize room(box.width() - box.geTextPadding(), box.sizeHint().height());
    const QRect bounds = box.fontMetrics().boundingRect(QRect(0, 0, room.width() - 1,
                                                              room.height() - 1),
                                                        box.textFlags(), box.text());
    const int width = box.getWordWrap() ? bounds.width() : room.width();
    return { bounds, box.fontMetrics().elidedText(box.text(), box.getElideMode(), width) };
}

IconTextPlacement placementOf(const OxaCheckBox &box, QRect rect, const QSize &textSize)
{
    rect.setHeight(textSize.height());
    const QMargins textMargins(box.getTextLeftPadding(), 0, box.getTextRightPadding(), 0);
    return IconTextPlacement::in(rect,
                                 { box.getCheckboxSize(), textSize, box.getSvgIconPadding(),
                                   textMargins, box.getSvgIconAlignment(), box.getTextHorAlign() });
}

/// Returns the margin of \a box in reading direction: negative from right to left.
int signedMargin(const OxaCheckBox &box)
{
    return QGuiApplication::isLeftToRight() ? box.getCheckboxMargin() : -box.getCheckboxMargin();
}

void drawBox(QPainter &painter, const OxaCheckBox &box, const QColor &border,
             const QColor &background, bool rounded, int radius)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(orTransparent(border));
    const QSize size = box.getCheckboxSize();
    if (!rounded) {
        painter.setBrush(orTransparent(background));
        painter.drawRect(0, 0, size.width(), size.height());
        return;
    }
    const int half = radius / 2;
    QPainterPath path;
    path.addRoundedRect(QRectF(signedMargin(box), 0, size.width() - half, size.height() - half),
                        radius, radius);
    painter.fillPath(path, orTransparent(background));
    painter.drawPath(path);
}

void drawTick(QPainter &painter, const OxaCheckBox &box, const OxaSvgIcon &tick,
              const QPointF &boxOffset, QStyle::State state)
{
    const QSize size = box.getCheckboxSize();
    const QSize tickSize = tick.getIconSize();
    const int indent = signedMargin(box);
    painter.save();
    painter.translate(boxOffset
                      + QPoint((size.width() - tickSize.width()) / 2 + indent,
                               (size.height() - tickSize.height()) / 2));
    tick.draw(&painter, state);
    painter.restore();
}

/// Returns the box in the widget's coordinates. In a right-to-left application it stands behind the
/// text, and the height of the block does not count. Meant so: styles of applications rely on it.
QRect focusRectOf(const OxaCheckBox &box, const IconTextPlacement &place, const QRect &textBounds,
                  bool rounded, int radius)
{
    const int half = radius / 2;
    const QSize size = box.getCheckboxSize() - QSize(half, half);
    const QRect rect(QPoint(rounded ? signedMargin(box) : 0, 0), size);
    const QPoint offset = place.icon.toPoint();
    if (QGuiApplication::isLeftToRight())
        return rect.translated(place.block + offset);
    const int behindText = box.getTextLeftPadding() + box.getTextRightPadding() + textBounds.width()
            + box.getSvgIconPadding().right();
    return rect.translated(place.block.x() + offset.x() + behindText, offset.y());
}

} // namespace

// NOLINTNEXTLINE(readability-function-size): the number of parameters is part of the interface
void DrawUtils::drawCheckbox(QPainter *painter, const OxaCheckBox *box, const QStyleOption &option,
                             const std::unique_ptr<OxaSvgIcon> &icon, const OxaColorSet &text,
                             const OxaColorSet &border, const OxaColorSet &background,
                             const OxaColorSet &focus, bool rounded, int radius)
{
    const CheckBoxText line = textOf(*box);
    const IconTextPlacement place = placementOf(*box, option.rect, line.bounds.size());

    // Stays in force behind this function, as callers that paint more of their own expect.
    painter->translate(place.block);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(place.text);
    painter->setPen(orTransparent(colorForStyleState(text, option.state)));
    painter->drawText(line.bounds, Qt::AlignVCenter | Qt::TextWordWrap, line.elided);
    painter->restore();

    painter->save();
    painter->translate(place.icon);
    drawBox(*painter, *box, colorForStyleState(border, option.state),
            colorForStyleState(background, option.state), rounded, radius);
    painter->restore();
    if (icon)
        drawTick(*painter, *box, *icon, place.icon, option.state);

    if (!FocusFrame::areBordersGlobal()) {
        if (focus.isValid())
            drawFocusRect(painter, option.state, option.rect, focus.normal, nullptr);
    } else if (FocusFrame::isShown(option.state)) {
        const QRect focusRect = focusRectOf(*box, place, line.bounds, rounded, radius);
        FocusFrame::draw(painter, FocusFrame::optionFor(box, focusRect), box);
    }
}
