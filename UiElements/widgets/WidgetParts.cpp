// SPDX-License-Identifier: Apache-2.0
#include "WidgetParts_p.h"

void WidgetParts::tellAccessibility(QWidget *widget, QAccessible::Event event)
{
    if (!QAccessible::isActive())
        return; // Qt would make an interface for it all the same.
    QAccessibleEvent told(widget, event);
    QAccessible::updateAccessibility(&told);
}
