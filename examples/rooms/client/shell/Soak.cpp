// SPDX-License-Identifier: Apache-2.0
#include "Soak.h"

#include "MainWindow.h"
#include "RoomsApplication.h"
#include "chats/ChatsPage.h"
#include "data/Backend.h"
#include "data/ConversationModel.h"
#include "data/History.h"

#include <QAbstractEventDispatcher>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QMouseEvent>
#include <QQuickView>
#include <QWheelEvent>

#include <malloc.h>
#include <unistd.h>

#include <cstdio>
#include <ctime>
#include <functional>

namespace {

constexpr int beatMs = 5;
constexpr int actionMs = 50;
constexpr int minuteMs = 60'000;
constexpr int restMs = 2000;
constexpr int mostWindows = 20;

int warnings = 0;

void countWarning(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    // Qt warns if the window manager takes a window away while Qt looks for that under the pointer.
    const bool isRace = text.contains(QStringLiteral("(BadWindow)"));
    warnings += type == QtDebugMsg || type == QtInfoMsg || isRace ? 0 : 1;
    std::fprintf(stderr, "%s\n", qPrintable(text));
}

/// The time that this thread has had a processor, which other programs do not lengthen.
qint64 busyMs()
{
    timespec time {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return qint64(time.tv_sec) * 1000 + time.tv_nsec / 1'000'000;
}

int timersOf(const QObject *object)
{
    int count = QAbstractEventDispatcher::instance()
                        ->registeredTimers(const_cast<QObject *>(object))
                        .size();
    const QObjectList &children = object->children();
    for (const QObject *child : children)
        count += timersOf(child);
    return count;
}

/// A window that is shown and \a isIt; null if there is none.
QWindow *shownWindow(const std::function<bool(QWindow *)> &isIt)
{
    const QWindowList windows = QGuiApplication::topLevelWindows();
    for (QWindow *window : windows) {
        if (window->isVisible() && isIt(window))
            return window;
    }
    return nullptr;
}

/// A dialog or card of QML.
QWindow *quickWindow()
{
    return shownWindow(
            [](QWindow *window) { return qobject_cast<QQuickView *>(window) != nullptr; });
}

} // namespace

Soak::Soak(MainWindow *window, Backend *backend) : m_window(window), m_backend(backend)
{
    // Links in messages go nowhere.
    QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "ignore");
    QDesktopServices::setUrlHandler(QStringLiteral("http"), this, "ignore");
}

int Soak::run(int minutes)
{
    m_minutes = minutes;
    qInstallMessageHandler(countWarning);
    connect(&m_beats, &QTimer::timeout, this, &Soak::beat);
    connect(&m_actions, &QTimer::timeout, this, &Soak::act);
    connect(&m_reports, &QTimer::timeout, this, &Soak::rest);
    m_beats.setTimerType(Qt::PreciseTimer);
    m_beats.start(beatMs);
    m_actions.start(actionMs);
    m_reports.start(minuteMs);
    m_sinceBeat.start();
    m_busyMs = busyMs();
    std::puts("minute  resident MB  heap MB  handles  widgets  timers  messages  longest stall  "
              "busy in it        warnings");
    return QCoreApplication::exec();
}

void Soak::beat()
{
    const qint64 stall = m_sinceBeat.restart() - beatMs;
    const qint64 now = busyMs();
    const qint64 busy = now - m_busyMs;
    m_busyMs = now;
    m_longestMs = qMax(m_longestMs, stall);
    if (busy <= m_longestBusyMs)
        return;
    m_longestBusyMs = busy;
    m_longestAction = m_action;
}

Soak::Sample Soak::sample()
{
    Sample sample;
    QFile memory(QStringLiteral("/proc/self/statm"));
    if (memory.open(QIODevice::ReadOnly))
        sample.residentKb = memory.readAll().split(' ').value(1).toLongLong()
                * sysconf(_SC_PAGESIZE) / 1024;
    const struct mallinfo2 heap = mallinfo2();
    sample.heapKb = qint64(heap.uordblks + heap.hblkhd) / 1024;
    sample.handles = QDir(QStringLiteral("/proc/self/fd"))
                             .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System)
                             .size();
    sample.widgets = QApplication::allWidgets().size();
    sample.timers = timersOf(qApp);
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget *window : windows)
        sample.timers += window->parent() ? 0 : timersOf(window);
    return sample;
}

