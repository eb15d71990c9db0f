// SPDX-License-Identifier: Apache-2.0
import QtQuick 2.15

// A button in the colours of the set "KIND-button".
Rectangle {
    id: button

    property string text
    property string kind: "outline"
    readonly property string state_: area.pressed ? ".pressed" : area.containsMouse ? ".hovered" : ""

    signal clicked()

    implicitWidth: label.implicitWidth + 32
    implicitHeight: Math.max(32, label.implicitHeight + 12)
    radius: 6
    color: looks.colors[kind + "-button" + state_]
    border.width: activeFocus ? 2 : 1
    border.color: looks.colors[kind + "-button-border" + (activeFocus ? ".focused" : "")]
    activeFocusOnTab: true

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.onPressAction: clicked()
    Keys.onSpacePressed: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    Text {
        id: label
        anchors.centerIn: parent
        text: button.text
        font: looks.fonts.SubheaderSecondary
        color: looks.colors[button.kind + "-button-text"]
    }
    MouseArea {
        id: area
        anchors.fill: parent
        hoverEnabled: true
        cursorShape: Qt.PointingHandCursor
        onClicked: button.clicked()
    }
}
