// SPDX-License-Identifier: Apache-2.0
#include "MessageRow.h"

#include "Messages.h"
#include "ReactionButton.h"
#include "WrappedEmojiLabel.h"
#include "looks/Metrics.h"
#include "pages/lists/AvatarColors.h"
#include "widgets/AlignedLabel.h"
#include "widgets/Labels.h"

#include <QVBoxLayout>

namespace {

constexpr int avatarSize = 36;

} // namespace

MessageRow::MessageRow(const Message &message, int number, QWidget *parent) : OxaWidget(parent)
{
    auto *text = new WrappedEmojiLabel(message.text, this);
    text->setCSS(QStringLiteral("$textColors: gallery-body-text;"));

    auto *column = new QVBoxLayout;
    column->setSpacing(Metrics::tight);
    column->addLayout(makeHead(message));
    column->addWidget(text);
    column->addLayout(makeReactions(message));

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Metrics::small + Metrics::tight);
    row->addWidget(makeAvatar(message.author, number), 0, Qt::AlignTop);
    row->addLayout(column, 1);
}

QWidget *MessageRow::makeAvatar(const QString &author, int number)
{
    auto *avatar = new AlignedLabel(author.mid(0, 1), this, AlignedLabel::Place::Centre);
    avatar->setFontToken(OxaFont::Token::TagLabelPrimary);
    avatar->setCSS(QStringLiteral("$backgroundColors: %1; $textColors: avatar-text; "
                                  "$borderRadius: %2;")
                           .arg(AvatarColors::setName(number))
                           .arg(avatarSize / 2));
    avatar->setFixedSize(avatarSize, avatarSize);
    return avatar;
}

QLayout *MessageRow::makeHead(const Message &message)
{
    auto *name = new OxaEmojiLabel(message.author, this);
    name->setFontToken(OxaFont::Token::TagLabelPrimary);
    name->setCSS(QStringLiteral("$textColors: gallery-heading-text;"));
    auto *head = new QHBoxLayout;
    head->setSpacing(Metrics::small);
    head->addWidget(name);
    head->addWidget(Labels::caption(message.time, this));
    head->addStretch(1);
    return head;
}

QLayout *MessageRow::makeReactions(const Message &message)
{
    auto *reactions = new QHBoxLayout;
    reactions->setSpacing(Metrics::tight);
    for (const Reaction &reaction : message.reactions)
        reactions->addWidget(new ReactionButton(reaction.emoji, reaction.count, this));
    reactions->addStretch(1);
    return reactions;
}
