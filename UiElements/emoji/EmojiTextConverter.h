// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <QString>
#include <QVector>

class QTextDocument;

/// The role of a code point in an emoji sequence.
enum class EmojiCharType : quint8 {
    Other = 0,             ///< Plain text.
    Base = 1,              ///< An emoji by itself.
    Joiner = 2,            ///< Joins two emoji into one.
    GenderSign = 3,        ///< The female and the male sign. They are emoji too, and found as Base.
    SkinTone = 4,          ///< Colours the skin of the emoji before it.
    HairComponent = 5,     ///< Gives hair to the person before it.
    VariationSelector = 6, ///< Asks for a picture where there is a glyph as well.
    KeycapBase = 7,        ///< A number sign, an asterisk or a digit.
    Keycap = 8,            ///< Puts what stands before it on a key.
    RegionalIndicator = 9, ///< A letter; two of them are a flag.
    BlackFlag = 10,        ///< A flag, and with tags after it the flag of a region.
    TagCharacter = 11,     ///< A letter or digit of a region's tag.
};

/// The form of an image tag.
enum class EmojiTagFormat {
    Placeholder = 0, ///< Not a loadable image: EmojiTextConverter::insertImages() replaces it.
    Resource = 1,    ///< A tag that Qt can display as it is.
};

/// A run of code points that is one emoji, judging by the text alone.
struct EmojiSequence
{
    QString stem; ///< Name of its artwork, without suffix: "1f468-200d-1f4bb".
    QString text; ///< The characters.
};

/// Finds emoji in a text and writes them as image tags, for labels that draw their own emoji.
///
/// The artwork is the application's: a file ":/emojis/STEM.svg" for each sequence, where the stem
/// is the code points in lower-case hexadecimal, at least four digits each, with "-" between them.
/// A sequence without a file, or whose file is not a valid SVG, stays text, and nothing is logged.
/// Artwork may be added, replaced and removed at any time; the next text shows the change. Of a
/// text with more than 64 different emoji only the first 64 are checked again.
///
/// restore() returns texts as they were, except for some malformed sequences: a single regional
/// indicator disappears with the character after it; tags after a black flag disappear if nothing
/// ends them; an emoji with a variation selector shows twice if a skin tone or hair follows.
///
/// Make a converter for each conversion. GUI thread only.
class UIELEMENTS_EXPORT EmojiTextConverter
{
public:
    /// Makes a converter for emoji of \a emojiSize pixels in width and height, on a device of
    /// \a pixelRatio.
    EmojiTextConverter(int emojiSize, double pixelRatio);

    /// Returns the form of the tags, EmojiTagFormat::Placeholder by default.
    EmojiTagFormat tagFormat() const { return m_tagFormat; }

    /// Sets the form of the tags. With a value outside of the enumeration each tag is left out,
    /// with a warning.
    void setTagFormat(EmojiTagFormat format) { m_tagFormat = format; }

    /// Returns \a text with its emoji as image tags. Nothing is escaped: existing markup stays
    /// markup.
    QString convert(const QString &text);

    /// Returns the path of each emoji that convert() wrote as a tag, in the order of the text.
    const QVector<QString> &svgFiles() const { return m_svgFiles; }

    /// Returns whether convert() wrote anything that is not part of a sequence.
    bool hasPlainText() const { return m_hasPlainText; }

    /// Gives pictures to the placeholders in \a document, which came from markup by convert().
    ///
    /// Each picture becomes a resource named by the emoji, "|" and a number that no other picture
    /// of the process has. Images of other kinds stay as they are.
    void insertImages(QTextDocument *document) const;

    /// Sets \a body, which came from convert(), as the content of \a document, with pictures, in an
    /// element "div" with \a attributes.
    ///
    /// The result is that of QTextDocument::setHtml() and insertImages(). But those take time that
    /// grows with the square of the image tags in a paragraph, 3 s for 4,000. This doesn't, unless
    /// the body is rich text with paragraphs, lists or tables.
    void setHtml(QTextDocument *document, const QString &attributes, const QString &body) const;

    /// Returns \a markup with its image tags turned back into the emoji that they stand for. It
    /// understands what convert() writes and what insertImages() names; other images become their
    /// alternative text. A tag without any text, or without an end on its line, stays.
    static QString restore(const QString &markup);

    /// Returns the role of \a codePoint in an emoji sequence.
    static EmojiCharType charType(uint codePoint);

    /// Returns the sequences of \a text for which convert() looks for artwork, with or without
    /// success.
    static QVector<EmojiSequence> sequences(const QString &text);

private:
    void writeSequence(const EmojiSequence &sequence, QString &markup);

    QVector<QString> m_svgFiles;
    bool m_hasPlainText = false;
    int m_emojiSize;
    double m_pixelRatio;
    EmojiTagFormat m_tagFormat = EmojiTagFormat::Placeholder;
};
