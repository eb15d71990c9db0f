// SPDX-License-Identifier: Apache-2.0
#include "support/Comparison.h"
#include "support/EmojiArtwork.h"
#include "support/Stores.h"

#include <UiElements/emoji/EmojiTextConverter.h>
#include <UiElements/emoji/OxaEmojiLabel.h>

#include <QImage>
#include <QPainter>
#include <QTextDocument>
#include <QUrl>

namespace {

constexpr int callsPerRound = 20;
const QSize labelSize(280, 60);

/// Messages of usual length, all different, so that the label never shows the same text again.
const QStringList messages = {
    QStringLiteral("Great work everyone \U0001F389 the release is out, see you at four \u2615"),
    QStringLiteral("Thanks \U0001F44D\U0001F3FD I'll have a look at the numbers after lunch"),
    QStringLiteral("Who is coming? \U0001F600 \U0001F600 \U0001F600 We have room for seven"),
    QStringLiteral("Please review the plan for the third quarter before Thursday"),
};

EmojiArtwork artwork()
{
    return EmojiArtwork({ QStringLiteral("1f389"), QStringLiteral("2615"),
                          QStringLiteral("1f44d-1f3fd"), QStringLiteral("1f600") });
}

/// Paints into one picture, as a window does.
class Canvas
{
public:
    template <typename Paint>
    void paint(Paint paint)
    {
        m_image.fill(Qt::white);
        QPainter painter(&m_image);
        paint(painter);
    }

    const QImage &image() const { return m_image; }

private:
    QImage m_image { labelSize, QImage::Format_ARGB32_Premultiplied };
};

class Label : public OxaEmojiLabel
{
public:
    explicit Label(bool wraps)
    {
        setAlignment(Qt::AlignLeft | Qt::AlignTop);
        setWordWrap(wraps);
        resize(labelSize);
    }

    void paint(QPainter &painter) { render(&painter, QPoint(), QRegion(), DrawChildren); }

    /// Returns the markup that the label shows \a message by.
    QString markup(const QString &message)
    {
        const QString separator = QStringLiteral("<br>");
        const QString body = wordWrap() ? createElidedLines(message, separator)
                                        : createElidedLine(message, true, separator);
        return QStringLiteral("<div %1>%2</div>").arg(createStyle(), body);
    }
};

/// A document that gets finished markup, with existing pictures.
class Peer
{
public:
    explicit Peer(Label &label)
    {
        m_document.setUndoRedoEnabled(false);
        m_document.setDefaultFont(label.font());
        m_document.setDocumentMargin(0.0);
        label.setText(messages[0]); // A label without a text draws no artwork.
        for (const QString &message : messages)
            m_markups += finished(label.markup(message), label.fontMetrics().height());
    }

    void set(int index) { m_document.setHtml(m_markups[index]); }
    void paint(QPainter &painter) { m_document.drawContents(&painter); }

private:
    /// Gives each placeholder in \a body its picture's name and size.
    QString finished(QString body, int edge)
    {
        const QString square = QStringLiteral(
                                       "\" width=\"%1\" height=\"%1\" style=\"vertical-align: "
                                       "bottom\"")
                                       .arg(edge);
        QImage picture(edge, edge, QImage::Format_ARGB32);
        picture.fill(Qt::red);
        int from = 0;
        while ((from = body.indexOf(QLatin1String("svgFile="), from)) >= 0) {
            const QString name = QStringLiteral("picture%1").arg(m_count++);
            m_document.addResource(QTextDocument::ImageResource, QUrl(name), picture);
            const int end = body.indexOf(QLatin1Char('"'), from);
            body.replace(from, end + 1 - from, name + square);
        }
        return body;
    }

    QTextDocument m_document;
    QStringList m_markups;
    int m_count = 0;
};

void setAndPaint(benchmark::State &state, bool wraps)
{
    OxaThemeUtils::setAppOxaColorSets(Stores::make(1));
    const EmojiArtwork emoji = artwork();
    Label label(wraps);
    Peer peer(label);
    Canvas ours;
    Canvas theirs;
    const auto workOurs = [&](int index) {
        label.setText(messages[index]);
        ours.paint([&label](QPainter &painter) { label.paint(painter); });
    };
    const auto workTheirs = [&](int index) {
        peer.set(index);
        theirs.paint([&peer](QPainter &painter) { peer.paint(painter); });
    };
    for (int i = 0; i < messages.size(); ++i) {
        workOurs(i);
        workTheirs(i);
        if (ours.image() != theirs.image())
            state.SkipWithError("the document shows another picture");
    }

    Comparison comparison(state);
    int next = 0;
    int nextOfPeer = 0;
    for (auto _ : state)
        comparison.round([&] { workOurs(next++ % messages.size()); },
                         [&] { workTheirs(nextOfPeer++ % messages.size()); }, callsPerRound);
    comparison.ratioAtMost(1.5);
}
BENCHMARK_CAPTURE(setAndPaint, oneLine, false)
        ->Name("message label, set and painted/QTextDocument::setHtml and drawContents")
        ->Iterations(200)
        ->UseManualTime();
BENCHMARK_CAPTURE(setAndPaint, wrapped, true)
        ->Name("wrapped message, set and painted/QTextDocument::setHtml and drawContents")
        ->Iterations(200)
        ->UseManualTime();

} // namespace
