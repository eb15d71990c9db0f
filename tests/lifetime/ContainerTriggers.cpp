// SPDX-License-Identifier: Apache-2.0
#include "WidgetTriggers.h"

#include <UiElements/widgets/OxaDateTimeEdit.h>
#include <UiElements/widgets/OxaDialog.h>
#include <UiElements/widgets/OxaFrame.h>
#include <UiElements/widgets/OxaMainWindow.h>
#include <UiElements/widgets/OxaProgressBar.h>
#include <UiElements/widgets/OxaSlider.h>
#include <UiElements/widgets/OxaSplitter.h>
#include <UiElements/widgets/OxaStackedWidget.h>
#include <UiElements/widgets/OxaTimeEdit.h>

void addContainerTriggers(SignalTriggers &rows)
{
    addOwnThemeRows<OxaMainWindow>(rows);
    addThemeRows<OxaDialog>(rows);
    addThemeRows<OxaFrame>(rows);
    addThemeRows<OxaSplitter>(rows);
    addThemeRows<OxaStackedWidget>(rows);
    addThemeRows<OxaDateTimeEdit>(rows);
    addThemeRows<OxaTimeEdit>(rows);
    addThemeRows<OxaSlider>(rows);
    addThemeRows<OxaProgressBar>(rows);
    const auto close = [](OxaDialog &dialog) { dialog.close(); };
    rows.push_back(row<OxaDialog>("onClose()", "close() while it is hidden", close));
    rows.push_back(row<OxaDialog>("onClose()", "close()", close,
                                  [](OxaDialog &dialog) { dialog.show(); }));
}
