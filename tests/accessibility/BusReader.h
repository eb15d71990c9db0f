// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QEventLoop>

/// Reads on the accessibility bus what processes tell there, as a screen reader does. This one may
/// be among them.
class BusReader
{
public:
    /// A thing that is told of: the name of its process on the bus, and its path.
    struct Node
    {
        QString service;
        QString path;
    };

    /// What is told of a node.
    struct Told
    {
        QString role;
        QString name;
        QString description;
        QStringList states; ///< See stateNames.
        QStringList actions;
        QStringList relations; ///< "label for 'Mail'".
        int childCount = 0;

        bool is(const char *state) const { return states.contains(QLatin1String(state)); }

        /// Returns all on one line: "push button 'ok' (description) [focusable] {Press} <...>".
        QString line() const { return QStringLiteral("%1 '%2'").arg(role, name) + remarks(); }

        /// Returns the line without role and name.
        QString remarks() const
        {
            QString text;
            const auto add = [&text](const QString &form, const QString &content) {
                if (!content.isEmpty())
                    text += form.arg(content);
            };
            const QLatin1Char space(' ');
            add(QStringLiteral(" (%1)"), description);
            add(QStringLiteral(" [%1]"), states.join(space));
            add(QStringLiteral(" {%1}"), actions.join(space));
            add(QStringLiteral(" <%1>"), relations.join(QLatin1String("> <")));
            return text;
        }
    };

    BusReader()
        : m_bus(QDBusConnection::connectToBus(qEnvironmentVariable("AT_SPI_BUS_ADDRESS"),
                                              QStringLiteral("reader")))
    {
    }
    Q_DISABLE_COPY_MOVE(BusReader)
    ~BusReader() { QDBusConnection::disconnectFromBus(QStringLiteral("reader")); }

    bool isConnected() const { return m_bus.isConnected(); }

    /// Returns the applications that assistive technology knows.
    QVector<Node> applications() const
    {
        return childrenOf({ QStringLiteral("org.a11y.atspi.Registry"), rootPath });
    }

    QVector<Node> childrenOf(const Node &node) const
    {
        const QVariantList reply = finish(start(node, accessible, "GetChildren"));
        return readNodes(reply.value(0).value<QDBusArgument>());
    }

    /// Returns the child of \a node at \a index. A table has too many to ask for all.
    Node childAt(const Node &node, int index) const
    {
        const QVariantList reply = finish(start(node, accessible, "GetChildAtIndex", { index }));
        return readNode(reply.value(0).value<QDBusArgument>());
    }

    Told read(const Node &node) const
    {
        const auto role = start(node, accessible, "GetRoleName");
        const auto name = startGet(node, "Name");
        const auto description = startGet(node, "Description");
        const auto childCount = startGet(node, "ChildCount");
        const auto states = start(node, accessible, "GetState");
        const auto relations = start(node, accessible, "GetRelationSet");
        const auto interfaces = start(node, accessible, "GetInterfaces");
        Told told;
        told.role = finish(role).value(0).toString();
        told.name = variantIn(finish(name)).toString();
        told.description = variantIn(finish(description)).toString();
        told.childCount = variantIn(finish(childCount)).toInt();
        told.states = statesIn(finish(states));
        told.relations = relationsIn(finish(relations));
        if (finish(interfaces).value(0).toStringList().contains(QLatin1String(action)))
            told.actions = actionsIn(finish(start(node, action, "GetActions")));
        return told;
    }

    /// Returns the lines of \a node and of all that is in it.
    QStringList tree(const Node &node, const QString &indentation = QString()) const
    {
        QStringList lines { indentation + read(node).line() };
        const QVector<Node> children = childrenOf(node);
        for (const Node &child : children)
            lines += tree(child, indentation + QLatin1String("  "));
        return lines;
    }

private:
    static constexpr const char *accessible = "org.a11y.atspi.Accessible";
    static constexpr const char *action = "org.a11y.atspi.Action";
    static inline const QString rootPath = QStringLiteral("/org/a11y/atspi/accessible/root");

