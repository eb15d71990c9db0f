// SPDX-License-Identifier: Apache-2.0
#include "CallsPage.h"

#include "CallWindow.h"
#include "data/Backend.h"

CallsPage::CallsPage(Backend *backend, PersonCards *cards, QWidget *parent)
    : OxaWidget(parent), m_backend(backend), m_cards(cards)
{
}

bool CallsPage::start(const Call &call) { return !call.people.isEmpty(); }
