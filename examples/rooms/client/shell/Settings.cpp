// SPDX-License-Identifier: Apache-2.0
#include "Settings.h"

#include "protocol/Literal.h"

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
    return { Theme(qBound(0, stored.value(u"theme"_s).toInt(), 3)),
             Direction(qBound(0, stored.value(u"direction"_s).toInt(), 2)),
             qBound(50, stored.value(u"fontScale"_s, 100).toInt(), 150),
             qBound(-1, stored.value(u"messagingSize"_s).toInt(), 2),
             stored.value(u"animationsDisabled"_s).toBool(),
             stored.value(u"previewsShown"_s, true).toBool(),
             stored.value(u"displayName"_s).toString(),
             stored.value(u"webAddress"_s).toString() };
}

void Settings::save() const
{
    QSettings stored;
    stored.setValue(u"theme"_s, int(theme));
    stored.setValue(u"direction"_s, int(direction));
    stored.setValue(u"fontScale"_s, fontScale);
    stored.setValue(u"messagingSize"_s, messagingSize);
    stored.setValue(u"animationsDisabled"_s, animationsDisabled);
    stored.setValue(u"previewsShown"_s, previewsShown);
    stored.setValue(u"displayName"_s, displayName);
    stored.setValue(u"webAddress"_s, webAddress);
}
