// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonArray>
#include <QJsonObject>

/// What was written before the server started: fixed, and read at any place.
class Archive
{
public:
    virtual ~Archive() = default;

    virtual QJsonArray people() const = 0;

    virtual int conversationCount() const = 0;

    /// The `title` of a conversation, its `person` if it is with one only, and how many of its
    /// messages are `unread`.
    virtual QJsonObject conversation(int index) const = 0;

    /// How many messages a conversation has.
    virtual int total(int conversation) const = 0;

    /// The message \a seq as the protocol has it. There is one at each place past the end, too:
    /// those arrive while the server runs.
    virtual QJsonObject message(int conversation, int seq) const = 0;
};
