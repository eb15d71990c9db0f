// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <optional>
#include <vector>

/// The image tags that stand for emoji in markup, written and read.
namespace EmojiMarkup {

/// The source of a placeholder. It is not an address that anything could be loaded from.
struct Source
{
    QString path; ///< The artwork.
    QString text; ///< The emoji.
};

/// Adds the placeholder for \a source to \a markup.
void appendPlaceholder(QString &markup, const Source &source);

/// Adds a tag that Qt can display, of \a edge pixels in width and height, to \a markup.
void appendImage(QString &markup, const Source &source, int edge);

/// Returns what the placeholder with the image name \a name stands for; nothing if that is not the
/// name of a placeholder.
std::optional<Source> parseName(const QString &name);

/// Returns the name of the picture that replaces a placeholder: the emoji and \a number.
QString pictureName(const QString &emoji, int number);

/// How many characters a mark has.
constexpr int markLength = 3;

/// Returns whether \a markup may contain paragraphs, tables or other blocks.
bool hasBlocks(const QString &markup);

/// Returns \a markup with a mark in place of each placeholder, and adds what the marks stand for to
/// \a sources. A mark is text, which a document reads in linear time, unlike image tags.
///
/// The first character of a mark is a U+FFFC. A U+FFFC in the markup gets a mark too, whose source
/// has no path. Text inside another tag is left as it is.
QString marked(const QString &markup, std::vector<Source> &sources);

/// Returns the number of the source of the mark that begins at \a position of \a text. The number
/// is arbitrary if no mark begins there.
std::size_t markNumber(const QString &text, int position);

/// Returns \a markup with its image tags turned back into text. A tag without a text stays.
QString restored(const QString &markup);

} // namespace EmojiMarkup
