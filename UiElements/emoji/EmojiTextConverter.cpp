// SPDX-License-Identifier: Apache-2.0
#include "EmojiTextConverter.h"

#include "EmojiArtwork_p.h"
#include "EmojiCharTypes_p.h"
#include "EmojiConversion_p.h"
#include "EmojiMarkup_p.h"

#include <QDebug>

namespace {

constexpr char unhandledFormatWarning[] = "Unhandled image tag format!";

} // namespace

EmojiTextConverter::EmojiTextConverter(int emojiSize, double pixelRatio)
    : m_emojiSize(emojiSize), m_pixelRatio(pixelRatio)
{
}

QString EmojiTextConverter::convert(const QString &text)
{
    m_svgFiles.clear();
    EmojiArtwork::beginText();
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
