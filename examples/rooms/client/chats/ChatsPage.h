// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaSplitter.h>

class Backend;
class ConversationList;
class ConversationView;
class PersonCards;

/// The conversations at one side, and the one that is open at the other.
class ChatsPage : public OxaSplitter
{
    Q_OBJECT

public:
    /// Shows what \a backend knows. Names and pictures of people show their cards of \a cards.
    ChatsPage(Backend *backend, PersonCards *cards, QWidget *parent = nullptr);

    /// Makes the conversation \a id the current one. Does nothing if there is none.
    void openConversation(const QString &id);

    /// Makes the conversation with \a person alone the current one. Does nothing if there is none.
    void openPerson(const QString &person);

    /// The conversation that is open; empty at first.
    const QString &conversation() const;

    /// Gives the focus to the search for conversations.
    void focusSearch();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Backend *const m_backend;
    ConversationList *const m_list;
    ConversationView *const m_view;
};
