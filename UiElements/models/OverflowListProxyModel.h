// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <QSortFilterProxyModel>

/// The tail of a source list: the rows after a given one, for example for a menu of the entries
/// that don't fit into a bar.
///
/// The filter checks a row when it is added, when it changes, and when firstVisibleIndex is set. A
/// row that stays while others before it are added or removed keeps its state, as in any
/// QSortFilterProxyModel.
///
/// A slot may delete the proxy in firstVisibleIndexChanged() and headerChanged(), but not in the
/// signals of Qt's classes, which use the proxy afterwards.
class UIELEMENTS_EXPORT OverflowListProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT
    Q_PROPERTY(int firstVisibleIndex READ firstVisibleIndex WRITE setFirstVisibleIndex NOTIFY
                       firstVisibleIndexChanged)
    Q_PROPERTY(QString header READ header WRITE setHeader NOTIFY headerChanged)

public:
    /// Makes a proxy that hides source row 0.
    explicit OverflowListProxyModel(QObject *parent = nullptr);

    /// Makes a proxy of the source rows after \a firstVisibleIndex.
    OverflowListProxyModel(QObject *parent, int firstVisibleIndex);
    ~OverflowListProxyModel() override;

    /// Returns the last source row that the list in front shows: the proxy has the rows after it.
    /// -1 lets all rows pass. 0 by default.
    int firstVisibleIndex() const;

    /// Stores \a index, emits firstVisibleIndexChanged(), and then filters again; does nothing if
    /// it is the same.
    void setFirstVisibleIndex(int index);

    /// Returns the header text. Empty by default.
    QString header() const;

    /// Stores \a text and emits headerChanged(); does nothing if it is the same.
    void setHeader(const QString &text);

    /// Removes the source model. The proxy is empty then, and keeps its properties.
    void unsetSourceModel();

Q_SIGNALS:
    /// Emitted before the filter runs: the rows are still the old ones.
    void firstVisibleIndexChanged();
    /// The header was set to another value.
    void headerChanged();

protected:
    /// True when \a sourceRow is after firstVisibleIndex, for any parent.
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;

private:
    int m_firstVisibleIndex = 0;
    QString m_header;
};
