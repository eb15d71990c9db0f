// SPDX-License-Identifier: Apache-2.0
#include "KeyboardUser.h"

#include "FocusPicture.h"
#include "KeyDeeds.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QScrollBar>

#include <shell/TabOrder.h>

namespace {

constexpr int mostParts = 10;
constexpr int mostBeside = 1000;
constexpr int waitMs = 20000; ///< The sanitizers on a busy machine take that long.

const QByteArray tab = "Tab";
const QByteArray backtab = "shift+Tab";
const QByteArray escape = "Escape";

/// Returns whether enough of \a widget can be seen: all of what is small.
bool isInView(const QWidget &widget)
{
    constexpr QSize enough(100, 24);
    const QSize seen = widget.visibleRegion().boundingRect().size();
    const QSize wanted = widget.size().boundedTo(enough);
    return seen.width() >= wanted.width() && seen.height() >= wanted.height();
}

/// Returns whether a user would take \a widget for a control that the keyboard can work.
bool isControl(const QWidget &widget)
{
    if (!widget.isVisible() || !widget.isEnabled() || widget.focusProxy()
        || widget.testAttribute(Qt::WA_TransparentForMouseEvents)
        || qobject_cast<const QScrollBar *>(&widget))
        return false;
    const auto *area = qobject_cast<const QAbstractScrollArea *>(widget.parentWidget());
    if (area && area->viewport() == &widget)
        return false;
    if (widget.focusPolicy() != Qt::NoFocus)
        return true;
    // One that Tab passes by is reached by arrow keys, or is a picture.
    return qobject_cast<const QAbstractButton *>(&widget)
            && QAccessible::queryAccessibleInterface(const_cast<QWidget *>(&widget))->role()
            != QAccessible::Graphic;
}

QVector<QWindow *> visibleWindows()
{
    QVector<QWindow *> windows;
    const auto all = QGuiApplication::topLevelWindows();
    for (QWindow *window : all) {
        if (window->isVisible())
            windows += window;
    }
    return windows;
}

/// Returns the window that was opened since there were \a before only.
QWindow *openedSince(const QVector<QWindow *> &before)
{
    const auto windows = visibleWindows();
    for (QWindow *window : windows) {
        if (!before.contains(window))
            return window;
    }
    return nullptr;
}

} // namespace

void KeyboardUser::note(const QWidget *widget, const char *problem)
{
    const QString name = widget ? TabOrder::describe(*widget) : QStringLiteral("What is gone");
    m_problems += QStringLiteral("%1 %2").arg(name, QLatin1String(problem));
}

/// Types \a key and returns what has the focus then.
QWidget *KeyboardUser::typed(const QByteArray &key)
{
    m_keyboard.type(key);
    return QApplication::focusWidget();
}

/// Types \a key until another widget has the focus, or the same one too often.
QWidget *KeyboardUser::left(const QByteArray &key)
{
    const QWidget *const stop = QApplication::focusWidget();
    QWidget *next = typed(key);
    for (int i = 0; next == stop && next && KeyDeeds::hasParts(*next) && i < mostParts; ++i)
        next = typed(key);
    return next;
}

void KeyboardUser::walk()
{
    m_stops.clear();
    const auto widgets = m_window.findChildren<QWidget *>();
    std::copy_if(widgets.begin(), widgets.end(), std::back_inserter(m_controls),
                 [](const QWidget *widget) { return isControl(*widget); });
    const Stop first = QApplication::focusWidget();
    Stop stop = first;
    do {
        if (!isInView(*stop))
            note(stop, "is not in view");
        const FocusPicture picture(*stop);
        m_stops += stop;
        QWidget *next = left(tab);
        if (next != first && m_stops.contains(next)) {
            note(stop, "keeps Tab, or gives it back");
            return;
        }
        if (next != stop && !picture.hasChanged())
            note(stop, "shows no focus");
        stop = next;
    } while (stop && stop != first);
    if (!stop)
        note(m_stops.constLast(), "is where Tab ends");
}

void KeyboardUser::walkBack()
{
    for (int i = m_stops.size() - 1; i >= 0; --i) {
        const QWidget *reached = left(backtab);
        if (reached == m_stops[i])
            continue;
        note(reached, "is reached by Shift+Tab only");
    }
}

void KeyboardUser::work(const QWidget &part)
{
    const Stop first = QApplication::focusWidget();
    const QWidget *next = nullptr;
    for (int i = 0; next != first && i < 2 * m_stops.size(); ++i) {
        const Stop stop = QApplication::focusWidget();
        m_reached += stop;
        const bool isInPart = part.isAncestorOf(stop);
        if (isInPart)
            workStop(stop);
        if (isInPart && !part.isAncestorOf(QApplication::focusWidget())) {
            note(stop, "sends the focus elsewhere");
            return;
        }
        const QWidget *worked = QApplication::focusWidget();
        if (worked != stop && !m_reached.contains(worked))
            continue; // A button that was disabled or hidden by its click has handed the focus on.
        next = left(tab);
        if (next == worked && m_stops.size() > 1) {
            note(worked, "does not let go of the focus");
            return;
        }
    }
    if (next != first)
        note(next, "is where Tab ends");
    noteUnreached(part);
}

void KeyboardUser::noteUnreached(const QWidget &part)
{
    for (const Stop &control : qAsConst(m_controls)) {
        if (control && part.isAncestorOf(control) && isControl(*control)
            && !m_reached.contains(control))
            note(control, "is not reached");
    }
}

