// SPDX-License-Identifier: Apache-2.0
#include "OverflowCard.h"

#include "Conversations.h"
#include "OverflowBar.h"
#include "RowRole.h"
#include "widgets/ControlRow.h"
#include "widgets/Labels.h"
#include "widgets/Slider.h"

#include <UiElements/models/SmallListModel.h>
#include <UiElements/widgets/OxaLabel.h>

#include <QVBoxLayout>

namespace {

constexpr int peopleCount = 8;
constexpr int firstWidth = 256;

SmallListModel *makePeople(QObject *parent)
{
    auto *people = new SmallListModel({ { RowRole::Title, "title" },
                                        { RowRole::Avatar, "avatar" } },
                                      parent, QVariant());
    std::vector<SmallListModel::Row> rows;
    for (const ModelRow &row : Conversations::make(0, peopleCount))
        rows.push_back(row.second);
    people->add(rows);
    return people;
}

} // namespace

OverflowCard::OverflowCard(QWidget *parent)
    : Card(tr("Overflow"),
           tr("OverflowListProxyModel has the rows that the bar in front has no room for."),
           parent),
      m_people(makePeople(this)),
      m_bar(new OverflowBar(m_people, this)),
      m_hidden(Labels::paragraph(QString(), this))
{
    auto *slider = new Slider(OverflowBar::leastWidth(), m_bar->fullWidth(), firstWidth, this);
    connect(slider, &Slider::valueChanged, this,
            [this](int width) { m_bar->setFixedWidth(width); });
    connect(m_bar->hiddenPeople(), &OverflowListProxyModel::rowsInserted, this,
            &OverflowCard::showHidden);
    connect(m_bar->hiddenPeople(), &OverflowListProxyModel::rowsRemoved, this,
            &OverflowCard::showHidden);
    m_bar->setFixedWidth(firstWidth);
    showHidden();

    body()->addWidget(m_bar);
    body()->addWidget(new ControlRow(tr("Width"), slider, this));
    body()->addWidget(m_hidden);
    body()->addStretch(1);
}

void OverflowCard::showHidden()
{
    QStringList names;
    for (int row = 0; row < m_bar->hiddenPeople()->rowCount(); ++row)
        names += m_bar->hiddenPeople()->index(row, 0).data(RowRole::Title).toString();
    m_hidden->setText(names.isEmpty()
                              ? tr("There is room for all.")
                              : tr("Behind the bar: %1").arg(names.join(QStringLiteral(", "))));
}
