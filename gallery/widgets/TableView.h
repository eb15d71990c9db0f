// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaThemeBlock.h>

#include <QTableView>

class ItemDelegate;

/// A table in a frame, whose first column takes the remaining width, and which scrolls if that is
/// too narrow for a name. Its header and its delegate follow the theme and the size of text.
class TableView : public QTableView
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QTableView)

public:
    /// Shows \a model with \a delegate, which the table takes ownership of.
    TableView(QAbstractItemModel *model, ItemDelegate *delegate, QWidget *parent = nullptr);

    /// Takes the colours of the theme, and the fonts at the current scale.
    virtual void refresh();

protected:
    void focusInEvent(QFocusEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

    /// Gives the first column the remaining width.
    void fitFirstColumn();

protected Q_SLOTS:
    virtual void onThemeChanged();

private:
    void applyLook();
    void setUpHeaders();

    ItemDelegate *const m_delegate;
};
