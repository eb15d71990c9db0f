// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "data/ConversationModel.h"
#include "support/RealInput.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPointer>
#include <QQuickItem>
#include <QQuickView>
#include <QQuickWidget>
#include <QQuickWindow>
#include <QRegExp>
#include <QScrollBar>
#include <QTextEdit>

/// QTRY_VERIFY() and QTRY_COMPARE() with time enough for a busy machine.
#define AWAIT(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, ClientInput::longMs)
#define AWAIT_EQUAL(actual, expected)                                                              \
    QTRY_COMPARE_WITH_TIMEOUT(actual, expected, ClientInput::longMs)

/// What a user does with the client's widgets, which are found by the names that assistive
/// technology tells. Each function that returns a bool returns whether the input was sent.
namespace ClientInput {

using Role = ConversationModel::Role;

constexpr int longMs = 20'000;

/// The visible widget of the class \a Widget that assistive technology calls \a name, in any
/// window. An asterisk in \a name stands for any text.
template <typename Widget>
Widget *shown(const char *name)
{
    const QRegExp wanted(QString::fromUtf8(name), Qt::CaseSensitive, QRegExp::Wildcard);
    const QWidgetList all = QApplication::allWidgets();
    for (QWidget *widget : all) {
        auto *found = qobject_cast<Widget *>(widget);
        if (!found || !found->isVisible())
            continue;
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(found);
        if (wanted.exactMatch(interface->text(QAccessible::Name)))
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

/// Moves the pointer to the middle of \a widget, and waits until it is there.
inline bool pointAt(const QPointer<QWidget> &widget)
{
    const auto isThere = [&widget] { return !widget || widget->underMouse(); };
    for (int attempt = 0; widget && attempt < 20; ++attempt) {
        if (RealInput::moveTo(*widget, widget->rect().center()) && QTest::qWaitFor(isThere, 1000))
            return widget;
    }
    return false;
}

inline bool click(const QPointer<QWidget> &widget)
{
    return pointAt(widget) && RealInput::send({ QStringLiteral("click"), QStringLiteral("1") });
}

/// Clicks the button called \a name as soon as there is one.
inline bool clickButton(const char *name) { return click(waitFor<QAbstractButton>(name)); }

/// Waits for the row \a row of \a list, and clicks it with \a button.
inline bool clickRow(QAbstractItemView *list, int row, int button = 1)
{
    const auto isThere = [&] { return list->model()->rowCount() > row; };
    return list && QTest::qWaitFor(isThere, longMs)
            && RealInput::click(*list->viewport(),
                                list->visualRect(list->model()->index(row, 0)).center(), button);
}

/// Clicks the action called \a text of the menu that is open.
inline bool clickAction(const char *text)
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

inline QStringList words(const char *text) { return QString::fromLatin1(text).split(u' '); }

inline bool type(const char *text)
{
    return RealInput::send(words("type --") + QStringList(QString::fromUtf8(text)));
}

inline bool press(const char *keys) { return RealInput::typeKeys(words(keys)); }

inline bool resize(const QWidget &window, const QSize &size)
{
    return RealInput::send({ QStringLiteral("windowsize"), QString::number(window.winId()),
                             QString::number(size.width()), QString::number(size.height()) });
}

/// What makes xdotool move the pointer, slow enough for a drag.
inline QStringList moves(const QVector<QPoint> &places)
{
    QStringList arguments;
    for (const QPoint &place : places)
        arguments << words("mousemove") << QString::number(place.x()) << QString::number(place.y())
                  << words("sleep 0.5");
    return arguments;
}

/// The button called \a text of a window of QML that is shown; null if there is none.
inline QQuickItem *shownQuickButton(const char *text)
{
    const QWindowList windows = QGuiApplication::topLevelWindows();
    for (QWindow *window : windows) {
        auto *view = qobject_cast<QQuickView *>(window);
        if (!view || !view->isVisible() || !view->rootObject())
            continue;
        const auto items = view->rootObject()->findChildren<QQuickItem *>();
        for (QQuickItem *item : items) {
            if (item->property("kind").isValid() && item->property("text") == QLatin1String(text))
                return item;
        }
    }
    return nullptr;
}

inline QQuickItem *quickButton(const char *text)
{
    const auto isShown = [text] { return shownQuickButton(text); };
    return QTest::qWaitFor(isShown, longMs) ? shownQuickButton(text) : nullptr;
}

inline bool click(const QQuickItem *item)
{
    if (!item)
        return false;
    const QPoint place = item->mapToGlobal(QPointF(item->width() / 2, item->height() / 2))
                                 .toPoint();
    return RealInput::send(moves({ place }) + words("click 1"));
}

inline QAbstractItemView *list() { return waitFor<QAbstractItemView>("Conversations"); }
inline QListWidget *messages() { return waitFor<QListWidget>("Messages"); }
inline QTextEdit *field() { return waitFor<QTextEdit>("Write to *"); }

/// A widget in the messages that the user can point at; null if there is none.
template <typename Widget>
Widget *inMessages()
{
    const QList<Widget *> all = messages()->viewport()->findChildren<Widget *>();
    for (Widget *widget : all) {
        if (widget->visibleRegion().contains(widget->rect().center()))
            return widget;
    }
    return nullptr;
}

inline QModelIndex row(int number) { return list()->model()->index(number, 0); }

/// The row of the conversation \a title.
inline QModelIndex find(const char *title)
{
    return list()
            ->model()
            ->match(row(0), Role::TitleRole, QLatin1String(title), 1, Qt::MatchExactly)
            .value(0);
}

/// What the moving picture that was sent shows; 0 until it is there.
inline qint64 frame()
{
    return waitFor<QLabel>("Moving picture: sun")->pixmap(Qt::ReturnByValue).cacheKey();
}

inline bool isAtBottom()
{
    const QScrollBar *bar = messages()->verticalScrollBar();
    return bar->value() == bar->maximum();
}

/// Searches for \a title, and opens the conversation that is found.
inline bool open(const char *title)
{
    const auto isFound = [&] {
        return list()->model()->rowCount() < 1000 && find(title).isValid();
    };
    return press("ctrl+f ctrl+a") && type(title) && QTest::qWaitFor(isFound, longMs)
            && clickRow(list(), find(title).row()) && press("ctrl+f ctrl+a BackSpace");
}

/// Qt's software scene graph frees the texture of a picture in the frame after the picture went,
/// and leaks those that it has when its window goes.
inline void releasePictures(const QWidget &window)
{
    const auto views = window.findChildren<QQuickWidget *>();
    for (QQuickWidget *view : views) {
        view->setSource({});
        view->quickWindow()->releaseResources();
        view->grabFramebuffer();
    }
}

} // namespace ClientInput
