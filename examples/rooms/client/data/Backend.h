// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Outbox.h"
#include "Records.h"

#include <UiElements/models/BaseListModel.h>

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QTimer>

#include <vector>

class ConversationModel;
class History;
class Link;
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
    bool isReady() const { return m_isReady; }

    /// The id of the user.
    const QString &me() const { return m_me; }

    /// The person \a id, or one without a name.
    Person person(const QString &id) const;

    /// The conversations, in no order.
    ConversationModel *conversations() const { return m_conversations; }

    /// The messages of \a conversation. Loads the newest page at the first call. Stays while
    /// it is among the 20 that were asked for last.
    History *open(const QString &conversation);

    /// Puts a message at the end of \a conversation, now and when the server is there again.
    /// Forgets the draft if that was its text.
    void send(const QString &conversation, Message::Kind kind, const QString &text);

    /// Sends a message that failed once more.
    void retry(const QString &conversation, const QString &key);

    void react(const QString &conversation, int seq, const QString &emoji);

    /// All messages of \a conversation are read.
    void markRead(const QString &conversation);

    /// The user is typing. May be called at each key.
    void tellTyping(const QString &conversation);

    /// Tells everybody that the user is \a presence.
    void setPresence(Presence presence);

    /// What was typed into \a conversation and not sent. Survives the client.
    QString draft(const QString &conversation) const;
    void setDraft(const QString &conversation, const QString &text);

    /// The files of the server.
    PagedFiles *files() const { return m_files; }

    /// The calls that were, newest first.
    const QVector<Call> &calls() const { return m_calls; }

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
    void levels(const QVariantHash &levels);
    /// A message of somebody else has arrived in a conversation.
    void messageArrived(const QString &conversation, const Message &message);
    /// The server did not want to do something, for \a reason.
    void failed(const QString &reason);

private:
    void greet();
    void takePeople(const QJsonObject &answer);
    void askForConversations();
    void takeConversations(const QJsonObject &answer);
    void synchronize();
    void stop();
    void receive(const QJsonObject &line);
    void takeMessage(const QString &conversation, const Message &message);
    void takeCalls(const QJsonObject &answer);
    void resume(History *history);
    void transmit(const Outbox::Entry &entry);
    void setState(const QString &key, Message::State state);

    Link *const m_link;
    Outbox m_outbox;
    ConversationModel *const m_conversations;
    PagedFiles *const m_files;
    QHash<QString, History *> m_histories;
    QStringList m_opened; ///< Their conversations, the latest at the end.
    QHash<QString, Person> m_people;
    QHash<QString, int> m_totals; ///< How many messages the conversations have.
    QVector<Call> m_calls;
    QString m_me;
    QString m_call;
    std::vector<ModelRow> m_rows; ///< Conversations, while more of them are on their way.
    QVector<QJsonObject> m_early; ///< What was told meanwhile.
    bool m_isSynchronized = false;
    bool m_isReady = false;
    QTimer m_saving;
    QTimer m_greeting; ///< Once more, because the server did not want to.
    QElapsedTimer m_typing;
};