void KeyboardUser::workStop(const Stop &stop)
{
    if (auto *button = qobject_cast<QAbstractButton *>(stop)) {
        exploreBeside(stop);
        if (m_isInDialog && !button->isCheckable())
            m_unpressed += button->text();
        else if (!button->autoExclusive() || !button->isChecked())
            press(button);
    } else {
        workValue(stop);
    }
    if (stop && (KeyDeeds::isField(*stop) || stop->contextMenuPolicy() == Qt::CustomContextMenu))
        openContextMenu(stop);
}

void KeyboardUser::workValue(QWidget *stop)
{
    if (auto *combo = qobject_cast<QComboBox *>(stop))
        openAndClose(combo);
    exploreBeside(stop);
    if (!KeyDeeds::work(*stop, [this](const char *key) { typed(key); }))
        note(stop, "does nothing");
}

bool KeyboardUser::isKnown(const QWidget *widget) const
{
    return m_stops.contains(const_cast<QWidget *>(widget)) || m_reached.contains(widget);
}

/// Goes by arrow keys through the controls beside \a stop that Tab does not reach, and back.
void KeyboardUser::exploreBeside(QWidget *stop)
{
    const auto isMissing = [this, stop](const QWidget *control) {
        return control && control->parentWidget() == stop->parentWidget() && isControl(*control)
                && !isKnown(control);
    };
    if (std::none_of(m_controls.cbegin(), m_controls.cend(), isMissing))
        return;
    explore("Right", "Left");
    explore("Down", "Up");
    explore("Left", "Right");
    explore("Up", "Down");
    if (QApplication::focusWidget() != stop)
        note(stop, "is not reached again by arrow keys");
}

void KeyboardUser::explore(const QByteArray &key, const QByteArray &back)
{
    const QWidget *const origin = QApplication::focusWidget();
    int steps = 0;
    for (; steps < mostBeside; ++steps) {
        const Stop before = QApplication::focusWidget();
        const FocusPicture picture(*before);
        QWidget *now = typed(key);
        if (now == before)
            break;
        const bool isNew = !isKnown(now);
        m_reached += now;
        if (!isNew) {
            ++steps;
            break;
        }
        if (!picture.hasChanged())
            note(before, "shows no focus");
        auto *button = qobject_cast<QAbstractButton *>(now);
        if (button && button->autoExclusive() && !button->isChecked())
            note(now, "is not checked");
        else if (button && !button->autoExclusive())
            press(button);
    }
    while (steps-- > 0 && QApplication::focusWidget() != origin)
        typed(back);
}

void KeyboardUser::press(QAbstractButton *button)
{
    const QPointer<QAbstractButton> guard(button);
    const auto before = visibleWindows();
    const bool wasChecked = button->isChecked();
    int clicks = 0;
    QObject context;
    QObject::connect(button, &QAbstractButton::clicked, &context, [&clicks] { ++clicks; });
    typed("space");
    if (clicks != 1)
        note(guard, "is not clicked by Space");
    if (guard && qobject_cast<QCheckBox *>(guard) && guard->isChecked() == wasChecked)
        note(guard, "is not toggled by Space");
    if (QWindow *opened = openedSince(before))
        leave(opened, guard.data());
    if (guard && guard->isCheckable() && !guard->autoExclusive())
        typed("space");
}

void KeyboardUser::openAndClose(QComboBox *combo)
{
    typed("space");
    if (!combo->view()->isVisible())
        note(combo, "does not open");
    typed(escape);
    if (combo->view()->isVisible() || !combo->hasFocus())
        note(combo, "does not close");
}

void KeyboardUser::openContextMenu(QWidget *field)
{
    const auto before = visibleWindows();
    typed("Menu");
    if (QWindow *opened = openedSince(before))
        leave(opened, field);
    else
        note(field, "opens no menu");
}

/// Walks and works a dialog, or goes to its \a button and presses that.
void KeyboardUser::workDialog(const QString &button)
{
    walk();
    if (button.isEmpty()) {
        work(m_window);
        return;
    }
    for (int i = 0; i < m_stops.size(); ++i, left(tab)) {
        auto *stop = qobject_cast<QAbstractButton *>(m_stops[i]);
        if (stop && stop->text() == button) {
            press(stop);
            return;
        }
    }
}

/// Leaves the window \a opened, which \a opener has opened, by a key. A dialog is worked before,
/// and opened again for each \a button that may close it.
void KeyboardUser::leave(const QPointer<QWindow> &opened, const Stop &opener, const QString &button)
{
    const auto isClosed = [&] { return !opened || !opened->isVisible(); };
    const auto isActive = [&] { return QGuiApplication::focusWindow() == opened; };
    if (isClosed() || (opened->type() != Qt::Popup && !QTest::qWaitFor(isActive, waitMs)))
        note(opener, "opens a window that does not get the focus");
    QStringList buttons;
    if (QApplication::activeWindow() && QApplication::activeWindow() != &m_window) {
        KeyboardUser inside(m_keyboard, *QApplication::activeWindow());
        inside.m_isInDialog = true;
        inside.workDialog(button);
        m_problems += inside.m_problems;
        buttons = inside.m_unpressed;
    }
    if (!isClosed())
        typed(opened->type() == Qt::Window ? QByteArray("alt+F4") : escape);
    if (!QTest::qWaitFor(isClosed, waitMs))
        note(opener, "opens a window that stays");
    if (!QTest::qWaitFor([&] { return opener && opener->hasFocus(); }, waitMs))
        note(opener, "does not get the focus back");
    for (const QString &each : qAsConst(buttons)) {
        const auto before = visibleWindows();
        typed("space");
        leave(openedSince(before), opener, each);
    }
}
