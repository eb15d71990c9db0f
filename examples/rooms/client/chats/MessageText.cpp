// SPDX-License-Identifier: Apache-2.0
#include "MessageText.h"

#include "EmojiLine.h"

#include <UiElements/emoji/EmojiTextConverter.h>
#include <UiElements/fonts/OxaFontManager.h>
#include <UiElements/fonts/OxaScaledFonts.h>

#include <QColor>
#include <QRegularExpression>
#include <QTextOption>

#include <cmath>

namespace {

constexpr int longestText = 4000;
constexpr int mostLinks = 20;

/// Matches a web address without what ends a sentence, and without characters that turn the
/// direction of what follows.
const QRegularExpression &linkExpression()
{
    static const QRegularExpression expression(QStringLiteral(
            R"(\bhttps?://[^\s<>"'\x{200E}\x{200F}\x{202A}-\x{202E}\x{2066}-\x{2069}]*[^\s<>"'.,;:!?)\]\x{200E}\x{200F}\x{202A}-\x{202E}\x{2066}-\x{2069}])"));
    return expression;
}

QUrl safeUrl(const QString &text)
{
    const QUrl url(text, QUrl::StrictMode);
    const bool isWeb = url.scheme() == QLatin1String("http")
            || url.scheme() == QLatin1String("https");
    // A name before the host makes one site look like another.
    return isWeb && !url.host().isEmpty() && url.userInfo().isEmpty() ? url : QUrl();
}

/// Returns \a text as markup, with its links.
QString markup(const QString &text, const QColor &linkColor, int *linkCount)
{
    QString html;
    int done = 0;
    *linkCount = 0;
    auto matches = linkExpression().globalMatch(text);
    while (matches.hasNext() && *linkCount < mostLinks) {
        const QRegularExpressionMatch match = matches.next();
        const QUrl url = safeUrl(match.captured());
        if (url.isEmpty())
            continue;
        html += text.mid(done, match.capturedStart() - done).toHtmlEscaped()
                + QStringLiteral("<a href=\"%1\" style=\"color:%2\">%3</a>")
                          .arg(MessageText::safeText(url).toHtmlEscaped(), linkColor.name(),
                               match.captured().toHtmlEscaped());
        done = match.capturedEnd();
        ++*linkCount;
    }
    html += text.mid(done).toHtmlEscaped();
    return html.replace(QLatin1Char('\n'), QLatin1String("<br>"));
}

} // namespace

QFont MessageText::font()
{
    return OxaFontManager::get()
            ->getFont(FontManagerEnum::FontType::MessagingView)
            ->getFont(OxaFont::Token::BodySecondary);
}

QSize MessageText::layOut(QTextDocument *document, const QString &text, int width,
                          const QColor &linkColor, qreal pixelRatio)
{
    const QString shown = text.size() <= longestText ? text
                                                     : text.left(longestText) + QChar(0x2026);
    document->setUndoRedoEnabled(false);
    document->setDocumentMargin(0);
    document->setDefaultFont(font());
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    document->setDefaultTextOption(option);
    document->setTextWidth(width);

    int linkCount = 0;
    EmojiTextConverter converter(EmojiLine::emojiSize(document->defaultFont()), pixelRatio);
    const QString body = converter.convert(markup(shown, linkColor, &linkCount));
    if (linkCount == 0 && converter.svgFiles().isEmpty())
        document->setPlainText(shown); // Takes a fraction of the time.
    else
        converter.setHtml(document, QStringLiteral("style=\"white-space:pre-wrap\""), body);
    return { int(std::ceil(document->idealWidth())) + 1,
             int(std::ceil(document->size().height())) };
}

QList<QUrl> MessageText::links(const QString &text)
{
    QList<QUrl> links;
    auto matches = linkExpression().globalMatch(text.left(longestText));
    while (matches.hasNext() && links.size() < mostLinks) {
        const QUrl url = safeUrl(matches.next().captured());
        if (!url.isEmpty())
            links += url;
    }
    return links;
}

QString MessageText::safeText(const QUrl &url) { return QString::fromLatin1(url.toEncoded()); }
