// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "widgets/TableView.h"

class ColorSetDelegate;
class ColorSetModel;

/// A table of colour sets. A click on a cell, or Return, copies its text.
class ColorSetTable : public TableView
{
    Q_OBJECT

public:
    /// Shows \a model, which must outlive the table.
    explicit ColorSetTable(ColorSetModel *model, QWidget *parent = nullptr);

    void refresh() override;

Q_SIGNALS:
    /// The text of a cell was copied to the clipboard.
    void copied(const QString &text);

private:
    ColorSetTable(ColorSetModel *model, ColorSetDelegate *delegate, QWidget *parent);
    void spanHeadings();
    void copy(const QModelIndex &index);

    ColorSetDelegate *const m_delegate;
};
