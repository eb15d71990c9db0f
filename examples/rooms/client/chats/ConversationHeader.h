// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

class Avatar;
class Backend;
class OxaEmojiLabel;
class OxaLabel;
class OxaSvgPushButton;
class PersonCards;

/// Who the conversation is with, and what can be done with it as a whole.
class ConversationHeader : public OxaWidget
{
    Q_OBJECT

public:
    ConversationHeader(Backend *backend, PersonCards *cards, QWidget *parent);

    /// Shows the conversation \a id called \a title, with \a person or with several.
    void setConversation(const QString &id, const QString &title, const QString &person);

private:
    void showPerson();
    void askForDay();

    Backend *const m_backend;
    PersonCards *const m_cards;
    QString m_id;
    QString m_person;
    Avatar *m_avatar = nullptr;
    OxaEmojiLabel *m_title = nullptr;
    OxaLabel *m_state = nullptr;
    OxaSvgPushButton *m_day = nullptr;
};