/// One that can be closed: what a modal window blocks cannot.
QWindow *Soak::otherWindow() const
{
    if (QWindow *modal = QGuiApplication::modalWindow())
        return modal;
    return shownWindow([this](QWindow *window) { return window != m_window->windowHandle(); });
}

/// Minutes are compared in the same state: what is on screen takes more than what may grow.
void Soak::rest()
{
    m_actions.stop();
    m_action = "rest";
    for (int i = 0; i < mostWindows && otherWindow(); ++i)
        otherWindow()->close();
    m_window->show();
    m_window->resize(1120, 760);
    m_window->showPage(MainWindow::Chats);
    // The last conversation gets hardly any messages: one that is open keeps all that it gets.
    m_window->chats()->openConversation(
            QStringLiteral("c%1").arg(m_backend->conversations()->getCount() - 1));
    RoomsApplication::get()->apply(Settings(), true);
    QTimer::singleShot(restMs, this, &Soak::report);
}

/// What there is at half of the time is compared with what there is at its end.
void Soak::report()
{
    ++m_minute;
    const Sample now = sample();
    std::printf("%6d  %11.1f  %7.1f  %7d  %7d  %6d  %8d  %10lld ms  %5lld ms %-8s %8d\n", m_minute,
                double(now.residentKb) / 1024, double(now.heapKb) / 1024, now.handles, now.widgets,
                now.timers, m_backend->open(QStringLiteral("c0"))->count(), m_longestMs,
                m_longestBusyMs, m_longestAction, warnings);
    std::fflush(stdout);
    m_longestMs = m_longestBusyMs = 0;
    if (m_minute == (m_minutes + 1) / 2)
        m_first = now;
    if (m_minute < m_minutes) {
        m_actions.start();
        return;
    }
    std::printf("grown since minute %d: memory %+.1f MB, heap %+.1f MB, handles %+d, widgets %+d, "
                "timers %+d\n",
                (m_minutes + 1) / 2, double(now.residentKb - m_first.residentKb) / 1024,
                double(now.heapKb - m_first.heapKb) / 1024, now.handles - m_first.handles,
                now.widgets - m_first.widgets, now.timers - m_first.timers);
    QCoreApplication::exit(warnings > 0 ? 1 : 0);
}

void Soak::act()
{
    static const Action actions[] = {
        { "click", &Soak::click },         { "click", &Soak::click },
        { "click", &Soak::click },         { "type", &Soak::type },
        { "type", &Soak::type },           { "type", &Soak::type },
        { "wheel", &Soak::turnWheel },     { "wheel", &Soak::turnWheel },
        { "looks", &Soak::changeLooks },   { "resize", &Soak::resize },
        { "page", &Soak::showPage },       { "dialog", &Soak::openDialog },
        { "kill", &Soak::killWindow },     { "kill", &Soak::killWindow },
        { "point", &Soak::point },         { "point", &Soak::point },
        { "longest", &Soak::openLongest }, { "jump", &Soak::jump },
    };
    const Action &action = actions[m_random.bounded(int(std::size(actions)))];
    m_action = action.name;
    (this->*action.run)();
}

/// Where input goes: a random place in the window that would take it.
Soak::Target Soak::target()
{
    if (QWindow *window = quickWindow()) {
        const QPoint place = placeIn(window->size());
        return { window, place, window->mapToGlobal(place) };
    }
    QWidget *window = QApplication::activePopupWidget();
    if (!window)
        window = QApplication::activeModalWidget();
    if (!window)
        window = m_window;
    const QPoint place = placeIn(window->size());
    QWidget *child = window->childAt(place);
    return { child ? child : window, child ? child->mapFrom(window, place) : place,
             window->mapToGlobal(place) };
}

QPoint Soak::placeIn(const QSize &size)
{
    return { m_random.bounded(qMax(1, size.width())), m_random.bounded(qMax(1, size.height())) };
}

/// What the pointer rests on opens its card.
void Soak::point() { QCursor::setPos(target().global); }

