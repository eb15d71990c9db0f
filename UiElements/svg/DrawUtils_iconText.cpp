// SPDX-License-Identifier: Apache-2.0
#include "DrawUtils.h"

#include "IconTextPlacement_p.h"

#include <UiElements/svg/OxaSvgIcon.h>
#include <UiElements/svg/OxaSvgLabel.h>
#include <UiElements/svg/OxaSvgPushButton.h>
#include <UiElements/theme/StateColor_p.h>

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QPainter>
#include <QStyleOption>
#include <QTextDocument>

#include <functional>

namespace {

/// What is painted beside a text, and its size. Without a picture the size is (-1, -1), which makes
/// the block one pixel narrower than a picture of size 0 would.
struct Picture
{
    QSize size;
    std::function<void(QPainter &painter, const QPointF &offset)> draw;
};

/// The properties of a widget's icon and text.
struct Block
{
    template <typename Widget>
    Block(const Widget &widget, const QTextDocument *document)
        : text(widget.text()),
          fontMetrics(widget.fontMetrics()),
          iconPadding(widget.getSvgIconPadding()),
          textMargins(widget.getTextLeftPadding(), 0, widget.getTextRightPadding(), 0),
          alignment(widget.getSvgIconAlignment()),
          horAlign(widget.getTextHorAlign()),
          elideMode(widget.getElideMode()),
          elidePadding(widget.getElidePadding()),
          richText(document)
    {
    }

    int availableWidth(const QRect &rect, const QSize &iconSize) const
    {
        return rect.width() - elidePadding - iconPadding.right() - iconPadding.left()
                - (textMargins.left() + textMargins.right()) - iconSize.width();
    }

    QString text;
    QFontMetrics fontMetrics;
    QMargins iconPadding;
    QMargins textMargins;
    OxaEnum::Alignment alignment;
    OxaEnum::HorAlign horAlign;
    Qt::TextElideMode elideMode;
    int elidePadding;
    const QTextDocument *richText; ///< Painted instead of the text where there is one.
};

/// Returns \a mode with left and right both turned into the side where the text ends.
Qt::TextElideMode directedElideMode(Qt::TextElideMode mode)
{
    if (mode == Qt::ElideLeft && QGuiApplication::isLeftToRight())
        return Qt::ElideRight;
    if (mode == Qt::ElideRight && QGuiApplication::isRightToLeft())
        return Qt::ElideLeft;
    return mode;
}

/// A text as it is painted, and the space that it takes.
struct Line
{
    QString text;
    QSize size;
};

Line lineOf(const Block &block, int available)
{
    if (block.richText)
        return { QString(), block.richText->size().toSize() };
    const QFontMetrics &metrics = block.fontMetrics;
    const int width = metrics.horizontalAdvance(block.text);
    // Eliding measures as well, and measuring is expensive. The width is rounded: a text that just
    // fits may be too wide.
    if (width < available)
        return { block.text, QSize(width, metrics.height()) };
    const QString elided = metrics.elidedText(block.text, directedElideMode(block.elideMode),
                                              available);
    return { elided, QSize(metrics.horizontalAdvance(elided), metrics.height()) };
}

void drawText(QPainter &painter, const Block &block, const QString &elided, const QSize &size)
{
    if (block.richText) {
        QAbstractTextDocumentLayout::PaintContext context;
        context.palette.setColor(QPalette::Text, painter.pen().color());
        block.richText->documentLayout()->draw(&painter, context);
        return;
    }
    painter.drawText(QRectF(QPointF(), size), elided, QTextOption());
}

QRect drawIconText(QPainter &painter, const Block &block, const QStyleOption &option,
                   const Picture &picture, const OxaColorSet &textColors)
{
    const int available = block.availableWidth(option.rect, picture.size);
    const Line line = lineOf(block, available);
    const IconTextPlacement place = IconTextPlacement::in(option.rect,
                                                          { picture.size, line.size,
                                                            block.iconPadding, block.textMargins,
                                                            block.alignment, block.horAlign });

    painter.save();
    painter.translate(place.block);
    if (picture.draw) {
        painter.save();
        picture.draw(painter, place.icon);
        painter.restore();
    }
    painter.translate(place.text);
    painter.setPen(orTransparent(colorForStyleState(textColors, option.state)));
    drawText(painter, block, line.text,
             QSize(available, qMax(line.size.height(), block.fontMetrics.height())));
    painter.restore();
    return place.blockRect();
}

Picture pictureOf(const OxaSvgIcon *icon, QStyle::State state)
{
    if (!icon || !icon->isVisible())
        return {};
    return { icon->getIconSize(), [icon, state](QPainter &painter, const QPointF &offset) {
                painter.translate(offset);
                icon->draw(&painter, state);
            } };
}

const QTextDocument *richTextOf(const OxaSvgPushButton &button, const QTextDocument *document)
{
    return button.getTextFormat() == Qt::RichText ? document : nullptr;
}

} // namespace

QRect DrawUtils::drawSvgIconText(QPainter *painter, const OxaSvgLabel *label,
                                 const QStyleOption &option,
                                 const std::unique_ptr<OxaSvgIcon> &icon,
                                 const OxaColorSet &textColors)
{
    return drawIconText(*painter, Block(*label, nullptr), option,
                        pictureOf(icon.get(), option.state), textColors);
}

QRect DrawUtils::drawSvgIconText(QPainter *painter, const OxaSvgPushButton *button,
                                 QTextDocument *document, const QStyleOption &option,
                                 const std::unique_ptr<OxaSvgIcon> &icon,
                                 const OxaColorSet &textColors)
{
    return drawIconText(*painter, Block(*button, richTextOf(*button, document)), option,
                        pictureOf(icon.get(), option.state), textColors);
}

QRect DrawUtils::drawPixmapIconText(QPainter *painter, const OxaSvgPushButton *button,
                                    QTextDocument *document, const QStyleOption &option,
                                    const QPixmap &pixmap, const OxaColorSet &textColors)
{
    Picture picture;
    if (!pixmap.isNull()) {
        picture.size = button->iconSize();
        picture.draw = [&pixmap, size = picture.size](QPainter &target, const QPointF &offset) {
            target.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
            target.drawPixmap(QRect(offset.toPoint(), size), pixmap);
        };
    }
    return drawIconText(*painter, Block(*button, richTextOf(*button, document)), option, picture,
                        textColors);
}
