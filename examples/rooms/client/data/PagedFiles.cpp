// SPDX-License-Identifier: Apache-2.0
#include "PagedFiles.h"

#include "Link.h"
#include "Records.h"
#include "protocol/Literal.h"

#include <QJsonArray>
#include <QStandardItem>

namespace {

constexpr int pageSize = 100;
constexpr int pageCount = 5;
constexpr int askMs = 30; ///< Who drags the scroll bar passes most pages by.
constexpr int retryMs = 1000;

QStandardItem *itemOf(const QJsonValue &file)
{
    auto *item = new QStandardItem;
    item->setData(file[u"name"_s].toString(), PagedFiles::NameRole);
    item->setData(file[u"kind"_s].toString(), PagedFiles::KindRole);
    item->setData(qint64(file[u"size"_s].toDouble()), PagedFiles::SizeRole);
    item->setData(file[u"owner"_s].toString(), PagedFiles::OwnerRole);
    item->setData(timeOf(file[u"at"_s]), PagedFiles::AtRole);
    return item;
}

} // namespace

PagedFiles::PagedFiles(Link &link, QObject *parent) : LazyLoadedListModel(parent), m_link(link)
{
    setPagingConfig(pageSize, pageCount);
    m_asking.setSingleShot(true);
    connect(&m_asking, &QTimer::timeout, this, &PagedFiles::askForMissing);
    const auto askSoon = [this] { m_asking.start(askMs); };
    connect(this, &LazyLoadedListModel::loadPages, this, askSoon);
    connect(this, &LazyLoadedListModel::loadStorageAtPage, this, askSoon);
}

QHash<int, QByteArray> PagedFiles::roleNames() const
{
    return { { NameRole, "name" },   { KindRole, "kind" }, { SizeRole, "size" },
             { OwnerRole, "owner" }, { AtRole, "at" },     { FailedRole, "failed" } };
}

QVariant PagedFiles::data(const QModelIndex &index, int role) const
{
    if (role == FailedRole)
        return m_failed.contains(indexToPage(index.row()));
    const QStandardItem *item = getItemAt(index);
    return item ? item->data(role == Qt::DisplayRole ? int(NameRole) : role) : QVariant();
}

void PagedFiles::resume()
{
    m_asked.clear();
    askForMissing();
}

/// Asks for the pages of the window that are neither here nor on their way; at first for page 0,
/// which tells how many files there are.
void PagedFiles::askForMissing()
{
    const int first = indexToPage(getStartIndex());
    for (int page = first; page < first + pageCount; ++page) {
        const int row = pageToIndex(page);
        if (m_asked.contains(page) || getItemAt(row) || row >= qMax(1, size()) || !m_link.isOpen())
            continue;
        m_asked.insert(page);
        m_link.ask(u"files"_s, { { u"first"_s, row }, { u"count"_s, pageSize } }, this,
                   [this, page](const QJsonObject &answer) { take(page, answer); });
    }
}

void PagedFiles::take(int page, const QJsonObject &answer)
{
    m_asked.remove(page);
    setFailed(page, answer.contains(u"error"_s));
    if (answer.contains(u"error"_s)) {
        m_asking.start(retryMs);
        return;
    }
    setSize(answer[u"total"_s].toInt());
    const QJsonArray rows = answer[u"rows"_s].toArray();
    for (int i = 0; i < qMin(rows.size(), pageSize); ++i) {
        QStandardItem *item = itemOf(rows[i]);
        if (!setItemAtIndex(pageToIndex(page) + i, item)) {
            delete item; // The view has gone elsewhere meanwhile.
            return;
        }
    }
    askForMissing();
}

void PagedFiles::setFailed(int page, bool isFailed)
{
    if (isFailed == m_failed.contains(page))
        return;
    if (isFailed)
        m_failed.insert(page);
    else
        m_failed.remove(page);
    const int last = qMin(pageToIndex(page + 1), size()) - 1;
    Q_EMIT dataChanged(index(pageToIndex(page)), index(last), { FailedRole });
}
