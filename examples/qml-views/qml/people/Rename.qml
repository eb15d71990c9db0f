// SPDX-License-Identifier: Apache-2.0
import QtQuick 2.15
import Client 1.0

Rectangle {
    width: 240
    height: 60

    RenameController {
        id: controller
    }
    TextInput {
        anchors.fill: parent
        anchors.margins: 16
        focus: true
        text: controller.name
        Accessible.role: Accessible.EditableText
        Accessible.name: qsTr("Name")
        onAccepted: controller.accepted(text)
    }
}
