// SPDX-License-Identifier: Apache-2.0
import QtQuick 2.15
import QtQuick.Window 2.15
import UiElements 1.0

Rectangle {
    id: root

    readonly property var looks: controller.model ? controller.model : {}

    // A dialog closes by Escape, as those of widgets do. This may be a window, or a part of one, too.
    focus: true
    Keys.onEscapePressed: {
        if ((Window.window.flags & Qt.WindowType_Mask) === Qt.Dialog)
            Window.window.close();
    }

    implicitWidth: 320
    implicitHeight: 120
    width: implicitWidth
    height: implicitHeight
    color: looks.background ? looks.background : "transparent"

    OxaQmlDialogController {
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
