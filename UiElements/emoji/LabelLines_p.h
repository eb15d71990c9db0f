// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>
#include <QVector>

class QFont;

/// The lines of a label that breaks its text by itself.
namespace LabelLines {

/// The most lines that are ever made, which bounds what a text of any length costs.
constexpr int maximumCount = 20;

/// A line before it becomes markup.
struct Line
{
    QString text;
    bool isElided; ///< True for the rest of a paragraph, which has to be cut to the width.
};

/// Lines, and whether they leave paragraphs out because there is no room.
struct Lines
{
    QVector<Line> lines;
    bool lacksParagraphs = false;
};

/// Breaks \a paragraphs into lines of \a width pixels in \a font, as long as one more line fits
/// into \a maximumHeight below each. The line for which that is not so is the last, and takes all
/// of its paragraph. The end of a paragraph counts as a line of maximumCount, and what is beyond
/// that is left out without a mark: meant so.
Lines breakParagraphs(const QStringList &paragraphs, const QFont &font, int width,
                      int maximumHeight);

/// Returns \a line, cut to \a width pixels in \a font and ending in a space and an ellipsis. A line
/// that ends in an ellipsis is returned as it is. Measured is the line as it stands, markup
/// included.
QString endingInEllipsis(QString line, const QFont &font, int width);

} // namespace LabelLines
