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
        return nodesIn(call(node, "org.a11y.atspi.Accessible", "GetChildren").value(0));
    }

    /// Returns \a node and all that is in it: "button 'ok' (description) [focusable] {Press}".
    QStringList tree(const Node &node, const QString &indentation = QString()) const
    {
        QStringList lines { indentation + describe(node) };
        const QVector<Node> children = childrenOf(node);
        for (const Node &child : children)
            lines += tree(child, indentation + QLatin1String("  "));
        return lines;
    }

private:
    static inline const QString rootPath = QStringLiteral("/org/a11y/atspi/accessible/root");

    QString describe(const Node &node) const
    {
        const QString role =
                call(node, "org.a11y.atspi.Accessible", "GetRoleName").value(0).toString();
        QString text = QStringLiteral("%1 '%2'").arg(role, property(node, "Name"));
        const QString description = property(node, "Description");
        if (!description.isEmpty())
            text += QStringLiteral(" (%1)").arg(description);
        text += statesOf(node) + actionsOf(node) + relationsOf(node);
        return text;
    }

    QString property(const Node &node, const char *name) const
    {
        const QVariantList reply = call(node, "org.freedesktop.DBus.Properties", "Get",
                                        { QStringLiteral("org.a11y.atspi.Accessible"),
                                          QString::fromLatin1(name) });
        return reply.value(0).value<QDBusVariant>().variant().toString();
    }

    QString statesOf(const Node &node) const
    {
        const QVariantList reply = call(node, "org.a11y.atspi.Accessible", "GetState");
        const auto bits = qdbus_cast<QList<uint>>(reply.value(0));
        const std::pair<int, const char *> names[] = {
            { 4, "checked" }, { 7, "editable" }, { 11, "focusable" }, { 25, "showing" }
        };
        QStringList states;
        for (const auto &[bit, name] : names) {
            if (bits.value(0) & (1U << bit))
                states += QLatin1String(name);
        }
        return QStringLiteral(" [%1]").arg(states.join(QLatin1Char(' ')));
    }

    QString actionsOf(const Node &node) const
    {
        const auto interfaces =
                call(node, "org.a11y.atspi.Accessible", "GetInterfaces").value(0).toStringList();
        if (!interfaces.contains(QStringLiteral("org.a11y.atspi.Action")))
            return {};
        QStringList names;
        const QVariantList reply = call(node, "org.a11y.atspi.Action", "GetActions");
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
        return names.isEmpty() ? QString()
                               : QStringLiteral(" {%1}").arg(names.join(QLatin1Char(' ')));
    }

    QString relationsOf(const Node &node) const
    {
        static const QMap<uint, QString> names { { 1, QStringLiteral("label for") },
                                                 { 2, QStringLiteral("labelled by") },
                                                 { 3, QStringLiteral("controller for") },
                                                 { 4, QStringLiteral("controlled by") } };
        QString text;
        const QVariantList reply = call(node, "org.a11y.atspi.Accessible", "GetRelationSet");
        const auto argument = reply.value(0).value<QDBusArgument>();
        for (argument.beginArray(); !argument.atEnd();) {
            uint relation = 0;
            argument.beginStructure();
            argument >> relation;
            const QVector<Node> others = readNodes(argument);
            argument.endStructure();
            for (const Node &other : others)
                text += QStringLiteral(" <%1 '%2'>")
                                .arg(names.value(relation), property(other, "Name"));
        }
        argument.endArray();
        return text;
    }

    static QVector<Node> nodesIn(const QVariant &value)
    {
        return readNodes(value.value<QDBusArgument>());
    }

    static QVector<Node> readNodes(const QDBusArgument &argument)
    {
        QVector<Node> nodes;
        for (argument.beginArray(); !argument.atEnd();) {
            QString service;
            QDBusObjectPath path;
            argument.beginStructure();
            argument >> service >> path;
            argument.endStructure();
            nodes += Node { service, path.path() };
        }
        argument.endArray();
        return nodes;
    }

    /// Calls and lets this process answer itself meanwhile.
    QVariantList call(const Node &node, const char *interface, const char *method,
                      const QVariantList &arguments = {}) const
    {
        QDBusMessage message = QDBusMessage::createMethodCall(node.service, node.path,
                                                              QString::fromLatin1(interface),
                                                              QString::fromLatin1(method));
        message.setArguments(arguments);
        QDBusPendingCallWatcher watcher(m_bus.asyncCall(message));
        QEventLoop loop;
        QObject::connect(&watcher, &QDBusPendingCallWatcher::finished, &loop, &QEventLoop::quit);
        if (!watcher.isFinished())
            loop.exec();
        if (watcher.isError())
            qWarning("%s: %s", method, qPrintable(watcher.error().message()));
        return watcher.reply().arguments();
    }

    QDBusConnection m_bus;
};
