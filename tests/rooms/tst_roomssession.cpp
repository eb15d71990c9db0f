// SPDX-License-Identifier: Apache-2.0
#include "ClientInput.h"
#include "TestServer.h"
#include "calls/ParticipantTile.h"
#include "chats/ChatsPage.h"
#include "chats/MessageBody.h"
#include "chats/MessageRow.h"
#include "data/Backend.h"
#include "data/History.h"
#include "people/Avatar.h"
#include "shell/MainWindow.h"
#include "shell/RoomsApplication.h"
#include "support/Guards.h"
#include "support/Pixels.h"
#include "support/TestMain.h"
#include "support/Windows.h"

#include <UiElements/widgets/OxaLabel.h>

#include <QClipboard>
#include <QComboBox>
#include <QDesktopServices>
#include <QGraphicsEffect>
#include <QLineEdit>
#include <QProgressBar>
#include <QSettings>
#include <QSlider>
#include <QSplitterHandle>
#include <QToolTip>

#include <algorithm>

using namespace ClientInput;

namespace {

QtMessageHandler handlerOfTests = nullptr;

/// A mouse event whose window is gone goes to the one under the pointer, for which Qt 5.15 asks the
/// X server frame by frame, and warns if the window manager removes a frame meanwhile.
void passMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (!text.contains(QStringLiteral("(TranslateCoords)")))
        handlerOfTests(type, context, text);
}

Settings settings() { return RoomsApplication::get()->settings(); }

/// Points at \a place in \a anchor, which opens a card, and then at nothing, which closes it.
bool showsACard(const QWidget *anchor, const QPoint &place)
{
    const auto isClosed = [] { return !shownQuickButton("Profile"); };
    return RealInput::moveTo(*anchor, place) && quickButton("Profile") && RealInput::parkPointer()
            && QTest::qWaitFor(isClosed, longMs);
}

bool showsACard(const QWidget *anchor) { return showsACard(anchor, anchor->rect().center()); }

/// The first conversation of those without unread messages, which come before it.
QModelIndex firstRead()
{
    return list()->model()->match(row(0), Role::UnreadRole, 0, 1, Qt::MatchExactly).value(0);
}

bool openSettings()
{
    const auto isOpen = [] {
        const auto *slider = shown<QSlider>("Size of all text");
        return slider && slider->isActiveWindow();
    };
    return clickButton("You, *") && clickAction("Settings") && QTest::qWaitFor(isOpen, longMs);
}

bool isMirrored() { return list()->mapToGlobal({}).x() > messages()->mapToGlobal({}).x(); }

/// Whether the notification with the text \a text is half seen.
bool isFading(const char *text)
{
    const auto *label = shown<QLabel>(text);
    const QGraphicsEffect *effect = label ? label->parentWidget()->graphicsEffect() : nullptr;
    const qreal opacity = effect ? effect->property("opacity").toReal() : 1;
    return opacity > 0 && opacity < 0.9;
}

} // namespace

/// A user's session with the whole client, by keys and pointer alone, and what the server received.
/// Each function goes on where the one before it stopped.
class tst_RoomsSession : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void openUrl(const QUrl &url) { m_opened = url; }

