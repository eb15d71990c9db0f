// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QStringList>
#include <QVector>

/// Reads on the accessibility bus what other processes tell there, as a screen reader does.
class BusReader : public QObject
{
    Q_OBJECT

public:
    /// A thing that is told of: the name of its process on the bus, and its path.
    struct Node
    {
        QString service;
        QString path;

        bool operator==(const Node &other) const { return path == other.path; }
    };

    /// What is told of a node.
    struct Told
    {
        QString role;
        QString name;
        QString description;
        QStringList states; ///< What sets it apart: "hidden", but not that it shows.
        QStringList actions;
        QStringList relations; ///< "label for 'Mail'".
        int childCount = 0;

        bool is(const char *state) const { return states.contains(QLatin1String(state)); }

        /// Returns all on one line: "push button 'ok' (description) [focusable] {Press} <...>".
        QString line() const { return QStringLiteral("%1 '%2'").arg(role, name) + remarks(); }

        /// Returns the line without role and name.
        QString remarks() const;
    };

    BusReader();
    Q_DISABLE_COPY_MOVE(BusReader)
    ~BusReader() override;

    /// Returns the applications that assistive technology knows.
    QVector<Node> applications() const;

    QVector<Node> childrenOf(const Node &node) const;

    /// Returns the child of \a node at \a index. A table has too many to ask for all.
    Node childAt(const Node &node, int index) const;

    Told read(const Node &node) const;

    /// Moves the pointer to the middle of \a node. Returns whether it has been sent there.
    bool moveTo(const Node &node) const;

    /// Does the action \a name of \a node. Returns whether it has it.
    bool act(const Node &node, const QString &name) const;

    /// Returns what was told to have appeared, up to the last answer, and forgets it.
    QVector<Node> takeShown();

private Q_SLOTS:
    void noteShown(const QDBusMessage &event);

private:
    QStringList relationsIn(const QVariantList &reply) const;
    QDBusPendingCall startGet(const Node &node, const char *property) const;
    QDBusPendingCall start(const Node &node, const char *interface, const char *method,
                           const QVariantList &arguments = {}) const;

    QDBusConnection m_bus;
    QVector<Node> m_shown;
};
