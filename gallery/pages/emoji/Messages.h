// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <vector>

/// An emoji under a message, and how many people gave it.
struct Reaction
{
    QString emoji;
    int count;
};

/// A message in a conversation.
struct Message
{
    QString author;
    QString time;
    QString text;
    std::vector<Reaction> reactions;
};

/// Returns the messages that the gallery shows. Their emoji are among the gallery's own.
const std::vector<Message> &messages();
