// SPDX-License-Identifier: Apache-2.0
#include "support/Guards.h"

#include <UiElements/app/AppUtils.h>

#include <QTest>

/// The helpers under a plain QApplication, which has neither logo nor theme.
class tst_AppUtilsWithoutApplication : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knowsNoLogo();
    void ignoresAForeignApplicationsProperties();
    void makesATransparentDialogIcon();
    void takesTheLayoutDirectionForLeftToRight();
};

void tst_AppUtilsWithoutApplication::knowsNoLogo()
{
    QCOMPARE(AppUtils::getAppSvgIconPath(), QString());
    QCOMPARE(AppUtils::getAppPngIconPath(), QString());
    QVERIFY(AppUtils::getDialogIcon(false).isNull());
}

void tst_AppUtilsWithoutApplication::ignoresAForeignApplicationsProperties()
{
    const ApplicationPropertyGuard svg("logoSvgPath", QStringLiteral(":/logo.svg"));
    const ApplicationPropertyGuard png("logoPngPath", QStringLiteral(":/logo.png"));
    knowsNoLogo();
}

void tst_AppUtilsWithoutApplication::makesATransparentDialogIcon()
{
    QCOMPARE(AppUtils::getDialogIcon(true).availableSizes(), QList<QSize> { QSize(32, 32) });
}

void tst_AppUtilsWithoutApplication::takesTheLayoutDirectionForLeftToRight()
{
    const LayoutDirectionGuard direction(Qt::RightToLeft);
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::RightToLeft);
    QVERIFY(!AppUtils::isRTLLayoutDirection());
}

QTEST_MAIN(tst_AppUtilsWithoutApplication)
#include "tst_apputils_withoutapplication.moc"
