// SPDX-License-Identifier: Apache-2.0
#include "DebugShortcuts.h"
#include "ShortcutsTable.h"
#include "support/ContextTranslator.h"
#include "support/TestMain.h"

#include <QMetaEnum>
#include <QTest>
#include <QWidget>

using Shortcut = OxaAppSignals::Shortcut;

namespace {

/// Returns the names of the shortcuts that \a hub has registered, sorted.
QStringList registered(const OxaAppSignals &hub)
{
    const auto shortcuts = QMetaEnum::fromType<Shortcut>();
    QStringList found;
    for (int index = 0; index < shortcuts.keyCount(); ++index) {
        if (hub.shortcutExists(Shortcut(shortcuts.value(index))))
            found += QLatin1String(shortcuts.key(index));
    }
    found.sort();
    return found;
}

/// Returns the names of the table's rows that \a filter accepts, sorted.
template <typename Filter>
QStringList expected(Filter filter)
{
    QStringList found;
    for (const ShortcutData &row : shortcutsTable()) {
        if (filter(row))
            found += QLatin1String(row.name);
    }
    found.sort();
    return found;
}

QStringList registeredWith(int groups)
{
    return expected([groups](const ShortcutData &row) { return row.registeredWith & groups; });
}

int shortcutsOf(const QWidget &window) { return window.findChildren<OxaShortcut *>().size(); }

void ignoreWarning(const char *text) { QTest::ignoreMessage(QtWarningMsg, text); }

} // namespace

/// The table of shortcuts that the hub registers.
class tst_OxaAppSignalsShortcuts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbersItsShortcutsWithoutGaps();
    void namesEachShortcut_data() { addTable(); }
    void namesEachShortcut();
    void makesEachShortcut_data() { addTable(); }
    void makesEachShortcut();
    void makesThemInTheOrderOfTheTable();
    void registersTheGroupsThatAreAskedFor_data();
    void registersTheGroupsThatAreAskedFor();
    void findsAGroupsOwnShortcutsOnly_data();
    void findsAGroupsOwnShortcutsOnly();
    void handsOutACopyOfAGroup();
    void translatesDescriptionsInItsOwnContext();

    void refusesToRegisterWithoutAWindow();
    void refusesASecondRegistrationWhileTheFirstLives();
    void forgetsTheShortcutsWithTheirWindow();
    void keepsTheShortcutsWhenAnEarlierWindowGoes_data();
    void keepsTheShortcutsWhenAnEarlierWindowGoes();
    void survivesTheHub();

    void deletesADisabledShortcut();
    void removesAShortcutThatIsGoneAlready();
    void deletesAllShortcuts();
    void registersAgainAfterAllWereDisabled();
    void warnsOfAKeyThatIsNotRegistered();
    void warnsOfAKeyWhoseShortcutIsGone();

    void registersTheShortcutForDevelopersApart();
    void replacesARegisteredShortcutAndLeavesTheOldOneAlone();

private:
    static void addTable();
};

void tst_OxaAppSignalsShortcuts::addTable()
{
    QTest::addColumn<const ShortcutData *>("row");
    for (const ShortcutData &row : shortcutsTable())
        QTest::newRow(row.name) << &row;
}

void tst_OxaAppSignalsShortcuts::numbersItsShortcutsWithoutGaps()
{
    const auto shortcuts = QMetaEnum::fromType<Shortcut>();
    for (int number = 0; number < shortcuts.keyCount(); ++number)
        QCOMPARE(shortcuts.value(number), number);
    QCOMPARE(int(Shortcut::Debug_ShowDebugWindow), 58);
    // The table leaves out the shortcut for developers.
    QCOMPARE(shortcuts.keyCount(), int(shortcutsTable().size()) + 1);
}

void tst_OxaAppSignalsShortcuts::namesEachShortcut()
{
    QFETCH(const ShortcutData *, row);
    QCOMPARE(QMetaEnum::fromType<Shortcut>().valueToKey(row->number), row->name);
}

void tst_OxaAppSignalsShortcuts::makesEachShortcut()
{
    QFETCH(const ShortcutData *, row);
    OxaAppSignals hub;
    QWidget window;
    hub.registerShortcuts(&window, OxaShortcut::All);
    QVERIFY(hub.shortcutExists(row->id()));
    QCOMPARE(hub.getKeySequence(row->id()), row->keys);
    QVERIFY(!row->keys.isEmpty());

    const auto group = hub.getGroupShortcuts(row->group);
    const auto entry = group.find(row->id());
    QVERIFY(entry != group.end());
    const OxaShortcut *shortcut = entry->second;
    QCOMPARE(shortcut->key(), row->keys);
    QCOMPARE(shortcut->parentWidget(), &window);
    QCOMPARE(shortcut->context(), Qt::ApplicationShortcut);
    QCOMPARE(shortcut->getShortcutGroup(), row->group);
    QCOMPARE(shortcut->getShortcutDescription(), QLatin1String(row->description));
    QVERIFY(shortcut->isEnabled());
}

