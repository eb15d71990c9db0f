// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "shell/Page.h"

class EmptyState;
class IconDetails;
class IconModel;
class IconRenderers;
class IconTable;
class OxaLabel;
class QLayout;
class OxaTextInput;

/// Shows icons in the states of a colour set, and why they take its colours or do not.
class IconsPage : public Page
{
    Q_OBJECT

public:
    explicit IconsPage(QWidget *parent = nullptr);

private:
    QLayout *makeControls();
    QWidget *makeColorSets();
    QWidget *makeSizes();
    void showSource(int source);
    void search(const QString &text);
    void showCounts();
    void chooseFirst();
    void showIcon();
    void showColor();

    IconModel *m_model;
    IconRenderers *m_renderers;
    OxaWidget *m_sheet;
    IconTable *m_table;
    IconDetails *m_details;
    EmptyState *m_noMatch;
    EmptyState *m_noPackage;
    OxaTextInput *m_search;
    OxaLabel *m_count;
};
