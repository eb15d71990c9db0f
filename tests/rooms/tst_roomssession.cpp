// SPDX-License-Identifier: Apache-2.0
#include "TestServer.h"
#include "chats/ChatsPage.h"
#include "data/Backend.h"
#include "data/ConversationModel.h"
#include "people/PersonCards.h"
#include "people/PersonControllers.h"
#include "shell/MainWindow.h"
#include "shell/RoomsApplication.h"
#include "support/Guards.h"
#include "support/RealInput.h"
#include "support/TestMain.h"
#include "support/Windows.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QListWidget>
#include <QMenu>
#include <QPointer>
#include <QQuickItem>
#include <QQuickView>
#include <QQuickWidget>
#include <QQuickWindow>
#include <QSettings>
#include <QSlider>
#include <QTest>
#include <QTextEdit>

#include <algorithm>

namespace {

constexpr int longMs = 20'000;

/// The visible widget of the class \a Widget called \a name by assistive technology, in any window.
/// A name that ends in a space is the start of one.
template <typename Widget>
Widget *shown(const char *name)
{
    const QWidgetList all = QApplication::allWidgets();
    for (QWidget *widget : all) {
        auto *found = qobject_cast<Widget *>(widget);
        if (!found || !found->isVisible())
            continue;
        const QString shownName = QAccessible::queryAccessibleInterface(found)->text(
                QAccessible::Name);
        const QLatin1String wanted(name);
        if (shownName == wanted || (wanted.endsWith(u' ') && shownName.startsWith(wanted)))
            return found;
    }
    return nullptr;
}

template <typename Widget>
Widget *waitFor(const char *name)
{
    Widget *found = nullptr;
    const auto isShown = [&] { return (found = shown<Widget>(name)) != nullptr; };
    return QTest::qWaitFor(isShown, longMs) ? found : nullptr;
}

/// Clicks \a widget as soon as nothing else is at its place.
bool click(const QPointer<QWidget> &widget)
{
    const auto isThere = [&widget] {
        const QWidget *there = widget
                ? QApplication::widgetAt(widget->mapToGlobal(widget->rect().center()))
                : nullptr;
        return there && (there == widget || widget->isAncestorOf(there));
    };
    return QTest::qWaitFor(isThere, longMs) && RealInput::click(*widget, widget->rect().center());
}

/// Clicks the button called \a name as soon as there is one.
bool clickButton(const char *name) { return click(waitFor<QAbstractButton>(name)); }

/// Waits for the row \a row of \a list, and clicks it with \a button.
bool clickRow(QAbstractItemView *list, int row, int button = 1)
{
    const auto isThere = [&] { return list->model()->rowCount() > row; };
    return list && QTest::qWaitFor(isThere, longMs)
            && RealInput::click(*list->viewport(),
                                list->visualRect(list->model()->index(row, 0)).center(), button);
}

/// Clicks the action called \a text of the menu that is open.
bool clickAction(const char *text)
{
    const auto isOpen = [] { return qobject_cast<QMenu *>(QApplication::activePopupWidget()); };
    if (!QTest::qWaitFor(isOpen, longMs))
        return false;
    const auto *menu = qobject_cast<const QMenu *>(QApplication::activePopupWidget());
    const QList<QAction *> actions = menu->actions();
    for (QAction *action : actions) {
        if (action->text().startsWith(QString::fromUtf8(text)))
            return RealInput::click(*menu, menu->actionGeometry(action).center());
    }
    return false;
}

bool type(const char *text)
{
    return RealInput::send(
            { QStringLiteral("type"), QStringLiteral("--"), QString::fromUtf8(text) });
}

QStringList words(const char *text) { return QString::fromLatin1(text).split(u' '); }

/// What makes xdotool move the pointer, slow enough for a drag.
QStringList moves(const QVector<QPoint> &places)
{
    QStringList arguments;
    for (const QPoint &place : places)
        arguments << words("mousemove") << QString::number(place.x()) << QString::number(place.y())
                  << words("sleep 0.3");
    return arguments;
}

QtMessageHandler handlerOfTests = nullptr;

/// Qt warns if a window that it looks for under the pointer is gone by then.
void passMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (!text.contains(QStringLiteral("(BadWindow)")))
        handlerOfTests(type, context, text);
}

bool press(const char *key) { return RealInput::typeKeys({ QString::fromLatin1(key) }); }

