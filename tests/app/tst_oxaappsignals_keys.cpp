// SPDX-License-Identifier: Apache-2.0
#include "DebugShortcuts.h"
#include "ShortcutsTable.h"
#include "support/SignalLog.h"
#include "support/TestMain.h"
#include "support/Windows.h"

#include <QFile>
#include <QMetaMethod>
#include <QTest>
#include <QWidget>

using Shortcut = OxaAppSignals::Shortcut;

namespace {

constexpr int searchKeys = Qt::CTRL | Qt::Key_F;
constexpr int debugKeys = Qt::CTRL | Qt::ALT | Qt::SHIFT | Qt::Key_D;

/// A hub that notes each of its signals without arguments by name.
class Hub : public OxaAppSignals
{
    Q_OBJECT

public:
    Hub()
    {
        const QMetaObject &type = OxaAppSignals::staticMetaObject;
        const QMetaMethod slot = metaObject()->method(metaObject()->indexOfSlot("note()"));
        for (int index = type.methodOffset(); index < type.methodCount(); ++index) {
            if (type.method(index).parameterCount() == 0)
                connect(this, type.method(index), this, slot);
        }
    }

    /// Types \a keys in \a window, and returns which signals followed.
    QString emittedFor(QWidget &window, const QKeySequence &keys)
    {
        QTest::keySequence(&window, keys);
        return m_log.take();
    }

private Q_SLOTS:
    void note()
    {
        const QMetaMethod signal = metaObject()->method(senderSignalIndex());
        m_log.note(QString::fromLatin1(signal.name()));
    }

private:
    SignalLog m_log;
};

} // namespace

/// The signals that the hub emits for keys.
class tst_OxaAppSignalsKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void emitsTheSignalOfTheKeysAndNoOther_data() { addTable(); }
    void emitsTheSignalOfTheKeysAndNoOther();
    void isListedInTheDocumentation_data() { addTable(); }
    void isListedInTheDocumentation();
    void listensInEachWindowOfTheApplication();
    void ignoresTheKeysOfAGroupThatIsNotRegistered();
    void ignoresTheKeysOfADisabledShortcut();
    void ignoresTheKeysOfATemporarilyDisabledShortcut();
    void ignoresAllKeysAfterTheMainWindow();
    void mayBeDisabledByItsOwnSignal();
    void survivesASlotThatDeletes_data();
    void survivesASlotThatDeletes();
    void survivesASlotThatDeletesTheHubWithItsShortcut_data();
    void survivesASlotThatDeletesTheHubWithItsShortcut();
    void showsTheDebugWindowForTheDevelopersKeys();
    void leavesKeysThatTwoShortcutsShareWithoutEffect();

private:
    static void addTable();
};

void tst_OxaAppSignalsKeys::addTable()
{
    QTest::addColumn<const ShortcutData *>("row");
    for (const ShortcutData &row : shortcutsTable())
        QTest::newRow(row.name) << &row;
}

void tst_OxaAppSignalsKeys::emitsTheSignalOfTheKeysAndNoOther()
{
    QFETCH(const ShortcutData *, row);
    Hub hub;
    QWidget window;
    hub.registerShortcuts(&window, OxaShortcut::All);
    QVERIFY(Windows::activate(window));
    QCOMPARE(hub.emittedFor(window, row->keys), QString::fromLatin1(row->signal));
}

void tst_OxaAppSignalsKeys::isListedInTheDocumentation()
{
    QFETCH(const ShortcutData *, row);
    QFile page(QStringLiteral(SHORTCUTS_PAGE));
    QVERIFY(page.open(QIODevice::ReadOnly));
    const QString line = QStringLiteral("\n| %1 | %2 | `%3` | `%4` |\n")
                                 .arg(row->keys.toString(QKeySequence::PortableText),
                                      QLatin1String(row->description), QLatin1String(row->name),
                                      QLatin1String(row->signal));
    QVERIFY2(QString::fromUtf8(page.readAll()).contains(line), qPrintable(line));
}

void tst_OxaAppSignalsKeys::listensInEachWindowOfTheApplication()
{
    Hub hub;
    QWidget mainWindow;
    hub.registerShortcuts(&mainWindow, OxaShortcut::General);
    mainWindow.show();
    QWidget other;
    QVERIFY(Windows::activate(other));
    QCOMPARE(hub.emittedFor(other, searchKeys), QStringLiteral("openGlobalSearch"));
}

void tst_OxaAppSignalsKeys::ignoresTheKeysOfAGroupThatIsNotRegistered()
{
    Hub hub;
    QWidget window;
    hub.registerShortcuts(&window, OxaShortcut::Messaging);
    QVERIFY(Windows::activate(window));
    QCOMPARE(hub.emittedFor(window, searchKeys), QString());
    QCOMPARE(hub.emittedFor(window, Qt::CTRL | Qt::Key_G), QStringLiteral("addGif"));
}

void tst_OxaAppSignalsKeys::ignoresTheKeysOfADisabledShortcut()
{
    Hub hub;
    QWidget window;
    hub.registerShortcuts(&window, OxaShortcut::General);
    QVERIFY(Windows::activate(window));
    hub.disableShortcut(Shortcut::OpenGlobalSearch);
    QCOMPARE(hub.emittedFor(window, searchKeys), QString());
    QCOMPARE(hub.emittedFor(window, Qt::Key_F1), QStringLiteral("openHelpPopUp"));
    hub.disableAll();
    QCOMPARE(hub.emittedFor(window, Qt::Key_F1), QString());
}

