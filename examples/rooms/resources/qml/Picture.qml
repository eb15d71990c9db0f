// SPDX-License-Identifier: Apache-2.0
import QtQuick 2.15

// The round picture of a person.
Rectangle {
    id: picture

    property var person

    height: width
    radius: width / 2
    color: looks.colors["person-" + person.color]
    border.width: 1
    border.color: looks.colors["person-border"]

    Text {
        anchors.centerIn: parent
        text: picture.person.initials
        color: looks.colors["person-text"]
        font.family: looks.fonts.Title.family
        font.weight: Font.DemiBold
        font.pixelSize: picture.width * 3 / 8
    }
}
