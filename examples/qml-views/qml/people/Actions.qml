// SPDX-License-Identifier: Apache-2.0
import QtQuick 2.15
import UiElements 1.0

OxaBalloon {
    width: 160
    height: 60
    radius: 8
    backgroundColor: "#f7f7f7"
    borderColor: "#757575"
    arrowAnchor: controller.arrowAnchor
    arrowOffset: controller.arrowOffset
    Accessible.role: Accessible.Dialog
    Accessible.name: label.text

    OxaQmlPopupController {
        id: controller
    }
    Text {
        id: label
        anchors.centerIn: parent
        text: qsTr("Nothing to do")
    }
}
