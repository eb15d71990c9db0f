// SPDX-License-Identifier: Apache-2.0
#include "HistoryServer.h"

#include "Conversations.h"
#include "HistoryModel.h"
#include "RowRole.h"

#include <QStandardItem>

#include <algorithm>
#include <iterator>

namespace {

/// The times of successive answers, in hundredths of the mean.
constexpr int delayPattern[] = { 130, 70, 160, 50, 90 };

} // namespace

HistoryServer::HistoryServer(HistoryModel *model, QObject *parent) : QObject(parent), m_model(model)
{
    m_clock.start();
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &HistoryServer::answerDue);
    connect(m_model, &HistoryModel::loadPages, this, &HistoryServer::ask);
    connect(m_model, &HistoryModel::loadStorageAtPage, this, [this](int first) {
        QVector<int> pages;
        for (int page = first; page < first + HistoryModel::pagesInWindow; ++page)
            pages += page;
        ask(pages);
    });
}

void HistoryServer::answerAll()
{
    while (!m_pending.empty())
        answerNext();
    m_timer.stop();
}

QVector<QStandardItem *> HistoryServer::makeItems(int page)
{
    QVector<QStandardItem *> items;
    const int first = page * HistoryModel::pageSize;
    const int end = std::min(first + HistoryModel::pageSize, HistoryModel::messageCount);
    for (const ModelRow &row : Conversations::make(first, end - first)) {
        auto *item = new QStandardItem;
        for (const auto &[role, value] : row.second)
            item->setData(value, role);
        item->setData(QStringLiteral("Message %1").arg(HistoryModel::textOf(first + items.size())),
                      RowRole::Title);
        items += item;
    }
    return items;
}

void HistoryServer::ask(const QVector<int> &pages)
{
    QStringList asked;
    for (const int page : pages) {
        // A pending answer also serves a window that has returned to its page.
        if (isPending(page) || !m_model->wantsPage(page))
            continue;
        const int share = delayPattern[std::size_t(m_figures.asked) % std::size(delayPattern)];
        m_pending.emplace(m_clock.elapsed() + m_meanDelay * share / 100, page);
        ++m_figures.asked;
        asked += QString::number(page);
    }
    waitForNext();
    if (!asked.isEmpty())
        Q_EMIT logged(tr("ask %1").arg(asked.join(QStringLiteral(", "))));
}

bool HistoryServer::isPending(int page) const
{
    return std::any_of(m_pending.begin(), m_pending.end(),
                       [page](const auto &pending) { return pending.second == page; });
}

void HistoryServer::answerNext()
{
    const int page = m_pending.begin()->second;
    m_pending.erase(m_pending.begin());
    if (!m_model->wantsPage(page)) {
        ++m_figures.late;
        Q_EMIT logged(tr("late %1, dropped").arg(page));
        return;
    }
    m_model->setItemsAtPage(page, makeItems(page));
    ++m_figures.answered;
    Q_EMIT logged(tr("got %1").arg(page));
}

void HistoryServer::answerDue()
{
    while (!m_pending.empty() && m_pending.begin()->first <= m_clock.elapsed())
        answerNext();
    waitForNext();
}

void HistoryServer::waitForNext()
{
    if (!m_pending.empty())
        m_timer.start(int(std::max<qint64>(0, m_pending.begin()->first - m_clock.elapsed())));
}
