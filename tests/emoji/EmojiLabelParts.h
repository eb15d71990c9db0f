// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "EmojiNotation.h"
#include "support/ColorSets.h"
#include "support/EmojiArtwork.h"
#include "support/Guards.h"

#include <UiElements/emoji/OxaEmojiLabel.h>

#include <QRegularExpression>
#include <QTextBlock>
#include <QTextDocument>

/// An OxaEmojiLabel that shows its inner parts, aligned to the top.
class EmojiLabel : public OxaEmojiLabel
{
public:
    explicit EmojiLabel(const QString &text = QString(), QWidget *parent = nullptr)
        : OxaEmojiLabel(parent)
    {
        setAlignment(Qt::AlignLeft | Qt::AlignTop);
        setText(text);
    }

    using OxaEmojiLabel::containsNewline;
    using OxaEmojiLabel::createElidedLine;
    using OxaEmojiLabel::createElidedLines;
    using OxaEmojiLabel::createIndentStyle;
    using OxaEmojiLabel::createStyle;
    using OxaEmojiLabel::getNewlineCharactersRegEx;
    using OxaEmojiLabel::shouldDrawSvgEmojis;
    using OxaEmojiLabel::updateText;
    using OxaEmojiLabel::updateTextColor;

    QTextDocument &document() const
    {
        return *findChild<QTextDocument *>(QString(), Qt::FindDirectChildrenOnly);
    }

    /// Returns the names of the pictures in the document, without their numbers.
    QStringList pictures() const
    {
        QStringList names;
        for (QTextBlock block = document().begin(); block.isValid(); block = block.next()) {
            for (auto i = block.begin(); !i.atEnd(); ++i) {
                const QTextCharFormat format = i.fragment().charFormat();
                if (format.isImageFormat())
                    names += format.toImageFormat().name().section(QLatin1Char('|'), 0, 0);
            }
        }
        return names;
    }

    /// Returns the text of the document, with a bar between lines.
    QString shownText() const
    {
        return document().toPlainText().replace(QLatin1Char('\n'), QLatin1Char('|'));
    }
};

/// Emoji that label tests have artwork for, and one that they have none for.
namespace EmojiLabelParts {

const QString face = EmojiNotation::text({ 0x1F600 });
const QString heart = EmojiNotation::text({ 0x2764, 0xFE0F });
const QString unknownFace = EmojiNotation::text({ 0x1F601 });

/// Provides artwork for those emoji, and the colours that labels ask for, while it exists.
class Surroundings
{
public:
    explicit Surroundings(const OxaColorSet &set = {})
        : m_stores(ColorSets::storeOf(
                { ColorSets::make(QStringLiteral("button-hyperlink-text"), { "#112233" }), set }))
    {
    }

private:
    EmojiArtwork m_artwork { { QStringLiteral("1f600"), QStringLiteral("2764-fe0f") } };
    StoreGuard m_stores;
};

} // namespace EmojiLabelParts
