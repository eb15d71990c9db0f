// SPDX-License-Identifier: Apache-2.0
#include "BusReader.h"

#include "support/RealInput.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QMap>
#include <QRect>

#include <utility>

namespace {

using Node = BusReader::Node;

constexpr const char *accessible = "org.a11y.atspi.Accessible";
constexpr const char *action = "org.a11y.atspi.Action";
const QString rootPath = QStringLiteral("/org/a11y/atspi/accessible/root");
const QString connectionName = QStringLiteral("reader");

/// Returns what is replied, or nothing where a node has gone meanwhile.
QVariantList finish(QDBusPendingCall call)
{
    call.waitForFinished();
    return call.isError() ? QVariantList() : call.reply().arguments();
}

QVariant variantIn(const QVariantList &reply)
{
    return reply.value(0).value<QDBusVariant>().variant();
}

/// Says what sets a node apart: that it can be used and seen goes without saying. What is gone is
/// hidden.
QStringList statesIn(const QVariantList &reply)
{
    if (reply.isEmpty())
        return { QStringLiteral("hidden") };
    const auto words = qdbus_cast<QList<uint>>(reply.value(0));
    const quint64 bits = words.value(0) | quint64(words.value(1)) << 32;
    const struct
    {
        int bit;
        const char *name;
        bool isUsual = false;
    } states[] = {
        { 1, "active" },     { 25, "hidden", true },    { 8, "disabled", true }, { 4, "checked" },
        { 32, "mixed" },     { 7, "editable" },         { 9, "expandable" },     { 10, "expanded" },
        { 11, "focusable" }, { 16, "modal" },           { 17, "multi-line" },    { 39, "default" },
        { 43, "read-only" }, { 18, "multiselectable" }, { 22, "selectable" },    { 23, "selected" },
    };
    QStringList names;
    for (const auto &[bit, name, isUsual] : states) {
        if (bool(bits >> bit & 1) != isUsual)
            names += QLatin1String(name);
    }
    return names;
}

QStringList actionsIn(const QVariantList &reply)
{
    if (reply.isEmpty())
        return {};
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

Node readNode(const QDBusArgument &argument)
{
    QString service;
    QDBusObjectPath path;
    argument.beginStructure();
    argument >> service >> path;
    argument.endStructure();
    return { service, path.path() };
}

QVector<Node> readNodes(const QDBusArgument &argument)
{
    QVector<Node> nodes;
    for (argument.beginArray(); !argument.atEnd();)
        nodes += readNode(argument);
    argument.endArray();
    return nodes;
}

} // namespace

QString BusReader::Told::remarks() const
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

BusReader::BusReader()
    : m_bus(QDBusConnection::connectToBus(qEnvironmentVariable("AT_SPI_BUS_ADDRESS"),
                                          connectionName))
{
    const Node registry { QStringLiteral("org.a11y.atspi.Registry"),
                          QStringLiteral("/org/a11y/atspi/registry") };
    finish(start(registry, "org.a11y.atspi.Registry", "RegisterEvent",
                 { QStringLiteral("object:state-changed:showing") }));
    m_bus.connect({}, {}, QStringLiteral("org.a11y.atspi.Event.Object"),
                  QStringLiteral("StateChanged"), this, SLOT(noteShown(QDBusMessage)));
}

BusReader::~BusReader() { QDBusConnection::disconnectFromBus(connectionName); }

QVector<BusReader::Node> BusReader::applications() const
{
    return childrenOf({ QStringLiteral("org.a11y.atspi.Registry"), rootPath });
}

QVector<BusReader::Node> BusReader::childrenOf(const Node &node) const
{
    const QVariantList reply = finish(start(node, accessible, "GetChildren"));
    return readNodes(reply.value(0).value<QDBusArgument>());
}

BusReader::Node BusReader::childAt(const Node &node, int index) const
{
    const QVariantList reply = finish(start(node, accessible, "GetChildAtIndex", { index }));
    return readNode(reply.value(0).value<QDBusArgument>());
}

BusReader::Told BusReader::read(const Node &node) const
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

bool BusReader::moveTo(const Node &node) const
{
    const quint32 screen = 0;
    const auto call = start(node, "org.a11y.atspi.Component", "GetExtents", { screen });
    const QPoint center = qdbus_cast<QRect>(finish(call).value(0)).center();
    return RealInput::send({ QStringLiteral("mousemove"), QString::number(center.x()),
                             QString::number(center.y()) });
}

bool BusReader::act(const Node &node, const QString &name) const
{
    const int index = read(node).actions.indexOf(name);
    if (index >= 0)
        finish(start(node, action, "DoAction", { index }));
    return index >= 0;
}

QVector<BusReader::Node> BusReader::takeShown()
{
    QCoreApplication::sendPostedEvents(this);
    return std::exchange(m_shown, {});
}

void BusReader::noteShown(const QDBusMessage &event)
{
    const QVariantList arguments = event.arguments();
    if (arguments.value(0) == QLatin1String("showing") && arguments.value(1).toInt() == 1)
        m_shown += Node { event.service(), event.path() };
}

QStringList BusReader::relationsIn(const QVariantList &reply) const
{
    if (reply.isEmpty())
        return {};
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

QDBusPendingCall BusReader::startGet(const Node &node, const char *property) const
{
    return start(node, "org.freedesktop.DBus.Properties", "Get",
                 { QString::fromLatin1(accessible), QString::fromLatin1(property) });
}

QDBusPendingCall BusReader::start(const Node &node, const char *interface, const char *method,
                                  const QVariantList &arguments) const
{
    QDBusMessage message = QDBusMessage::createMethodCall(node.service, node.path,
                                                          QString::fromLatin1(interface),
                                                          QString::fromLatin1(method));
    message.setArguments(arguments);
    return m_bus.asyncCall(message);
}
