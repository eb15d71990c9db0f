// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaLabel.h>

#include <QSet>

class QRegularExpression;
class QTextDocument;

/// A label for text that users write, such as names and messages. It draws emoji from the
/// application's own artwork; EmojiTextConverter describes how the files are named.
///
/// Emoji are drawn from the font instead if the text can be selected, if it is centred and has more
/// than one line, or if it has a "\n" and is centred vertically. A new label is centred vertically:
/// align a text of several lines to the top.
///
/// The text is laid out again when it, the size, the font, the style text or the layout direction
/// changes, and at each change of hover and focus. Alignment, indent, word wrap and elide mode are
/// read then: set them before the text. No text makes more than 20 lines.
///
/// Use only Qt::PlainText, the default, for what users wrote. Qt lays Qt::RichText out as a whole,
/// and nested tables in a short text can keep it busy for minutes; a text in another format is
/// escaped before it is shown, but QLabel measures it as markup. The time for plain text grows with
/// its length; of rich text, 64 kB of elements that are never closed take Qt 4 s and of image tags
/// 2 s.
///
/// Selected text is painted like any other: a selection does not show.
class UIELEMENTS_EXPORT OxaEmojiLabel : public OxaLabel
{
    Q_OBJECT
    Q_PROPERTY(int textLeftPadding READ getTextLeftPadding WRITE setTextLeftPadding)
    Q_PROPERTY(int textRightPadding READ getTextRightPadding WRITE setTextRightPadding)

public:
    /// U+2026 in UTF-8.
    static constexpr char ELLIPSIS[] = "\xE2\x80\xA6";

    /// Makes an empty label without an accessible role.
    explicit OxaEmojiLabel(QWidget *parent = nullptr);

    /// Makes an empty label.
    OxaEmojiLabel(QWidget *parent, QAccessible::Role role, Qt::WindowFlags flags = {});

    /// Makes a label with \a text.
    explicit OxaEmojiLabel(const QString &text, QWidget *parent = nullptr,
                           QAccessible::Role role = QAccessible::NoRole,
                           Qt::WindowFlags flags = {});

    /// Returns the space in pixels to the left of the text, 0 by default.
    int getTextLeftPadding() const;

    /// Sets the space to the left of the text, or to the right of it in a right-to-left
    /// application. Repaints, but doesn't lay the text out.
    void setTextLeftPadding(int padding);

    /// Returns the space in pixels to the right of the text, 0 by default.
    int getTextRightPadding() const;

    /// Sets the space to the right of the text, as setTextLeftPadding() does.
    void setTextRightPadding(int padding);

    using OxaLabel::getElidedText;

    /// Returns the text that the label shows, elided and escaped, with its emoji as characters.
    QString getElidedText() const;

    /// Returns whether the text has more than one line, by a newline or by wrapping.
    bool isTextMoreThanOneLine() const;

    /// Sets whether the label keeps its text colour when it is hovered or focused, because it shows
    /// the state of its parent. False by default.
    void setMirrorParentFocus(bool mirrors);

    void setTextInteractionFlags(Qt::TextInteractionFlags flags) override;

    /// Returns the size of the text as laid out, with three more pixels of width for each emoji.
    QSize sizeHint() const override;

    /// Returns where the text is painted. Horizontally a text is centred, or else at the side where
    /// lines begin in the application's layout direction; vertically it is at the top unless it is
    /// centred.
    QPointF getTextOffset() const override;

public Q_SLOTS:
    /// Sets the text, lays it out and repaints. Image tags in it stand for their emoji.
    void setText(const QString &text) override;

Q_SIGNALS:
    /// As OxaLabel's signal of this name, which a label emits by itself, and a button doesn't.
    void clicked(); // clazy:exclude=overridden-signal

protected:
    /// Returns an expression that matches a character that ends a line: U+000A, U+000C, U+000D,
    /// U+000F, U+2028 or U+2029.
    static QRegularExpression getNewlineCharactersRegEx();

    /// Returns whether \a text has one of those characters.
    static bool containsNewline(const QString &text);

    /// Returns whether emoji are drawn from artwork.
    bool shouldDrawSvgEmojis() const;

    /// Lays the text out.
    void updateText();

    /// Sets the colour of the text in the palette.
    void updateTextColor(const QColor &color);

    /// Returns \a text as markup, elided first if \a elide is true, with \a separator in place of
    /// each newline.
    QString createElidedLine(const QString &text, bool elide, const QString &separator);

    /// Returns \a text as markup, broken into lines with \a separator between them. Text that
    /// doesn't fit into the maximum height is elided.
    QString createElidedLines(const QString &text, const QString &separator);

    /// Returns the style attribute of the text: colour, font families and margins.
    QString createStyle();

    /// Returns the margins for indent and paddings, or an empty text.
    QString createIndentStyle();

    bool event(QEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private Q_SLOTS:
    void onCssChanged();
    void onLayoutDirectionChanged();

private:
    static QSet<QChar> getNewlineCharacters();
    static QStringList splitStringAtNewlines(const QString &text);

    void showState();
    QString createBody(const QString &text);
    bool isLaidOutByQt(const QString &text) const;
    void fillDocument(qreal textWidth);

    QTextDocument *m_document;
    QString m_elidedHtml;
    int m_textLeftPadding = 0;
    int m_textRightPadding = 0;
    bool m_moreThanOneLine = false;
    bool m_mirrorsParentFocus = false;
};
