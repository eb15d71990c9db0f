// SPDX-License-Identifier: Apache-2.0
#include "CallsPage.h"

#include "CallWindow.h"
#include "chats/TimeTexts.h"
#include "data/Backend.h"
#include "people/Avatar.h"
#include "people/PersonCards.h"
#include "protocol/Literal.h"
#include "shell/Looks.h"

#include <UiElements/svg/OxaSvgPushButton.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaListWidget.h>

#include <QLocale>
#include <QVBoxLayout>

namespace {

constexpr int widest = 720;

QString timeText(const QDateTime &at)
{
    const QString time = TimeTexts::time(at);
    const qint64 days = at.date().daysTo(QDate::currentDate());
    if (days == 0)
        return time;
    if (days == 1)
        return CallsPage::tr("Yesterday, %1").arg(time);
    return CallsPage::tr("%1, %2").arg(QLocale().toString(at.date(), u"d MMM"_s), time);
}

QString summary(const Call &call)
{
    const QString time = timeText(call.at);
    return call.isMissed ? CallsPage::tr("Missed, %1").arg(time)
                         : CallsPage::tr("%1, %2 min").arg(time).arg(call.minutes);
}

} // namespace

CallsPage::CallsPage(Backend *backend, PersonCards *cards, QWidget *parent)
    : OxaWidget(parent),
      m_backend(backend),
      m_cards(cards),
      m_list(new OxaListWidget(this)),
      m_empty(Looks::makeLabel(tr("No calls yet"), OxaFont::Token::BodySecondary,
                               u"text-secondary"_s, this))
{
    setObjectName(u"calls"_s);
    m_list->setCSS(Looks::listRules() + Looks::rowRules());
    m_list->setAccessibleName(tr("Calls"));
    m_list->setMaximumWidth(widest);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Looks::centre(m_empty);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(16, 16, 16, 0);
    auto *middle = new QHBoxLayout;
    middle->addWidget(m_list);
    column->addLayout(middle);
    column->addWidget(m_empty);
    connect(m_list, &OxaListWidget::updateItemWidget, this, &CallsPage::makeRow);
    connect(m_list, &QListWidget::itemActivated, this, [this](QListWidgetItem *item) {
        start(m_backend->calls().value(m_list->row(item)).title);
    });
    connect(backend, &Backend::callsChanged, this, &CallsPage::fill);
    fill();
}

void CallsPage::start(const QString &title)
{
    delete m_window;
    m_window = new CallWindow(m_backend, m_cards, title, window());
    m_window->move(window()->geometry().center() - m_window->rect().center());
    m_window->show();
}

void CallsPage::fill()
{
    const bool hadFocus = hasFocus(); // While the list was hidden, and could not take it.
    const int current = m_list->currentRow();
    m_list->clear();
    m_list->setItemWidgetsDynamicLoadingEnabled(true);
    const QVector<Call> &calls = m_backend->calls();
    m_list->beginInsert();
    for (int index = 0; index < calls.size(); ++index) {
        auto *item = new QListWidgetItem;
        item->setData(Qt::AccessibleTextRole,
                      tr("%1: %2").arg(calls[index].title, summary(calls[index])));
        item->setSizeHint(QSize(1, 64));
        m_list->insertItem(index, item);
    }
    m_list->endInsert();
    m_list->setVisible(!calls.isEmpty());
    m_empty->setVisible(calls.isEmpty());
    m_list->setCurrentRow(current);
    if (hadFocus)
        m_list->setFocus(Qt::OtherFocusReason);
}

void CallsPage::makeRow(QListWidgetItem *item)
{
    const Call call = m_backend->calls().value(m_list->row(item));
    auto *row = new OxaWidget(m_list->viewport());
    auto *picture = new Avatar(40, row);
    picture->setPerson({ call.title, call.title, {}, {}, Presence::Offline }, false);
    OxaLabel *title = Looks::makeLabel(call.title, OxaFont::Token::SubheaderSecondary,
                                       u"row-text"_s, row);
    const QString colors = call.isMissed ? u"missed"_s : u"text-secondary"_s;
    OxaLabel *when = Looks::makeLabel(summary(call), OxaFont::Token::RadioButtonLabelSecondary,
                                      colors, row);
    OxaSvgPushButton *again = Looks::makeIconButton(u"calls"_s, tr("Call %1").arg(call.title), row);
    connect(again, &OxaSvgPushButton::clicked, this, [this, title = call.title] { start(title); });

    auto *texts = new QVBoxLayout;
    texts->setSpacing(0);
    texts->addStretch(1);
    texts->addWidget(title);
    texts->addWidget(when);
    texts->addStretch(1);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(12, 0, 12, 0);
    layout->setSpacing(12);
    layout->addWidget(picture);
    layout->addLayout(texts, 1);
    layout->addWidget(again);
    m_list->setItemWidget(item, row);
}
