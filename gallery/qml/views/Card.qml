// SPDX-License-Identifier: Apache-2.0
import QtQuick 2.15
import UiElements 1.0

OxaBalloon {
    id: root

    readonly property var looks: controller.model ? controller.model : {}

    width: 240
    height: 112
    radius: 8
    arrowAlignment: controller.arrowAlignment
    arrowAnchor: controller.arrowAnchor
    arrowOffset: controller.arrowOffset
    backgroundColor: looks.background ? looks.background : "transparent"
    borderColor: looks.border ? looks.border : "transparent"

    Accessible.name: looks.text ? looks.text : ""

    OxaQmlPopupController {
        id: controller
    }

    Text {
        anchors.fill: parent
        anchors.margins: 16
        color: root.looks.color ? root.looks.color : "transparent"
        font.pixelSize: root.looks.pixelSize ? root.looks.pixelSize : 14
        horizontalAlignment: Text.AlignHCenter
        text: root.looks.text ? root.looks.text : ""
        verticalAlignment: Text.AlignVCenter
        wrapMode: Text.WordWrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
