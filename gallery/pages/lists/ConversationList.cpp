// SPDX-License-Identifier: Apache-2.0
#include "ConversationList.h"

#include "ConversationModel.h"
#include "RowDelegate.h"
#include "widgets/EmptyState.h"
#include "widgets/ListView.h"

namespace {

constexpr int listHeight = 272;

} // namespace

ConversationList::ConversationList(ConversationModel *model, QWidget *parent)
    : OxaStackedWidget(parent), m_view(new ListView(model, new RowDelegate, this))
{
    auto *emptyState = new EmptyState(model->property("emptyStateSubtitle").toString(),
                                      tr("Start some"), this);
    emptyState->setSummary(model->property("emptyStateHeader").toString());
    m_view->setAccessibleName(tr("Conversations"));
    m_view->setUniformItemSizes(true);
    addWidget(m_view);
    addWidget(emptyState);
    setMinimumHeight(listHeight);

    const auto showCount = [this](int count) { setCurrentIndex(count > 0 ? 0 : 1); };
    connect(model, &ConversationModel::countChanged, this, showCount);
    connect(emptyState, &EmptyState::actionTriggered, this, &ConversationList::fillRequested);
    showCount(model->getCount());
}
