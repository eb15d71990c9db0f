// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

class OxaListView;
class OxaTextInput;
class QLayout;
class QSortFilterProxyModel;

/// All emoji by group, and a search among them by name.
class EmojiPicker : public OxaWidget
{
    Q_OBJECT

public:
    explicit EmojiPicker(QWidget *parent = nullptr);

Q_SIGNALS:
    void picked(const QString &emoji);

private:
    void makeGrid();
    QLayout *makeGroups();
    void showGroup(const QString &group);

    QSortFilterProxyModel *const m_found;
    OxaTextInput *m_search = nullptr;
    OxaListView *m_grid = nullptr;
};