void tst_OxaAppSignalsShortcuts::makesThemInTheOrderOfTheTable()
{
    OxaAppSignals hub;
    QWidget window;
    hub.registerShortcuts(&window, OxaShortcut::All);
    QStringList made;
    for (const OxaShortcut *shortcut : window.findChildren<OxaShortcut *>())
        made += shortcut->key().toString();
    QStringList wanted;
    for (const ShortcutData &row : shortcutsTable())
        wanted += row.keys.toString();
    QCOMPARE(made, wanted);
}

void tst_OxaAppSignalsShortcuts::registersTheGroupsThatAreAskedFor_data()
{
    QTest::addColumn<OxaShortcut::ShortcutGroup>("groups");
    QTest::newRow("general") << OxaShortcut::General;
    QTest::newRow("messaging") << OxaShortcut::Messaging;
    QTest::newRow("calling and meeting") << OxaShortcut::CallingAndMeeting;
    QTest::newRow("tools") << OxaShortcut::Tool;
    QTest::newRow("two groups at once") << (OxaShortcut::General | OxaShortcut::Tool);
    QTest::newRow("all, without the one for developers") << OxaShortcut::All;
    QTest::newRow("no group") << OxaShortcut::ShortcutGroup(0);
}

void tst_OxaAppSignalsShortcuts::registersTheGroupsThatAreAskedFor()
{
    QFETCH(OxaShortcut::ShortcutGroup, groups);
    OxaAppSignals hub;
    QWidget window;
    hub.registerShortcuts(&window, groups);
    QCOMPARE(registered(hub), registeredWith(groups));
    QCOMPARE(shortcutsOf(window), registeredWith(groups).size());
    QCOMPARE(hub.shortcutExists(Shortcut::EndCall), (groups & OxaShortcut::CallingAndMeeting) != 0);
    QVERIFY(!hub.shortcutExists(Shortcut::Debug_ShowDebugWindow));
}

void tst_OxaAppSignalsShortcuts::findsAGroupsOwnShortcutsOnly_data()
{
    QTest::addColumn<OxaShortcut::ShortcutGroup>("group");
    QTest::newRow("general") << OxaShortcut::General;
    QTest::newRow("messaging, without the two that have no group") << OxaShortcut::Messaging;
    QTest::newRow("calling and meeting") << OxaShortcut::CallingAndMeeting;
    QTest::newRow("tools") << OxaShortcut::Tool;
    QTest::newRow("the two that have no group") << OxaShortcut::All;
    QTest::newRow("bits are not tested") << (OxaShortcut::General | OxaShortcut::Messaging);
}

void tst_OxaAppSignalsShortcuts::findsAGroupsOwnShortcutsOnly()
{
    QFETCH(OxaShortcut::ShortcutGroup, group);
    OxaAppSignals hub;
    QWidget window;
    hub.registerShortcuts(&window, OxaShortcut::All);
    QStringList found;
    for (const auto &[id, shortcut] : hub.getGroupShortcuts(group)) {
        found += QLatin1String(QMetaEnum::fromType<Shortcut>().valueToKey(int(id)));
        QCOMPARE(shortcut->getShortcutGroup(), group);
        QCOMPARE(shortcut->key(), hub.getKeySequence(id));
    }
    found.sort();
    QCOMPARE(found, expected([group](const ShortcutData &row) { return row.group == group; }));
}

void tst_OxaAppSignalsShortcuts::handsOutACopyOfAGroup()
{
    OxaAppSignals hub;
    QWidget window;
    hub.registerShortcuts(&window, OxaShortcut::Tool);
    auto shortcuts = hub.getGroupShortcuts(OxaShortcut::Tool);
    shortcuts.clear();
    QCOMPARE(hub.getGroupShortcuts(OxaShortcut::Tool).size(), std::size_t(2));
}

void tst_OxaAppSignalsShortcuts::translatesDescriptionsInItsOwnContext()
{
    OxaAppSignals hub;
    QWidget window;
    const ContextTranslator translator;
    hub.registerShortcuts(&window, OxaShortcut::All);
    const auto general = hub.getGroupShortcuts(OxaShortcut::General);
    QCOMPARE(general.at(Shortcut::OpenGlobalSearch)->getShortcutDescription(),
             QStringLiteral("OxaAppSignals/Search"));
    const auto tools = hub.getGroupShortcuts(OxaShortcut::Tool);
    QCOMPARE(tools.at(Shortcut::ReloadAllQmlViews)->getShortcutDescription(), QString());
}

