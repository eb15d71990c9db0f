// SPDX-License-Identifier: Apache-2.0
#include "ChatsPage.h"

ChatsPage::ChatsPage(Backend *backend, PersonCards *cards, QWidget *parent)
    : OxaWidget(parent), m_backend(backend), m_cards(cards)
{
}

void ChatsPage::openConversation(const QString &) { }

void ChatsPage::openPerson(const QString &) { }

void ChatsPage::focusSearch() { }
