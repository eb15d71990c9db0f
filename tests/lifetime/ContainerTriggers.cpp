// SPDX-License-Identifier: Apache-2.0
#include "WidgetTriggers.h"

#include <UiElements/widgets/OxaDateTimeEdit.h>
#include <UiElements/widgets/OxaDialog.h>
#include <UiElements/widgets/OxaFrame.h>
#include <UiElements/widgets/OxaListView.h>
#include <UiElements/widgets/OxaListWidget.h>
#include <UiElements/widgets/OxaMainWindow.h>
#include <UiElements/widgets/OxaProgressBar.h>
#include <UiElements/widgets/OxaSlider.h>
#include <UiElements/widgets/OxaSplitter.h>
#include <UiElements/widgets/OxaStackedWidget.h>
#include <UiElements/widgets/OxaTimeEdit.h>
#include <UiElements/widgets/OxaTreeView.h>

#include <QLabel>
#include <QResizeEvent>
#include <QScrollBar>

namespace {

/// Shows a list whose rows wait for a pass.
void addRowsInABatch(OxaListWidget &list)
{
    list.setItemWidgetsDynamicLoadingEnabled(true);
    list.show();
    list.beginInsert();
    for (int row = 0; row < 3; ++row)
        list.insertItem(row, new QListWidgetItem(QStringLiteral("row")));
}

void loadRows(OxaListWidget &list)
{
    QObject::connect(&list, &OxaListWidget::updateItemWidget, &list,
                     [&list](QListWidgetItem *item) { list.setItemWidget(item, new QLabel); });
    addRowsInABatch(list);
    list.endInsert();
}

void addListSignalRows(SignalTriggers &rows)
{
    rows.push_back(row<OxaListWidget>(
            "updateItemWidget(QListWidgetItem*)", "endInsert()",
            [](OxaListWidget &list) { list.endInsert(); }, &addRowsInABatch));
    rows.push_back(row<OxaListWidget>(
            "updateItemWidget(QListWidgetItem*)", "its scroll bar",
            [](OxaListWidget &list) {
                list.removeItemWidget(list.item(2));
                list.verticalScrollBar()->setValue(1);
            },
            [](OxaListWidget &list) {
                loadRows(list);
                list.verticalScrollBar()->setMaximum(1);
            }));
    rows.push_back(row<OxaListWidget>(
            "updateItemSize(QListWidgetItem*)", "the event of resize()",
            [](OxaListWidget &list) {
                send(*list.viewport(), QResizeEvent(QSize(10, 10), QSize(20, 10)));
            },
            &loadRows));
    rows.push_back(row<OxaListWidget>("visibleUpdated()", "setVisible()",
                                      [](OxaListWidget &list) { list.setVisible(true); }));
    rows.push_back(row<OxaListWidget>("visibleUpdated()", "hide()",
                                      [](OxaListWidget &list) { list.hide(); }));
}

} // namespace

void addContainerTriggers(SignalTriggers &rows)
{
    addThemeRows<OxaListView>(rows);
    addThemeRows<OxaTreeView>(rows);
    addThemeRows<OxaListWidget>(rows);
    addListSignalRows(rows);
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
