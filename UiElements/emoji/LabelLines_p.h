// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>
#include <QVector>

class QFont;

/// The lines of a label that breaks its text by itself.
namespace LabelLines {

/// The maximum number of lines, which limits the time that a text of any length takes.
constexpr int maximumCount = 20;

/// A line before it becomes markup.
struct Line
{
    QString text;
    bool isElided; ///< True for the rest of a paragraph, which must be cut to the width.
};

/// Lines, and whether they leave paragraphs out for lack of room.
struct Lines
{
    QVector<Line> lines;
    bool lacksParagraphs = false;
};

/// Breaks \a paragraphs into lines of \a width pixels in \a font, while one more line fits into
/// \a maximumHeight below. The first line without room below it is the last, and takes the rest of
/// its paragraph. The end of a paragraph counts as a line of maximumCount; text beyond that many
/// lines is left out without an ellipsis.
Lines breakParagraphs(const QStringList &paragraphs, const QFont &font, int width,
                      int maximumHeight);

/// Returns \a line, cut to \a width pixels in \a font, with a space and an ellipsis at its end. A
/// line that ends in an ellipsis is returned as it is. The width is that of the line with its
/// markup.
QString endingInEllipsis(QString line, const QFont &font, int width);

} // namespace LabelLines