/// The window of QML that is shown and has a button called \a text; that button.
QQuickItem *quickButton(const char *text)
{
    QQuickItem *found = nullptr;
    const auto isShown = [&] {
        const QWindowList windows = QGuiApplication::topLevelWindows();
        for (QWindow *window : windows) {
            auto *view = qobject_cast<QQuickView *>(window);
            if (!view || !view->isVisible() || !view->rootObject())
                continue;
            const auto items = view->rootObject()->findChildren<QQuickItem *>();
            for (QQuickItem *item : items) {
                if (item->property("kind").isValid()
                    && item->property("text") == QLatin1String(text))
                    found = item;
            }
        }
        return found != nullptr;
    };
    return QTest::qWaitFor(isShown, longMs) ? found : nullptr;
}

bool click(const QQuickItem *item)
{
    if (!item)
        return false;
    const QPoint place = item->mapToGlobal(QPointF(item->width() / 2, item->height() / 2))
                                 .toPoint();
    return RealInput::send({ QStringLiteral("mousemove"), QString::number(place.x()),
                             QString::number(place.y()), QStringLiteral("click"),
                             QStringLiteral("1") });
}

/// Qt's software scene graph frees the texture of a picture in the frame after the picture went,
/// and leaks those that it has when its window goes.
void releasePictures(const QWidget &window)
{
    const auto views = window.findChildren<QQuickWidget *>();
    for (QQuickWidget *view : views) {
        view->setSource({});
        view->quickWindow()->releaseResources();
        view->grabFramebuffer();
    }
}

} // namespace

/// A user's session with the whole client, by keys and pointer, and what the server received. Each
/// function goes on where the one before it stopped.
class tst_RoomsSession : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    void opensConversationsByClickAndByKey();
    void sendsWhatIsTypedWithAnEmoji();
    void sendsAMovie();
    void reactsInTheContextMenu();
    void jumpsToADate();
    void findsAConversation();
    void showsWhoSomebodyIs();
    void keepsOneModelForTheProfile();
    void followsEachAnchorOfACardOnce();
    void changesTheLooks();
    void callsAndLeaves();
    void keepsThePlaceInTheFilesForAnotherDirection();
    void sendsAFileThatIsDragged();
    void sendsWhatWasTypedWhileTheServerWasAway();

private:
    QVector<QJsonObject> requests(const char *name) const
    {
        return m_server.requests(QString::fromLatin1(name));
    }

    static QString value(const QVector<QJsonObject> &requests, const char *name)
    {
        return requests.isEmpty() ? QString()
                                  : requests.constLast()[QLatin1String(name)].toString();
    }

    TestServer m_server;
    std::unique_ptr<StoreGuard> m_stores;
    std::unique_ptr<LayoutDirectionGuard> m_direction;
    std::unique_ptr<Backend> m_backend;
    std::unique_ptr<MainWindow> m_window;
    QPalette m_palette;
};

void tst_RoomsSession::initTestCase()
{
    handlerOfTests = qInstallMessageHandler(passMessage);
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_server.path("settings"));
    m_stores = std::make_unique<StoreGuard>(OxaColorSetMap());
    m_direction = std::make_unique<LayoutDirectionGuard>(Qt::LeftToRight);
    m_palette = QGuiApplication::palette();
    RoomsApplication::get()->apply({});
    m_server.start();
    m_backend = std::make_unique<Backend>(m_server.socket(), m_server.path("client"));
    m_window = std::make_unique<MainWindow>(m_backend.get());
    m_window->move(20, 40);
    QVERIFY(Windows::activate(*m_window));
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->isReady(), longMs);
}

void tst_RoomsSession::cleanupTestCase()
{
    qInstallMessageHandler(handlerOfTests);
    releasePictures(*m_window);
    m_window.reset();
    m_backend.reset();
    RoomsApplication::get()->apply({});
    QApplication::setPalette(m_palette);
    m_stores.reset();
    m_direction.reset();
}

void tst_RoomsSession::opensConversationsByClickAndByKey()
{
    auto *list = waitFor<QAbstractItemView>("Conversations");
    QVERIFY(clickRow(list, 1));
    const auto idOf = [list](int row) {
        return list->model()->index(row, 0).data(ConversationModel::IdRole).toString();
    };
    QTRY_COMPARE(m_window->chats()->conversation(), idOf(1));
    const QString next = idOf(2);
    QVERIFY(press("Down"));
    QTRY_COMPARE(m_window->chats()->conversation(), next);
    QTRY_COMPARE(value(requests("messages"), "conversation"), next);
    QTRY_VERIFY(!requests("read").isEmpty());
}

