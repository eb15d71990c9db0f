// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/ThemeBlock.h>

#include <QTableView>

class ColorSetDelegate;
class ColorSetModel;

/// A table of colour sets. A click on a cell, or Return, copies what the cell says.
class ColorSetTable : public QTableView
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QTableView)

public:
    /// Shows \a model, which must outlive the table.
    explicit ColorSetTable(ColorSetModel *model, QWidget *parent = nullptr);

    /// Takes the fonts at the scale of this moment.
    void refresh();

Q_SIGNALS:
    /// The text of a cell was copied to the clipboard.
    void copied(const QString &text);

private:
    void setUpHeaders();
    void setHeaderFont(const QFont &font);
    void spanHeadings();
    void copy(const QModelIndex &index);

    ColorSetDelegate *const m_delegate;
};
