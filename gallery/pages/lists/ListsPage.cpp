// SPDX-License-Identifier: Apache-2.0
#include "ConversationList.h"
#include "ConversationModel.h"
#include "Conversations.h"
#include "ConversationsCard.h"
#include "HistoryCard.h"
#include "OverflowBar.h"
#include "RowRole.h"
#include "pages/widgets/Pages.h"
#include "shell/Page.h"
#include "shell/TabOrder.h"
#include "widgets/Buttons.h"
#include "widgets/Card.h"
#include "widgets/ColumnsLayout.h"
#include "widgets/ControlRow.h"
#include "widgets/Fields.h"
#include "widgets/Labels.h"

#include <UiElements/models/SmallListModel.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaSlider.h>

#include <QVBoxLayout>

namespace {

constexpr int rowsToFill = 4;
constexpr int peopleCount = 8;
constexpr int firstWidth = 256;

QString tr(const char *text) { return Page::tr(text); }

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

/// A bar of people whose width can be set, and the names of those for whom it has no room.
Card *makeOverflow()
{
    auto *card = new Card(tr("Overflow"),
                          tr("OverflowListProxyModel has the rows for which the bar has no room."));
    auto *bar = new OverflowBar(makePeople(card), card);
    bar->setAccessibleName(tr("People"));
    bar->setFixedWidth(firstWidth);
    OxaLabel *hidden = Labels::paragraph(QString());
    const OverflowListProxyModel *people = bar->hiddenPeople();
    const auto showHidden = [people, hidden] {
        QStringList names;
        for (int row = 0; row < people->rowCount(); ++row)
            names += people->index(row, 0).data(RowRole::Title).toString();
        hidden->setText(names.isEmpty()
                                ? tr("There is room for all.")
                                : tr("Not in the bar: %1").arg(names.join(QStringLiteral(", "))));
    };
    QObject::connect(people, &OverflowListProxyModel::rowsInserted, hidden, showHidden);
    QObject::connect(people, &OverflowListProxyModel::rowsRemoved, hidden, showHidden);
    showHidden();
    OxaSlider *width = Fields::slider(OverflowBar::leastWidth(), bar->fullWidth(), firstWidth);
    QObject::connect(width, &OxaSlider::valueChanged, bar, &QWidget::setFixedWidth);
    card->body()->addWidget(bar);
    card->body()->addWidget(new ControlRow(tr("Width"), width));
    card->body()->addWidget(hidden);
    card->body()->addStretch(1);
    return card;
}

/// A list that begins empty, and shows its model's texts for the empty state.
Card *makeEmptyState()
{
    auto *card = new Card(
            tr("Empty state"),
            tr("EmptyStateBaseListModel carries what the view shows when it has no rows."));
    auto *model = new ConversationModel(card);
    auto *list = new ConversationList(model);
    OxaPushButton *clear = Buttons::make(tr("Clear"));
    clear->setEnabled(false);
    card->body()->addWidget(list, 1);
    card->body()->addWidget(clear, 0, Qt::AlignLeading);
    QObject::connect(list, &ConversationList::fillRequested, model,
                     [model] { model->appendRows(Conversations::make(0, rowsToFill)); });
    QObject::connect(clear, &OxaPushButton::clicked, model, [model, list, clear] {
        const bool hadFocus = clear->hasFocus();
        model->clear();
        if (hadFocus) // The button is disabled now, and Qt would go on to what is after this page.
            TabOrder::firstIn(*list)->setFocus(Qt::TabFocusReason);
    });
    QObject::connect(model, &ConversationModel::countChanged, clear,
                     [clear](int count) { clear->setEnabled(count > 0); });
    return card;
}

} // namespace

Page *Pages::makeLists(QWidget *parent)
{
    auto *page = new Page(tr("Lists"),
                          tr("Models for item views and QML that report exactly what changed, "
                             "and hold no more than needed."),
                          parent);
    ColumnsLayout *cards = page->makeColumns();
    cards->addWideWidget(new ConversationsCard);
    cards->addWideWidget(new HistoryCard);
    cards->addWidget(makeOverflow());
    cards->addWidget(makeEmptyState());
    page->body()->addStretch(1);
    return page;
}
