// SPDX-License-Identifier: Apache-2.0
#include "TabOrder.h"

#include <UiElements/keyboard/TabOrderUtils.h>

#include <QAbstractButton>
#include <QLayout>
#include <QSplitter>
#include <QVector>

namespace {

void appendContents(const QWidget &parent, std::vector<QWidget *> &widgets);

void appendItems(const QLayout &layout, std::vector<QWidget *> &widgets)
{
    for (int i = 0; i < layout.count(); ++i) {
        QLayoutItem *item = layout.itemAt(i);
        if (const QLayout *inner = item->layout())
            appendItems(*inner, widgets);
        if (QWidget *widget = item->widget()) {
            widgets.push_back(widget);
            appendContents(*widget, widgets);
        }
    }
}

/// Returns the widgets of a \a parent without a layout, those of a splitter in its order.
QVector<QWidget *> partsOf(const QWidget &parent)
{
    QVector<QWidget *> parts;
    if (const auto *splitter = qobject_cast<const QSplitter *>(&parent)) {
        for (int i = 0; i < splitter->count(); ++i)
            parts += splitter->widget(i);
        return parts;
    }
    return parent.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly).toVector();
}

/// Appends all widgets inside \a parent to \a widgets, in the order of layouts where there are any.
void appendContents(const QWidget &parent, std::vector<QWidget *> &widgets)
{
    if (parent.layout()) {
        appendItems(*parent.layout(), widgets);
        return;
    }
    const QVector<QWidget *> parts = partsOf(parent);
    for (QWidget *child : parts) {
        // The list of a combo box is a child too.
        if (child->isWindow())
            continue;
        widgets.push_back(child);
        appendContents(*child, widgets);
    }
}

/// True for one of several exclusive buttons, which Tab stops at only while it is checked.
bool isChoice(const QWidget &widget)
{
    const auto *button = qobject_cast<const QAbstractButton *>(&widget);
    return button && button->autoExclusive();
}

} // namespace

std::vector<QWidget *> TabOrder::of(QWidget *window)
{
    std::vector<QWidget *> stops;
    QWidget *const first = TabOrderUtils::getNextPrevFocusableWidget(window, true, nullptr);
    QWidget *stop = first;
    while (stop) {
        stops.push_back(stop);
        stop = TabOrderUtils::getNextPrevFocusableWidget(stop, true, nullptr);
        if (stop == first)
            break;
    }
    return stops;
}

QWidget *TabOrder::firstIn(const QWidget &pane)
{
    QWidget *widget = pane.nextInFocusChain();
    while (widget != &pane && !(pane.isAncestorOf(widget) && TabOrderUtils::isTabFocusable(widget)))
        widget = widget->nextInFocusChain();
    return widget == &pane ? nullptr : widget;
}

void TabOrder::followLayouts(QWidget *parent)
{
    std::vector<QWidget *> widgets;
    appendContents(*parent, widgets);
    // Qt ignores widgets that have no focus policy when the order is set.
    std::vector<QWidget *> choices;
    QWidget *previous = nullptr;
    for (QWidget *widget : widgets) {
        if (widget->focusPolicy() == Qt::NoFocus) {
            if (!isChoice(*widget))
                continue;
            widget->setFocusPolicy(Qt::TabFocus);
            choices.push_back(widget);
        }
        if (previous)
            QWidget::setTabOrder(previous, widget);
        previous = widget;
    }
    for (QWidget *choice : choices)
        choice->setFocusPolicy(Qt::NoFocus);
}

QString TabOrder::describe(const QWidget &widget)
{
    const auto *button = qobject_cast<const QAbstractButton *>(&widget);
    const QString name = button ? button->text() : widget.accessibleName();
    const QString kind = QString::fromLatin1(widget.metaObject()->className());
    return name.isEmpty() ? kind : QStringLiteral("%1 “%2”").arg(kind, name);
}
