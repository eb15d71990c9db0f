// SPDX-License-Identifier: Apache-2.0
import QtQuick 2.15
import UiElements 1.0

OxaBalloon {
    id: card

    readonly property var person: controller.model || cards.nobody

    width: Math.max(288, actions.implicitWidth + 32)
    height: content.implicitHeight + 32 + arrowSize
    radius: 10
    arrowSize: 8
    backgroundColor: looks.colors["panel"]
    borderColor: looks.colors["panel-border"]
    arrowAnchor: controller.arrowAnchor
    arrowOffset: controller.arrowOffset

    LayoutMirroring.enabled: looks.isRightToLeft
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.Dialog
    Accessible.name: person.name

    OxaQmlPopupController {
        id: controller
    }
    Column {
        id: content

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: 16
        y: 16 + (controller.arrowAnchor === OxaBalloon.Top ? card.arrowSize : 0)
        spacing: 16

        Row {
            width: parent.width
            spacing: 12

            Picture {
                id: picture
                width: 48
                person: card.person
            }
            Column {
                width: parent.width - picture.width - parent.spacing
                spacing: 2

                Label {
                    width: parent.width
                    horizontalAlignment: Text.AlignLeft
                    text: card.person.name
                    token: "SubheaderPrimary"
                    colors: "text-primary"
                }
                Label {
                    width: parent.width
                    horizontalAlignment: Text.AlignLeft
                    text: card.person.title
                }
                PresenceLine {
                    person: card.person
                }
            }
        }
        Row {
            id: actions

            spacing: 8

            TextButton {
                kind: "accent"
                text: qsTr("Message")
                onClicked: cards.messageRequested(card.person.id)
            }
            TextButton {
                text: qsTr("Profile")
                onClicked: cards.profileRequested(card.person.id)
            }
        }
    }
}
