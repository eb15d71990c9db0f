// SPDX-License-Identifier: Apache-2.0
#include "Scenes.h"

#include "MainWindow.h"
#include "chats/ChatsPage.h"
#include "data/Backend.h"
#include "data/ConversationModel.h"
#include "protocol/Literal.h"

#include <UiElements/app/OxaAppSignals.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QWindow>

namespace {

/// Runs the event loop until \a condition is true; false if that takes over \a milliseconds.
bool waitFor(const std::function<bool()> &condition, int milliseconds = 30'000)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition() && timer.elapsed() < milliseconds)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    return condition();
}

/// Lets all settle that is under way: pages that load, popups that open.
void settle(int milliseconds)
{
    waitFor([] { return false; }, milliseconds);
}

/// The windows that are shown beside \a window.
QWindowList othersThan(const QWidget *window)
{
    QWindowList others = QGuiApplication::topLevelWindows();
    const auto isNone = [window](const QWindow *other) {
        return other == window->windowHandle() || !other->isVisible();
    };
    others.erase(std::remove_if(others.begin(), others.end(), isNone), others.end());
    return others;
}

/// The window and all others that are open, each at its place over it, with an outline.
QPixmap picture(QWidget *window)
{
    QPixmap result = window->grab();
    QPainter painter(&result);
    painter.setPen(window->palette().color(QPalette::PlaceholderText));
    const QWindowList others = othersThan(window);
    for (QWindow *other : others) {
        const QRect place = other->geometry().translated(-window->mapToGlobal(QPoint()));
        QWidget *widget = QWidget::find(other->winId()); // None, if it is of QML.
        painter.drawPixmap(place,
                           widget ? widget->grab() : other->screen()->grabWindow(other->winId()));
        if (!(other->flags() & Qt::FramelessWindowHint))
            painter.drawRect(place.adjusted(-1, -1, 0, 0));
    }
    return result;
}

bool showPage(MainWindow *window, MainWindow::Page page)
{
    window->showPage(page);
    return true;
}

/// Opens the newest of those that are unread, or the server's first, which is its longest.
bool showConversation(MainWindow *window, const ConversationModel *model, bool isLong)
{
    QModelIndex chosen = model->index(0, 0);
    qint64 newest = 0;
    for (int row = 1; row < model->rowCount() && !isLong; ++row) {
        const QModelIndex index = model->index(row, 0);
        const qint64 at = index.data(ConversationModel::LastAtRole).toLongLong();
        if (at <= newest || index.data(ConversationModel::UnreadRole).toInt() == 0)
            continue;
        newest = at;
        chosen = index;
    }
    showPage(window, MainWindow::Chats);
    window->chats()->openConversation(chosen.data(ConversationModel::IdRole).toString());
    Q_EMIT OxaAppSignals::get()->focusMainInputBox();
    settle(1000);
    return chosen.isValid();
}

bool scrollUp(const MainWindow *window)
{
    const auto lists = window->findChildren<QListWidget *>();
    for (QListWidget *list : lists) {
        if (list->isVisible())
            list->verticalScrollBar()->setValue(list->verticalScrollBar()->maximum() - 2000);
    }
    return !lists.isEmpty();
}

bool search(MainWindow *window, const QString &text)
{
    showPage(window, MainWindow::Chats);
    window->chats()->focusSearch();
    auto *field = qobject_cast<QLineEdit *>(window->focusWidget());
    if (field)
        field->setText(text);
    settle(300);
    return field;
}

bool click(const MainWindow *window, const QString &name)
{
    const auto buttons = window->findChildren<QAbstractButton *>();
    for (QAbstractButton *button : buttons) {
        if (button->isVisible() && button->accessibleName() == name) {
            button->click();
            return true;
        }
    }
    return false;
}

} // namespace

bool takeScenes(MainWindow *window, Backend *backend, const QString &folder,
                const std::function<void()> &stopServer)
{
    const auto take = [window, &folder](const char *name, bool isShown) {
        settle(1500);
        const QString path = u"%1/%2.png"_s.arg(folder, QLatin1String(name));
        const bool isTaken = isShown && picture(window).save(path);
        if (!isTaken)
            qWarning("The scene %s cannot be shown or written", name);
        Q_EMIT OxaAppSignals::get()->closeQmlPopups();
        const QWindowList others = othersThan(window);
        for (QWindow *other : others)
            other->close();
        settle(50);
        return isTaken;
    };
    const auto chat = [window, backend](bool isLong) {
        return showConversation(window, backend->conversations(), isLong);
    };
    if (!QDir().mkpath(folder) || !waitFor([backend] { return backend->isReady(); })) {
        qWarning("Nothing to take pictures of");
        return false;
    }
    bool isGood = take("chat", chat(false));
    isGood &= take("long-chat", chat(true) && scrollUp(window));
    isGood &= take("empty-search", search(window, u"qqqqqq"_s));
    isGood &= take("emoji-picker",
                   search(window, {}) && chat(false) && click(window, QObject::tr("Emoji")));
    isGood &= take("gif-picker", chat(false) && click(window, QObject::tr("GIF")));
    window->cards()->showProfile(backend->calls().value(1).people.value(1), window);
    isGood &= take("profile", true);
    window->showSettings();
    isGood &= take("settings", true);
    showPage(window, MainWindow::Calls);
    window->startCall(backend->calls().value(0));
    isGood &= take("call", true);
    showPage(window, MainWindow::Files);
    isGood &= take("files", true);
    showPage(window, MainWindow::Chats);
    stopServer();
    return take("server-away", waitFor([backend] { return !backend->isConnected(); })) && isGood;
}
