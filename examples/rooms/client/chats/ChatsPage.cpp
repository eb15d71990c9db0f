// SPDX-License-Identifier: Apache-2.0
#include "ChatsPage.h"

#include "ConversationList.h"
#include "ConversationView.h"
#include "SlowMovies.h"
#include "data/Backend.h"
#include "data/ConversationModel.h"
#include "shell/RoomsApplication.h"

#include <UiElements/widgets/OxaSplitter.h>

#include <QVBoxLayout>

ChatsPage::ChatsPage(Backend *backend, PersonCards *cards, QWidget *parent)
    : Backdrop("divider", parent), // Seen between the two sides.
      m_backend(backend),
      m_list(new ConversationList(backend)),
      m_view(new ConversationView(backend, cards, nullptr))
{
    RoomsApplication *application = RoomsApplication::get();
    application->setMovieProviderSource(new SlowMovies(application));
    auto *splitter = new OxaSplitter(this);
    splitter->addWidget(m_list);
    splitter->addWidget(m_view);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({ 320, 800 });
    splitter->setChildrenCollapsible(false);
    splitter->setHandleWidth(1);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(splitter);
    connect(m_list, &ConversationList::chosen, m_view, &ConversationView::open);
    connect(m_list, &ConversationList::filesDropped, m_view, &ConversationView::sendFiles);
    connect(m_view, &ConversationView::callRequested, this, &ChatsPage::callRequested);
}

void ChatsPage::openConversation(const QString &id)
{
    if (!m_backend->conversations()->hasRow(id.toStdString()))
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
