// SPDX-License-Identifier: Apache-2.0
import QtQuick 2.15

// The presence of a person as shape, colour and word.
Row {
    id: line

    property var person
    readonly property color dot: person ? looks.colors["presence-" + person.presence] : "transparent"

    spacing: 6

    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        width: 10
        height: 10
        radius: 5
        color: line.person && line.person.presence === "offline" ? "transparent" : line.dot
        border.width: 2
        border.color: line.dot

        Rectangle {
            visible: !!line.person && line.person.presence === "busy"
            anchors.centerIn: parent
            width: 6
            height: 2
            color: looks.colors["panel"]
        }
        Rectangle {
            visible: !!line.person && line.person.presence === "away"
            x: 0
            y: 0
            width: 6
            height: 6
            radius: 3
            color: looks.colors["panel"]
        }
    }
    Text {
        text: line.person ? line.person.presenceText : ""
        font: looks.fonts.BodySecondary
        color: looks.colors["text-secondary"]
    }
}
