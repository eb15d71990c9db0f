// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Records.h"

#include <QHash>
#include <QObject>

#include <memory>

class ConversationModel;
class History;
class PagedFiles;

/// All that the client knows of the server, and its way to it. Connects again by itself, at growing
/// intervals of at most five seconds. What was sent and not answered is written to a file and sent
/// again, under the same key, so that it arrives once.
class Backend : public QObject
{
    Q_OBJECT

public:
    /// Connects to the server called \a socket; keeps drafts and unsent messages in \a folder.
    Backend(const QString &socket, const QString &folder, QObject *parent = nullptr);
    ~Backend() override;

    bool isConnected() const;

    /// Whether the conversations are here.
    bool isReady() const;

    /// The id of the user.
    const QString &me() const;

    /// The person \a id, or one without a name.
    Person person(const QString &id) const;
    QVector<Person> people() const;

    /// The conversations, in no order.
    ConversationModel *conversations() const;

    /// The messages of \a conversation. Loads the newest page at the first call. Stays until the
    /// client ends, with the messages that it has then.
    History *open(const QString &conversation);

    /// Puts a message at the end of \a conversation, now and when the server is there again.
    void send(const QString &conversation, Message::Kind kind, const QString &text);

    /// Sends a message that failed once more.
    void retry(const QString &conversation, const QString &key);

    void react(const QString &conversation, int seq, const QString &emoji);

    /// All messages of \a conversation are read.
    void markRead(const QString &conversation);

    /// The user is typing.
    void tellTyping(const QString &conversation);

    /// What was typed into \a conversation and not sent. Survives the client.
    QString draft(const QString &conversation) const;
    void setDraft(const QString &conversation, const QString &text);

    /// The files of the server.
    PagedFiles *files() const;

    /// The calls that were, newest first.
    const QVector<Call> &calls() const;

    /// Joins the call \a call, whose levels arrive from then on; an empty name leaves it.
    void join(const QString &call);

Q_SIGNALS:
    /// The connection came or went.
    void connectedChanged(bool isConnected);
    /// isReady() is true now.
    void ready();
    void callsChanged();
    void personChanged(const QString &person);
    void typing(const QString &conversation, const QString &person);
    /// How loud each person of the call is, 0 to 100.
    void levels(const QHash<QString, int> &levels);
    /// A message of somebody else has arrived in a conversation.
    void messageArrived(const QString &conversation, const Message &message);
    /// The server did not want to do something, for \a reason.
    void failed(const QString &reason);

private:
    struct Data;
    const std::unique_ptr<Data> m_data;
};
