// SPDX-License-Identifier: Apache-2.0
#include "support/Guards.h"
#include "support/TestApplication.h"
#include "support/Windows.h"
#include "theme/ThemedWidgets.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QEventLoop>
#include <QVBoxLayout>

namespace {

/// Reads on the accessibility bus what this process tells there, as a screen reader does.
class Reader
{
public:
    /// A thing that is told of: the name of its process on the bus, and its path.
    struct Node
    {
        QString service;
        QString path;
    };

    Reader()
        : m_bus(QDBusConnection::connectToBus(qEnvironmentVariable("AT_SPI_BUS_ADDRESS"),
                                              QStringLiteral("reader")))
    {
    }
    Q_DISABLE_COPY_MOVE(Reader)
    ~Reader() { QDBusConnection::disconnectFromBus(QStringLiteral("reader")); }

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

/// A window with a form and what is around one.
class Form : public OxaWidget
{
public:
    Form()
    {
        setWindowTitle(QStringLiteral("Account"));
        auto *column = new QVBoxLayout(this);
        column->addWidget(new OxaLabel(QStringLiteral("Account"), this, QAccessible::Heading));
        auto *caption = new OxaLabel(QStringLiteral("Mail"), this);
        auto *field = OxaTextInputFactory({}).make(this);
        field->setTextInputAccessibleText(QStringLiteral("mail"));
        field->setButtonAccessibleText(QStringLiteral("clear"));
        field->setInputValidator([](const QString &text) { return text.size() > 3; }, true);
        auto *error = new OxaLabel(QStringLiteral("No @ in it"), this, QAccessible::AlertMessage);
        error->hide();
        caption->setBuddy(field);
        error->setBuddy(field);
        connect(field, &OxaTextInput::showErrorLabel, error, &OxaLabel::setVisible);
        auto *bell = new OxaPushButton(this);
        bell->setToolTip(QStringLiteral("News"));
        bell->setBadgeVisible(true);
        auto *box = new OxaCheckBox(this);
        box->setText(QStringLiteral("&Remember"));
        box->setChecked(true);
        for (QWidget *each : { static_cast<QWidget *>(caption), static_cast<QWidget *>(field),
                               static_cast<QWidget *>(error), static_cast<QWidget *>(bell),
                               static_cast<QWidget *>(box) })
            column->addWidget(each);
        field->setText(QStringLiteral("a"));
    }
};

} // namespace

/// What arrives on the accessibility bus.
class tst_AccessibilityBus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsOfAForm();
};

void tst_AccessibilityBus::tellsOfAForm()
{
    OxaColorSetMap colors = storeWith("#102030");
    colors.emplace("badge-background",
                   ColorSets::make(QStringLiteral("badge-background"), { "red" }));
    const StoreGuard stores(colors, colors);
    Form form;
    QVERIFY(Windows::activate(form));
    const Reader reader;
    QVERIFY(reader.isConnected());
    QVector<Reader::Node> applications;
    QVERIFY(QTest::qWaitFor([&] { return !(applications = reader.applications()).isEmpty(); }));
    QCOMPARE(applications.size(), 1);
    QCOMPARE(reader.childrenOf(applications.first()).size(), 1);
    const QStringList told = reader.tree(reader.childrenOf(applications.first()).first());
    const char *const expected[] = {
        "frame 'Account' [showing]",
        "  heading 'Account' [showing]",
        "  label 'Mail' [showing] <label for 'Mail'> <label for 'mail'>",
        ("  panel 'Mail' (No @ in it) [showing] {SetFocus} <labelled by 'Mail'>"
         " <controller for 'No @ in it'>"),
        ("    text 'mail' (No @ in it) [editable focusable showing] {SetFocus}"
         " <labelled by 'Mail'> <controller for 'No @ in it'>"),
        "    label '' []",
        "    push button 'clear' [focusable showing] {Press SetFocus}",
        "    push button '' [focusable] {Press SetFocus}",
        "    graphic '' []",
        "  alert message 'No @ in it' [showing] <controlled by 'Mail'> <controlled by 'mail'>",
        "  push button 'News' (Unread) [focusable showing] {Press SetFocus}",
        "  check box 'Remember' [checked focusable showing] {Toggle SetFocus}",
    };
    for (int i = 0; i < told.size(); ++i)
        QCOMPARE(told.at(i), QString::fromLatin1(i < int(std::size(expected)) ? expected[i] : ""));
    QCOMPARE(told.size(), int(std::size(expected)));
}

UIELEMENTS_TEST_MAIN(tst_AccessibilityBus)
#include "tst_accessibilitybus.moc"
