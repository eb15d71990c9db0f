// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaThemeBlock.h>

#include <QListView>

class ItemDelegate;

/// A list in a frame, whose delegate follows the theme and the size of text.
class ListView : public QListView
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QListView)

public:
    /// Shows \a model with \a delegate, which the view takes ownership of.
    ListView(QAbstractItemModel *model, ItemDelegate *delegate, QWidget *parent = nullptr);

    /// Returns the style text of the frame, for other views.
    static QString frameStyleText();

protected:
    void focusInEvent(QFocusEvent *event) override;

protected Q_SLOTS:
    virtual void onThemeChanged();

private:
    void refresh();

    ItemDelegate *const m_delegate;
};
