// SPDX-License-Identifier: Apache-2.0
#include <UiElements/app/OxaAppSignals.h>
#include <UiElements/app/OxaGlobalSignalListener.h>

#include <QTest>

/// OxaAppSignals and OxaGlobalSignalListener in a process with a plain QApplication.
class tst_SignalHubsWithoutApplication : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void warnsAtEachRequestForTheHub();
    void warnsAtEachRequestForTheListener();
    void servesAHubThatSomebodyMadeForItself();
};

void tst_SignalHubsWithoutApplication::warnsAtEachRequestForTheHub()
{
    for (int call = 0; call < 2; ++call) {
        QTest::ignoreMessage(QtWarningMsg, "Unable to find OxaApplication");
        QVERIFY(!OxaAppSignals::get());
    }
}

void tst_SignalHubsWithoutApplication::warnsAtEachRequestForTheListener()
{
    for (int call = 0; call < 2; ++call) {
        QTest::ignoreMessage(QtWarningMsg, "Unable to find OxaApplication");
        QVERIFY(!OxaGlobalSignalListener::get());
    }
}

void tst_SignalHubsWithoutApplication::servesAHubThatSomebodyMadeForItself()
{
    OxaAppSignals hub;
    QWidget window;
    hub.registerShortcuts(&window, OxaShortcut::General);
    QVERIFY(hub.shortcutExists(OxaAppSignals::Shortcut::OpenGlobalSearch));
}

QTEST_MAIN(tst_SignalHubsWithoutApplication)
#include "tst_signalhubs_withoutapplication.moc"
