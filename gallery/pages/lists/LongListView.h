// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaThemeBlock.h>

#include <QAbstractItemModel>
#include <QAbstractScrollArea>

class RowDelegate;

/// A view for lists of any length. Qt's own item views store data for each row, which for ten
/// million rows takes more than the model itself; this one knows only the visible rows.
///
/// Not supported: a current row and a selection.
class LongListView : public QAbstractScrollArea
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QAbstractScrollArea)

public:
    /// Shows \a model, which must outlive the view.
    explicit LongListView(QAbstractItemModel *model, QWidget *parent = nullptr);

    /// Returns the row at the upper edge.
    int firstRow() const;

    /// Returns the row at the lower edge.
    int lastRow() const;

    /// Brings \a row to the upper edge, or as near as the end of the list allows.
    void scrollToRow(int row);

Q_SIGNALS:
    /// Other rows may be visible now, from \a firstRow on.
    void moved(int firstRow);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;

protected Q_SLOTS:
    virtual void onThemeChanged();

private:
    QRect rectOf(int row) const;
    void fitScrollBar();
    void refresh();
    void repaintRows(const QModelIndex &first, const QModelIndex &last);

    QAbstractItemModel *const m_model;
    RowDelegate *const m_delegate;
    int m_rowHeight = 1;
};
