// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/ThemeBlock.h>

#include <QListView>

class RowDelegate;

/// A list of conversations, of which one is chosen.
class ConversationView : public QListView
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QListView)

public:
    /// Shows \a model, which must outlive the view.
    explicit ConversationView(QAbstractItemModel *model, QWidget *parent = nullptr);

private:
    void refresh();

    RowDelegate *const m_delegate;
};
