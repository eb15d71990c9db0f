// SPDX-License-Identifier: Apache-2.0
import QtQuick 2.15
import UiElements 1.0

Rectangle {
    id: profile

    readonly property var person: controller.model || cards.nobody

    width: Math.max(400, actions.implicitWidth + 48)
    height: content.implicitHeight + 48
    color: looks.colors["panel"]
    border.width: 1
    border.color: looks.colors["panel-border"]

    LayoutMirroring.enabled: looks.isRightToLeft
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.Dialog
    Accessible.name: person.name
    Keys.onEscapePressed: cards.profileClosed()

    OxaQmlDialogController {
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
            person: profile.person
        }
        Column {
            width: parent.width
            spacing: 4

            Label {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                text: profile.person.name
                token: "Title"
                colors: "text-primary"
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            Label {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                text: profile.person.title
            }
            PresenceLine {
                anchors.horizontalCenter: parent.horizontalCenter
                person: profile.person
            }
        }
        Label {
            width: parent.width
            visible: text !== ""
            elide: Text.ElideNone
            wrapMode: Text.Wrap
            text: profile.person.about
            colors: "text-primary"
        }
        Row {
            id: actions

            anchors.right: parent.right
            spacing: 8

            TextButton {
                text: qsTr("Close")
                onClicked: cards.profileClosed()
            }
            TextButton {
                focus: true
                kind: "accent"
                text: qsTr("Message")
                onClicked: cards.messageRequested(profile.person.id)
            }
        }
    }
}
