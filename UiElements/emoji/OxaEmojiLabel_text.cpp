// SPDX-License-Identifier: Apache-2.0
#include "OxaEmojiLabel.h"

#include "EmojiTextConverter.h"
#include "LabelLines_p.h"
#include "Newlines_p.h"

#include <QGuiApplication>
#include <QRegularExpression>
#include <QTextDocument>

namespace {

const QString lineSeparator = QStringLiteral("<br>");

} // namespace

void OxaEmojiLabel::updateText()
{
    m_moreThanOneLine = false;
    QString shownText = text();
    const bool hasArtwork = shouldDrawSvgEmojis();
    // A text from another label or a document may have image tags: they are emoji as well.
    if (hasArtwork)
        shownText = EmojiTextConverter::restore(shownText);
    m_moreThanOneLine = containsNewline(shownText);
    m_elidedHtml = createBody(shownText);
    // Only wrapping shows whether a centred text has several lines.
    if (hasArtwork && !shouldDrawSvgEmojis())
        m_elidedHtml = EmojiTextConverter::restore(m_elidedHtml);
    fillDocument(isLaidOutByQt(shownText) ? width() : -1.0);
}

QString OxaEmojiLabel::createBody(const QString &text)
{
    if (isLaidOutByQt(text))
        return text;
    return wordWrap() ? createElidedLines(text, lineSeparator)
                      : createElidedLine(text, true, lineSeparator);
}

/// Returns whether Qt lays out \a text as a document, so that its lines are not broken here.
bool OxaEmojiLabel::isLaidOutByQt(const QString &text) const
{
    return wordWrap() && textFormat() == Qt::RichText
            && (text.startsWith(QLatin1String("<p>")) || text.startsWith(QLatin1String("<html>")));
}

void OxaEmojiLabel::fillDocument(qreal textWidth)
{
    m_document->clear(); // Also the pictures, which setHtml() would keep.
    m_document->setDefaultFont(font());
    m_document->setDocumentMargin(0.0);
    m_document->setTextWidth(textWidth);
    if (m_document->defaultStyleSheet() != styleSheet())
        m_document->setDefaultStyleSheet(styleSheet());

    if (shouldDrawSvgEmojis())
        EmojiTextConverter(fontMetrics().height(), devicePixelRatioF())
                .setHtml(m_document, createStyle(), m_elidedHtml);
    else
        m_document->setHtml(QLatin1String("<div ") + createStyle() + QLatin1Char('>') + m_elidedHtml
                            + QLatin1String("</div>"));
    // A parsed sheet takes as much memory as an empty document, which does not need it.
    if (m_document->isEmpty())
        m_document->setDefaultStyleSheet(QString());
}

QString OxaEmojiLabel::createElidedLine(const QString &text, bool elide, const QString &separator)
{
    QString line = text;
    if (elide && getElideMode() != Qt::ElideNone)
        line = getElidedText(line, indent(), margin());
    if (textFormat() != Qt::RichText)
        line = line.toHtmlEscaped().replace(Newlines::expression(), separator);
    if (shouldDrawSvgEmojis())
        line = EmojiTextConverter(fontMetrics().height(), devicePixelRatioF()).convert(line);
    return line;
}

QString OxaEmojiLabel::createElidedLines(const QString &text, const QString &separator)
{
    const int lineWidth = width() - getElidePadding() - indent() - margin();
    const LabelLines::Lines broken = LabelLines::breakParagraphs(splitStringAtNewlines(text),
                                                                 font(), lineWidth,
                                                                 maximumHeight());
    QStringList lines;
    for (const LabelLines::Line &line : broken.lines)
        lines += createElidedLine(line.text, line.isElided, separator);
    if (broken.lacksParagraphs && getElideMode() != Qt::ElideNone)
        lines.last() = LabelLines::endingInEllipsis(lines.last(), font(), lineWidth);
    m_moreThanOneLine = lines.size() > 1;
    return lines.join(separator);
}

QString OxaEmojiLabel::createStyle()
{
    static const QString families = QStringList { QStringLiteral("Segoe UI"),
                                                  QStringLiteral("Segoe UI Emoji") }
                                            .join(QLatin1Char(','));
    return QStringLiteral("style=\"color:%1;font-family:%2;%3\"")
            .arg(palette().color(QPalette::WindowText).name(QColor::HexArgb), families,
                 createIndentStyle());
}

QString OxaEmojiLabel::createIndentStyle()
{
    int left = m_textLeftPadding;
    int right = m_textRightPadding;
    if (indent() > 0) {
        if (alignment() & Qt::AlignRight)
            right += indent();
        else if (alignment() & Qt::AlignLeft)
            left += indent();
    }
    if (left < 1 && right < 1)
        return {};
    if (QGuiApplication::isRightToLeft())
        std::swap(left, right);
    return QStringLiteral("margin: 0 %1 0 %2;").arg(right).arg(left);
}
