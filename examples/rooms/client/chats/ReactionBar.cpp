// SPDX-License-Identifier: Apache-2.0
#include "ReactionBar.h"

#include <UiElements/emoji/OxaEmojiPushButton.h>
#include <UiElements/fonts/FontUtils.h>
#include <UiElements/layouts/SmartLayout.h>

namespace {

constexpr int gap = 4;

QSize chipSize()
{
    const QFontMetrics metrics = FontUtils::fontMetrics(OxaFont::Token::BodyTertiary);
    return { metrics.height() + metrics.horizontalAdvance(QStringLiteral("0000")) + 12,
             metrics.height() + 10 };
}

} // namespace

QSize ReactionBar::room(int count, int width)
{
    const QSize chip = chipSize();
    // The layout wraps an item that just fits, so it gets a pixel more.
    const int inRow = qMax(1, (width - 1 + gap) / (chip.width() + gap));
    const int rows = (count + inRow - 1) / inRow;
    return { qMin(count, inRow) * (chip.width() + gap) - gap + 1,
             rows * (chip.height() + gap) - gap };
}

void ReactionBar::setReactions(const QVector<Reaction> &reactions)
{
    if (reactions == m_reactions)
        return;
    m_reactions = reactions;
    qDeleteAll(findChildren<OxaEmojiPushButton *>());
    delete layout();
    const bool isRightToLeft = layoutDirection() == Qt::RightToLeft;
    new SmartLayout(this, QMargins(), gap, gap, isRightToLeft ? Qt::AlignRight : Qt::AlignLeft, -1,
                    false);
    for (const Reaction &reaction : reactions)
        addChip(reaction);
}

void ReactionBar::addChip(const Reaction &reaction)
{
    auto *chip = new OxaEmojiPushButton(this, QAccessible::Button);
    chip->setFontToken(OxaFont::Token::BodyTertiary);
    chip->setAlignment(Qt::AlignCenter);
    chip->setFixedSize(chipSize());
    chip->setCursor(Qt::PointingHandCursor);
    const QString set = reaction.isMine ? QStringLiteral("reaction-mine")
                                        : QStringLiteral("reaction");
    chip->setCSS(QStringLiteral("$backgroundColors: %1; $borderColors: %1-border; $textColors: %2; "
                                "$borders: all; $borderWidth: 1; $borderRadius: %3;")
                         .arg(set,
                              reaction.isMine ? QStringLiteral("reaction-mine-text")
                                              : QStringLiteral("text-primary"))
                         .arg(chipSize().height() / 2));
    chip->setText(QStringLiteral("%1 %2").arg(reaction.emoji, QLocale().toString(reaction.count)));
    chip->setToolTip(reaction.isMine ? tr("Take your reaction back") : tr("React like this"));
    connect(chip, &OxaEmojiPushButton::clicked, this,
            [this, emoji = reaction.emoji] { Q_EMIT toggled(emoji); });
    layout()->addWidget(chip);
}
