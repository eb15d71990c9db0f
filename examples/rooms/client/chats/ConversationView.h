// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "data/Records.h"
#include "shell/Backdrop.h"

#include <QMap>
#include <QTimer>

#include <functional>

class Backend;
class Composer;
class ConversationHeader;
class MessageList;
class MessagePane;
class OxaLabel;
class OxaMenu;
class PersonCards;

/// The conversation that is open.
class ConversationView : public Backdrop
{
    Q_OBJECT

public:
    ConversationView(Backend *backend, PersonCards *cards, QWidget *parent);

    /// Shows the conversation \a id, which there is.
    void open(const QString &id);
    const QString &conversation() const { return m_conversation; }

    /// Sends files called \a names to \a conversation.
    void sendFiles(const QString &conversation, const QStringList &names);

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void makeParts(PersonCards *cards);
    void markRead();
    void addTyping(const QString &conversation, const QString &person);
    void showTyping();
    void openMenu(const Message &message, const QPoint &position);
    OxaMenu *makeReactions(QWidget *parent, int seq, const QPoint &position);
    void pickEmoji(const QPoint &position, const std::function<void(const QString &)> &use);
    void addLinks(OxaMenu *menu, const QString &text);

    Backend *const m_backend;
    QString m_conversation;
    ConversationHeader *m_header = nullptr;
    MessageList *m_list = nullptr;
    MessagePane *m_pane = nullptr;
    OxaLabel *m_typing = nullptr;
    Composer *m_composer = nullptr;
    QMap<QString, qint64> m_typists; ///< Who types, and until when that counts.
    QTimer m_typingEnds;
};
