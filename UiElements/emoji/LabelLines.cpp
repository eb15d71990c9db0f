// SPDX-License-Identifier: Apache-2.0
#include "LabelLines_p.h"

#include <QFontMetrics>
#include <QTextLayout>

namespace {

constexpr QChar ellipsis(0x2026);

/// Breaks paragraphs one after the other, until there is no room.
class Breaker
{
public:
    Breaker(const QFont &font, int width, int maximumHeight)
        : m_font(font), m_width(width), m_maximumHeight(maximumHeight)
    {
    }

    void add(const QString &paragraph)
    {
        QTextLayout layout(paragraph, m_font);
        layout.beginLayout();
        while (!m_isFull && m_count < LabelLines::maximumCount) {
            ++m_count;
            QTextLine line = layout.createLine();
            if (!line.isValid())
                break;
            line.setLineWidth(m_width);
            add(paragraph, line);
        }
        layout.endLayout();
    }

    bool isFull() const { return m_isFull; }
    QVector<LabelLines::Line> lines() const { return m_lines; }

private:
    void add(const QString &paragraph, const QTextLine &line)
    {
        m_height += line.height();
        m_isFull = m_maximumHeight < m_height + line.height();
        const int length = m_isFull ? -1 : line.textLength();
        m_lines.append({ paragraph.mid(line.textStart(), length), m_isFull });
    }

    const QFont &m_font;
    const int m_width;
    const int m_maximumHeight;
    QVector<LabelLines::Line> m_lines;
    qreal m_height = 0.0;
    int m_count = 0;
    bool m_isFull = false;
};

} // namespace

LabelLines::Lines LabelLines::breakParagraphs(const QStringList &paragraphs, const QFont &font,
                                              int width, int maximumHeight)
{
    Breaker breaker(font, width, maximumHeight);
    auto paragraph = paragraphs.begin();
    while (paragraph != paragraphs.end() && !breaker.isFull())
        breaker.add(*paragraph++);
    return { breaker.lines(), breaker.isFull() && paragraph != paragraphs.end() };
}

QString LabelLines::endingInEllipsis(QString line, const QFont &font, int width)
{
    if (line.endsWith(ellipsis))
        return line;
    const QFontMetrics metrics(font);
    const QString ending = QString(QChar::Nbsp) + ellipsis;
    const int endingWidth = metrics.horizontalAdvance(ending);
    const int ellipsisWidth = metrics.horizontalAdvance(ellipsis);
    // A binary search: a line may have many characters without a width, or tags. What is left is
    // measured by itself: at its end letters are joined and kerned in another way than inside.
    const auto lengthWithin = [&](int available) {
        const auto fits = [&](int length) {
            return length <= line.size()
                    && metrics.horizontalAdvance(line.left(length)) <= available;
        };
        int longest = 0;
        for (int tooLong = line.size() + 1; tooLong - longest > 1;) {
            const int middle = longest + (tooLong - longest) / 2;
            (fits(middle) ? longest : tooLong) = middle;
        }
        // A letter that joins the one before it may make the line narrower.
        while (fits(longest + 2))
            longest += 2;
        return longest;
    };
    // A line that fits only without the added space must itself end in one.
    const int shortest = lengthWithin(width - endingWidth);
    int length = lengthWithin(width - ellipsisWidth);
    while (length > shortest && line.at(length - 1) != QLatin1Char(' '))
        --length;
    line.truncate(length);
    return line + (line.endsWith(QLatin1Char(' ')) ? QString(ellipsis) : ending);
}
