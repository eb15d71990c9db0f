// SPDX-License-Identifier: Apache-2.0
#include "TabOrderUtils.h"

#include <UiElements/widgets/OxaPushButton.h>

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLayout>
#include <QLineEdit>
#include <QListView>
#include <QRadioButton>
#include <QScrollArea>
#include <QSlider>
#include <QTreeWidget>

#include <utility>

namespace {

QWidget *widgetAt(const QLayout &layout, int index)
{
    QLayoutItem *item = layout.itemAt(index);
    return item ? item->widget() : nullptr;
}

/// Puts the widgets of \a layout after \a first in the tab order, and returns the last of them.
QWidget *chain(QWidget *first, const QLayout &layout)
{
    QWidget *previous = first;
    for (int i = 0; i < layout.count(); ++i) {
        QWidget *widget = widgetAt(layout, i);
        if (!widget)
            continue;
        QWidget::setTabOrder(previous, widget);
        previous = widget;
    }
    return previous;
}

/// Scrolls what has the focus into view. Qt's scroll areas do so only where they move the focus
/// themselves.
void scrollToFocus()
{
    QWidget *const focused = QApplication::focusWidget();
    QWidget *parent = focused;
    // A slot may delete what is shown, which has the focus no more then.
    while (parent && QApplication::focusWidget() == focused) {
        parent = parent->parentWidget();
        if (auto *area = qobject_cast<QScrollArea *>(parent))
            area->ensureWidgetVisible(focused);
    }
}

/// Returns the first index from \a start on, in steps of \a step, whose widget takes the focus by
/// Tab; -1 when there is none.
int focusableIndex(const QLayout &layout, int start, int step)
{
    for (int i = start; i >= 0 && i < layout.count(); i += step) {
        if (TabOrderUtils::isTabFocusable(widgetAt(layout, i)))
            return i;
    }
    return -1;
}

bool isArrow(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Up || key == Qt::Key_Right || key == Qt::Key_Down;
}

bool usesArrowsItself(const QObject *object)
{
    // A QML view is recognised by its class name, which needs no QML in this library.
    return qobject_cast<const QListView *>(object) || qobject_cast<const QComboBox *>(object)
            || qobject_cast<const QRadioButton *>(object) || qobject_cast<const QLineEdit *>(object)
            || qobject_cast<const QSlider *>(object) || (object && object->inherits("QQuickWidget"))
            || qobject_cast<const QTreeWidget *>(object);
}

/// True when a button of accelerator type \a type does not keep the arrow \a key. The outer
/// application defines what the types mean.
bool isTakenFromButton(int type, int key)
{
    const bool isVertical = key == Qt::Key_Up || key == Qt::Key_Down;
    switch (type) {
    case 1:
    case 3:
        return isVertical;
    case 2:
    case 4:
        return !isVertical;
    case 5:
        return false;
    default:
        return true;
    }
}

} // namespace

void TabOrderUtils::clearFocus()
{
    if (QWidget *widget = QApplication::focusWidget())
        widget->clearFocus();
}

bool TabOrderUtils::isTabFocusable(QWidget *widget)
{
    return widget && widget->isVisible() && widget->isEnabled()
            && (widget->focusPolicy() & Qt::TabFocus);
}

QWidget *TabOrderUtils::deepestFocusProxy(QWidget *widget)
{
    QWidget *proxy = widget ? widget->focusProxy() : nullptr;
    while (proxy && proxy->focusProxy())
        proxy = proxy->focusProxy();
    return proxy;
}

bool TabOrderUtils::shouldFocusNextWidget(QWidget *widget, bool next, QLayout *layout)
{
    if (!isTabFocusable(widget))
        return false;
    if (layout && layout->indexOf(widget) != -1)
        return false;
    const QWidget *proxy = deepestFocusProxy(widget);
    if (!proxy)
        return true;
    return next ? !proxy->isAncestorOf(widget) : !widget->isAncestorOf(proxy);
}

QWidget *TabOrderUtils::getNextPrevFocusableWidget(QWidget *widget, bool next, QLayout *layout)
{
    if (!widget)
        return nullptr;
    QWidget *candidate = widget;
    do
        candidate = next ? candidate->nextInFocusChain() : candidate->previousInFocusChain();
    while (candidate && candidate != widget && !shouldFocusNextWidget(candidate, next, layout));
    return candidate == widget ? nullptr : candidate;
}

bool TabOrderUtils::focusNextPrevChild(bool next, QWidget *widget, QLayout *layout)
{
    QWidget *target = getNextPrevFocusableWidget(widget, next, layout);
    if (!target)
        return false;
    target->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    scrollToFocus();
    return true;
}

void TabOrderUtils::fixFocusChainFromLayout(QWidget *first, QLayout *layout)
{
    if (layout)
        chain(first, *layout);
}

void TabOrderUtils::setCompoundTabOrder(QWidget *first, QLayout *layout, QWidget *last)
{
    if (first && layout && last && !layout->isEmpty())
        QWidget::setTabOrder(chain(first, *layout), last);
}

int TabOrderUtils::getItemFocusIndexInLayout(QLayout *layout)
{
    const int count = layout ? layout->count() : 0;
    for (int i = 0; i < count; ++i) {
        const QWidget *widget = widgetAt(*layout, i);
        if (widget && widget->hasFocus())
            return i;
    }
    return -1;
}

int TabOrderUtils::getNextFocusableItemFocusIndexInLayout(QLayout *layout)
{
    return layout ? focusableIndex(*layout, getItemFocusIndexInLayout(layout) + 1, 1) : -1;
}

int TabOrderUtils::getPreviousFocusableItemFocusInLayout(QLayout *layout)
{
    if (!layout)
        return -1;
    const int focused = getItemFocusIndexInLayout(layout);
    return focusableIndex(*layout, (focused == -1 ? layout->count() : focused) - 1, -1);
}

QWidget *TabOrderUtils::getFirstItemInLayoutIf(QLayout *layout,
                                               std::function<bool(QWidget *)> predicate,
                                               bool fromEnd)
{
    const auto passes = std::move(predicate);
    if (!layout || layout->isEmpty())
        return nullptr;
    const int count = layout->count();
    for (int i = 0; i < count; ++i) {
        QWidget *widget = widgetAt(*layout, fromEnd ? count - 1 - i : i);
        if (passes(widget))
            return widget;
    }
    return nullptr;
}

QWidget *TabOrderUtils::getFirstFocusableItemInLayout(QLayout *layout, bool fromEnd)
{
    return getFirstItemInLayoutIf(layout, isTabFocusable, fromEnd);
}

bool TabOrderUtils::hasDeepFocus(QWidget *widget)
{
    return isAncestorOfParent(widget, QApplication::focusWidget());
}

bool TabOrderUtils::isAncestorOfParent(const QWidget *ancestor, const QWidget *widget)
{
    while (widget && widget != ancestor)
        widget = widget->parentWidget();
    return widget;
}

bool TabOrderUtils::removeArrowKeyTabbingFromSpecificWidgets(QObject *object, QKeyEvent *event)
{
    if (!isArrow(event->key()) || usesArrowsItself(object))
        return false;
    const auto *button = qobject_cast<OxaPushButton *>(object);
    return !button || isTakenFromButton(int(button->getAcceleratorType()), event->key());
}