    static QVariant variantIn(const QVariantList &reply)
    {
        return reply.value(0).value<QDBusVariant>().variant();
    }

    /// Says what sets a node apart: that it can be used and seen goes without saying.
    static QStringList statesIn(const QVariantList &reply)
    {
        const auto words = qdbus_cast<QList<uint>>(reply.value(0));
        const quint64 bits = words.value(0) | quint64(words.value(1)) << 32;
        const struct
        {
            int bit;
            const char *name;
            bool isUsual = false;
        } states[] = {
            { 1, "active" },     { 25, "hidden", true },    { 8, "disabled", true },
            { 4, "checked" },    { 32, "mixed" },           { 7, "editable" },
            { 9, "expandable" }, { 10, "expanded" },        { 11, "focusable" },
            { 16, "modal" },     { 17, "multi-line" },      { 39, "default" },
            { 43, "read-only" }, { 18, "multiselectable" }, { 22, "selectable" },
            { 23, "selected" },
        };
        QStringList names;
        for (const auto &[bit, name, isUsual] : states) {
            if (bool(bits >> bit & 1) != isUsual)
                names += QLatin1String(name);
        }
        return names;
    }

    static QStringList actionsIn(const QVariantList &reply)
    {
        QStringList names;
        const auto argument = reply.value(0).value<QDBusArgument>();
        for (argument.beginArray(); !argument.atEnd();) {
            QString name;
            QString text;
            QString key;
            argument.beginStructure();
            argument >> name >> text >> key;
            argument.endStructure();
            names += name;
        }
        argument.endArray();
        return names;
    }

    QStringList relationsIn(const QVariantList &reply) const
    {
        static const QMap<uint, QString> names { { 1, QStringLiteral("label for") },
                                                 { 2, QStringLiteral("labelled by") },
                                                 { 3, QStringLiteral("controller for") },
                                                 { 4, QStringLiteral("controlled by") } };
        QStringList relations;
        const auto argument = reply.value(0).value<QDBusArgument>();
        for (argument.beginArray(); !argument.atEnd();) {
            uint relation = 0;
            argument.beginStructure();
            argument >> relation;
            const QVector<Node> others = readNodes(argument);
            argument.endStructure();
            for (const Node &other : others)
                relations += QStringLiteral("%1 '%2'")
                                     .arg(names.value(relation),
                                          variantIn(finish(startGet(other, "Name"))).toString());
        }
        argument.endArray();
        return relations;
    }

    static QVector<Node> readNodes(const QDBusArgument &argument)
    {
        QVector<Node> nodes;
        for (argument.beginArray(); !argument.atEnd();)
            nodes += readNode(argument);
        argument.endArray();
        return nodes;
    }

    static Node readNode(const QDBusArgument &argument)
    {
        QString service;
        QDBusObjectPath path;
        argument.beginStructure();
        argument >> service >> path;
        argument.endStructure();
        return { service, path.path() };
    }

    QDBusPendingCall startGet(const Node &node, const char *property) const
    {
        return start(node, "org.freedesktop.DBus.Properties", "Get",
                     { QString::fromLatin1(accessible), QString::fromLatin1(property) });
    }

    QDBusPendingCall start(const Node &node, const char *interface, const char *method,
                           const QVariantList &arguments = {}) const
    {
        QDBusMessage message = QDBusMessage::createMethodCall(node.service, node.path,
                                                              QString::fromLatin1(interface),
                                                              QString::fromLatin1(method));
        message.setArguments(arguments);
        return m_bus.asyncCall(message);
    }

    /// Waits for the reply, and lets this process answer itself meanwhile.
    static QVariantList finish(const QDBusPendingCall &call)
    {
        QDBusPendingCallWatcher watcher(call);
        QEventLoop loop;
        QObject::connect(&watcher, &QDBusPendingCallWatcher::finished, &loop, &QEventLoop::quit);
        if (!watcher.isFinished())
            loop.exec();
        if (watcher.isError())
            qWarning("%s", qPrintable(watcher.error().message()));
        return watcher.reply().arguments();
    }

    QDBusConnection m_bus;
};
