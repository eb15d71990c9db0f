// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/models/LazyLoadedListModel.h>

/// The messages of a long history, with the roles of RowRole.
class HistoryModel : public LazyLoadedListModel
{
    Q_OBJECT

public:
    static constexpr int messageCount = 10'000'000;
    static constexpr int pageSize = 50;
    static constexpr int pagesInWindow = 5;

    /// Makes a history without loaded rows.
    explicit HistoryModel(QObject *parent = nullptr);

    /// Returns how many rows of the window have an item.
    int loadedCount() const;

    /// Returns the row behind the window.
    int endIndex() const;

    /// True when \a page is in the window, so that the model takes its items.
    bool wantsPage(int page) const;

    /// Returns \a row as text, counted from 1.
    static QString textOf(int row);

    QHash<int, QByteArray> roleNames() const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
};