private Q_SLOTS:
    void initTestCase()
    {
        handlerOfTests = qInstallMessageHandler(passMessage);
        QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "openUrl");
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                           m_server.path("settings"));
        m_stores = std::make_unique<StoreGuard>(OxaColorSetMap());
        m_palette = QGuiApplication::palette();
        RoomsApplication::get()->apply({});
        m_backend = std::make_unique<Backend>(m_server.socket(), m_server.path("client"));
        m_window = std::make_unique<MainWindow>(m_backend.get());
        m_window->move(20, 40);
        QVERIFY(Windows::activate(*m_window) && press("ctrl+4"));
        AWAIT(m_window->findChild<QWidget *>(QStringLiteral("calls"))->hasFocus());
        m_server.start(words("--fail messages"));
        AWAIT(waitFor<QListWidget>("Calls")->hasFocus());
        QVERIFY(press("ctrl+1"));
        AWAIT(m_backend->isReady());
    }

    /// A window that closes leaves the keys to nobody for a while.
    void init() { QVERIFY(Windows::waitForActive(*m_window, longMs)); }

    void cleanupTestCase()
    {
        qInstallMessageHandler(handlerOfTests);
        releasePictures(*m_window);
        m_window.reset();
        m_backend.reset();
        RoomsApplication::get()->apply({});
        QApplication::setPalette(m_palette);
        m_stores.reset();
    }

    void opensConversations()
    {
        QVERIFY(clickRow(list(), 1));
        QVERIFY(clickButton("Messages could not be loaded. Try again"));
        AWAIT(messages()->count() > 0);
        for (const char *keys : { "alt+Down", "ctrl+f Down Down" }) {
            const QString next =
                    row(list()->currentIndex().row() + 1).data(Role::IdRole).toString();
            QVERIFY(press(keys));
            AWAIT_EQUAL(opened(), next);
            AWAIT_EQUAL(sent("messages", "conversation"), next);
            AWAIT_EQUAL(sent("read", "conversation"), next);
        }
    }

    void findsConversations()
    {
        QVERIFY(clickButton("Unread only"));
        AWAIT(list()->model()->rowCount() < 1000);
        QVERIFY(row(0).data(Role::UnreadRole).toInt() > 0);
        QVERIFY(clickButton("Unread only") && press("ctrl+f") && type("qqqq"));
        QVERIFY(waitFor<QLabel>("No conversation matches.*"));
        QVERIFY(open("Sailing 208"));
        AWAIT_EQUAL(opened(), QStringLiteral("c4990"));
        AWAIT_EQUAL(list()->model()->rowCount(), 5000);
    }

    void sendsWhatIsTypedWithAnEmoji()
    {
        QVERIFY(press("ctrl+shift+i") && type("Hello there,") && press("shift+Return"));
        QVERIFY(clickButton("Emoji"));
        QVERIFY(clickRow(waitFor<QAbstractItemView>("Emoji"), 0));
        AWAIT(field()->toPlainText().size() > 13 && field()->hasFocus());
        const QString text = field()->toPlainText();
        QVERIFY(text.startsWith(QStringLiteral("Hello there,\n")));
        QVERIFY(press("Return"));
        AWAIT_EQUAL(sent("send", "text"), text);
        AWAIT_EQUAL(field()->toPlainText(), QString());
        QVERIFY(!requests("typing").isEmpty());
        QVERIFY(row(0).data(Role::UnreadRole).toInt() > 0);
        AWAIT_EQUAL(firstRead().data(Role::IdRole).toString(), opened());
    }

    void opensALink()
    {
        QVERIFY(type("https://rooms.example/a") && press("Return"));
        AWAIT_EQUAL(sent("send", "text"), QStringLiteral("https://rooms.example/a"));
        const QWidget *last = messages()->itemWidget(messages()->item(messages()->count() - 1));
        QVERIFY(last && click(last->findChild<MessageBody *>()));
        AWAIT_EQUAL(m_opened, QUrl(QStringLiteral("https://rooms.example/a")));
    }

    void sendsAMovieThatPlaysUnderThePointer()
    {
        QVERIFY(press("ctrl+g") && click(waitFor<QWidget>("Moving picture: sun")));
        AWAIT_EQUAL(sent("send", "text"), QStringLiteral("sun"));
        QCOMPARE(sent("send", "kind"), QStringLiteral("gif"));
        AWAIT(field()->hasFocus());
        AWAIT(frame() != 0);
        const qint64 first = frame();
        QVERIFY(pointAt(waitFor<QLabel>("Moving picture: sun")));
        AWAIT(frame() != first);
        QVERIFY(pointAt(waitFor<QAbstractButton>("GIF")));
        const qint64 last = frame();
        AWAIT_EQUAL(QToolTip::text(), QStringLiteral("GIF")); // After several frames' time.
        QCOMPARE(frame(), last);
    }

    void reactsAndReplies()
    {
        const QString thumb = QString::fromUtf8("\xf0\x9f\x91\x8d");
        const int last = messages()->count() - 2;
        QVERIFY(clickRow(messages(), last, 3) && clickAction("React")
                && clickAction(qPrintable(thumb)));
        AWAIT_EQUAL(sent("react", "emoji"), thumb);
        QVERIFY(click(waitFor<QLabel>("\xf0\x9f\x91\x8d 1")));
        AWAIT_EQUAL(requests("react").size(), 2);
        AWAIT(!shown<QLabel>("\xf0\x9f\x91\x8d 1"));
        QVERIFY(clickRow(messages(), last, 3) && clickAction("Copy"));
        AWAIT_EQUAL(QGuiApplication::clipboard()->text(), m_opened.toString());
        QVERIFY(clickRow(messages(), last, 3) && clickAction("Reply"));
        AWAIT_EQUAL(field()->toPlainText(),
                    QStringLiteral("> Ada Jensen: https://rooms.example/a\n"));
        QVERIFY(press("ctrl+a BackSpace"));
        QVERIFY(clickRow(messages(), last, 3) && clickAction("React") && clickAction("Others"));
        QVERIFY(clickRow(waitFor<QAbstractItemView>("Emoji"), 1));
        AWAIT_EQUAL(requests("react").size(), 3);
    }

    void showsWhoSomebodyIs()
    {
        QVERIFY(open("Femi Eriksen"));
        const auto *header = m_window->findChild<QWidget *>(QStringLiteral("conversationHeader"));
        QVERIFY(showsACard(header->findChild<Avatar *>()));
        QVERIFY(showsACard(header->findChild<QLabel *>()));
        int known = 0; // Others are of groups, which have no card.
        while (row(known).data(Role::PersonRole).toString().isEmpty())
            ++known;
        const QRect place = list()->visualRect(row(known));
        for (const QPoint offset : { QPoint(32, 0), QPoint(36, 2), QPoint(80, -8) })
            QVERIFY(showsACard(list()->viewport(),
                               QPoint(place.left(), place.center().y()) + offset));
        QVERIFY(open("Sailing 2"));
        AWAIT(inMessages<Avatar>());
        auto *avatar = inMessages<Avatar>();
        QVERIFY(showsACard(avatar));
        auto *name = avatar->parentWidget()
                             ->findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly)
                             .constLast();
        const QString person = name->text();
        QVERIFY(pointAt(name) && click(quickButton("Profile")));
        QVERIFY(quickButton("Close") && click(quickButton("Message")));
        AWAIT_EQUAL(list()->currentIndex().data().toString(), person);
        QCOMPARE(list()->currentIndex().data(Role::IdRole).toString(), opened());
        AWAIT_EQUAL(QGuiApplication::focusWindow(), m_window->windowHandle());
    }

    void fitsTheWindow()
    {
        QVERIFY(press("ctrl+f shift+Tab shift+Tab Right space"));
        QVERIFY(waitFor<QListWidget>("Calls"));
        QVERIFY(press("ctrl+2") && waitFor<QQuickWidget>("Files"));
        QVERIFY(press("ctrl+1") && list());
        const int width = list()->width();
        const auto *handle = m_window->findChildren<QSplitterHandle *>().constLast();
        const QPoint middle = handle->rect().center();
        QVERIFY(RealInput::drag(*handle, middle, middle + QPoint(60, 0)));
        AWAIT(list()->width() > width + 50);
        QVERIFY(resize(*m_window, QSize(800, 600)));
        AWAIT_EQUAL(m_window->size(), QSize(800, 600));
        AWAIT(isAtBottom());
        const int size = field()->font().pixelSize();
        const int height = messages()->verticalScrollBar()->maximum();
        QVERIFY(press("ctrl+plus"));
        AWAIT(field()->font().pixelSize() > size && isAtBottom());
        AWAIT(messages()->verticalScrollBar()->maximum() > height);
        QVERIFY(press("ctrl+minus") && resize(*m_window, QSize(1120, 760)));
        AWAIT_EQUAL(field()->font().pixelSize(), size);
    }

    void changesTheLooks()
    {
        const auto choose = [](const char *name, const char *keys) {
            auto *box = waitFor<QComboBox>(name);
            const auto isOpen = [&] { return box->view()->isVisible(); };
            return click(box) && QTest::qWaitFor(isOpen, longMs) && press(keys);
        };
        const auto *top = m_window->findChild<QWidget *>(QStringLiteral("top"));
        const auto lightness = [top] {
            return Windows::onScreen(*top).pixelColor(4, 4).lightness();
        };
        QVERIFY(openSettings());
        QVERIFY(choose("Colours", "Home Down Down Return"));
        AWAIT(lightness() < 100 && lightness() > 0);
        QVERIFY(choose("Colours", "Home Down Return"));
        AWAIT(lightness() > 200);
        QVERIFY(choose("Colours", "End Return"));
        AWAIT_EQUAL(lightness(), 0);
        QVERIFY(choose("Direction", "End Return"));
        AWAIT(isMirrored());
        QCOMPARE(list()->findChild<QLabel *>()->alignment(), Qt::AlignCenter);
        const int size = field()->font().pixelSize();
        QVERIFY(press("Tab Up Up"));
        AWAIT_EQUAL(settings().fontScale, 120);
        QVERIFY(field()->font().pixelSize() > size);
        QVERIFY(press("Escape"));
        AWAIT(!shown<QSlider>("Size of all text"));
        QCOMPARE(settings(), Settings());
        AWAIT(lightness() > 200 && !isMirrored());
        QVERIFY(clickButton("You, *") && clickAction("Away"));
        AWAIT_EQUAL(sent("presence", "presence"), QStringLiteral("away"));
    }

    void checksAndKeepsTheSettings()
    {
        QVERIFY(openSettings());
        QVERIFY(click(waitFor<QLineEdit>("Display name")) && type("ab"));
        QVERIFY(clickButton("Done") && waitFor<QLabel>("Enter 3 to 40 characters."));
        QVERIFY(press("ctrl+a") && type("Ada Lovelace") && press("Tab") && type("nowhere"));
        QVERIFY(clickButton("Done") && waitFor<QLabel>("Enter an address such as *"));
        QVERIFY(press("ctrl+a") && type("https://example.org"));
        QVERIFY(click(waitFor<QSlider>("Size of messages")) && press("End"));
        QVERIFY(clickButton("Show the last message*") && clickButton("Nothing moves by itself"));
        QVERIFY(clickButton("Done") && Windows::waitForActive(*m_window, longMs));
        QVERIFY(shown<QAbstractButton>("You, Ada Lovelace"));
        const Settings kept = Settings::load();
        QCOMPARE(kept.webAddress, QStringLiteral("https://example.org"));
        QCOMPARE(kept.messagingSize, 2);
        QVERIFY(!kept.previewsShown && kept.animationsDisabled);
        QVERIFY(open("Sailing 208"));
        AWAIT(frame() != 0);
        const qint64 first = frame();
        QVERIFY(pointAt(waitFor<QLabel>("Moving picture: sun")));
        AWAIT_EQUAL(QToolTip::text(), QStringLiteral("sun")); // After several frames' time.
        QCOMPARE(frame(), first);
        QVERIFY(openSettings());
        QVERIFY(clickButton("Nothing moves by itself") && clickButton("Done"));
        AWAIT(!shown<QSlider>("Size of all text"));
        QVERIFY(!Settings::load().animationsDisabled);
    }

    void seesSomebodyType()
    {
        QVERIFY(open("Femi Eriksen"));
        QVERIFY(restart("--rate 40"));
        AWAIT(find("Release").data(Role::UnreadRole).toInt() > 15);
        QVERIFY(restart("--typing"));
        QVERIFY(waitFor<QLabel>("* is typing*"));
    }

    void readsOnWhereItStopped()
    {
        const int unread = find("Release").data(Role::UnreadRole).toInt();
        QVERIFY(open("Release"));
        const QString unseen = QStringLiteral("%1 new messages").arg(unread);
        const QPointer<QAbstractButton> banner = waitFor<QAbstractButton>(qPrintable(unseen));
        QVERIFY(banner);
        const QPersistentModelIndex top(
                messages()->model()->index(messages()->count() - unread, 0));
        AWAIT_EQUAL(messages()->visualRect(top).top(), 0);
        QVERIFY(restart("--rate 20"));
        AWAIT(banner->text() != unseen);
        QCOMPARE(messages()->visualRect(top).top(), 0);
        QVERIFY(click(banner.data()));
        AWAIT(isAtBottom());
        const int count = messages()->count();
        AWAIT(messages()->count() > count && isAtBottom());
        AWAIT_EQUAL(sent("read", "conversation"), QStringLiteral("c0"));
        QVERIFY(restart());
    }

    void scrollsAndJumpsToADate()
    {
        const int before = requests("messages").size();
        QVERIFY(pointAt(messages()->viewport()));
        const auto scroll = [] { return RealInput::send(words("click --repeat 40 --delay 2 4")); };
        AWAIT(scroll() && requests("messages").size() > before);
        QVERIFY(clickButton("Newest messages"));
        AWAIT(isAtBottom());
        QVERIFY(clickButton("Jump to a date"));
        AWAIT(waitFor<QWidget>("Date")->hasFocus());
        QVERIFY(press("End Down")); // The year before.
        const QDate day = QDate::currentDate().addYears(-1);
        QVERIFY(clickButton("Jump"));
        const History *history = m_backend->open(opened());
        const auto top = [history] {
            const int row = messages()->indexAt(QPoint(messages()->width() / 2, 1)).row();
            return history->at(history->count() - messages()->count() + row).at.toLocalTime();
        };
        AWAIT_EQUAL(top().date(), day);
        QCOMPARE(requests("find").size(), 1);
        const auto rows = messages()->viewport()->findChildren<MessageRow *>();
        QVERIFY(rows.size() < messages()->count() / 10); // They are made as they come into view.
    }

    void calls()
    {
        QVERIFY(press("ctrl+4 Down") && restart() && press("Return"));
        AWAIT_EQUAL(sent("join", "call"), m_backend->calls().at(1).title);
        const QPointer<QMainWindow> window = waitFor<QMainWindow>("Call: *");
        const QPointer<ParticipantTile> me = waitFor<ParticipantTile>("Ada Jensen");
        QVERIFY(waitFor<QLabel>("* has joined") && waitFor<QLabel>("0:0[1-9]"));
        AWAIT(shown<QProgressBar>("How loud*")->value() > 0);
        QVERIFY(QTest::qWaitFor([&] { return isFading("* has joined"); }, longMs));
        QVERIFY(showsACard(me->avatar()) && showsACard(me->name()));
        AWAIT(window->isActiveWindow());
        QVERIFY(press("ctrl+m") && waitFor<QAbstractButton>("Unmute"));
        AWAIT(me->findChildren<QWidget *>().at(2)->isVisible());
        QVERIFY(clickButton("Camera off") && waitFor<QAbstractButton>("Camera on"));
        QVERIFY(clickButton("Raise your hand") && waitFor<QAbstractButton>("Lower your hand"));
        const auto columns = [&] {
            QSet<int> places;
            const auto tiles = window->findChildren<ParticipantTile *>();
            for (const ParticipantTile *tile : tiles)
                places.insert(tile->x());
            return places.size();
        };
        AWAIT(columns() > 1);
        QVERIFY(resize(*window, QSize(400, 800)));
        AWAIT_EQUAL(columns(), 1);
        m_server.kill();
        QVERIFY(waitFor<QLabel>("The connection is lost*"));
        QVERIFY(restart("--late"));
        AWAIT(!shown<QLabel>("The connection is lost*"));
        AWAIT_EQUAL(requests("join").size(), 2);
        QVERIFY(!shown<QLabel>("* has joined"));
        QCOMPARE(requests("leave").size(), 0);
        QVERIFY(clickButton("Leave"));
        AWAIT_EQUAL(requests("leave").size(), 1);
        AWAIT(!window);
    }

    /// As all conversations of one person do in the picture of the header.
    void followsEachAnchorOfACardOnce()
    {
        struct Anchor : QWidget
        {
            using QObject::receivers;
        } anchor;
        for (const char *person : { "p1", "", "p2", "p3" })
            m_window->cards()->watch(&anchor, QLatin1String(person));
        QCOMPARE(anchor.receivers(SIGNAL(destroyed(QObject *))), 1);
    }

    void keepsThePlaceInTheFilesForAnotherDirection()
    {
        QVERIFY(press("ctrl+2"));
        const auto *files = waitFor<QQuickWidget>("Files");
        QVERIFY(files);
        const auto items = files->rootObject()->findChildren<QQuickItem *>();
        const auto found = std::find_if(items.begin(), items.end(), [](const QQuickItem *item) {
            return item->inherits("QQuickListView");
        });
        QVERIFY(found != items.end());
        QQuickItem *list = *found;
        AWAIT(list->property("count").toInt() > 1000);
        list->setProperty("contentY", 20000);
        const Settings before = settings();
        Settings mirrored = before;
        mirrored.direction = Settings::Direction::RightToLeft;
        RoomsApplication::get()->apply(mirrored, true);
        QCOMPARE(list->property("contentY").toInt(), 20000);
        RoomsApplication::get()->apply(before, true);
        list->setProperty("contentY", 0);
    }

    void sendsAFileThatIsDragged()
    {
        QVERIFY(press("ctrl+1"));
        const auto *chats = waitFor<QAbstractButton>("Chats");
        QVERIFY(list() && chats);
        const QModelIndex row = list()->indexAt(list()->viewport()->rect().center());
        const QString target = row.data(Role::IdRole).toString();
        const QPoint drop = list()->viewport()->mapToGlobal(list()->visualRect(row).center());
        QVERIFY(press("ctrl+2"));
        const auto *files = waitFor<QQuickWidget>("Files");
        QVERIFY(files && RealInput::click(*files, QPoint(100, 80)) && press("End"));
        AWAIT(requests("files").constLast()[QStringLiteral("first")].toInt() > 900'000);
        QVERIFY(press("Home") && restart()); // The rows are there soon: it is not late any more.
        const int before = requests("send").size();
        const QPoint from = files->mapToGlobal(QPoint(100, 80));
        const QPoint tab = chats->mapToGlobal(chats->rect().center());
        // The drag has an event loop of its own, in which this function does not go on.
        QVERIFY(RealInput::send(moves({ from }) + words("mousedown 1")
                                + moves({ from + QPoint(20, 8), from + QPoint(40, 20), tab,
                                          tab + QPoint(4, 0), drop, drop + QPoint(4, 2) })
                                + words("mouseup 1")));
        AWAIT_EQUAL(requests("send").size(), before + 1);
        QCOMPARE(sent("send", "kind"), QStringLiteral("file"));
        QVERIFY(sent("send", "text").contains(QStringLiteral(" 1."))); // The first one.
        QCOMPARE(sent("send", "conversation"), target);
    }

    void sendsWhatWasTypedWhileTheServerWasAway()
    {
        const int before = requests("send").size();
        QVERIFY(open("Sailing 208"));
        AWAIT_EQUAL(opened(), QStringLiteral("c4990"));
        QVERIFY(press("ctrl+shift+i") && type("While you were away"));
        m_server.kill();
        QVERIFY(waitFor<QLabel>("The server is away*") && press("Return") && type("Half a"));
        QVERIFY(restart("--fail send"));
        AWAIT(!shown<QLabel>("The server is away*"));
        QVERIFY(waitFor<QLabel>("This failed because it was asked to."));
        QVERIFY(clickButton("Not sent. Try again"));
        AWAIT_EQUAL(requests("send").size(), before + 2);
        QCOMPARE(sent("send", "text"), QStringLiteral("While you were away"));
        QCOMPARE(requests("send").at(before)[QStringLiteral("key")].toString(),
                 sent("send", "key"));
        AWAIT(!shown<QLabel>("This failed because it was asked to."));
        QVERIFY(open("Femi Eriksen"));
        AWAIT_EQUAL(field()->toPlainText(), QString());
        QVERIFY(open("Sailing 208"));
        AWAIT_EQUAL(field()->toPlainText(), QStringLiteral("Half a"));
        QVERIFY(press("ctrl+shift+i Return"));
        AWAIT_EQUAL(requests("send").size(), before + 3);
        QCOMPARE(sent("send", "text"), QStringLiteral("Half a"));
    }

    void showsTheUsersOwnMails()
    {
        TestServer server;
        QFile mails(server.path("mbox"));
        QVERIFY(mails.open(QIODevice::WriteOnly));
        mails.write("From a\nFrom: Bea\nSubject: Notes of mine\n\nhttps://rooms.example/mine\n");
        mails.close();
        server.start({ QStringLiteral("--mailbox"), mails.fileName() });
        releasePictures(*m_window);
        m_window.reset();
        m_backend = std::make_unique<Backend>(server.socket(), server.path("client"));
        m_window = std::make_unique<MainWindow>(m_backend.get());
        QVERIFY(Windows::activate(*m_window) && clickRow(list(), 0));
        QVERIFY(waitFor<QLabel>("Notes of mine") && waitFor<QLabel>("Bea"));
        auto *text = inMessages<MessageBody>();
        QVERIFY(text && click(text));
        AWAIT_EQUAL(m_opened, QUrl(QStringLiteral("https://rooms.example/mine")));
        const QColor ink = OxaThemeUtils::getColorSet("button-hyperlink-text", text).normal;
        QVERIFY(Pixels::countNear(Windows::onScreen(*text), ink) > 0);
        QVERIFY(press("ctrl+2") && waitFor<QQuickWidget>("Files"));
    }

private:
    QVector<QJsonObject> requests(const char *name) const
    {
        return m_server.requests(QString::fromLatin1(name));
    }

    /// The value \a name of the last request \a request.
    QString sent(const char *request, const char *name) const
    {
        const QVector<QJsonObject> all = requests(request);
        return all.isEmpty() ? QString() : all.constLast()[QLatin1String(name)].toString();
    }

    /// Starts the server again, and waits until the client has asked it for all that it needs.
    bool restart(const char *options = "--seed 1")
    {
        const int before = requests("calls").size();
        m_server.kill();
        m_server.start(words(options));
        return QTest::qWaitFor([&] { return requests("calls").size() > before; }, longMs);
    }

    QString opened() const { return m_window->chats()->conversation(); }

    TestServer m_server;
    std::unique_ptr<StoreGuard> m_stores;
    std::unique_ptr<Backend> m_backend;
    std::unique_ptr<MainWindow> m_window;
    QPalette m_palette;
    QUrl m_opened;
};

UIELEMENTS_TEST_MAIN_WITH(RoomsApplication, tst_RoomsSession)

#include "tst_roomssession.moc"