void tst_RoomsSession::sendsWhatIsTypedWithAnEmoji()
{
    QVERIFY(click(waitFor<QTextEdit>("Write to ")));
    QVERIFY(type("Hello there "));
    QVERIFY(clickButton("Emoji"));
    QVERIFY(clickRow(waitFor<QAbstractItemView>("Emoji"), 0));
    auto *field = waitFor<QTextEdit>("Write to ");
    QTRY_VERIFY(field->toPlainText().size() > 12 && field->hasFocus());
    const QString text = field->toPlainText();
    QVERIFY(press("Return"));
    QTRY_COMPARE(value(requests("send"), "text"), text);
    QTRY_COMPARE(field->toPlainText(), QString());
    QVERIFY(!requests("typing").isEmpty());
}

void tst_RoomsSession::sendsAMovie()
{
    QVERIFY(clickButton("GIF"));
    QVERIFY(click(waitFor<QWidget>("Moving picture: sun")));
    QTRY_COMPARE(value(requests("send"), "text"), QStringLiteral("sun"));
    QCOMPARE(value(requests("send"), "kind"), QStringLiteral("gif"));
}

void tst_RoomsSession::reactsInTheContextMenu()
{
    auto *list = waitFor<QListWidget>("Messages");
    QTRY_VERIFY(list->count() > 2);
    QVERIFY(clickRow(list, list->count() - 2, 3));
    QVERIFY(clickAction("React"));
    QVERIFY(clickAction("\xf0\x9f\x91\x8d"));
    QTRY_COMPARE(value(requests("react"), "emoji"), QString::fromUtf8("\xf0\x9f\x91\x8d"));
}

void tst_RoomsSession::jumpsToADate()
{
    m_window->chats()->openConversation(QStringLiteral("c0"));
    QVERIFY(clickButton("Jump to a date"));
    QVERIFY(waitFor<QWidget>("Date"));
    QVERIFY(press("Down")); // The day or the month before.
    QVERIFY(clickButton("Jump"));
    QTRY_COMPARE(requests("find").size(), 1);
    const qint64 at = qint64(requests("find").constLast()[QStringLiteral("at")].toDouble());
    QVERIFY(at < QDateTime::currentMSecsSinceEpoch() - 86'400'000LL / 2);
}

void tst_RoomsSession::findsAConversation()
{
    auto *list = waitFor<QAbstractItemView>("Conversations");
    m_window->chats()->focusSearch();
    QVERIFY(type("Sailing 208"));
    QTRY_COMPARE(list->model()->rowCount(), 1);
    QVERIFY(clickRow(list, 0));
    QTRY_COMPARE(m_window->chats()->conversation(), QStringLiteral("c4990"));
    m_window->chats()->focusSearch();
    QVERIFY(RealInput::typeKeys({ QStringLiteral("ctrl+a"), QStringLiteral("BackSpace") }));
    QTRY_COMPARE(list->model()->rowCount(), 5000);
}

void tst_RoomsSession::showsWhoSomebodyIs()
{
    m_window->chats()->openPerson(QStringLiteral("p1"));
    QTRY_COMPARE(m_window->chats()->conversation(), QStringLiteral("c1"));
    const auto *header = m_window->findChild<QWidget *>(QStringLiteral("conversationHeader"));
    QVERIFY(RealInput::moveTo(*header, QPoint(36, header->height() / 2)));
    QVERIFY(click(quickButton("Profile")));
    QVERIFY(click(quickButton("Message")));
    QTRY_COMPARE(QGuiApplication::focusWindow(), m_window->windowHandle());
}

void tst_RoomsSession::keepsOneModelForTheProfile()
{
    for (const char *person : { "p1", "p2" })
        m_window->cards()->showProfile(QLatin1String(person), m_window.get());
    const QQuickItem *close = quickButton("Close");
    QVERIFY(close);
    const QPointer<QQuickView> profile = qobject_cast<QQuickView *>(close->window());
    QCOMPARE(profile->rootObject()->findChildren<ProfileModel *>().size(), 1);
    profile->close();
    QTRY_VERIFY(!profile);
    QVERIFY(Windows::showActive(*m_window));
}

void tst_RoomsSession::followsEachAnchorOfACardOnce()
{
    struct Anchor : QWidget
    {
        using QObject::receivers;
    } anchor;
    for (const char *person : { "p1", "", "p2", "p3" })
        m_window->cards()->watch(&anchor, QLatin1String(person));
    QCOMPARE(anchor.receivers(SIGNAL(destroyed(QObject *))), 1);
}

