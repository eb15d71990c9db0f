// SPDX-License-Identifier: Apache-2.0
import QtQuick 2.15

Rectangle {
    implicitWidth: 240
    implicitHeight: 40
    color: "#dcebff"

    Text {
        anchors.centerIn: parent
        text: qsTr("Two people")
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
