// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/ThemeBlock.h>

#include <QListView>

class SignalDelegate;
class SignalModel;

/// A list of signals, of which one is chosen.
class SignalView : public QListView
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QListView)

public:
    /// Shows \a model, which must outlive the view.
    explicit SignalView(SignalModel *model, QWidget *parent = nullptr);

Q_SIGNALS:
    /// Another signal was chosen, or none.
    void chosen(const QModelIndex &index);

protected:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

private:
    void refresh();

    SignalDelegate *const m_delegate;
};
