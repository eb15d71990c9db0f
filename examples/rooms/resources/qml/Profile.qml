// SPDX-License-Identifier: Apache-2.0
import QtQuick 2.15
import Rooms 1.0

Rectangle {
    id: profile

    readonly property var person: controller.model ? controller.model.person : null

    width: Math.max(400, actions.implicitWidth + 48)
    height: content.implicitHeight + 48
    color: looks.colors["panel"]
    border.width: 1
    border.color: looks.colors["panel-border"]

    LayoutMirroring.enabled: looks.isRightToLeft
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.Dialog
    Accessible.name: person ? person.name : ""
    Keys.onEscapePressed: controller.closed()

    ProfileController {
        id: controller
    }
    Column {
        id: content

        anchors.fill: parent
        anchors.margins: 24
        spacing: 16

        Picture {
            anchors.horizontalCenter: parent.horizontalCenter
            width: 96
            height: 96
            person: profile.person
        }
        Column {
            width: parent.width
            spacing: 4

            Text {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                text: profile.person ? profile.person.name : ""
                elide: Text.ElideRight
                font: looks.fonts.Title
                color: looks.colors["text-primary"]
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            Text {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                text: profile.person ? profile.person.title : ""
                elide: Text.ElideRight
                font: looks.fonts.BodySecondary
                color: looks.colors["text-secondary"]
            }
            PresenceLine {
                anchors.horizontalCenter: parent.horizontalCenter
                person: profile.person
            }
        }
        Text {
            width: parent.width
            visible: text !== ""
            wrapMode: Text.Wrap
            text: profile.person ? profile.person.about : ""
            textFormat: Text.PlainText
            font: looks.fonts.BodySecondary
            color: looks.colors["text-primary"]
        }
        Row {
            id: actions

            anchors.right: parent.right
            spacing: 8

            TextButton {
                text: qsTr("Close")
                onClicked: controller.closed()
            }
            TextButton {
                focus: true
                kind: "accent"
                text: qsTr("Message")
                onClicked: controller.messageRequested(profile.person.id)
            }
        }
    }
}
