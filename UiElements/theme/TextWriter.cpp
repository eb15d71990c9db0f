// SPDX-License-Identifier: Apache-2.0
#include "TextWriter_p.h"

#include <array>

// Not inline: where a string's memory is from, the compiler takes its header for all of it and
// warns.
TextWriter::TextWriter(QChar *begin) : m_end(begin) { }

TextWriter &TextWriter::operator<<(const QColor &color)
{
    constexpr char16_t digits[] = u"0123456789abcdef";
    constexpr int length = 9;
    QRgb rgba = color.rgba();
    *m_end = QLatin1Char('#');
    for (int i = length - 1; i > 0; --i, rgba >>= 4)
        m_end[i] = digits[rgba & 0xf];
    m_end += length;
    return *this;
}

TextWriter &TextWriter::operator<<(quint8 number)
{
    std::array<char16_t, 3> digits = {};
    std::size_t first = digits.size();
    do {
        digits[--first] = static_cast<char16_t>(u'0' + number % 10);
        number /= 10;
    } while (number != 0);
    return *this << QStringView(digits.data() + first, qsizetype(digits.size() - first));
}
