// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <QAbstractListModel>
#include <QVector>

class QStandardItem;

/// A long list that is stored elsewhere, such as a server's search result. The model has all rows
/// at once, but holds items only for a window of a few pages, which follows the view.
///
/// Set the paging and the size, report the view's position with setScrolledIndex(), and answer the
/// requests for pages with setItemsAtPage(). Derive from it and override data() to read from
/// getItemAt(); a row that is not loaded has a null item.
///
/// Moving the window emits no model signal: the rows are the same, and dataChanged() follows as
/// their items arrive. Row counts change only after Qt's signals of the change, which Qt expects
/// the other way round: see docs/list-models.md for what to avoid under a proxy and in QML.
///
/// A slot may delete the model in each of its signals except rowsAboutToBeInserted() and
/// rowsAboutToBeRemoved(), because Qt uses the model after them.
class UIELEMENTS_EXPORT LazyLoadedListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    /// Makes a model without paging and without rows.
    explicit LazyLoadedListModel(QObject *parent = nullptr);

    /// Deletes all items that the window holds.
    ~LazyLoadedListModel() override;

    /// Sets pages of \a pageSize rows, \a storagePages of them in the window. Calls reset(), so set
    /// the size after it. Does nothing when either is 0, or when
    /// the rows of the window do not fit in an int.
    void setPagingConfig(unsigned int pageSize, unsigned int storagePages);

    /// Deletes all items, removes all rows and takes the window back to row 0.
    void reset();

    /// Returns the number of rows in the whole list.
    int size() const;

    /// Makes the list \a size rows long, which must not be negative. New rows are not loaded; items
    /// past the new end are deleted. If the whole window is past it, the window goes back to row 0,
    /// unloaded and without a request for pages.
    void setSize(int size);

    /// Returns size(), also for a row as \a parent.
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;

    /// Returns an invalid value; subclasses override it.
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

    /// Moves the window to start one page before the page of the row \a index, and requests the
    /// pages that are new in it: with loadPages(), or with loadStorageAtPage() if nothing of the
    /// window could stay. Items that left the window are deleted. Does nothing without paging.
    void setScrolledIndex(int index);

    /// Returns the item of the row \a index; null when it is not loaded or outside the window. The
    /// model owns it, and deletes it when it leaves the window.
    QStandardItem *getItemAt(int index) const;

    /// Returns the same by the row of \a index; null for an invalid one.
    QStandardItem *getItemAt(const QModelIndex &index) const;

    /// Takes ownership of \a item for the row \a index. The present item is deleted, so \a item
    /// must not be the model's already. Emits dataChanged() without roles; past the end, the list
    /// grows up to that row instead. Outside the window it returns false and leaves \a item to the
    /// caller.
    bool setItemAtIndex(int index, QStandardItem *item);

    /// Takes ownership of \a items for the rows of the page \a page, each by setItemAtIndex().
    /// Fewer items than a page has rows mark the end of the list.
    ///
    /// A page that is no longer in the window is silently ignored, and so are items past the
    /// window: the caller still has to delete them. Check getStartIndex() beforehand. If a slot
    /// deletes the model meanwhile, all of \a items are deleted.
    void setItemsAtPage(int page, const QVector<QStandardItem *> &items);

    /// Returns the first row of the window, a multiple of the page size.
    int getStartIndex() const;

    /// Returns the page of the row \a index, 0 without paging.
    int indexToPage(int index) const;

    /// Returns the first row of the page \a page.
    int pageToIndex(int page) const;

Q_SIGNALS:
    /// The window has moved; \a pages, in ascending order, are new in it and not loaded yet.
    void loadPages(const QVector<int> &pages);

    /// The window is empty; load all its pages, from \a page on.
    void loadStorageAtPage(int page);

protected:
    /// Returns the number of rows in the window.
    int getStorageSize() const;

private:
    bool isInWindow(int index) const;
    void finishGrowth(int size);
    void scrollUp(int page);
    void scrollDown(int page);
    void jumpTo(int page);
    void requestPages(int firstPage, int count);
    void deleteItemAtIndex(int index);
    void clearList();
    void deleteFromTheEnd(int count);
    void eraseStorage();

    QVector<QStandardItem *> m_storage;
    int m_lastIndex = -1;
    int m_storageSize = 0;
    int m_pageSize = 0;
    int m_storagePages = 0;
    bool m_configured = false;
    int m_startIndex = 0;
};
