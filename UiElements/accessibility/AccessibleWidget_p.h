// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "QtsInterface_p.h"

#include <QAccessibleWidget>

struct AccessibleClass;

/// What assistive technology is told of a widget of the library: what Qt tells of it, except where
/// the widget itself stores a role or a name, or the row of its class knows more.
///
/// Qt does not export its interfaces of line edits, lists and other classes, so that none can be
/// derived from them. This one has Qt's and asks it.
class AccessibleWidget : public QAccessibleWidget
{
    Q_DISABLE_COPY_MOVE(AccessibleWidget)

public:
    /// Tells of \a widget by the row of its class, and what \a qts tells. Takes \a qts over.
    AccessibleWidget(QWidget *widget, QAccessibleInterface *qts);

    /// Returns the property `accessibleRole`, if there is one and it is not NoRole; or else that of
    /// the row.
    QAccessible::Role role() const override;

    /// The name is the accessible name, or else the text, or else the tool tip. A description that
    /// only repeats the name is left out: it would be read twice.
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text kind, const QString &text) override;

    /// A widget that hands the focus on is neither focusable nor focused: the one that gets it is.
    QAccessible::State state() const override;

    QVector<QPair<QAccessibleInterface *, QAccessible::Relation>> relations(
            QAccessible::Relation match = QAccessible::AllRelations) const override;

    QRect rect() const override;
    QAccessibleInterface *focusChild() const override;
    QAccessibleInterface *child(int index) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    /// None of a widget that is disabled.
    QStringList actionNames() const override;

    void doAction(const QString &name) override;

protected:
    /// Returns the interface that Qt has made.
    const QtsInterface &qts() const { return m_qts; }

private:
    const AccessibleClass &row() const;
    QString name() const;
    QString description() const;
    bool isClickable() const;

    const QtsInterface m_qts;
};
