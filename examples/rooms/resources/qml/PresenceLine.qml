// SPDX-License-Identifier: Apache-2.0
import QtQuick 2.15

// The presence of a person as shape, colour and word.
Row {
    id: line

    property var person

    spacing: 6

    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        width: 10
        height: 10
        radius: 5
        color: line.person.presence === "offline" ? "transparent" : border.color
        border.width: 2
        border.color: looks.colors["presence-" + line.person.presence]

        Rectangle {
            visible: line.person.presence === "busy"
            anchors.centerIn: parent
            width: 6
            height: 2
            color: looks.colors["panel"]
        }
        Rectangle {
            visible: line.person.presence === "away"
            width: 6
            height: 6
            radius: 3
            color: looks.colors["panel"]
        }
    }
    Label {
        text: line.person.presenceText
    }
}
