// SPDX-License-Identifier: Apache-2.0
#include "Settings.h"

#include <QSettings>

#include <tuple>

namespace {

auto values(const Settings &settings)
{
    return std::tie(settings.theme, settings.direction, settings.fontScale, settings.messagingSize,
                    settings.animationsDisabled, settings.previewsShown, settings.displayName,
                    settings.webAddress);
}

} // namespace

bool operator==(const Settings &a, const Settings &b) { return values(a) == values(b); }

Settings Settings::load()
{
    const QSettings stored;
    const auto number = [&stored](const char *key, int least, int most, int otherwise) {
        return qBound(least, stored.value(QLatin1String(key), otherwise).toInt(), most);
    };
    Settings result;
    result.theme = Theme(number("theme", 0, 3, 0));
    result.direction = Direction(number("direction", 0, 2, 0));
    result.fontScale = number("fontScale", 50, 150, 100);
    result.messagingSize = number("messagingSize", -1, 2, 0);
    result.animationsDisabled = stored.value(QStringLiteral("animationsDisabled")).toBool();
    result.previewsShown = stored.value(QStringLiteral("previewsShown"), true).toBool();
    result.displayName = stored.value(QStringLiteral("displayName")).toString();
    result.webAddress = stored.value(QStringLiteral("webAddress")).toString();
    return result;
}

void Settings::save() const
{
    QSettings stored;
    stored.setValue(QStringLiteral("theme"), int(theme));
    stored.setValue(QStringLiteral("direction"), int(direction));
    stored.setValue(QStringLiteral("fontScale"), fontScale);
    stored.setValue(QStringLiteral("messagingSize"), messagingSize);
    stored.setValue(QStringLiteral("animationsDisabled"), animationsDisabled);
    stored.setValue(QStringLiteral("previewsShown"), previewsShown);
    stored.setValue(QStringLiteral("displayName"), displayName);
    stored.setValue(QStringLiteral("webAddress"), webAddress);
}
