// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "shell/Page.h"

#include <QPointer>

class Card;
class CodeEdit;
class SegmentedControl;
class TabOrderOverlay;
class WindowWatcher;

/// Shows the tab order of its window, as numbers and arrows over the window and as text.
class FocusPage : public Page
{
    Q_OBJECT

public:
    explicit FocusPage(QWidget *parent = nullptr);
    ~FocusPage() override;

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    Card *makeCompoundCard();
    Card *makeStatesCard();
    Card *makeListCard();
    void follow(QWidget *window);
    void refresh();

    CodeEdit *m_list = nullptr;
    SegmentedControl *m_overlayControl = nullptr;
    QPointer<TabOrderOverlay> m_overlay;
    QPointer<WindowWatcher> m_watcher;
};
