// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <QString>
#include <QVector>

class QTextDocument;

/// What a code point is to an emoji sequence.
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
    BlackFlag = 10,        ///< A flag, and with tags behind it the flag of a region.
    TagCharacter = 11,     ///< A letter or digit of a region's tag.
};

/// The form of an image tag.
enum class EmojiTagFormat {
    Placeholder = 0, ///< Not a loadable image: EmojiTextConverter::insertImages() puts one there.
    Resource = 1,    ///< A tag that Qt can display as it stands.
};

/// A run of code points that is one emoji, as far as the text tells.
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
/// Artwork may be added, replaced and removed at any time, which shows from the next text on. Of a
/// text with more than 64 different emoji only the first 64 are looked at again.
///
/// Texts come back from restore() as they were. Some malformed sequences don't: a single regional
/// indicator disappears with the character behind it, and so do tags behind a black flag that
/// nothing ends; an emoji with a variation selector shows twice when a skin tone or hair follows.
///
/// A value for one conversion, to be dropped after it. GUI thread only.
class UIELEMENTS_EXPORT EmojiTextConverter
{
public:
    /// Makes a converter for emoji of \a emojiSize pixels in width and height, on a device of
    /// \a pixelRatio.
    EmojiTextConverter(int emojiSize, double pixelRatio);

    /// Returns the form of the tags, EmojiTagFormat::Placeholder by default.
    EmojiTagFormat tagFormat() const { return m_tagFormat; }

    /// Sets the form of the tags. A value that is no form logs a warning for each tag, and leaves
    /// it out.
    void setTagFormat(EmojiTagFormat format) { m_tagFormat = format; }

    /// Returns \a text with its emoji as image tags. Nothing is escaped: what is markup already
    /// stays markup.
    QString convert(const QString &text);

    /// Returns the path of each emoji that convert() wrote as a tag, in the order of the text.
    const QVector<QString> &svgFiles() const { return m_svgFiles; }

    /// Returns whether convert() wrote anything that is not part of a sequence.
    bool hasPlainText() const { return m_hasPlainText; }

    /// Gives pictures to the placeholders in \a document, which came from markup by convert().
    ///
    /// Each picture becomes a resource of its own, named by the emoji, "|" and a number that no
    /// other picture of the process has. Images of other kinds stay as they are.
    void insertImages(QTextDocument *document) const;

    /// Sets \a body, which came from convert(), as the content of \a document, with pictures, in an
    /// element "div" with \a attributes.
    ///
    /// The document is the same as by QTextDocument::setHtml() and insertImages(). But Qt takes
    /// time that grows with the square of the image tags in a paragraph, 3 s for 4,000, and this
    /// doesn't, unless the body is rich text with paragraphs, lists or tables.
    void setHtml(QTextDocument *document, const QString &attributes, const QString &body) const;

    /// Returns \a markup with its image tags turned back into the emoji that they stand for. Both
    /// what convert() writes and what insertImages() names is understood; other images become
    /// their alternative text. A tag without any text, or without an end on its line, stays.
    static QString restore(const QString &markup);

    /// Returns what \a codePoint is to an emoji sequence.
    static EmojiCharType charType(uint codePoint);

    /// Returns the sequences of \a text for which convert() looks for artwork, whether or not there
    /// is some.
    static QVector<EmojiSequence> sequences(const QString &text);

private:
    void writeSequence(const EmojiSequence &sequence, QString &markup);

    QVector<QString> m_svgFiles;
    bool m_hasPlainText = false;
    int m_emojiSize;
    double m_pixelRatio;
    EmojiTagFormat m_tagFormat = EmojiTagFormat::Placeholder;
};
