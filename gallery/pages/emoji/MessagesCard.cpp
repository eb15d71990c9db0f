// SPDX-License-Identifier: Apache-2.0
#include "MessagesCard.h"

#include "MessageRow.h"
#include "Messages.h"

#include <QVBoxLayout>

MessagesCard::MessagesCard(QWidget *parent)
    : Card(tr("Messages"),
           tr("Names, texts and reactions are OxaEmojiLabels. What people write is never markup."),
           parent)
{
    int number = 0;
    for (const Message &message : messages())
        body()->addWidget(new MessageRow(message, number++, this));
    body()->addStretch(1);
}