void tst_OxaAppSignalsShortcuts::refusesToRegisterWithoutAWindow()
{
    OxaAppSignals hub;
    ignoreWarning("Unable to register shortcuts, MainWindow must not be null!");
    hub.registerShortcuts(nullptr, OxaShortcut::All);
    QCOMPARE(registered(hub), QStringList());
}

void tst_OxaAppSignalsShortcuts::refusesASecondRegistrationWhileTheFirstLives()
{
    constexpr auto refusal =
            "Shortcuts are already registred on another MainWindow! This should never happen.";
    OxaAppSignals hub;
    QWidget first;
    QWidget second;
    hub.registerShortcuts(&first, OxaShortcut::General);
    ignoreWarning(refusal);
    hub.registerShortcuts(&second, OxaShortcut::Messaging);
    ignoreWarning(refusal);
    hub.registerShortcuts(&first, OxaShortcut::Messaging);
    QCOMPARE(registered(hub), registeredWith(OxaShortcut::General));
    QCOMPARE(shortcutsOf(first), registered(hub).size());
    QCOMPARE(shortcutsOf(second), 0);
}

void tst_OxaAppSignalsShortcuts::forgetsTheShortcutsWithTheirWindow()
{
    OxaAppSignals hub;
    auto window = std::make_unique<QWidget>();
    hub.registerShortcuts(window.get(), OxaShortcut::All);
    const QPointer<OxaShortcut> shortcut = window->findChild<OxaShortcut *>();
    QVERIFY(shortcut);
    window.reset();
    QVERIFY(!shortcut);
    QCOMPARE(registered(hub), QStringList());

    QWidget next;
    hub.registerShortcuts(&next, OxaShortcut::Tool);
    QCOMPARE(registered(hub), registeredWith(OxaShortcut::Tool));
}

void tst_OxaAppSignalsShortcuts::keepsTheShortcutsWhenAnEarlierWindowGoes_data()
{
    QTest::addColumn<bool>("oneByOne");
    QTest::newRow("all were disabled at once") << false;
    QTest::newRow("each was disabled") << true;
}

void tst_OxaAppSignalsShortcuts::keepsTheShortcutsWhenAnEarlierWindowGoes()
{
    QFETCH(const bool, oneByOne);
    OxaAppSignals hub;
    auto first = std::make_unique<QWidget>();
    QWidget second;
    hub.registerShortcuts(first.get(), OxaShortcut::Tool);
    if (oneByOne) {
        hub.disableShortcut(Shortcut::ReloadAllQmlViews);
        hub.disableShortcut(Shortcut::ShowDevToolsDialog);
    } else {
        hub.disableAll();
    }
    hub.registerShortcuts(&second, OxaShortcut::Tool);
    first.reset();
    QCOMPARE(registered(hub), registeredWith(OxaShortcut::Tool));
    ignoreWarning("Shortcuts are already registred on another MainWindow! "
                  "This should never happen.");
    hub.registerShortcuts(&second, OxaShortcut::Tool);
    QCOMPARE(shortcutsOf(second), registered(hub).size());
}

void tst_OxaAppSignalsShortcuts::survivesTheHub()
{
    auto hub = std::make_unique<OxaAppSignals>();
    auto window = std::make_unique<QWidget>();
    hub->registerShortcuts(window.get(), OxaShortcut::Tool);
    hub.reset();
    QCOMPARE(shortcutsOf(*window), registeredWith(OxaShortcut::Tool).size());
    Q_EMIT window->findChild<OxaShortcut *>()->activated();
    window.reset();
}

void tst_OxaAppSignalsShortcuts::deletesADisabledShortcut()
{
    OxaAppSignals hub;
    QWidget window;
    hub.registerShortcuts(&window, OxaShortcut::Tool);
    const auto tools = hub.getGroupShortcuts(OxaShortcut::Tool);
    hub.disableShortcut(Shortcut::ReloadAllQmlViews);
    QVERIFY(!tools.at(Shortcut::ReloadAllQmlViews));
    QVERIFY(tools.at(Shortcut::ShowDevToolsDialog));
    QCOMPARE(registered(hub), QStringList(QStringLiteral("ShowDevToolsDialog")));

    ignoreWarning("Did not find shortcut with id ( 21 )");
    hub.disableShortcut(Shortcut::ReloadAllQmlViews);
    QCOMPARE(registered(hub), QStringList(QStringLiteral("ShowDevToolsDialog")));
}

