// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/emoji/EmojiTextConverter.h>

#include <functional>

/// Reads a text once, code point by code point, and passes each emoji sequence to a function that
/// writes it.
///
/// A sequence is pending until a code point shows that it is complete. Text outside of sequences is
/// copied.
class EmojiConversion
{
    Q_DISABLE_COPY_MOVE(EmojiConversion)

public:
    /// Adds what stands for `sequence` to `markup`.
    using SequenceWriter = std::function<void(const EmojiSequence &sequence, QString &markup)>;

    /// Converts \a text with \a writer. Both must outlive the conversion.
    EmojiConversion(const QString &text, const SequenceWriter &writer);
    ~EmojiConversion() = default;

    /// Returns the markup. Call it once.
    QString run();

    /// Returns whether run() copied anything that is not part of a sequence.
    bool hasPlainText() const { return m_hasPlainText; }

private:
    /// A code point, and how many UTF-16 units it takes. An unpaired surrogate is a U+FFFD.
    struct CodePoint
    {
        uint value;
        int length;
    };

    bool isAtEnd() const { return m_next >= m_text.size(); }
    CodePoint codePointAt(int position) const;
    EmojiCharType nextType() const;

    void step();
    void start(uint codePoint);
    void takeKeycap(uint codePoint);
    void takeRegionalIndicator(uint codePoint);
    void takeFlag(uint codePoint);
    bool takeTags(uint flag);
    void takeSelector(uint codePoint);
    void takePlain(uint codePoint);
    void copyPlainRun();

    void flush();
    void flushAndClear();
    void clear();

    const QString &m_text;
    const SequenceWriter &m_writer;
    QString m_markup;
    EmojiSequence m_pending;
    int m_next = 0; ///< Where the next code point begins, in UTF-16 units.
    uint m_previous = 0;
    EmojiCharType m_currentType = EmojiCharType::Other;
    EmojiCharType m_previousType = EmojiCharType::Other;
    bool m_hasPlainText = false;
};