void Soak::click()
{
    const Target target = this->target();
    const Qt::MouseButton button = m_random.bounded(5) == 0 ? Qt::RightButton : Qt::LeftButton;
    for (const QEvent::Type type :
         { QEvent::MouseMove, QEvent::MouseButtonPress, QEvent::MouseButtonRelease }) {
        QCoreApplication::postEvent(target.receiver,
                                    new QMouseEvent(type, target.position, target.global,
                                                    type == QEvent::MouseMove ? Qt::NoButton
                                                                              : button,
                                                    type == QEvent::MouseButtonPress ? button
                                                                                     : Qt::NoButton,
                                                    Qt::NoModifier));
    }
    if (button == Qt::RightButton && target.receiver->isWidgetType())
        QCoreApplication::postEvent(target.receiver,
                                    new QContextMenuEvent(QContextMenuEvent::Mouse, target.position,
                                                          target.global));
}

void Soak::type()
{
    static const int keys[] = { Qt::Key_Tab,   Qt::Key_Backtab,  Qt::Key_Up,     Qt::Key_Down,
                                Qt::Key_Left,  Qt::Key_Right,    Qt::Key_PageUp, Qt::Key_PageDown,
                                Qt::Key_Home,  Qt::Key_End,      Qt::Key_Escape, Qt::Key_Return,
                                Qt::Key_Space, Qt::Key_Backspace };
    QObject *receiver = quickWindow();
    if (!receiver)
        receiver = QApplication::focusWidget() ? QApplication::focusWidget() : m_window;
    const bool isLetter = m_random.bounded(2) == 0;
    const int key = isLetter ? m_random.bounded(int(Qt::Key_A), int(Qt::Key_Z))
                             : keys[m_random.bounded(int(std::size(keys)))];
    const QString text = isLetter ? QString(QChar(key + 'a' - Qt::Key_A)) : QString();
    for (const QEvent::Type type : { QEvent::KeyPress, QEvent::KeyRelease })
        QCoreApplication::postEvent(receiver, new QKeyEvent(type, key, Qt::NoModifier, text));
}

void Soak::turnWheel()
{
    const Target target = this->target();
    const QPoint steps(0, 120 * m_random.bounded(-4, 5));
    QCoreApplication::postEvent(target.receiver,
                                new QWheelEvent(target.position, target.global, QPoint(), steps,
                                                Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                                                false));
}

/// Not at each call: they take long, and nobody does so all day.
void Soak::changeLooks()
{
    if (m_random.bounded(4) > 0)
        return;
    Settings settings = RoomsApplication::get()->settings();
    switch (m_random.bounded(5)) {
    case 0:
        settings.theme = Settings::Theme(m_random.bounded(4));
        break;
    case 1:
        settings.direction = Settings::Direction(m_random.bounded(3));
        break;
    case 2:
        settings.fontScale = 75 + 25 * m_random.bounded(4);
        break;
    case 3:
        settings.messagingSize = m_random.bounded(-1, 3);
        break;
    default:
        settings.animationsDisabled = !settings.animationsDisabled;
        break;
    }
    RoomsApplication::get()->apply(settings, true);
}

void Soak::resize() { m_window->resize(m_random.bounded(560, 1280), m_random.bounded(400, 900)); }

void Soak::showPage()
{
    m_window->showPage(m_random.bounded(3) ? MainWindow::Chats
                                           : MainWindow::Page(m_random.bounded(3)));
}

void Soak::openDialog()
{
    const QVector<Call> &calls = m_backend->calls();
    switch (m_random.bounded(3)) {
    case 0:
        m_window->showSettings();
        break;
    case 1:
        if (!calls.isEmpty())
            m_window->startCall(calls[m_random.bounded(calls.size())]);
        break;
    default:
        m_window->cards()->showProfile(QStringLiteral("p%1").arg(m_random.bounded(200)), m_window);
        break;
    }
}

/// Ends a window other than the main one: as the window manager would, or as code does.
void Soak::killWindow()
{
    QWidget *dialog = QApplication::activeModalWidget();
    if (dialog && m_random.bounded(3) == 0)
        dialog->deleteLater();
    else if (QWindow *window = otherWindow())
        window->close();
    m_window->show();
}

void Soak::openLongest()
{
    m_window->chats()->openConversation(QStringLiteral("c0"));
    m_backend->open(QStringLiteral("c0"))->loadBackTo(QDate(1970, 1, 2));
}

void Soak::jump()
{
    const int count = m_backend->conversations()->getCount();
    if (count > 0)
        m_window->chats()->openConversation(QStringLiteral("c%1").arg(m_random.bounded(count)));
}
