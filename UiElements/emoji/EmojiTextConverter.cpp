// SPDX-License-Identifier: Apache-2.0
#include "EmojiTextConverter.h"

#include "EmojiArtwork_p.h"
#include "EmojiCharTypes_p.h"
#include "EmojiConversion_p.h"
#include "EmojiMarkup_p.h"

#include <QDebug>
#include <QImage>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QUrl>

#include <vector>

namespace {

constexpr char unhandledFormatWarning[] = "Unhandled image tag format!";

/// A placeholder in a document.
struct Placeholder
{
    int position;
    EmojiMarkup::Source source;
};

void appendPlaceholders(const QTextFragment &fragment, std::vector<Placeholder> &placeholders)
{
    const QTextCharFormat format = fragment.charFormat();
    if (!format.isImageFormat())
        return;
    const auto source = EmojiMarkup::parseName(format.toImageFormat().name());
    if (!source)
        return;
    // The same emoji several times in a row is one fragment.
    for (int i = 0; i < fragment.length(); ++i)
        placeholders.push_back({ fragment.position() + i, *source });
}

std::vector<Placeholder> placeholdersIn(const QTextDocument &document)
{
    std::vector<Placeholder> placeholders;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto i = block.begin(); !i.atEnd(); ++i)
            appendPlaceholders(i.fragment(), placeholders);
    }
    return placeholders;
}

/// Returns a name for the picture of \a emoji that no other picture of the process has.
QString uniquePictureName(const QString &emoji)
{
    static int count = 0;
    return EmojiMarkup::pictureName(emoji, ++count);
}

QTextImageFormat pictureFormat(const QString &name, int edge)
{
    QTextImageFormat format;
    format.setName(name);
    format.setVerticalAlignment(QTextCharFormat::AlignBottom);
    format.setWidth(edge);
    format.setHeight(edge);
    return format;
}

} // namespace

EmojiTextConverter::EmojiTextConverter(int emojiSize, double pixelRatio)
    : m_emojiSize(emojiSize), m_pixelRatio(pixelRatio)
{
}

QString EmojiTextConverter::convert(const QString &text)
{
    m_svgFiles.clear();
    const EmojiConversion::SequenceWriter writer = [this](const EmojiSequence &sequence,
                                                          QString &markup) {
        writeSequence(sequence, markup);
    };
    EmojiConversion conversion(text, writer);
    QString markup = conversion.run();
    m_hasPlainText = conversion.hasPlainText();
    return markup;
}

void EmojiTextConverter::writeSequence(const EmojiSequence &sequence, QString &markup)
{
    const QString path = EmojiArtwork::pathOf(sequence.stem);
    if (path.isEmpty()) {
        markup += sequence.text;
        return;
    }
    m_svgFiles.append(path);
    switch (m_tagFormat) {
    case EmojiTagFormat::Placeholder:
        EmojiMarkup::appendPlaceholder(markup, { path, sequence.text });
        return;
    case EmojiTagFormat::Resource:
        EmojiMarkup::appendImage(markup, { path, sequence.text }, m_emojiSize);
        return;
    }
    QMessageLogger().warning() << unhandledFormatWarning;
}

void EmojiTextConverter::insertImages(QTextDocument *document) const
{
    const std::vector<Placeholder> placeholders = placeholdersIn(*document);
    if (placeholders.empty())
        return;
    const int edge = int(m_emojiSize * m_pixelRatio);
    QTextCursor cursor(document);
    // The document is laid out once, and not for each picture.
    cursor.beginEditBlock();
    for (const Placeholder &placeholder : placeholders) {
        const QString name = uniquePictureName(placeholder.source.text);
        document->addResource(QTextDocument::ImageResource, QUrl(name),
                              EmojiArtwork::picture(placeholder.source.path, edge));
        cursor.setPosition(placeholder.position);
        cursor.setPosition(placeholder.position + 1, QTextCursor::KeepAnchor);
        cursor.insertImage(pictureFormat(name, m_emojiSize));
    }
    cursor.endEditBlock();
}

QString EmojiTextConverter::restore(const QString &markup) { return EmojiMarkup::restored(markup); }

EmojiCharType EmojiTextConverter::charType(uint codePoint)
{
    return EmojiCharTypes::typeOf(codePoint);
}

QVector<EmojiSequence> EmojiTextConverter::sequences(const QString &text)
{
    QVector<EmojiSequence> found;
    const EmojiConversion::SequenceWriter writer = [&found](const EmojiSequence &sequence,
                                                            QString &) { found += sequence; };
    EmojiConversion(text, writer).run();
    return found;
}
