// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/ModelLog.h"

#include <UiElements/models/LazyLoadedListModel.h>

#include <QStandardItem>

/// An item that counts its instances.
class CountedItem : public QStandardItem
{
public:
    explicit CountedItem(const QString &text = QString()) : QStandardItem(text) { ++alive; }
    CountedItem(const CountedItem &) = delete;
    CountedItem &operator=(const CountedItem &) = delete;
    ~CountedItem() override { --alive; }

    static inline int alive = 0;
};

/// A paged list of letters.
class LazyLetterModel : public LazyLoadedListModel
{
    Q_OBJECT

public:
    enum Role { Letter = Qt::UserRole + 1 };

    /// Pages of \a pageSize rows, \a storagePages of them in the window, of \a size rows in all. No
    /// paging when \a pageSize is 0.
    explicit LazyLetterModel(unsigned pageSize = 0, unsigned storagePages = 0, int size = 0)
    {
        setPagingConfig(pageSize, storagePages);
        setSize(size);
    }

    /// Makes an item for each letter, which the caller owns. A dot is null.
    static QVector<QStandardItem *> itemsOf(const QString &letters)
    {
        QVector<QStandardItem *> items;
        for (const QChar letter : letters)
            items += letter == QLatin1Char('.') ? nullptr : new CountedItem(letter);
        return items;
    }

    /// Returns the letters that the window holds; a row that is not loaded is a dot.
    QString window() const
    {
        QString text;
        for (int i = getStartIndex(); i < getStartIndex() + getStorageSize(); ++i)
            text += getItemAt(i) ? getItemAt(i)->text() : QStringLiteral(".");
        return text;
    }

    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override
    {
        const QStandardItem *item = getItemAt(index);
        return item && role == Letter ? item->text() : QVariant();
    }

    QHash<int, QByteArray> roleNames() const override { return { { Letter, "letter" } }; }

    using LazyLoadedListModel::getStorageSize;
};

/// The same without rows below its rows, as Qt expects of a list.
class FlatLazyLetterModel : public LazyLetterModel
{
    Q_OBJECT

public:
    using LazyLetterModel::LazyLetterModel;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : LazyLetterModel::rowCount(parent);
    }
};
