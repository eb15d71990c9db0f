// SPDX-License-Identifier: Apache-2.0
#include "AppUtils.h"

#include <UiElements/app/OxaApplication.h>

#include <QPixmap>

namespace {

const OxaApplication *application()
{
    return qobject_cast<OxaApplication *>(QCoreApplication::instance());
}

} // namespace

QString AppUtils::getAppSvgIconPath()
{
    const OxaApplication *app = application();
    return app ? app->getLogoSvgPath() : QString();
}

QString AppUtils::getAppPngIconPath()
{
    const OxaApplication *app = application();
    return app ? app->getLogoPngPath() : QString();
}

QIcon AppUtils::getDialogIcon(bool transparent)
{
    if (!transparent)
        return QIcon(getAppPngIconPath());

    QPixmap pixmap(32, 32);
    pixmap.fill(Qt::transparent);
    return QIcon(pixmap);
}

bool AppUtils::isRTLLayoutDirection()
{
    return application() && QGuiApplication::layoutDirection() == Qt::RightToLeft;
}
