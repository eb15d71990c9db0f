// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/ThemeBlock.h>

#include <QListView>

class ArtworkDelegate;

/// A sheet of pictures, as many side by side as there is room for.
class ArtworkView : public QListView
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QListView)

public:
    /// Shows \a model, which must outlive the view.
    explicit ArtworkView(QAbstractItemModel *model, QWidget *parent = nullptr);

private:
    void refresh();

    ArtworkDelegate *const m_delegate;
};
