// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "pages/emoji/Messages.h"

#include <QStringList>

#include <vector>

/// A message of the chat: who wrote what, and when. Short, because there are very many.
struct ChatMessage
{
    int minute;              ///< Since the chat's first day began.
    quint8 author;           ///< The number of the author.
    quint8 text;             ///< The number of the text.
    quint8 reactions = 0;    ///< The number of the reactions; 0 for none.
    quint8 ownReactions = 0; ///< A bit for each reaction that the user has added.
};

/// What a message begins. It shows the author only where another one wrote before.
enum class ChatStart { Nothing, Group, Day };

/// Made-up messages. The same arguments give the same ones, so that pictures can be compared.
namespace ChatHistory {

/// Returns \a count messages, of which the first is not earlier than \a minute.
std::vector<ChatMessage> make(int count, quint32 seed, int minute);

/// Returns what \a message begins after \a before, which is null for the first one.
ChatStart startOf(const ChatMessage &message, const ChatMessage *before);

/// Returns all texts. Their emoji are among the gallery's own.
const QStringList &texts();

const QString &authorOf(const ChatMessage &message);
const std::vector<Reaction> &reactionsOf(const ChatMessage &message);
QString timeOf(const ChatMessage &message);
QString dayOf(const ChatMessage &message);

} // namespace ChatHistory
