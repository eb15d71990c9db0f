// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "shell/Page.h"

class ColorSetModel;
class ColorSetTable;
class EmptyState;
class OxaLabel;
class QLayout;
class OxaTextInput;

/// Shows the colour sets of the store that the window takes its colours from, with a search.
class ColoursPage : public Page
{
    Q_OBJECT

public:
    explicit ColoursPage(QWidget *parent = nullptr);

protected:
    void onThemeChanged() override;

private:
    QLayout *makeToolbar();
    void search(const QString &text);
    void showStore();
    void showCount();

    ColorSetModel *m_model;
    ColorSetTable *m_table;
    EmptyState *m_emptyState;
    OxaTextInput *m_search;
    OxaLabel *m_copied;
    OxaLabel *m_count;
    OxaLabel *m_store;
};
