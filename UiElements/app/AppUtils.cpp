// SPDX-License-Identifier: Apache-2.0
#include "AppUtils.h"

#include <UiElements/app/ApplicationObject_p.h>
#include <UiElements/app/OxaApplication.h>

#include <QPixmapCache>

QString AppUtils::getAppSvgIconPath()
{
    const auto *app = ApplicationObject::find<OxaApplication>();
    return app ? app->getLogoSvgPath() : QString();
}

QString AppUtils::getAppPngIconPath()
{
    const auto *app = ApplicationObject::find<OxaApplication>();
    return app ? app->getLogoPngPath() : QString();
}

QIcon AppUtils::getDialogIcon(bool transparent)
{
    if (!transparent)
        return QIcon(getAppPngIconPath());

    // One for all: Qt keeps the pixmap of each other icon that it has drawn.
    static const QString key = QStringLiteral("UiElements::transparentIcon");
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = QPixmap(32, 32);
        pixmap.fill(Qt::transparent);
        QPixmapCache::insert(key, pixmap);
    }
    return QIcon(pixmap);
}

bool AppUtils::isRTLLayoutDirection()
{
    return ApplicationObject::find<OxaApplication>()
            && QGuiApplication::layoutDirection() == Qt::RightToLeft;
}
