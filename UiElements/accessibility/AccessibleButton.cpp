// SPDX-License-Identifier: Apache-2.0
#include "AccessibleButton_p.h"
#include "AccessibleClasses_p.h"

#include <QPushButton>

namespace {

/// Returns the role that \a button has by what it is and where.
QAccessible::Role naturalRole(QPushButton &button)
{
    const QAccessible::Role member = AccessibleClasses::memberRole(&button);
    if (member != QAccessible::NoRole)
        return member;
    if (button.menu())
        return QAccessible::ButtonMenu;
    if (button.isCheckable())
        return button.autoExclusive() ? QAccessible::RadioButton : QAccessible::CheckBox;
    return QAccessible::PushButton;
}

/// Returns \a text without the "&" that mark keys, and with one for each "&&".
QString withoutMnemonics(const QString &text)
{
    QString plain;
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) == QLatin1Char('&') && ++i == text.size())
            break;
        plain += text.at(i);
    }
    return plain;
}

/// Returns the key that clicks \a button.
QKeySequence keyOf(const QPushButton &button)
{
    return button.isDefault() ? QKeySequence(Qt::Key_Enter) : button.shortcut();
}

} // namespace

AccessibleButton::AccessibleButton(QWidget *button, QAccessible::Role role)
    : AccessibleWidget(button, role)
{
    addControllingSignal(QStringLiteral("clicked()"));
}

QAccessible::Role AccessibleButton::role() const
{
    const QAccessible::Role stored = AccessibleWidget::role();
    return stored == QAccessible::PushButton ? naturalRole(*button()) : stored;
}

QString AccessibleButton::text(QAccessible::Text kind) const
{
    QString text;
    if (kind == QAccessible::Name && button()->accessibleName().isEmpty())
        text = withoutMnemonics(button()->text());
    else if (kind == QAccessible::Accelerator)
        text = keyOf(*button()).toString(QKeySequence::NativeText);
    return text.isEmpty() ? AccessibleWidget::text(kind) : text;
}

QAccessible::State AccessibleButton::state() const
{
    QAccessible::State state = AccessibleWidget::state();
    state.checkable = button()->isCheckable();
    state.checked = button()->isChecked();
    state.pressed = button()->isDown();
    state.defaultButton = button()->isDefault();
    state.hasPopup = button()->menu() != nullptr;
    if (role() == QAccessible::PageTab) {
        state.selectable = true;
        state.selected = state.checked;
    }
    return state;
}

QStringList AccessibleButton::actionNames() const
{
    QStringList names = AccessibleWidget::actionNames();
    if (button()->isEnabled() && !clickAction().isEmpty())
        names.prepend(clickAction());
    return names;
}

void AccessibleButton::doAction(const QString &name)
{
    if (!actionNames().contains(name))
        return;
    if (name != clickAction())
        AccessibleWidget::doAction(name);
    else if (button()->menu())
        QMetaObject::invokeMethod(button(), &QPushButton::showMenu, Qt::QueuedConnection);
    else
        button()->animateClick();
}

QStringList AccessibleButton::keyBindingsForAction(const QString &name) const
{
    return name == clickAction() ? QStringList(keyOf(*button()).toString()) : QStringList();
}

QPushButton *AccessibleButton::button() const { return static_cast<QPushButton *>(object()); }

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
