// SPDX-License-Identifier: Apache-2.0
#include "AccessibleClasses_p.h"
#include "AccessibleRelations_p.h"
#include "AccessibleTexts_p.h"
#include "AccessibleWidget_p.h"

#include <UiElements/emoji/OxaEmojiPushButton.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QVariant>

AccessibleWidget::AccessibleWidget(QWidget *widget, QAccessibleInterface *qts)
    : QAccessibleWidget(widget), m_qts(qts)
{
}

/// Qt may make the interface in the constructor of a base class, as it does when a label gets its
/// text: the row is looked up each time. A widget that is being deleted has none in the end.
const AccessibleClass &AccessibleWidget::row() const
{
    static constexpr AccessibleClass none;
    const AccessibleClass *row = AccessibleClasses::rowOf(*object());
    return row ? *row : none;
}

QAccessible::Role AccessibleWidget::role() const
{
    const AccessibleClass &row = this->row();
    QAccessible::Role role = AccessibleRelations::storedRole(*widget());
    if (role == QAccessible::NoRole && row.shownRole)
        role = row.shownRole(*widget());
    if (role == QAccessible::NoRole)
        role = row.role == QAccessible::NoRole ? m_qts->role() : row.role;
    return role == QAccessible::Pane && widget()->isWindow() ? QAccessible::Window : role;
}

QString AccessibleWidget::text(QAccessible::Text kind) const
{
    switch (kind) {
    case QAccessible::Name:
        return name();
    case QAccessible::Description:
        return description();
    default:
        return m_qts->text(kind);
    }
}

QString AccessibleWidget::name() const
{
    const auto textOf = row().name;
    QString name = widget()->accessibleName();
    if (name.isEmpty() && textOf)
        name = textOf(*widget());
    // A title that the class sets for all its windows is not the name of one.
    if (name.isEmpty() && !(textOf && widget()->isWindow()))
        name = m_qts->text(QAccessible::Name);
    return name.isEmpty() ? widget()->toolTip() : name;
}

QString AccessibleWidget::description() const
{
    QStringList parts { m_qts->text(QAccessible::Description) };
    if (parts.first().isEmpty()) // Of a list Qt tells no tool tip.
        parts.first() = widget()->toolTip();
    if (parts.first() == name())
        parts.clear();
    parts += AccessibleTexts::errorOf(*widget());
    if (const auto remarkOf = row().remark)
        parts += remarkOf(*widget());
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

void AccessibleWidget::setText(QAccessible::Text kind, const QString &text)
{
    m_qts->setText(kind, text);
}

QAccessible::State AccessibleWidget::state() const
{
    // Qt tells none of these of a list.
    const QAccessible::State common = QAccessibleWidget::state();
    QAccessible::State state = m_qts->state();
    state.disabled = common.disabled;
    state.invisible = common.invisible;
    state.focusable = common.focusable && !widget()->focusProxy();
    state.focused = common.focused && !widget()->focusProxy();
    state.modal = widget()->isModal();
    state.hasPopup = state.hasPopup || AccessibleRelations::hasPopup(*widget());
    return state;
}

QVector<QPair<QAccessibleInterface *, QAccessible::Relation>> AccessibleWidget::relations(
        QAccessible::Relation match) const
{
    return AccessibleRelations::of(*widget(), m_qts->relations(QAccessible::AllRelations), match);
}

QRect AccessibleWidget::rect() const { return m_qts->rect(); }

QAccessibleInterface *AccessibleWidget::focusChild() const
{
    // Qt would return a widget itself whose focus proxy has the focus. Its own interface must not
    // be asked: it would ask this one for a widget that keeps the focus of a window that is not
    // active.
    QWidget *const proxy = widget()->focusProxy();
    return proxy && proxy->hasFocus() ? QAccessible::queryAccessibleInterface(proxy)->focusChild()
                                      : QAccessibleWidget::focusChild();
}

QAccessibleInterface *AccessibleWidget::child(int index) const
{
    // That of a scroll area takes any index.
    return index >= 0 && index < childCount() ? m_qts->child(index) : nullptr;
}

QAccessibleInterface *AccessibleWidget::childAt(int x, int y) const { return m_qts->childAt(x, y); }

int AccessibleWidget::childCount() const { return m_qts->childCount(); }

int AccessibleWidget::indexOfChild(const QAccessibleInterface *child) const
{
    return m_qts->indexOfChild(child);
}

void *AccessibleWidget::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? QAccessibleWidget::interface_cast(type)
                                                : m_qts->interface_cast(type);
}

QStringList AccessibleWidget::actionNames() const
{
    if (!widget()->isEnabled())
        return {};
    QAccessibleActionInterface *qtsActions = m_qts->actionInterface();
    QStringList names = qtsActions ? qtsActions->actionNames() : QAccessibleWidget::actionNames();
    if (isClickable())
        names.prepend(pressAction());
    if (row().step)
        names << increaseAction() << decreaseAction();
    return names;
}

/// A label that says that it is a button or a link can be clicked like one, if it can be clicked.
bool AccessibleWidget::isClickable() const
{
    const auto *label = qobject_cast<QLabel *>(widget());
    return label && AccessibleRelations::isClickable(role())
            && (label->textInteractionFlags() != Qt::NoTextInteraction
                || qobject_cast<const OxaEmojiPushButton *>(label));
}

void AccessibleWidget::doAction(const QString &name)
{
    if (!actionNames().contains(name))
        return;
    const AccessibleClass::Step step = row().step;
    if (step && (name == increaseAction() || name == decreaseAction()))
        step(*widget(), name == increaseAction());
    else if (name == pressAction() && isClickable())
        QCoreApplication::postEvent(widget(),
                                    new QKeyEvent(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier));
    else if (m_qts->actionInterface())
        m_qts->actionInterface()->doAction(name);
    else
        QAccessibleWidget::doAction(name);
}
