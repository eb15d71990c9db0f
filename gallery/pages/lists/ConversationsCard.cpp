// SPDX-License-Identifier: Apache-2.0
#include "ConversationsCard.h"

#include "ConversationList.h"
#include "ConversationModel.h"
#include "Conversations.h"
#include "ModelRecorder.h"
#include "RowRole.h"
#include "looks/Metrics.h"
#include "widgets/Buttons.h"
#include "widgets/CodeEdit.h"
#include "widgets/Fields.h"
#include "widgets/Labels.h"
#include "widgets/ListView.h"
#include "widgets/WrapLayout.h"

#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaSlider.h>

#include <QHBoxLayout>

namespace {

constexpr int rowsToAppend = 4;
constexpr int linesToKeep = 500;
constexpr int sliderWidth = 160;

} // namespace

ConversationsCard::ConversationsCard(QWidget *parent)
    : Card(tr("Conversations"),
           tr("BaseListModel reports exact changes. Replacing all rows signals only the runs of "
              "rows that differ."),
           parent),
      m_model(new ConversationModel(this)),
      m_recorder(new ModelRecorder(m_model, this)),
      m_list(new ConversationList(m_model, this)),
      m_log(new CodeEdit(this)),
      m_share(Fields::slider(0, 100, 25, this))
{
    body()->addLayout(makeLists(), 1);
    body()->addLayout(makeButtons());
    body()->addLayout(makeReplaceRow());
    connect(m_recorder, &ModelRecorder::recorded, m_log, &CodeEdit::appendPlainText);
    connect(m_list, &ConversationList::fillRequested, this,
            [this] { run("appendRows", &ConversationsCard::append); });

    run("appendRows", &ConversationsCard::append);
    run("appendRows", &ConversationsCard::append);
    run("appendOrUpdate", &ConversationsCard::answer);
    run("replace", &ConversationsCard::replace);
    m_list->view()->setCurrentIndex(m_model->index(1, 0));
}

QHBoxLayout *ConversationsCard::makeLists()
{
    m_log->setReadOnly(true);
    m_log->setAccessibleName(tr("What the model emits"));
    m_log->setMaximumBlockCount(linesToKeep);
    auto *row = new QHBoxLayout;
    row->setSpacing(Metrics::spacing);
    row->addWidget(m_list, 1);
    row->addWidget(m_log, 1);
    return row;
}

QLayout *ConversationsCard::makeButtons()
{
    auto *row = new WrapLayout(Metrics::small);
    addButton(row, tr("Append"), "appendRows", &ConversationsCard::append);
    addButton(row, tr("Update"), "appendOrUpdate", &ConversationsCard::answer);
    addButton(row, tr("Mark read"), "setRoleValueForRow", &ConversationsCard::markRead);
    addButton(row, tr("Remove"), "removeRows", &ConversationsCard::remove);
    addButton(row, tr("Clear"), "clear", &ConversationsCard::clear);
    return row;
}

QLayout *ConversationsCard::makeReplaceRow()
{
    const auto text = [](int percent) { return tr("%1 % of the rows changed").arg(percent); };
    OxaLabel *caption = Labels::caption(text(m_share->value()), this);
    m_share->setAccessibleName(tr("Share of changed rows"));
    m_share->setFixedWidth(sliderWidth);
    connect(m_share, &OxaSlider::valueChanged, caption,
            [caption, text](int percent) { caption->setText(text(percent)); });
    auto *row = new WrapLayout(Metrics::small);
    addButton(row, tr("Replace"), "replace", &ConversationsCard::replace);
    row->addWidget(m_share);
    row->addWidget(caption);
    return row;
}

void ConversationsCard::addButton(QLayout *row, const QString &text, const char *operation,
                                  Action action)
{
    auto *button = Buttons::make(text, this);
    connect(button, &OxaPushButton::clicked, this,
            [this, operation, action] { run(operation, action); });
    row->addWidget(button);
}

void ConversationsCard::run(const char *operation, Action action)
{
    m_recorder->record(QString::fromLatin1(operation), [this, action] { (this->*action)(); });
}

int ConversationsCard::currentRow() const { return qMax(0, m_list->view()->currentIndex().row()); }

void ConversationsCard::append()
{
    m_model->appendRows(Conversations::make(m_made, rowsToAppend));
    m_made += rowsToAppend;
}

void ConversationsCard::answer()
{
    // Two neighbours after the first row: their run is signalled after the one at row 0.
    const std::vector<ModelRow> rows = m_model->getRows();
    std::vector<ModelRow> changed;
    ++m_step;
    for (std::size_t i = 2; i < 4 && i < rows.size(); ++i)
        changed.push_back(Conversations::answered(rows[i], m_step));
    if (!changed.empty())
        m_model->appendOrUpdate(changed);
}

void ConversationsCard::markRead()
{
    m_model->setRoleValueForRow(m_model->index(currentRow(), 0), { { RowRole::Unread, 0 } });
}

void ConversationsCard::replace()
{
    m_model->replace(
            Conversations::withShareAnswered(m_model->getRows(), m_share->value(), ++m_step));
}

void ConversationsCard::remove()
{
    if (m_model->getCount() > 0)
        m_model->removeRows(currentRow(), 1);
}

void ConversationsCard::clear() { m_model->clear(); }
