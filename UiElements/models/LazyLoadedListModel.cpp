// SPDX-License-Identifier: Apache-2.0
#include "LazyLoadedListModel.h"

#include <QPointer>
#include <QStandardItem>

#include <limits>
#include <numeric>
#include <utility>

LazyLoadedListModel::LazyLoadedListModel(QObject *parent) : QAbstractListModel(parent) { }

LazyLoadedListModel::~LazyLoadedListModel() { clearList(); }

void LazyLoadedListModel::setPagingConfig(unsigned int pageSize, unsigned int storagePages)
{
    constexpr auto most = unsigned(std::numeric_limits<int>::max());
    if (pageSize == 0 || storagePages == 0 || storagePages > most / pageSize)
        return;
    m_pageSize = int(pageSize);
    m_storagePages = int(storagePages);
    m_storageSize = m_pageSize * m_storagePages;
    const QPointer<LazyLoadedListModel> self = this;
    reset();
    if (self)
        m_configured = true;
}

// Here and below the count changes after the signals: listeners rely on that order.
void LazyLoadedListModel::reset()
{
    eraseStorage();
    if (m_lastIndex >= 0) {
        const QPointer<LazyLoadedListModel> self = this;
        beginRemoveRows(QModelIndex(), 0, m_lastIndex);
        endRemoveRows();
        if (!self)
            return;
    }
    m_lastIndex = -1;
    m_startIndex = 0;
}

int LazyLoadedListModel::size() const { return m_lastIndex + 1; }

void LazyLoadedListModel::setSize(int size)
{
    if (size == this->size())
        return;
    if (size > this->size()) {
        beginInsertRows(QModelIndex(), m_lastIndex + 1, size - 1);
        finishGrowth(size);
        return;
    }
    const QPointer<LazyLoadedListModel> self = this;
    beginRemoveRows(QModelIndex(), size, m_lastIndex);
    endRemoveRows();
    if (!self)
        return;
    m_lastIndex = size - 1;
    if (size < m_startIndex) {
        m_startIndex = 0;
        eraseStorage();
        return;
    }
    for (int i = size - m_startIndex; i < m_storageSize; ++i)
        delete std::exchange(m_storage[i], nullptr);
}

void LazyLoadedListModel::finishGrowth(int size)
{
    const QPointer<LazyLoadedListModel> self = this;
    endInsertRows();
    if (self)
        m_lastIndex = size - 1;
}

int LazyLoadedListModel::rowCount(const QModelIndex &) const { return size(); }

QVariant LazyLoadedListModel::data(const QModelIndex &, int) const { return QVariant(); }

void LazyLoadedListModel::setScrolledIndex(int index)
{
    if (!m_configured)
        return;
    // One page before that of the row, or the first page.
    const int page = indexToPage(qMax(index, m_pageSize) - m_pageSize);
    const int newStart = pageToIndex(page);
    if (newStart < m_startIndex)
        scrollUp(page);
    else if (newStart > m_startIndex)
        scrollDown(page);
}

QStandardItem *LazyLoadedListModel::getItemAt(int index) const
{
    return isInWindow(index) ? m_storage.at(index - m_startIndex) : nullptr;
}

QStandardItem *LazyLoadedListModel::getItemAt(const QModelIndex &index) const
{
    return index.isValid() ? getItemAt(index.row()) : nullptr;
}

bool LazyLoadedListModel::setItemAtIndex(int index, QStandardItem *item)
{
    if (!isInWindow(index))
        return false;
    if (index <= m_lastIndex) {
        delete std::exchange(m_storage[index - m_startIndex], item);
        const QModelIndex changed = createIndex(index, 0, nullptr);
        Q_EMIT dataChanged(changed, changed);
        return true;
    }
    deleteItemAtIndex(index);
    beginInsertRows(QModelIndex(), m_lastIndex + 1, index);
    m_storage[index - m_startIndex] = item;
    finishGrowth(index + 1);
    return true;
}

void LazyLoadedListModel::setItemsAtPage(int page, const QVector<QStandardItem *> &items)
{
    const int firstPage = indexToPage(m_startIndex);
    if (items.isEmpty() || page < firstPage || page >= firstPage + m_storagePages)
        return;
    const int first = pageToIndex(page);
    const int count = items.size();
    const QPointer<LazyLoadedListModel> self = this;
    // A slot that deletes the model may also delete the caller's list.
    QVector<QStandardItem *> taken = items;
    for (int i = 0; i < count; ++i) {
        setItemAtIndex(first + i, taken.at(i));
        if (!self) {
            qDeleteAll(taken.begin() + i + 1, taken.end());
            return;
        }
    }
    if (count >= m_pageSize)
        return;
    for (int i = count; i < m_pageSize; ++i)
        deleteItemAtIndex(first + i);
    setSize(first + count);
}

int LazyLoadedListModel::getStartIndex() const { return m_startIndex; }

int LazyLoadedListModel::indexToPage(int index) const
{
    return m_pageSize == 0 ? 0 : index / m_pageSize;
}

int LazyLoadedListModel::pageToIndex(int page) const { return page * m_pageSize; }

int LazyLoadedListModel::getStorageSize() const { return m_storageSize; }

bool LazyLoadedListModel::isInWindow(int index) const
{
    // The storage is shorter than the window while its items are deleted.
    return index >= m_startIndex && index - m_startIndex < m_storage.size();
}

void LazyLoadedListModel::scrollUp(int page)
{
    const int newPages = indexToPage(m_startIndex) - page;
    if (newPages >= m_storagePages) {
        jumpTo(page);
        return;
    }
    const int newRows = pageToIndex(newPages);
    deleteFromTheEnd(newRows);
    m_storage.insert(0, newRows, nullptr);
    m_startIndex = pageToIndex(page);
    requestPages(page, newPages);
}

void LazyLoadedListModel::scrollDown(int page)
{
    const int newPages = page - indexToPage(m_startIndex);
    if (newPages >= m_storagePages) {
        jumpTo(page);
        return;
    }
    const int newRows = pageToIndex(newPages);
    const auto firstStaying = m_storage.begin() + newRows;
    for (auto leaving = m_storage.begin(); leaving != firstStaying; ++leaving)
        delete std::exchange(*leaving, nullptr);
    m_storage.erase(m_storage.begin(), firstStaying);
    m_storage.insert(m_storage.size(), newRows, nullptr);
    m_startIndex = pageToIndex(page);
    requestPages(page + m_storagePages - newPages, newPages);
}

/// Starts an empty window at \a page, for which nothing of the present window can stay.
void LazyLoadedListModel::jumpTo(int page)
{
    eraseStorage();
    m_startIndex = pageToIndex(page);
    Q_EMIT loadStorageAtPage(page);
}

void LazyLoadedListModel::requestPages(int firstPage, int count)
{
    QVector<int> pages(count);
    std::iota(pages.begin(), pages.end(), firstPage);
    Q_EMIT loadPages(pages);
}

void LazyLoadedListModel::deleteItemAtIndex(int index)
{
    if (isInWindow(index))
        delete std::exchange(m_storage[index - m_startIndex], nullptr);
}

void LazyLoadedListModel::clearList() { deleteFromTheEnd(m_storage.size()); }

/// Removes each entry from the storage before its item is deleted.
void LazyLoadedListModel::deleteFromTheEnd(int count)
{
    for (; count > 0; --count) {
        const QStandardItem *item = m_storage.constLast();
        m_storage.removeLast();
        delete item;
    }
}

void LazyLoadedListModel::eraseStorage()
{
    clearList();
    m_storage.fill(nullptr, m_storageSize);
}
