// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaListView.h>

class ItemDelegate;

/// A list in a frame, whose delegate follows the theme and the size of text.
class ListView : public OxaListView
{
    Q_OBJECT

public:
    /// Shows \a model with \a delegate, which the view takes ownership of.
    ListView(QAbstractItemModel *model, ItemDelegate *delegate, QWidget *parent = nullptr);

    /// Returns the style text of the frame, for other views.
    static QString frameStyleText();

protected:
    void focusInEvent(QFocusEvent *event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

protected Q_SLOTS:
    void onThemeChanged() override;

private:
    void refresh();

    ItemDelegate *const m_delegate;
};