void tst_RoomsSession::changesTheLooks()
{
    QVERIFY(clickButton("You, "));
    QVERIFY(clickAction("Settings"));
    for (const char *name : { "Colours", "Direction" }) {
        auto *box = waitFor<QComboBox>(name);
        QVERIFY(click(box));
        QTRY_VERIFY(box->view()->isVisible());
        QVERIFY(RealInput::typeKeys({ QStringLiteral("End"), QStringLiteral("Return") }));
        QTRY_COMPARE(box->currentIndex(), box->count() - 1);
    }
    auto *slider = waitFor<QSlider>("Size of all text");
    slider->setFocus(Qt::TabFocusReason);
    QVERIFY(press("Up"));
    const auto settings = [] { return RoomsApplication::get()->settings(); };
    QTRY_COMPARE(settings().fontScale, 110);
    QCOMPARE(settings().theme, Settings::Theme::HighContrast);
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::RightToLeft);
    QVERIFY(press("Escape"));
    QTRY_VERIFY(!shown<QSlider>("Size of all text"));
    QCOMPARE(settings(), Settings());
}

void tst_RoomsSession::callsAndLeaves()
{
    m_window->showPage(MainWindow::Calls);
    auto *again = waitFor<QAbstractButton>("Call ");
    QVERIFY(again);
    const QString name = again->accessibleName();
    QVERIFY(click(again));
    QTRY_COMPARE(QStringLiteral("Call ") + value(requests("join"), "call"), name);
    QVERIFY(clickButton("Mute"));
    QVERIFY(waitFor<QAbstractButton>("Unmute"));
    QCOMPARE(requests("leave").size(), 0);
    QVERIFY(clickButton("Leave"));
    QTRY_COMPARE(requests("leave").size(), 1);
}

void tst_RoomsSession::keepsThePlaceInTheFilesForAnotherDirection()
{
    m_window->showPage(MainWindow::Files);
    const auto *files = waitFor<QQuickWidget>("Files");
    QVERIFY(files);
    const auto items = files->rootObject()->findChildren<QQuickItem *>();
    const auto list = std::find_if(items.begin(), items.end(), [](const QQuickItem *item) {
        return item->inherits("QQuickListView");
    });
    QVERIFY(list != items.end());
    QTRY_VERIFY((*list)->property("count").toInt() > 1000);
    (*list)->setProperty("contentY", 20000);
    const Settings before = RoomsApplication::get()->settings();
    Settings settings = before;
    settings.direction = Settings::Direction::RightToLeft;
    RoomsApplication::get()->apply(settings, true);
    QCOMPARE((*list)->property("contentY").toInt(), 20000);
    RoomsApplication::get()->apply(before, true);
    (*list)->setProperty("contentY", 0);
}

void tst_RoomsSession::sendsAFileThatIsDragged()
{
    QVERIFY(Windows::showActive(*m_window));
    m_window->showPage(MainWindow::Chats);
    const auto *list = waitFor<QAbstractItemView>("Conversations");
    const auto *chats = waitFor<QAbstractButton>("Chats");
    QVERIFY(list && chats);
    const QModelIndex row = list->indexAt(list->viewport()->rect().center());
    const QString target = row.data(ConversationModel::IdRole).toString();
    const QPoint drop = list->viewport()->mapToGlobal(list->visualRect(row).center());
    m_window->showPage(MainWindow::Files);
    const auto *files = waitFor<QQuickWidget>("Files");
    QTRY_VERIFY(requests("files").size() > 1);
    const int sent = requests("send").size();
    const QPoint from = files->mapToGlobal(QPoint(100, 80));
    const QPoint tab = chats->mapToGlobal(chats->rect().center());
    // The drag has an event loop of its own, in which this function does not go on.
    QVERIFY(RealInput::send(moves({ from }) + words("mousedown 1")
                            + moves({ from + QPoint(20, 8), from + QPoint(40, 20), tab,
                                      tab + QPoint(4, 0), drop, drop + QPoint(4, 2) })
                            + words("mouseup 1")));
    QTRY_COMPARE_WITH_TIMEOUT(requests("send").size(), sent + 1, longMs);
    QCOMPARE(value(requests("send"), "kind"), QStringLiteral("file"));
    QCOMPARE(value(requests("send"), "conversation"), target);
}

void tst_RoomsSession::sendsWhatWasTypedWhileTheServerWasAway()
{
    m_window->showPage(MainWindow::Chats);
    m_window->chats()->openConversation(QStringLiteral("c3"));
    const int sent = requests("send").size();
    m_server.kill();
    QTRY_VERIFY(!m_backend->isConnected());
    QVERIFY(click(waitFor<QTextEdit>("Write to ")));
    QVERIFY(type("While you were away") && press("Return"));
    m_server.start();
    QTRY_COMPARE_WITH_TIMEOUT(requests("send").size(), sent + 1, longMs);
    QCOMPARE(value(requests("send"), "text"), QStringLiteral("While you were away"));
}

UIELEMENTS_TEST_MAIN_WITH(RoomsApplication, tst_RoomsSession)

#include "tst_roomssession.moc"
