// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAccessible>
#include <QString>

/// Declares the stable id by which automation finds a widget, as `m_uniqueElementId`. Place it
/// after the other blocks, without a semicolon; it leaves the access at private.
///
/// Property: `elementUniqueId` (empty). It is stored, and nothing in the library reads it.
#define UIELEMENTS_ELEMENT_ID_BLOCK                                                                \
    Q_PROPERTY(QString elementUniqueId READ getUniqueElementId WRITE setUniqueElementId)           \
                                                                                                   \
public:                                                                                            \
    QString getUniqueElementId() const { return m_uniqueElementId; }                               \
    void setUniqueElementId(const QString &id) { m_uniqueElementId = id; }                         \
                                                                                                   \
private:                                                                                           \
    QString m_uniqueElementId;

/// Declares the accessible role that a widget stores, as `m_accessibleRole`. Place it after the
/// other blocks, without a semicolon; it leaves the access at private.
///
/// Property: `accessibleRole` (QAccessible::NoRole, unless the class's constructor sets it).
/// Assistive technology is told that role. PushButton, with which buttons are made, counts as none:
/// then a button is what its class and its place make it, such as a tab.
#define UIELEMENTS_ACCESSIBLE_ROLE_BLOCK                                                           \
    Q_PROPERTY(QAccessible::Role accessibleRole READ getAccessibleRole WRITE setAccessibleRole)    \
                                                                                                   \
public:                                                                                            \
    QAccessible::Role getAccessibleRole() const { return m_accessibleRole; }                       \
    void setAccessibleRole(QAccessible::Role role) { m_accessibleRole = role; }                    \
                                                                                                   \
private:                                                                                           \
    QAccessible::Role m_accessibleRole = QAccessible::NoRole;
