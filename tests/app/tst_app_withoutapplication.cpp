// SPDX-License-Identifier: Apache-2.0
#include "support/Guards.h"
#include "support/TestMain.h"

#include <UiElements/app/AppUtils.h>
#include <UiElements/app/OxaAppSignals.h>
#include <UiElements/app/OxaGlobalSignalListener.h>
#include <UiElements/qml/DialogContext.h>
#include <UiElements/qml/OxaPopupQuickView.h>
#include <UiElements/qml/OxaQmlEngine.h>
#include <UiElements/qml/OxaQuickWidget.h>
#include <UiElements/qml/PopupContext.h>

#include <QTest>

/// AppUtils and the signal hubs under a plain QApplication, which has neither logo nor theme.
class tst_AppWithoutApplication : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knowsNoLogo();
    void ignoresAForeignApplicationsProperties();
    void makesATransparentDialogIcon();
    void assumesLeftToRight();

    void warnsAtEachRequestForTheHub();
    void warnsAtEachRequestForTheListener();
    void worksWithAHubMadeByHand();
    void makesNoQmlViews();
    void makesAQmlEngineAndContextsSilently();
};

void tst_AppWithoutApplication::knowsNoLogo()
{
    QCOMPARE(AppUtils::getAppSvgIconPath(), QString());
    QCOMPARE(AppUtils::getAppPngIconPath(), QString());
    QVERIFY(AppUtils::getDialogIcon(false).isNull());
}

void tst_AppWithoutApplication::ignoresAForeignApplicationsProperties()
{
    const ApplicationPropertyGuard svg("logoSvgPath", QStringLiteral(":/logo.svg"));
    const ApplicationPropertyGuard png("logoPngPath", QStringLiteral(":/logo.png"));
    knowsNoLogo();
}

void tst_AppWithoutApplication::makesATransparentDialogIcon()
{
    QCOMPARE(AppUtils::getDialogIcon(true).availableSizes(), QList<QSize> { QSize(32, 32) });
}

void tst_AppWithoutApplication::assumesLeftToRight()
{
    const LayoutDirectionGuard direction(Qt::RightToLeft);
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::RightToLeft);
    QVERIFY(!AppUtils::isRTLLayoutDirection());
}

void tst_AppWithoutApplication::warnsAtEachRequestForTheHub()
{
    for (int call = 0; call < 2; ++call) {
        QTest::ignoreMessage(QtWarningMsg, "Unable to find OxaApplication");
        QVERIFY(!OxaAppSignals::get());
    }
}

void tst_AppWithoutApplication::warnsAtEachRequestForTheListener()
{
    for (int call = 0; call < 2; ++call) {
        QTest::ignoreMessage(QtWarningMsg, "Unable to find OxaApplication");
        QVERIFY(!OxaGlobalSignalListener::get());
    }
}

void tst_AppWithoutApplication::worksWithAHubMadeByHand()
{
    OxaAppSignals hub;
    QWidget window;
    hub.registerShortcuts(&window, OxaShortcut::General);
    QVERIFY(hub.shortcutExists(OxaAppSignals::Shortcut::OpenGlobalSearch));
}

void tst_AppWithoutApplication::makesNoQmlViews()
{
    const QString source = QStringLiteral("Any.qml");
    const auto expectWarning = [] {
        QTest::ignoreMessage(QtWarningMsg,
                             "Unable to create QML view! OxaQmlEngine is not attached to "
                             "OxaApplication! This should never happen!");
    };
    QWidget parent;
    expectWarning();
    QVERIFY(!OxaQmlEngine::createQmlWidget(source, &parent, {}, {}));
    expectWarning();
    QVERIFY(!OxaQmlEngine::createQmlWindow(source, nullptr, {}, {}));
    expectWarning();
    QVERIFY(!OxaQmlEngine::createQmlDialog(source, nullptr, {}, {}, true));
    expectWarning();
    QVERIFY(!OxaQmlEngine::createQmlPopup(source, nullptr, {}, {}, true));
    expectWarning();
    QVERIFY(!OxaQmlEngine::createControllerQmlWindow(source, &parent, {}, {}));
    expectWarning();
    QVERIFY(!OxaQmlEngine::createControllerQmlDialog(source, &parent, {}, {}));
    expectWarning();
    OxaQmlEngine::createQmlComponent(source, &parent, {}, {});
    QVERIFY(parent.children().isEmpty());
}

void tst_AppWithoutApplication::makesAQmlEngineAndContextsSilently()
{
    const OxaQmlEngine engine;
    const DialogContext dialogs;
    const PopupContext popups;
    QVERIFY(!engine.isReadingQmlFromDisk());
    QVERIFY(!dialogs.oxaQuickViewExists("Any.qml"));
    QVERIFY(!popups.isVisible(QStringLiteral("Any.qml")));
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_AppWithoutApplication)
#include "tst_app_withoutapplication.moc"
