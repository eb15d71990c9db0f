// SPDX-License-Identifier: Apache-2.0
#include "MainWindow.h"

#include "Backdrop.h"
#include "Looks.h"
#include "RoomsApplication.h"
#include "SettingsDialog.h"
#include "Toast.h"
#include "calls/CallsPage.h"
#include "chats/ChatsPage.h"
#include "data/Backend.h"
#include "data/ConversationModel.h"
#include "files/FilesPage.h"
#include "people/Avatar.h"
#include "protocol/Literal.h"

#include <UiElements/app/OxaAppSignals.h>
#include <UiElements/svg/OxaSvgPushButton.h>
#include <UiElements/widgets/AlertBanner.h>
#include <UiElements/widgets/OxaMenu.h>
#include <UiElements/widgets/OxaPushButton.h>
#include <UiElements/widgets/OxaStackedWidget.h>
#include <UiElements/widgets/OxaTabBar.h>

#include <QVBoxLayout>

MainWindow::MainWindow(Backend *backend, QWidget *parent)
    : OxaMainWindow(parent), m_backend(backend), m_cards(backend)
{
    setObjectName(u"mainWindow"_s);
    setWindowTitle(tr("Rooms"));
    setMinimumSize(560, 400);
    resize(1120, 760);

    auto *content = new Backdrop("window", this);
    setCentralWidget(content);
    AlertBanner *banner =
            Looks::makeBanner(AlertBanner::AlertType::Warning,
                              tr("The server is away. What you write is sent when it is back."),
                              content);
    banner->setHidden(backend->isConnected());
    auto *column = Looks::makeColumn(content);
    column->addWidget(makeTop());
    column->addWidget(banner);
    m_pages = new OxaStackedWidget(content);
    column->addWidget(m_pages, 1);

    m_chats = new ChatsPage(backend, &m_cards);
    addPage(tr("Chats"), m_chats);
    m_calls = new CallsPage(backend, &m_cards);
    addPage(tr("Calls"), m_calls);
    addPage(tr("Files"), new FilesPage(backend));
    m_tabs->setCurrentIndex(Chats);
    m_tabs->getTab(Chats)->setAcceptDrops(true); // What is dragged goes onto a conversation.
    m_tabs->getTab(Chats)->installEventFilter(this);
    connect(m_tabs, &OxaTabBar::currentChanged, m_pages, &QStackedWidget::setCurrentIndex);

    connectAll();
    connect(backend, &Backend::connectedChanged, banner, &QWidget::setHidden);
    showMe();
    m_chats->focusSearch();
}

void MainWindow::showPage(Page page) { m_tabs->setCurrentIndex(page); }

QWidget *MainWindow::makeTop()
{
    auto *top = new OxaWidget(this);
    top->setObjectName(u"top"_s);
    top->setFixedHeight(56);
    top->setCSS(u"$backgroundColors: sidebar; $borderColors: divider; "
                "$borders: bottom; $borderWidth: 1;"_s);
    m_tabs = new OxaTabBar(top);
    m_tabs->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    m_tabs->setFixedHeight(36);
    m_tabs->setHorizontalPadding(16);
    m_tabs->setAccessibleName(tr("Pages"));
    m_me = makeMe(top);

    auto *row = new QHBoxLayout(top);
    row->setContentsMargins(16, 0, 16, 0);
    row->addWidget(m_tabs);
    row->addStretch(1);
    row->addWidget(m_me);
    return top;
}

OxaPushButton *MainWindow::makeMe(QWidget *parent)
{
    auto *button = new OxaPushButton(parent);
    button->setFixedSize(44, 44);
    button->setCursor(Qt::PointingHandCursor);
    button->setCSS(Looks::buttonStyle(Looks::Button::Quiet, 8));
    m_picture = new Avatar(36, button);
    m_picture->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_picture->move(4, 4);
    connect(button, &OxaPushButton::clicked, this, &MainWindow::openMenu);
    return button;
}

