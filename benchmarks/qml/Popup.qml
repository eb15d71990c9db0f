// SPDX-License-Identifier: Apache-2.0
import QtQuick 2.15
import UiElements 1.0

OxaBalloon {
    width: 240
    height: 260
    radius: 8
    backgroundColor: "#f7f7f7"
    borderColor: "#757575"
    arrowAnchor: controller.arrowAnchor
    arrowOffset: controller.arrowOffset

    OxaQmlPopupController {
        id: controller
    }
    Column {
        anchors.fill: parent
        anchors.margins: 20
        Repeater {
            model: 12
            Text {
                text: qsTr("row %1 of the content").arg(index)
            }
        }
    }
}
