// SPDX-License-Identifier: Apache-2.0
#include "OxaColorSet.h"

#include <QDebug>

namespace {

constexpr char invalidStateWarning[] = "OxaColorSet: color state is invalid!";

} // namespace

OxaColorSet::OxaColorSet(const QString &setName, const QColor &color)
    : name(setName),
      normal(color),
      hovered(color),
      pressed(color),
      disabled(color),
      focused(color),
      checked(color)
{
}

bool OxaColorSet::isValid() const
{
    return !name.isEmpty() && normal.isValid() && hovered.isValid() && pressed.isValid()
            && disabled.isValid() && focused.isValid() && checked.isValid();
}

QColor OxaColorSet::colorForState(QStringView state) const
{
    if (state == QLatin1String("normal"))
        return normal;
    if (state == QLatin1String("hovered"))
        return hovered;
    if (state == QLatin1String("pressed"))
        return pressed;
    if (state == QLatin1String("disabled"))
        return disabled;
    if (state == QLatin1String("focused"))
        return focused;
    if (state == QLatin1String("checked"))
        return checked;

    QMessageLogger().warning() << invalidStateWarning << state;
    return {};
}

bool operator==(const OxaColorSet &a, const OxaColorSet &b)
{
    return a.name == b.name && a.normal == b.normal && a.hovered == b.hovered
            && a.pressed == b.pressed && a.disabled == b.disabled && a.focused == b.focused
            && a.checked == b.checked;
}
