// SPDX-License-Identifier: Apache-2.0
#include "ConversationList.h"

#include "ConversationModel.h"
#include "RowDelegate.h"
#include "widgets/EmptyState.h"
#include "widgets/ListView.h"

#include <QStackedLayout>

namespace {

constexpr int listHeight = 272;

} // namespace

ConversationList::ConversationList(ConversationModel *model, QWidget *parent)
    : OxaWidget(parent),
      m_view(new ListView(model, new RowDelegate, this)),
      m_stack(new QStackedLayout(this))
{
    auto *emptyState = new EmptyState(model->property("emptyStateSubtitle").toString(),
                                      tr("Start some"), this);
    emptyState->setSummary(model->property("emptyStateHeader").toString());
    m_view->setAccessibleName(tr("Conversations"));
    m_view->setUniformItemSizes(true);
    m_stack->addWidget(m_view);
    m_stack->addWidget(emptyState);
    setMinimumHeight(listHeight);

    const auto showCount = [this](int count) { m_stack->setCurrentIndex(count > 0 ? 0 : 1); };
    connect(model, &ConversationModel::countChanged, this, showCount);
    connect(emptyState, &EmptyState::actionTriggered, this, &ConversationList::fillRequested);
    showCount(model->getCount());
}
