// SPDX-License-Identifier: Apache-2.0
#include "AccessibleButton_p.h"
#include "AccessibleClasses_p.h"
#include "AccessibleRelations_p.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPushButton>

namespace {

/// Returns the key that clicks \a button.
QKeySequence keyOf(const QAbstractButton &button)
{
    const auto *pushButton = qobject_cast<const QPushButton *>(&button);
    return pushButton && pushButton->isDefault() ? QKeySequence(Qt::Key_Enter) : button.shortcut();
}

/// Clicks \a button by key: it goes down at once, and up later. QAbstractButton::animateClick()
/// would use a button that a slot of pressed() has deleted, and click one that was disabled
/// meanwhile.
void click(QAbstractButton *button)
{
    if (button->isCheckable() && (button->focusPolicy() & Qt::ClickFocus))
        button->setFocus();
    QCoreApplication::postEvent(button,
                                new QKeyEvent(QEvent::KeyRelease, Qt::Key_Space, Qt::NoModifier));
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
    QCoreApplication::sendEvent(button, &press);
}

} // namespace

QAccessible::Role AccessibleButton::role() const
{
    const QAccessible::Role stored = AccessibleRelations::storedRole(*widget());
    if (stored != QAccessible::NoRole && stored != QAccessible::PushButton)
        return stored;
    const QAccessible::Role member = AccessibleClasses::memberRole(widget());
    return member == QAccessible::NoRole ? qts()->role() : member;
}

QString AccessibleButton::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Accelerator ? keyOf(*button()).toString(QKeySequence::NativeText)
                                            : AccessibleWidget::text(kind);
}

QAccessible::State AccessibleButton::state() const
{
    QAccessible::State state = AccessibleWidget::state();
    if (role() == QAccessible::PageTab) {
        state.selectable = true;
        state.selected = state.checked;
    }
    return state;
}

QStringList AccessibleButton::actionNames() const
{
    QStringList names = AccessibleWidget::actionNames().filter(setFocusAction());
    if (button()->isEnabled() && !clickAction().isEmpty())
        names.prepend(clickAction());
    return names;
}

void AccessibleButton::doAction(const QString &name)
{
    if (!actionNames().contains(name))
        return;
    auto *pushButton = qobject_cast<QPushButton *>(button());
    if (name != clickAction())
        AccessibleWidget::doAction(name);
    else if (pushButton && pushButton->menu())
        QMetaObject::invokeMethod(pushButton, &QPushButton::showMenu, Qt::QueuedConnection);
    else
        click(button());
}

QStringList AccessibleButton::keyBindingsForAction(const QString &name) const
{
    return name == clickAction() ? QStringList(keyOf(*button()).toString()) : QStringList();
}

QAbstractButton *AccessibleButton::button() const
{
    return static_cast<QAbstractButton *>(object());
}

/// Returns the action that is a click, or nothing: a picture cannot be clicked.
QString AccessibleButton::clickAction() const
{
    switch (role()) {
    case QAccessible::Graphic:
        return {};
    case QAccessible::ButtonMenu:
        return showMenuAction();
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
        return toggleAction();
    default:
        return pressAction();
    }
}
