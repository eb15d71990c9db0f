// SPDX-License-Identifier: Apache-2.0
#include "EmojiTextConverter.h"

#include "EmojiArtwork_p.h"
#include "EmojiMarkup_p.h"

#include <QHash>
#include <QImage>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QUrl>

#include <vector>

namespace {

/// Characters of a document that stand for an emoji: a mark, or the one of a placeholder.
struct Placeholder
{
    int position;
    int length;
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
        placeholders.push_back({ fragment.position() + i, 1, *source });
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

/// Returns the marks of \a sources in \a document.
std::vector<Placeholder> marksIn(QTextDocument *document,
                                 const std::vector<EmojiMarkup::Source> &sources)
{
    const QChar start = QChar::ObjectReplacementCharacter;
    std::vector<Placeholder> found;
    QTextCursor cursor(document);
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        const QString text = block.text();
        for (int i = text.indexOf(start); i >= 0; i = text.indexOf(start, i + 1)) {
            const std::size_t number = EmojiMarkup::markNumber(text, i);
            cursor.setPosition(block.position() + i + 1);
            // Images have the same character.
            if (number < sources.size() && !cursor.charFormat().isImageFormat())
                found.push_back({ block.position() + i, EmojiMarkup::markLength, sources[number] });
        }
    }
    return found;
}

/// Replaces each of \a placeholders with a picture of \a size.
void insertPictures(QTextCursor cursor, const std::vector<Placeholder> &placeholders, int size,
                    int edge)
{
    QHash<QString, QImage> pictures; // Each file is looked at once.
    int removedCount = 0;
    for (const Placeholder &placeholder : placeholders) {
        const int position = placeholder.position - removedCount;
        const bool isCharacter = placeholder.source.path.isEmpty();
        cursor.setPosition(isCharacter ? position + 1 : position);
        cursor.setPosition(position + placeholder.length, QTextCursor::KeepAnchor);
        removedCount += placeholder.length - 1;
        if (isCharacter) {
            cursor.removeSelectedText();
            continue;
        }
        auto picture = pictures.find(placeholder.source.path);
        if (picture == pictures.end())
            picture = pictures.insert(placeholder.source.path,
                                      EmojiArtwork::picture(placeholder.source.path, edge));
        const QString name = uniquePictureName(placeholder.source.text);
        cursor.document()->addResource(QTextDocument::ImageResource, QUrl(name), *picture);
        cursor.insertImage(pictureFormat(name, size));
    }
}

} // namespace

void EmojiTextConverter::insertImages(QTextDocument *document) const
{
    const std::vector<Placeholder> placeholders = placeholdersIn(*document);
    if (placeholders.empty())
        return;
    QTextCursor cursor(document);
    // Lays the document out once, and not for each picture.
    cursor.beginEditBlock();
    insertPictures(cursor, placeholders, m_emojiSize, int(m_emojiSize * m_pixelRatio));
    cursor.endEditBlock();
}

void EmojiTextConverter::setHtml(QTextDocument *document, const QString &attributes,
                                 const QString &body) const
{
    // An image after a block is added to it, but text starts a new one: no marks there.
    std::vector<EmojiMarkup::Source> sources;
    const QString marked = EmojiMarkup::hasBlocks(body) ? body : EmojiMarkup::marked(body, sources);
    // An undo would bring the marks back.
    const bool isUndoEnabled = document->isUndoRedoEnabled();
    document->setUndoRedoEnabled(false);
    QTextCursor cursor(document);
    cursor.beginEditBlock();
    document->setHtml(QLatin1String("<div ") + attributes + QLatin1Char('>') + marked
                      + QLatin1String("</div>"));
    insertPictures(cursor, sources.empty() ? placeholdersIn(*document) : marksIn(document, sources),
                   m_emojiSize, int(m_emojiSize * m_pixelRatio));
    cursor.endEditBlock();
    document->setUndoRedoEnabled(isUndoEnabled);
}
