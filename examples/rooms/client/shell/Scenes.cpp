// SPDX-License-Identifier: Apache-2.0
#include "Scenes.h"

#include "MainWindow.h"
#include "chats/ChatsPage.h"
#include "data/Backend.h"
#include "data/ConversationModel.h"

#include <UiElements/app/OxaAppSignals.h>

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QWindow>

#include <algorithm>

namespace {

/// Runs the event loop until \a condition is true; false if that takes over half a minute.
bool waitFor(const std::function<bool()> &condition)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition() && timer.elapsed() < 30000)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 50);
    return condition();
}

/// Lets all settle that is under way: pages that load, popups that open.
void settle(int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
}

/// The widget that \a window is of; null if that is a window of QML.
QWidget *widgetOf(const QWindow *window)
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    const auto found = std::find_if(widgets.begin(), widgets.end(),
                                    [window](const QWidget *widget) {
                                        return widget->windowHandle() == window;
                                    });
    return found == widgets.end() ? nullptr : *found;
}

/// The window and all others that are open, each at its place over it, with an outline.
QPixmap picture(QWidget *window)
{
    QPixmap result = window->grab();
    QPainter painter(&result);
    painter.setPen(window->palette().color(QPalette::PlaceholderText));
    const QPoint origin = window->mapToGlobal(QPoint());
    const QWindowList others = QGuiApplication::topLevelWindows();
    for (QWindow *other : others) {
        if (other == window->windowHandle() || !other->isVisible())
            continue;
        const QRect place = other->geometry().translated(-origin);
        QWidget *widget = widgetOf(other);
        painter.drawPixmap(place,
                           widget ? widget->grab() : other->screen()->grabWindow(other->winId()));
        if (!(other->flags() & Qt::FramelessWindowHint))
            painter.drawRect(place.adjusted(-1, -1, 0, 0));
    }
    return result;
}

void closeOthers(const QWidget *window)
{
    OxaAppSignals::get()->closeQmlPopups();
    const QWindowList windows = QGuiApplication::topLevelWindows();
    for (QWindow *other : windows) {
        if (other != window->windowHandle() && other->isVisible())
            other->close();
    }
}

} // namespace

Scenes::Scenes(MainWindow *window, Backend *backend, const QString &folder,
               std::function<void()> stopServer)
    : m_window(window), m_backend(backend), m_folder(folder), m_stopServer(std::move(stopServer))
{
}

bool Scenes::takeAll()
{
    if (!QDir().mkpath(m_folder.path()) || !waitFor([this] { return m_backend->isReady(); })) {
        qWarning("Nothing to take pictures of");
        return false;
    }
    bool isGood = true;
    const QVector<Scene> all = scenes();
    for (const Scene &scene : all)
        isGood = take(scene) && isGood;
    return isGood;
}

QVector<Scenes::Scene> Scenes::scenes()
{
    return {
        { "chat", [this] { return showConversation(false); } },
        { "long-chat", [this] { return showConversation(true) && scrollUp(); } },
        { "empty-search", [this] { return search(QStringLiteral("qqqqqq")); } },
        { "emoji-picker",
          [this] { return search({}) && showConversation(false) && click(QObject::tr("Emoji")); } },
        { "gif-picker", [this] { return showConversation(false) && click(QObject::tr("GIF")); } },
        { "profile",
          [this] {
              m_window->cards()->showProfile(m_backend->calls().value(1).people.value(1), m_window);
              return true;
          } },
        { "settings",
          [this] {
              m_window->showSettings();
              return true;
          } },
        { "call",
          [this] {
              m_window->showPage(MainWindow::Calls);
              m_window->startCall(m_backend->calls().value(0));
              return true;
          } },
        { "files",
          [this] {
              m_window->showPage(MainWindow::Files);
              return true;
          } },
        { "server-away",
          [this] {
              m_window->showPage(MainWindow::Chats);
              m_stopServer();
              return waitFor([this] { return !m_backend->isConnected(); });
          } },
    };
}

bool Scenes::take(const Scene &scene)
{
    if (!scene.show()) {
        qWarning("The scene %s cannot be shown", scene.name);
        return false;
    }
    settle(1500);
    const QString path = m_folder.filePath(QLatin1String(scene.name) + QStringLiteral(".png"));
    const bool isWritten = picture(m_window).save(path);
    closeOthers(m_window);
    settle(50);
    return isWritten;
}

/// Opens the newest of those that are unread, or the server's first, which is its longest.
bool Scenes::showConversation(bool isLong)
{
    const ConversationModel *model = m_backend->conversations();
    QModelIndex chosen = model->index(0, 0);
    qint64 newest = 0;
    for (int row = 1; row < model->rowCount() && !isLong; ++row) {
        const QModelIndex index = model->index(row, 0);
        const qint64 at = index.data(ConversationModel::ActivityRole).toLongLong();
        if (at <= newest || index.data(ConversationModel::UnreadRole).toInt() == 0)
            continue;
        newest = at;
        chosen = index;
    }
    m_window->showPage(MainWindow::Chats);
    m_window->chats()->openConversation(chosen.data(ConversationModel::IdRole).toString());
    Q_EMIT OxaAppSignals::get()->focusMainInputBox();
    settle(1000);
    return chosen.isValid();
}

bool Scenes::scrollUp()
{
    const auto lists = m_window->findChildren<QListWidget *>();
    for (QListWidget *list : lists) {
        if (list->isVisible())
            list->verticalScrollBar()->setValue(list->verticalScrollBar()->maximum() - 2000);
    }
    return !lists.isEmpty();
}

bool Scenes::search(const QString &text)
{
    m_window->showPage(MainWindow::Chats);
    m_window->chats()->focusSearch();
    auto *field = qobject_cast<QLineEdit *>(m_window->focusWidget());
    if (field)
        field->setText(text);
    settle(300);
    return field;
}

bool Scenes::click(const QString &button)
{
    const auto buttons = m_window->findChildren<QAbstractButton *>();
    for (QAbstractButton *candidate : buttons) {
        if (candidate->isVisible() && candidate->accessibleName() == button) {
            candidate->click();
            return true;
        }
    }
    return false;
}
