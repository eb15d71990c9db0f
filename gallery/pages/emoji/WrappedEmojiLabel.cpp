// SPDX-License-Identifier: Apache-2.0
#include "WrappedEmojiLabel.h"

namespace {

/// Lines are broken by the widths of the font's emoji; pictures may be wider.
constexpr int roomForPictures = 16;

} // namespace

WrappedEmojiLabel::WrappedEmojiLabel(const QString &text, QWidget *parent)
    : OxaEmojiLabel(text, parent)
{
    setWordWrap(true);
    setAlignment((alignment() & Qt::AlignHorizontal_Mask) | Qt::AlignTop);
    setElidePadding(roomForPictures);
    setFontToken(OxaFont::Token::BodySecondary);
}

int WrappedEmojiLabel::heightForWidth(int width) const
{
    return OxaEmojiLabel::heightForWidth(width - roomForPictures);
}
