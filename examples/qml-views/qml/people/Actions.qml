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

    OxaQmlPopupController {
        id: controller
    }
    Text {
        anchors.centerIn: parent
        text: qsTr("Nothing to do")
    }
}
