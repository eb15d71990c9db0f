// SPDX-License-Identifier: Apache-2.0
#include "MainWindow.h"

#include "Looks.h"
#include "chats/ChatsPage.h"
#include "data/Backend.h"
#include "people/Avatar.h"

#include <UiElements/app/OxaAppSignals.h>
#include <UiElements/svg/OxaSvgPushButton.h>
#include <UiElements/widgets/AlertBanner.h>
#include <UiElements/widgets/OxaPushButton.h>
#include <UiElements/widgets/OxaStackedWidget.h>
#include <UiElements/widgets/OxaTabBar.h>

#include <QVBoxLayout>

MainWindow::MainWindow(Backend *backend, QWidget *parent)
    : OxaMainWindow(parent), m_backend(backend), m_cards(backend)
{
    setUpLooks();
    auto *content = new OxaWidget(this);
    setCentralWidget(content);
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(makeTop());
    m_banner = new AlertBanner(content);
    m_banner->setMinimumHeight(48);
    column->addWidget(m_banner);
    m_pages = new OxaStackedWidget(content);
    column->addWidget(m_pages, 1);

    m_chats = new ChatsPage(backend, &m_cards);
    addPage(tr("Chats"), m_chats);
    addPage(tr("Calls"), new OxaWidget);
    addPage(tr("Files"), new OxaWidget);
    m_tabs->setCurrentIndex(Chats);
    connect(m_tabs, &OxaTabBar::currentChanged, m_pages, &QStackedWidget::setCurrentIndex);

    connect(backend, &Backend::connectedChanged, this, &MainWindow::showConnection);
    connect(backend, &Backend::ready, this, &MainWindow::showMe);
    connect(&m_cards, &PersonCards::messageRequested, this, [this](const QString &person) {
        showPage(Chats);
        m_chats->openPerson(person);
    });
    connectShortcuts();
    showConnection();
    showMe();
}

void MainWindow::showPage(Page page) { m_tabs->setCurrentIndex(page); }

void MainWindow::setUpLooks()
{
    setObjectName(QStringLiteral("mainWindow"));
    setWindowTitle(tr("Rooms"));
    setMinimumSize(560, 400);
    resize(1120, 760);
    setCSS(QStringLiteral("#mainWindow { background: $(window); }") + Looks::scrollBarRules());
}

QWidget *MainWindow::makeTop()
{
    auto *top = new OxaWidget(this);
    top->setObjectName(QStringLiteral("top"));
    top->setFixedHeight(56);
    top->setCSS(QStringLiteral("$backgroundColors: sidebar; $borderColors: divider; "
                               "$borders: bottom; $borderWidth: 1;"));
    m_tabs = new OxaTabBar(top);
    m_tabs->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    m_tabs->setFixedHeight(36);
    m_tabs->setHorizontalPadding(16);
    m_tabs->setAccessibleName(tr("Pages"));
    m_me = new Avatar(36, top);

    auto *row = new QHBoxLayout(top);
    row->setContentsMargins(16, 0, 16, 0);
    row->addWidget(m_tabs);
    row->addStretch(1);
    row->addWidget(m_me);
    return top;
}

void MainWindow::addPage(const QString &title, QWidget *page)
{
    m_pages->addWidget(page);
    const int index = m_tabs->addTab(title, title);
    OxaPushButton *tab = m_tabs->getTab(index);
    tab->setFontToken(OxaFont::Token::SubheaderSecondary);
    tab->setCSS(QStringLiteral("$textColors: tab-text; $backgroundColors: tab; "
                               "$borderColors: tab-border; $borders: all; $borderWidth: 2; "
                               "$borderRadius: 6;"));
}

void MainWindow::connectShortcuts()
{
    const OxaAppSignals *hub = OxaAppSignals::get();
    const auto shows = [this](Page page) { return [this, page] { showPage(page); }; };
    connect(hub, &OxaAppSignals::selectMessagingTab, this, shows(Chats));
    connect(hub, &OxaAppSignals::selectCallingTab, this, shows(Calls));
    connect(hub, &OxaAppSignals::openGlobalSearch, this, [this] {
        showPage(Chats);
        m_chats->focusSearch();
    });
}

void MainWindow::showConnection()
{
    m_banner->setAlert({ AlertBanner::AlertType::Warning,
                         tr("The server is away. What you write is sent when it is back."), true,
                         true, QSize(400, 48) });
    m_banner->setVisible(!m_backend->isConnected());
}

void MainWindow::showMe() { m_me->setPerson(m_backend->person(m_backend->me())); }

void MainWindow::openMenu() { }