void tst_OxaAppSignalsShortcuts::removesAShortcutThatIsGoneAlready()
{
    OxaAppSignals hub;
    QWidget window;
    hub.registerShortcuts(&window, OxaShortcut::Tool);
    delete hub.getGroupShortcuts(OxaShortcut::Tool).at(Shortcut::ReloadAllQmlViews).data();
    QVERIFY(hub.shortcutExists(Shortcut::ReloadAllQmlViews));
    QCOMPARE(hub.getGroupShortcuts(OxaShortcut::Tool).size(), std::size_t(1));
    hub.disableShortcut(Shortcut::ReloadAllQmlViews);
    QVERIFY(!hub.shortcutExists(Shortcut::ReloadAllQmlViews));
}

void tst_OxaAppSignalsShortcuts::deletesAllShortcuts()
{
    OxaAppSignals hub;
    QWidget window;
    hub.registerShortcuts(&window, OxaShortcut::All);
    delete window.findChild<OxaShortcut *>();
    hub.disableAll();
    QCOMPARE(registered(hub), QStringList());
    QCOMPARE(shortcutsOf(window), 0);
    hub.disableAll();
    QCOMPARE(registered(hub), QStringList());
}

void tst_OxaAppSignalsShortcuts::registersAgainAfterAllWereDisabled()
{
    OxaAppSignals hub;
    QWidget window;
    hub.registerShortcuts(&window, OxaShortcut::General);
    hub.disableAll();
    hub.registerShortcuts(&window, OxaShortcut::Tool);
    QCOMPARE(registered(hub), registeredWith(OxaShortcut::Tool));
    QCOMPARE(shortcutsOf(window), registered(hub).size());
}

void tst_OxaAppSignalsShortcuts::warnsOfAKeyThatIsNotRegistered()
{
    OxaAppSignals hub;
    QWidget window;
    hub.registerShortcuts(&window, OxaShortcut::General);
    ignoreWarning("ShortcutId ( 11 ) is not registered! This should never happen");
    QCOMPARE(hub.getKeySequence(Shortcut::EndCall), QKeySequence());
}

void tst_OxaAppSignalsShortcuts::warnsOfAKeyWhoseShortcutIsGone()
{
    OxaAppSignals hub;
    QWidget window;
    hub.registerShortcuts(&window, OxaShortcut::Tool);
    delete hub.getGroupShortcuts(OxaShortcut::Tool).at(Shortcut::ReloadAllQmlViews).data();
    ignoreWarning("ShortcutId ( 21 ) is null! This should never happen");
    QCOMPARE(hub.getKeySequence(Shortcut::ReloadAllQmlViews), QKeySequence());
}

void tst_OxaAppSignalsShortcuts::registersTheShortcutForDevelopersApart()
{
    OxaAppSignals hub;
    QWidget window;
    hub.registerShortcuts(&window, OxaShortcut::General);
    registerDebugShortcuts(hub, &window);
    QCOMPARE(registered(hub).size(), registeredWith(OxaShortcut::General).size() + 1);
    QCOMPARE(hub.getKeySequence(Shortcut::Debug_ShowDebugWindow),
             hub.getKeySequence(Shortcut::OpenDiagnosticsDetails));

    const auto ungrouped = hub.getGroupShortcuts(OxaShortcut::All);
    QCOMPARE(ungrouped.size(), std::size_t(1));
    const OxaShortcut *shortcut = ungrouped.at(Shortcut::Debug_ShowDebugWindow);
    QCOMPARE(shortcut->getShortcutDescription(), QString());
    QCOMPARE(shortcut->context(), Qt::ApplicationShortcut);
    QCOMPARE(shortcut->parentWidget(), &window);
}

void tst_OxaAppSignalsShortcuts::replacesARegisteredShortcutAndLeavesTheOldOneAlone()
{
    OxaAppSignals hub;
    QWidget window;
    registerDebugShortcuts(hub, &window);
    const QPointer<OxaShortcut> first = window.findChild<OxaShortcut *>();
    ignoreWarning("This ShortcutId( 58 ) is already registered in the application. "
                  "This should never happen!");
    registerDebugShortcuts(hub, &window);
    QVERIFY(first);
    QCOMPARE(shortcutsOf(window), 2);
    QCOMPARE(registered(hub), QStringList(QStringLiteral("Debug_ShowDebugWindow")));
    const auto ungrouped = hub.getGroupShortcuts(OxaShortcut::All);
    QVERIFY(ungrouped.at(Shortcut::Debug_ShowDebugWindow) != first);
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_OxaAppSignalsShortcuts)
#include "tst_oxaappsignals_shortcuts.moc"
