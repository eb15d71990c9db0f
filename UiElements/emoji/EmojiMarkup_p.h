// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <optional>
#include <vector>

/// The image tags that stand for emoji in markup, written and read.
namespace EmojiMarkup {

/// The source of a placeholder, which is no address that anything could be loaded from.
struct Source
{
    QString path; ///< The artwork.
    QString text; ///< The emoji.
};

/// Adds the placeholder for \a source to \a markup.
void appendPlaceholder(QString &markup, const Source &source);

/// Adds a tag that Qt can display, of \a edge pixels in width and height, to \a markup.
void appendImage(QString &markup, const Source &source, int edge);

/// Returns what the placeholder with \a name, an image's name in a document, stands for; nothing
/// when it is no placeholder.
std::optional<Source> parseName(const QString &name);

/// Returns the name of the picture that takes a placeholder's place: the emoji and \a number.
QString pictureName(const QString &emoji, int number);

/// How many characters a mark has.
constexpr int markLength = 3;

/// Returns whether \a markup may have paragraphs, tables or anything else that stands not in a
/// line.
bool hasBlocks(const QString &markup);

/// Returns \a markup with a mark in the place of each placeholder, and adds what the marks stand
/// for to \a sources. A mark is text, which a document reads in linear time, unlike image tags.
///
/// The first character of a mark is a U+FFFC. One that was in the markup gets a mark too, whose
/// source has no path. What stands within another tag stays as it is.
QString marked(const QString &markup, std::vector<Source> &sources);

/// Returns the number of the source of the mark that begins at \a position of \a text; any number
/// where no mark begins.
std::size_t markNumber(const QString &text, int position);

/// Returns \a markup with its image tags turned back into text. What has no text stays.
QString restored(const QString &markup);

} // namespace EmojiMarkup
