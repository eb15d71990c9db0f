// SPDX-License-Identifier: Apache-2.0
import QtQuick 2.15

// The texts of a row, or of the header, of the files. The name takes what the others leave.
Item {
    id: columns

    property string name
    property string owner
    property string size
    property string changed
    property string token
    property string nameColors: "text-secondary"
    readonly property real unit: looks.fonts.BodySecondary.pixelSize / 14

    Label {
        anchors.left: parent.left
        anchors.leftMargin: 44
        anchors.right: others.left
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        horizontalAlignment: Text.AlignLeft
        text: columns.name
        elide: Text.ElideMiddle
        token: columns.token
        colors: columns.nameColors
    }
    Row {
        id: others

        anchors.right: parent.right
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        spacing: 16

        Repeater {
            model: [
                { text: columns.owner, width: 160, isShown: columns.width > 640 * columns.unit - 32 },
                { text: columns.size, width: 80, isShown: true },
                { text: columns.changed, width: 96, isShown: true }
            ]
            Label {
                visible: modelData.isShown
                width: modelData.width * columns.unit
                horizontalAlignment: index === 0 ? Text.AlignLeft : Text.AlignRight
                text: modelData.text
                token: columns.token
            }
        }
    }
}
