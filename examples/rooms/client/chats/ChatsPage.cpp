// SPDX-License-Identifier: Apache-2.0
#include "ChatsPage.h"

#include "ConversationList.h"
#include "ConversationView.h"
#include "data/Backend.h"
#include "data/ConversationModel.h"
#include "shell/Looks.h"

#include <QPainter>

ChatsPage::ChatsPage(Backend *backend, PersonCards *cards, QWidget *parent)
    : OxaSplitter(parent),
      m_backend(backend),
      m_list(new ConversationList(backend, cards)),
      m_view(new ConversationView(backend, cards, nullptr))
{
    addWidget(m_list);
    addWidget(m_view);
    setStretchFactor(1, 1);
    setSizes({ 320, 800 });
    setChildrenCollapsible(false);
    setHandleWidth(1);
    connect(m_list, &ConversationList::chosen, m_view, &ConversationView::open);
    connect(m_list, &ConversationList::filesDropped, m_view, &ConversationView::sendFiles);
}

void ChatsPage::openConversation(const QString &id)
{
    if (!m_backend->conversations()->find(id).isValid())
        return;
    m_list->setCurrent(id);
    m_view->open(id);
}

void ChatsPage::openPerson(const QString &person)
{
    const ConversationModel *model = m_backend->conversations();
    const QModelIndexList found = model->match(model->index(0), ConversationModel::PersonRole,
                                               person, 1, Qt::MatchExactly);
    if (!found.isEmpty())
        openConversation(found.first().data(ConversationModel::IdRole).toString());
}

const QString &ChatsPage::conversation() const { return m_view->conversation(); }

void ChatsPage::focusSearch() { m_list->focusSearch(); }

/// What is seen between the two sides: a style sheet for the handle would be one for both of them.
void ChatsPage::paintEvent(QPaintEvent *)
{
    QPainter(this).fillRect(handle(1)->geometry(), Looks::color("divider"));
}
