// SPDX-License-Identifier: Apache-2.0
#include "EmptyStateCard.h"

#include "ConversationList.h"
#include "ConversationModel.h"
#include "Conversations.h"
#include "widgets/Button.h"

#include <QVBoxLayout>

namespace {

constexpr int rowsToFill = 4;

} // namespace

EmptyStateCard::EmptyStateCard(QWidget *parent)
    : Card(tr("Empty state"),
           tr("EmptyStateBaseListModel carries what the view shows when it has no rows."), parent),
      m_model(new ConversationModel(this)),
      m_clear(new Button(tr("Clear"), this))
{
    auto *list = new ConversationList(m_model, this);
    body()->addWidget(list, 1);
    body()->addWidget(m_clear, 0, Qt::AlignLeading);
    m_clear->setEnabled(false);
    connect(list, &ConversationList::fillRequested, this, &EmptyStateCard::fill);
    connect(m_clear, &Button::clicked, m_model, &ConversationModel::clear);
    connect(m_model, &ConversationModel::countChanged, m_clear,
            [this](int count) { m_clear->setEnabled(count > 0); });
}

void EmptyStateCard::fill() { m_model->appendRows(Conversations::make(0, rowsToFill)); }