void tst_OxaAppSignalsKeys::ignoresTheKeysOfATemporarilyDisabledShortcut()
{
    Hub hub;
    QWidget window;
    hub.registerShortcuts(&window, OxaShortcut::General);
    QVERIFY(Windows::activate(window));
    const auto general = hub.getGroupShortcuts(OxaShortcut::General);
    general.at(Shortcut::OpenGlobalSearch)->temporarilyDisable(true);
    QCOMPARE(hub.emittedFor(window, searchKeys), QString());
    general.at(Shortcut::OpenGlobalSearch)->temporarilyDisable(false);
    QCOMPARE(hub.emittedFor(window, searchKeys), QStringLiteral("openGlobalSearch"));
}

void tst_OxaAppSignalsKeys::ignoresAllKeysAfterTheMainWindow()
{
    Hub hub;
    auto mainWindow = std::make_unique<QWidget>();
    hub.registerShortcuts(mainWindow.get(), OxaShortcut::General);
    mainWindow->show();
    QWidget other;
    QVERIFY(Windows::activate(other));
    mainWindow.reset();
    QCOMPARE(hub.emittedFor(other, searchKeys), QString());
}

void tst_OxaAppSignalsKeys::mayBeDisabledByItsOwnSignal()
{
    Hub hub;
    QWidget window;
    hub.registerShortcuts(&window, OxaShortcut::General);
    QVERIFY(Windows::activate(window));
    connect(&hub, &OxaAppSignals::openGlobalSearch, &hub, &OxaAppSignals::disableAll);
    QCOMPARE(hub.emittedFor(window, searchKeys), QStringLiteral("openGlobalSearch"));
    QVERIFY(!hub.shortcutExists(Shortcut::OpenGlobalSearch));
    QCOMPARE(hub.emittedFor(window, searchKeys), QString());
}

void tst_OxaAppSignalsKeys::survivesASlotThatDeletes_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::newRow("the shortcut") << QByteArray("OxaShortcut");
    QTest::newRow("the window") << QByteArray("QWidget");
    QTest::newRow("the hub") << QByteArray("OxaAppSignals");
}

void tst_OxaAppSignalsKeys::survivesASlotThatDeletes()
{
    QFETCH(const QByteArray, type);
    QObject owner;
    const QPointer<OxaAppSignals> hub = new OxaAppSignals(&owner);
    const QPointer<QWidget> window = new QWidget;
    hub->registerShortcuts(window, OxaShortcut::General);
    const QPointer<OxaShortcut> shortcut = hub->getGroupShortcuts(OxaShortcut::General)
                                                   .at(Shortcut::OpenGlobalSearch);
    QVERIFY(Windows::activate(*window));
    connect(hub, &OxaAppSignals::openGlobalSearch, this, [&] {
        for (QObject *object : std::initializer_list<QObject *> { shortcut, window, hub }) {
            if (object->metaObject()->className() == type)
                delete object;
        }
    });
    QTest::keySequence(window, searchKeys);
    QCOMPARE(!window, type == "QWidget");
    QCOMPARE(!hub, type == "OxaAppSignals");
    QCOMPARE(!shortcut, type == "OxaShortcut" || type == "QWidget");
    delete window;
}

void tst_OxaAppSignalsKeys::survivesASlotThatDeletesTheHubWithItsShortcut_data()
{
    QTest::addColumn<bool>("all");
    QTest::newRow("of one shortcut") << false;
    QTest::newRow("of all shortcuts") << true;
}

void tst_OxaAppSignalsKeys::survivesASlotThatDeletesTheHubWithItsShortcut()
{
    QFETCH(const bool, all);
    auto hub = std::make_unique<OxaAppSignals>();
    QWidget window;
    hub->registerShortcuts(&window, OxaShortcut::Tool);
    const auto tools = hub->getGroupShortcuts(OxaShortcut::Tool);
    for (const auto &tool : tools)
        connect(tool.second, &QObject::destroyed, &window, [&hub] { hub.reset(); });
    if (all)
        hub->disableAll();
    else
        hub->disableShortcut(Shortcut::ReloadAllQmlViews);
    QVERIFY(!hub);
    QVERIFY(!tools.at(Shortcut::ReloadAllQmlViews));
    QCOMPARE(!tools.at(Shortcut::ShowDevToolsDialog), all);
}

void tst_OxaAppSignalsKeys::showsTheDebugWindowForTheDevelopersKeys()
{
    Hub hub;
    QWidget window;
    registerDebugShortcuts(hub, &window);
    QVERIFY(Windows::activate(window));
    QCOMPARE(hub.emittedFor(window, debugKeys), QStringLiteral("showDebugWindow"));
}

void tst_OxaAppSignalsKeys::leavesKeysThatTwoShortcutsShareWithoutEffect()
{
    Hub hub;
    QWidget window;
    hub.registerShortcuts(&window, OxaShortcut::General);
    registerDebugShortcuts(hub, &window);
    QVERIFY(Windows::activate(window));
    QCOMPARE(hub.emittedFor(window, debugKeys), QString());
    hub.disableShortcut(Shortcut::OpenDiagnosticsDetails);
    QCOMPARE(hub.emittedFor(window, debugKeys), QStringLiteral("showDebugWindow"));
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_OxaAppSignalsKeys)
#include "tst_oxaappsignals_keys.moc"
