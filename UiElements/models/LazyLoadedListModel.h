// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <QAbstractListModel>
#include <QVector>

class QStandardItem;

/// A long list that lives elsewhere, such as a server's search result. It has all the rows at once,
/// but holds items for a window of a few pages only, which follows the view.
///
/// Give it the paging and the size, tell it with setScrolledIndex() where the view is, and answer
/// the pages that it asks for with setItemsAtPage(). Derive from it and override data() to read
/// from getItemAt(); a row that is not loaded has a null item.
///
/// A window move emits no model signal: the rows are the same, and dataChanged() follows as their
/// items arrive. Row counts change only after Qt's signals of the change, which Qt expects the
/// other way round: see docs/list-models.md for what to avoid under a proxy and in QML.
///
/// A slot may delete the model in each of its signals but rowsAboutToBeInserted() and
/// rowsAboutToBeRemoved(), after which Qt goes on with it.
class UIELEMENTS_EXPORT LazyLoadedListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    /// Makes a model without paging and without rows.
    explicit LazyLoadedListModel(QObject *parent = nullptr);

    /// Deletes all items that the window holds.
    ~LazyLoadedListModel() override;

    /// Pages of \a pageSize rows, \a storagePages of them in the window. Starts afresh with
    /// reset(), so set the size after it. Does nothing when either is 0.
    void setPagingConfig(unsigned int pageSize, unsigned int storagePages);

    /// Deletes all items, removes all rows and takes the window back to row 0.
    void reset();

    /// Returns the number of rows in the whole list.
    int size() const;

    /// Makes the list \a size rows long, which must not be negative. New rows are not loaded; items
    /// past the new end are deleted. Where the whole window lies past it, the window goes back to
    /// row 0, unloaded and without a request for pages.
    void setSize(int size);

    /// Returns size(), also below a row.
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;

    /// Returns an invalid value; subclasses override it.
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

    /// Makes the window start one page above the page of the row \a index, and asks for the pages
    /// that came into reach: with loadPages(), or with loadStorageAtPage() when nothing of the
    /// window could stay. Items that left the window are deleted. Does nothing without paging.
    void setScrolledIndex(int index);

    /// Returns the item of the row \a index; null when it is not loaded or outside the window. The
    /// model keeps it, and deletes it when it leaves the window.
    QStandardItem *getItemAt(int index) const;

    /// Returns the same by the row of \a index; null for an invalid one.
    QStandardItem *getItemAt(const QModelIndex &index) const;

    /// Takes over \a item for the row \a index in place of the present item, which is deleted, so
    /// \a item must not be the model's already. Emits dataChanged() without roles; past the end,
    /// the list grows up to that row instead. Outside the window it returns false and leaves \a
    /// item to the caller.
    bool setItemAtIndex(int index, QStandardItem *item);

    /// Takes over \a items for the rows of the page \a page, each by setItemAtIndex(). Fewer items
    /// than a page has rows mark the end of the list.
    ///
    /// A page that the window has left is dropped without a sign, and so are items past the window:
    /// they stay the caller's to delete. getStartIndex() tells beforehand. When a slot deletes the
    /// model meanwhile, all of \a items are deleted.
    void setItemsAtPage(int page, const QVector<QStandardItem *> &items);

    /// Returns the row that the window starts at, a multiple of the page size.
    int getStartIndex() const;

    /// Returns the page of the row \a index, 0 without paging.
    int indexToPage(int index) const;

    /// Returns the first row of the page \a page.
    int pageToIndex(int page) const;

Q_SIGNALS:
    /// The window has moved; \a pages, in ascending order, came into reach and hold nothing yet.
    void loadPages(const QVector<int> &pages);

    /// The window holds nothing any more; fetch all its pages, from \a page on.
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
