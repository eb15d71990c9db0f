// SPDX-License-Identifier: Apache-2.0
#include "AccessibleRelations_p.h"

#include <UiElements/widgets/PopupWidget.h>

#include <QLabel>
#include <QPushButton>
#include <QVariant>

#include <algorithm>

namespace {

using AccessibleRelations::Relations;

/// Returns the field that hands its focus to \a widget, its part, or \a widget itself.
const QWidget *fieldOf(const QWidget &widget)
{
    const QWidget *parent = widget.parentWidget();
    return parent && parent->focusProxy() == &widget ? parent : &widget;
}

bool isError(const QWidget &label)
{
    return AccessibleRelations::storedRole(label) == QAccessible::AlertMessage;
}

/// Returns the labels beside \a field whose buddy it is. Qt looks no further, either.
QVector<QLabel *> labelsOf(const QWidget &field)
{
    QVector<QLabel *> labels;
    if (!field.parentWidget())
        return labels;
    const auto siblings = field.parentWidget()->findChildren<QLabel *>(QString(),
                                                                       Qt::FindDirectChildrenOnly);
    for (QLabel *label : siblings) {
        if (label->buddy() == &field)
            labels += label;
    }
    return labels;
}

QVector<PopupWidget *> popupsOf(const QWidget &widget)
{
    QVector<PopupWidget *> popups;
    const auto all = widget.window()->findChildren<PopupWidget *>(QString(),
                                                                  Qt::FindDirectChildrenOnly);
    for (PopupWidget *popup : all) {
        if (popup->getSourceButton() == &widget)
            popups += popup;
    }
    return popups;
}

/// Adds \a relation to \a other, unless Qt knows it: of a popup that listens to its button, say.
void add(Relations &relations, QWidget *other, QAccessible::Relation relation)
{
    const auto added = qMakePair(QAccessible::queryAccessibleInterface(other), relation);
    if (added.first && !relations.contains(added))
        relations += added;
}

/// Adds the captions of a field to it, as Qt does except for a list, and to the part that has its
/// focus, and that part to them.
void addParts(Relations &relations, const QWidget &widget)
{
    const QVector<QLabel *> labels = labelsOf(*fieldOf(widget));
    for (QLabel *label : labels)
        add(relations, label, QAccessible::Label);
    const auto *label = qobject_cast<const QLabel *>(&widget);
    if (label && label->buddy())
        add(relations, label->buddy()->focusProxy(), QAccessible::Labelled);
}

void addPopups(Relations &relations, const QWidget &widget)
{
    const QVector<PopupWidget *> popups = popupsOf(widget);
    for (PopupWidget *popup : popups)
        add(relations, popup, QAccessible::Controlled);
    if (const auto *popup = qobject_cast<const PopupWidget *>(&widget))
        add(relations, popup->getSourceButton(), QAccessible::Controller);
}

/// Makes controllers of the fields that are "labelled" by an error message.
void tellErrors(Relations &relations, const QWidget &widget)
{
    for (auto &[other, relation] : relations) {
        const auto *label = qobject_cast<QLabel *>(other->object());
        if (relation == QAccessible::Label && label && isError(*label))
            relation = QAccessible::Controlled;
        else if (relation == QAccessible::Labelled && isError(widget))
            relation = QAccessible::Controller;
    }
}

/// True for a widget that listens to its own part: Qt takes all that listen to be controlled.
bool isOwner(const QPair<QAccessibleInterface *, QAccessible::Relation> &relation,
             const QWidget &widget)
{
    const auto *other = qobject_cast<const QWidget *>(relation.first->object());
    return relation.second == QAccessible::Controlled && other && other->isAncestorOf(&widget);
}

} // namespace

QAccessible::Role AccessibleRelations::storedRole(const QWidget &widget)
{
    return widget.property("accessibleRole").value<QAccessible::Role>();
}

bool AccessibleRelations::isClickable(QAccessible::Role role)
{
    switch (role) {
    case QAccessible::PushButton:
    case QAccessible::ButtonMenu:
    case QAccessible::ButtonDropDown:
    case QAccessible::Link:
    case QAccessible::MenuItem:
    case QAccessible::PageTab:
        return true;
    default:
        return false;
    }
}

QVector<QLabel *> AccessibleRelations::errorsOf(const QWidget &widget)
{
    QVector<QLabel *> errors;
    const QVector<QLabel *> labels = labelsOf(*fieldOf(widget));
    for (QLabel *label : labels) {
        if (isError(*label) && !label->isHidden())
            errors += label;
    }
    return errors;
}

bool AccessibleRelations::hasPopup(const QWidget &widget)
{
    return qobject_cast<const QPushButton *>(&widget) && !popupsOf(widget).isEmpty();
}

AccessibleRelations::Relations AccessibleRelations::of(const QWidget &widget,
                                                       const Relations &known,
                                                       QAccessible::Relation match)
{
    Relations relations = known;
    addParts(relations, widget);
    addPopups(relations, widget);
    tellErrors(relations, widget);
    const auto isOther = [match, &widget](const auto &each) {
        return !(each.second & match) || isOwner(each, widget);
    };
    relations.erase(std::remove_if(relations.begin(), relations.end(), isOther), relations.end());
    return relations;
}
