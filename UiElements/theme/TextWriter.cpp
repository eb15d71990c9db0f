// SPDX-License-Identifier: Apache-2.0
#include "TextWriter_p.h"

#include <array>

// Not inline: where a string's memory is from, the compiler takes its header for all of it and
// warns.
TextWriter::TextWriter(QChar *begin) : m_end(begin) { }

TextWriter &TextWriter::operator<<(const QColor &color)
{
    constexpr char16_t digits[] = u"0123456789abcdef";
    std::array<char16_t, 9> name = { u'#' };
    QRgb rgba = color.rgba();
    for (std::size_t i = name.size() - 1; i > 0; --i, rgba >>= 4)
        name[i] = digits[rgba & 0xf];
    return *this << QStringView(name.data(), qsizetype(name.size()));
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
