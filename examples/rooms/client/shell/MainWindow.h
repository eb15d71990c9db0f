// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "people/PersonCards.h"

#include <UiElements/widgets/OxaMainWindow.h>

class Avatar;
class Backend;
class CallsPage;
class ChatsPage;
class OxaStackedWidget;
class OxaTabBar;
class OxaPushButton;
class SettingsDialog;
struct Call;

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

    /// Opens the settings, or brings them to the front.
    void showSettings();

    /// Opens the window of a call as \a call.
    void startCall(const Call &call);

    /// Shows the chats while something is dragged over their tab.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *makeTop();
    void addPage(const QString &title, QWidget *page);
    void connectAll();
    OxaPushButton *makeMe(QWidget *parent);
    void showMe();
    void openMenu();
    void zoom(int step);

    Backend *const m_backend;
    PersonCards m_cards;
    OxaPushButton *m_me = nullptr;
    Avatar *m_picture = nullptr;
    OxaTabBar *m_tabs = nullptr;
    OxaStackedWidget *m_pages = nullptr;
    ChatsPage *m_chats = nullptr;
    CallsPage *m_calls = nullptr;
    QPointer<SettingsDialog> m_settings;
};
