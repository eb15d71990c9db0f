// SPDX-License-Identifier: Apache-2.0
#include "EmojiLine.h"

#include <UiElements/emoji/EmojiTextConverter.h>

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextDocument>

namespace {

constexpr int longestLine = 300;

Qt::Alignment alignmentFor(const QPainter &painter, bool isCentred)
{
    if (isCentred)
        return Qt::AlignHCenter;
    const bool isRightToLeft = painter.layoutDirection() == Qt::RightToLeft;
    return (isRightToLeft ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute;
}

/// The ellipsis of a text stands where the text ends, whatever the direction of the window.
void paintText(QPainter *painter, const QString &text, const QRect &rect, const QFont &font,
               const QColor &color, Qt::Alignment alignment)
{
    const Qt::LayoutDirection direction = painter->layoutDirection();
    painter->setLayoutDirection(text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    painter->setFont(font);
    painter->setPen(color);
    painter->drawText(rect, int(alignment | Qt::AlignVCenter) | Qt::TextSingleLine, text);
    painter->setLayoutDirection(direction);
}

void paintDocument(QPainter *painter, QTextDocument *document, const QRect &rect,
                   const QColor &color)
{
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(QPalette::Text, color);
    painter->save();
    painter->setClipRect(rect, Qt::IntersectClip);
    painter->translate(rect.left(), rect.top() + (rect.height() - document->size().height()) / 2);
    document->documentLayout()->draw(painter, context);
    painter->restore();
}

} // namespace

int EmojiLine::emojiSize(const QFont &font) { return QFontMetrics(font).ascent() + 2; }

void EmojiLine::paint(QPainter *painter, const QRect &rect, const QString &text, const QFont &font,
                      const QColor &color, bool isCentred)
{
    const QFontMetrics metrics(font);
    const QString start = text.left(longestLine).simplified();
    EmojiTextConverter converter(emojiSize(font), painter->device()->devicePixelRatioF());
    converter.convert(start);
    // The font's emoji may be narrower than the pictures.
    const int room = rect.width() - (isCentred ? 0 : 4 * converter.svgFiles().size());
    const QString line = metrics.elidedText(start, isCentred ? Qt::ElideNone : Qt::ElideRight,
                                            room);
    const QString body = converter.convert(line.toHtmlEscaped());
    if (converter.svgFiles().isEmpty()) {
        paintText(painter, line, rect, font, color, alignmentFor(*painter, isCentred));
        return;
    }
    QTextDocument document;
    document.setDocumentMargin(0);
    document.setDefaultFont(font);
    QTextOption option(alignmentFor(*painter, isCentred));
    option.setWrapMode(QTextOption::NoWrap);
    document.setDefaultTextOption(option);
    converter.setHtml(&document, QString(), body);
    document.setTextWidth(rect.width());
    paintDocument(painter, &document, rect, color);
}
