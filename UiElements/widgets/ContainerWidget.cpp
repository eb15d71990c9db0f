// SPDX-License-Identifier: Apache-2.0
#include "ContainerWidget.h"

#include "OxaPushButton.h"

#include <UiElements/keyboard/TabOrderUtils.h>

#include <QBoxLayout>
#include <QKeyEvent>

ContainerWidget::ContainerWidget(QWidget *parent) : OxaWidget(parent)
{
    setObjectName(QStringLiteral("ContainerWidget"));
    setFocusPolicy(Qt::NoFocus);
}

void ContainerWidget::setupEventFilters()
{
    if (auto *own = qobject_cast<QBoxLayout *>(layout()))
        setupEventFilters(own);
}

void ContainerWidget::setupEventFilters(QBoxLayout *layout)
{
    m_layout = layout;
    if (!layout)
        return;
    for (int i = 0; i < layout->count(); ++i) {
        if (auto *button = qobject_cast<QAbstractButton *>(layout->itemAt(i)->widget()))
            button->installEventFilter(this);
    }
    if (qobject_cast<QVBoxLayout *>(layout)) {
        m_previousKey = Qt::Key_Up;
        m_nextKey = Qt::Key_Down;
        m_swallowedKeys.insert({ Qt::Key_Right, Qt::Key_Left });
    } else if (qobject_cast<QHBoxLayout *>(layout)) {
        m_previousKey = Qt::Key_Left;
        m_nextKey = Qt::Key_Right;
        m_swallowedKeys.insert({ Qt::Key_Up, Qt::Key_Down });
    }
}

QString ContainerWidget::getAccessibleMessage() const { return m_accessibleMessage; }

void ContainerWidget::setAccessibleMessage(const QString &message)
{
    m_accessibleMessage = message;
}

bool ContainerWidget::sayAcceleratorInfo() const { return m_sayAcceleratorInfo; }

bool ContainerWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && handleKey(static_cast<QKeyEvent *>(event)))
        return true;
    auto *button = qobject_cast<OxaPushButton *>(watched);
    if (!button)
        return OxaWidget::eventFilter(watched, event);
    if (event->type() == QEvent::FocusIn)
        noteFocus(*button);
    return button->eventFilter(watched, event);
}

bool ContainerWidget::focusNextPrevChild(bool next)
{
    m_sayAcceleratorInfo = true;
    m_lastFocusedButton = QUuid();
    return TabOrderUtils::focusNextPrevChild(next, focusWidget(),
                                             m_layout ? m_layout.data() : layout());
}

/// Returns whether the key ends here. A key that moves the focus passes on while no item has the
/// focus, also if an earlier layout swallowed it.
bool ContainerWidget::handleKey(QKeyEvent *event)
{
    if (event->key() == m_previousKey || event->key() == m_nextKey)
        return moveFocus(event);
    return m_swallowedKeys.count(event->key()) > 0;
}

bool ContainerWidget::moveFocus(QKeyEvent *event)
{
    const int current = TabOrderUtils::getItemFocusIndexInLayout(m_layout);
    if (current == -1)
        return false;
    m_layout->itemAt(getNextIndex(current, event))->widget()->setFocus(Qt::TabFocusReason);
    return true;
}

int ContainerWidget::getNextIndex(int current, QKeyEvent *event) const
{
    if (!m_layout || (event->key() != m_previousKey && event->key() != m_nextKey))
        return current;
    const int step = event->key() == m_previousKey ? -1 : 1;
    for (int i = current + step; i >= 0 && i < m_layout->count(); i += step) {
        const auto *button = qobject_cast<QAbstractButton *>(m_layout->itemAt(i)->widget());
        if (button && button->isVisible() && button->isEnabled())
            return i;
    }
    return current;
}

void ContainerWidget::noteFocus(const OxaPushButton &button)
{
    if (m_lastFocusedButton.isNull())
        m_lastFocusedButton = button.getObjectId();
    else if (m_lastFocusedButton != button.getObjectId())
        m_sayAcceleratorInfo = false;
}
