// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QString>

#include <algorithm>

/// Writes many short pieces into memory that is known to have room for them.
///
/// A style sheet is written in a hundred pieces of a few characters; QString::append() would look
/// for room at each of them.
class TextWriter
{
public:
    explicit TextWriter(QChar *begin);

    /// Returns the end of what is written.
    const QChar *end() const { return m_end; }

    TextWriter &operator<<(QStringView text)
    {
        m_end = std::copy(text.begin(), text.end(), m_end);
        return *this;
    }

    TextWriter &operator<<(const QString &text) { return *this << QStringView(text); }

    /// Writes the name of \a color with its alpha first: "#aarrggbb".
    TextWriter &operator<<(const QColor &color);

    /// Writes \a number in decimal digits.
    TextWriter &operator<<(quint8 number);

private:
    QChar *m_end;
};

/// Returns what \a write, a function of a TextWriter &, writes: \a room characters at most.
template <typename Write>
QString writtenText(int room, Write write)
{
    QString text(room, Qt::Uninitialized);
    TextWriter writer(text.data());
    write(writer);
    Q_ASSERT(writer.end() <= text.cend());
    text.truncate(static_cast<int>(writer.end() - text.cbegin()));
    return text;
}
