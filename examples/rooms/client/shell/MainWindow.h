// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "people/PersonCards.h"

#include <UiElements/widgets/OxaMainWindow.h>

class AlertBanner;
class Avatar;
class Backend;
class ChatsPage;
class OxaStackedWidget;
class OxaTabBar;
class QBoxLayout;

/// The window of the client: the chats, the calls and the files, each on a page of its own.
class MainWindow : public OxaMainWindow
{
    Q_OBJECT

public:
    enum Page { Chats, Calls, Files };

    /// Shows what \a backend knows.
    explicit MainWindow(Backend *backend, QWidget *parent = nullptr);

    ChatsPage *chats() const { return m_chats; }
    PersonCards *cards() { return &m_cards; }

    /// Shows \a page.
    void showPage(Page page);

private:
    void setUpLooks();
    QWidget *makeTop();
    void addPage(const QString &title, QWidget *page);
    void connectShortcuts();
    void showConnection();
    void showMe();
    void openMenu();

    Backend *const m_backend;
    PersonCards m_cards;
    AlertBanner *m_banner = nullptr;
    Avatar *m_me = nullptr;
    OxaTabBar *m_tabs = nullptr;
    OxaStackedWidget *m_pages = nullptr;
    ChatsPage *m_chats = nullptr;
};