void MainWindow::addPage(const QString &title, QWidget *page)
{
    m_pages->addWidget(page);
    const int index = m_tabs->addTab(title, title);
    OxaPushButton *tab = m_tabs->getTab(index);
    tab->setFontToken(OxaFont::Token::SubheaderSecondary);
    tab->setCSS(u"$textColors: tab-text; $backgroundColors: tab; "
                "$borderColors: tab-border; $borders: all; $borderWidth: 2; "
                "$borderRadius: 6;"_s);
}

void MainWindow::connectAll()
{
    connect(m_backend, &Backend::connectedChanged, this, &MainWindow::showMe);
    connect(m_backend, &Backend::personChanged, this, [this](const QString &person) {
        if (person == m_backend->me())
            showMe();
    });
    connect(m_backend, &Backend::failed, this,
            [this](const QString &reason) { Toast::show(reason, this); });
    connect(RoomsApplication::get(), &RoomsApplication::settingsChanged, this, &MainWindow::showMe);
    const auto openPerson = [this](const QString &person) {
        showPage(Chats);
        m_chats->openPerson(person);
    };
    connect(&m_cards, &PersonCards::messageRequested, this, openPerson, Qt::QueuedConnection);

    const OxaAppSignals *hub = OxaAppSignals::get();
    const auto shows = [this](Page page) { return [this, page] { showPage(page); }; };
    connect(hub, &OxaAppSignals::selectMessagingTab, this, shows(Chats));
    connect(hub, &OxaAppSignals::selectCallingTab, this, shows(Calls));
    connect(hub, &OxaAppSignals::selectRillsTab, this, shows(Files));
    connect(hub, &OxaAppSignals::startAudioCall, this, [this] {
        const QModelIndex open = m_backend->conversations()->find(m_chats->conversation());
        if (open.isValid())
            m_calls->start(open.data().toString());
    });
    connect(hub, &OxaAppSignals::zoomInMessageView, this, [this] { zoom(1); });
    connect(hub, &OxaAppSignals::zoomOutMessageView, this, [this] { zoom(-1); });
    connect(hub, &OxaAppSignals::openGlobalSearch, this, [this] {
        showPage(Chats);
        m_chats->focusSearch();
    });
}

void MainWindow::zoom(int step)
{
    Settings settings = RoomsApplication::get()->settings();
    settings.messagingSize = qBound(-1, settings.messagingSize + step, 2);
    RoomsApplication::get()->apply(settings);
}

void MainWindow::showMe()
{
    Person me = m_backend->person(m_backend->me());
    const QString chosen = RoomsApplication::get()->settings().displayName;
    if (!chosen.isEmpty())
        me.name = chosen;
    if (!m_backend->isConnected())
        me.presence = Presence::Offline;
    m_picture->setPerson(me);
    m_me->setAccessibleName(me.name.isEmpty() ? tr("You") : tr("You, %1").arg(me.name));
    m_me->setToolTip(me.name);
}

void MainWindow::openMenu()
{
    OxaMenu *menu = Looks::makeMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const Presence presence : { Presence::Active, Presence::Away, Presence::Busy }) {
        QAction *action = menu->addAction(presenceText(presence));
        action->setCheckable(true);
        action->setChecked(m_backend->person(m_backend->me()).presence == presence);
        connect(action, &QAction::triggered, this,
                [this, presence] { m_backend->setPresence(presence); });
    }
    menu->addSeparator();
    connect(menu->addAction(tr("Profile")), &QAction::triggered, this,
            [this] { m_cards.showProfile(m_backend->me(), this); });
    connect(menu->addAction(tr("Settings")), &QAction::triggered, this, &MainWindow::showSettings);
    const int x = isRightToLeft() ? 0 : m_me->width() - menu->sizeHint().width();
    menu->popupAt(m_me->mapToGlobal(QPoint(x, m_me->height() + 4)));
}

bool MainWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::DragEnter)
        showPage(Chats);
    return OxaMainWindow::eventFilter(watched, event);
}

void MainWindow::showSettings()
{
    if (!m_settings) {
        m_settings = new SettingsDialog(this);
        m_settings->open();
    }
    m_settings->activateWindow();
}

void MainWindow::startCall(const Call &call) { m_calls->start(call.title); }
