// SPDX-License-Identifier: Apache-2.0
#include "ChatList.h"
#include "looks/Metrics.h"
#include "pages/widgets/Pages.h"
#include "shell/Page.h"
#include "specimens/PropertyControls.h"
#include "widgets/Buttons.h"
#include "widgets/Card.h"
#include "widgets/Labels.h"

#include <UiElements/widgets/OxaLabel.h>

#include <QGridLayout>

namespace {

constexpr int leastListHeight = 360;
constexpr int sideWidth = 192;
constexpr int rowsToInsert = 20;

QString tr(const char *text) { return Page::tr(text); }

QString number(int value) { return QLocale(QLocale::English).toString(value); }

/// Returns lines with the figures of \a chat, which are kept up to date.
QLayout *makeFigures(ChatList *chat)
{
    using Read = std::function<QString()>;
    const std::pair<QString, Read> figures[] = {
        { tr("Rows"), [chat] { return number(chat->count()); } },
        { tr("Row widgets"), [chat] { return number(chat->rowWidgetCount()); } },
        { tr("Made so far"), [chat] { return number(chat->madeCount()); } },
        { tr("A page takes"),
          [chat] {
              return chat->msPerPage() > 0 ? tr("%1 ms").arg(chat->msPerPage(), 0, 'f', 1)
                                           : tr("Scroll to see");
          } },
    };
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(Metrics::spacing);
    grid->setVerticalSpacing(Metrics::tight);
    grid->setColumnStretch(1, 1);
    for (const auto &[caption, read] : figures) {
        OxaLabel *value = Labels::line(read());
        value->setObjectName(QStringLiteral("figure"));
        const int line = grid->rowCount();
        grid->addWidget(Labels::caption(caption), line, 0);
        grid->addWidget(value, line, 1);
        QObject::connect(chat, &ChatList::settled, value,
                         [value, read = read] { value->setText(read()); });
    }
    return grid;
}

QLayout *makeActions(ChatList *chat)
{
    using Act = std::function<void()>;
    const std::pair<QString, Act> actions[] = {
        { tr("First message"), [chat] { chat->goTo(0); } },
        { tr("Middle"), [chat] { chat->goTo(chat->count() / 2); } },
        { tr("Last message"), [chat] { chat->scrollToBottom(); } },
        { tr("Insert 20 above"), [chat] { chat->insertAbove(rowsToInsert); } },
        { tr("Add at the end"), [chat] { chat->append(); } },
        { tr("Remove a message"), [chat] { chat->removeOne(); } },
    };
    auto *column = new QVBoxLayout;
    column->setSpacing(Metrics::small);
    for (const auto &[text, act] : actions) {
        OxaPushButton *button = Buttons::make(text);
        QObject::connect(button, &OxaPushButton::clicked, chat, act);
        column->addWidget(button);
    }
    return column;
}

} // namespace

Page *Pages::makeLongList(QWidget *parent)
{
    auto *page = new Page(tr("Long list"),
                          tr("OxaListWidget has a widget for each message in view, and none for "
                             "the others."),
                          parent);
    auto *card = new Card(tr("100,000 messages"),
                          tr("Scroll with the wheel, the bar or keys. Inserting above leaves what "
                             "you read where it is; at its end, the list stays there."));
    auto *chat = new ChatList(card);
    chat->setMinimumHeight(leastListHeight);
    chat->setAccessibleName(tr("Messages"));

    auto *side = new QVBoxLayout;
    side->setSpacing(Metrics::gap);
    side->addLayout(makeFigures(chat));
    side->addLayout(makeActions(chat));
    side->addStretch(1);
    side->addStrut(sideWidth);
    auto *row = new QHBoxLayout;
    row->setSpacing(Metrics::gap);
    row->addWidget(chat, 1);
    row->addLayout(side);
    auto *controls = new PropertyControls(chat, card);
    controls->addAll();
    card->body()->addLayout(row, 1);
    card->body()->addWidget(controls);
    page->body()->addWidget(card, 1);
    return page;
}
