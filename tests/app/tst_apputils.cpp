// SPDX-License-Identifier: Apache-2.0
#include "support/Guards.h"
#include "support/Pixels.h"
#include "support/TestApplication.h"

#include <UiElements/app/AppUtils.h>

#include <QTemporaryDir>

class tst_AppUtils : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void returnsTheLogoPaths();
    void makesATransparentDialogIcon();
    void makesNoDialogIconWithoutALogo();
    void makesADialogIconOfThePngLogo();
    void returnsTheLayoutDirection();
};

void tst_AppUtils::returnsTheLogoPaths()
{
    QCOMPARE(AppUtils::getAppSvgIconPath(), QString());
    QCOMPARE(AppUtils::getAppPngIconPath(), QString());
    const ApplicationPropertyGuard svg("logoSvgPath", QStringLiteral(":/logo.svg"));
    const ApplicationPropertyGuard png("logoPngPath", QStringLiteral(":/logo.png"));
    QCOMPARE(AppUtils::getAppSvgIconPath(), QStringLiteral(":/logo.svg"));
    QCOMPARE(AppUtils::getAppPngIconPath(), QStringLiteral(":/logo.png"));
}

void tst_AppUtils::makesATransparentDialogIcon()
{
    const QIcon icon = AppUtils::getDialogIcon(true);
    QCOMPARE(icon.availableSizes(), QList<QSize> { QSize(32, 32) });
    QImage expected(32, 32, QImage::Format_ARGB32_Premultiplied);
    expected.fill(Qt::transparent);
    QCOMPARE(icon.pixmap(32, 32).toImage().convertToFormat(expected.format()), expected);
    // Qt keeps each pixmap that it has drawn: a client opens dialogs all day.
    QCOMPARE(AppUtils::getDialogIcon(true).pixmap(32, 32).cacheKey(),
             icon.pixmap(32, 32).cacheKey());
}

void tst_AppUtils::makesNoDialogIconWithoutALogo()
{
    const ApplicationPropertyGuard svg("logoSvgPath", QStringLiteral(":/logo.svg"));
    QVERIFY(AppUtils::getDialogIcon(false).isNull());
}

void tst_AppUtils::makesADialogIconOfThePngLogo()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("logo.png"));
    QImage logo(16, 16, QImage::Format_RGB32);
    logo.fill(Qt::magenta);
    QVERIFY(logo.save(path));
    const ApplicationPropertyGuard png("logoPngPath", path);
    const QIcon icon = AppUtils::getDialogIcon(false);
    QCOMPARE(icon.availableSizes(), QList<QSize> { QSize(16, 16) });
    QCOMPARE(Pixels::countNear(icon.pixmap(16, 16).toImage(), Qt::magenta), 16 * 16);
}

void tst_AppUtils::returnsTheLayoutDirection()
{
    QVERIFY(!AppUtils::isRTLLayoutDirection());
    const LayoutDirectionGuard direction(Qt::RightToLeft);
    QVERIFY(AppUtils::isRTLLayoutDirection());
}

UIELEMENTS_TEST_MAIN(tst_AppUtils)
#include "tst_apputils.moc"
