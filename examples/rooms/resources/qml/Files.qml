// SPDX-License-Identifier: Apache-2.0
import QtQuick 2.15

Rectangle {
    id: page

    readonly property int textSize: looks.fonts.BodySecondary.pixelSize
    readonly property int rowHeight: Math.max(44, Math.ceil(textSize * 2.6))

    color: looks.colors["window"]
    LayoutMirroring.enabled: looks.isRightToLeft
    LayoutMirroring.childrenInherit: true

    function iconOf(kind) {
        return kind === "picture" || kind === "movie" ? "picture"
             : kind === "table" ? "table" : kind === "archive" ? "files" : "file"
    }

    FileColumns {
        id: header

        x: list.x
        width: list.width
        height: 40 * page.textSize / 14
        token: "BodyTertiary"
        name: qsTr("Name")
        owner: qsTr("Owner")
        size: qsTr("Size")
        changed: qsTr("Changed")
    }
    Rectangle {
        anchors.bottom: header.bottom
        width: parent.width
        height: 1
        color: looks.colors["divider"]
    }
    ListView {
        id: list

        x: 16
        width: parent.width - 32
        anchors.top: header.bottom
        anchors.bottom: parent.bottom
        anchors.topMargin: 4
        clip: true
        // Its rows are mirrored by the page. It would begin again at the top itself; and if it moves
        // just then, Qt first makes all rows above the old place, which can be a million.
        LayoutMirroring.enabled: false
        boundsBehavior: Flickable.StopAtBounds
        model: files.model
        activeFocusOnTab: true
        focus: true
        highlightMoveDuration: 0
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Files")

        onContentYChanged: files.scrollTo(Math.max(0, indexAt(1, contentY + height / 2)))
        onCountChanged: contentYChanged()
        Keys.onPressed: {
            const rows = Math.floor(height / page.rowHeight)
            const steps = { [Qt.Key_PageDown]: rows, [Qt.Key_PageUp]: -rows,
                            [Qt.Key_Home]: -count, [Qt.Key_End]: count }
            if (event.key in steps) {
                currentIndex = Math.max(0, Math.min(count - 1, currentIndex + steps[event.key]))
                event.accepted = true
            }
        }

        delegate: Rectangle {
            id: row

            readonly property bool isHere: model.name !== undefined
            readonly property bool isCurrent: ListView.isCurrentItem && list.activeFocus

            width: list.width
            height: page.rowHeight
            radius: 8
            color: area.containsMouse ? looks.colors[area.pressed ? "row.pressed" : "row.hovered"]
                                      : "transparent"
            border.width: isCurrent ? 2 : 0
            border.color: looks.colors["focus"]
            Accessible.role: Accessible.ListItem
            Accessible.name: isHere ? model.name : qsTr("Loading")

            Image {
                visible: row.isHere
                anchors.left: parent.left
                anchors.leftMargin: 12
                anchors.verticalCenter: parent.verticalCenter
                width: 20
                height: 20
                sourceSize: Qt.size(40, 40) // Sharp on a screen of 200 %, too.
                source: row.isHere ? "image://icons/" + page.iconOf(model.kind) + "/"
                                     + looks.colors["text-accent"] : ""
            }
            FileColumns {
                visible: row.isHere
                anchors.fill: parent
                token: "BodySecondary"
                nameColors: "text-primary"
                name: row.isHere ? model.name : ""
                owner: row.isHere ? files.personName(model.owner) : ""
                size: row.isHere ? files.sizeText(model.size) : ""
                changed: row.isHere ? Qt.formatDate(model.at, Qt.DefaultLocaleShortDate) : ""
            }
            Row {
                visible: !row.isHere && !model.failed
                anchors.left: parent.left
                anchors.leftMargin: 12
                anchors.verticalCenter: parent.verticalCenter
                spacing: 12

                Rectangle {
                    width: 20
                    height: 20
                    radius: 4
                    color: looks.colors["placeholder-bar"]
                }
                Rectangle {
                    anchors.verticalCenter: parent.verticalCenter
                    width: 120 + (index * 53) % 160
                    height: 10
                    radius: 5
                    color: looks.colors["placeholder-bar"]
                }
            }
            Label {
                visible: !row.isHere && !!model.failed
                anchors.left: parent.left
                anchors.leftMargin: 44
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("Could not be loaded. Trying again…")
            }
            MouseArea {
                id: area

                property point start

                anchors.fill: parent
                hoverEnabled: true
                preventStealing: true
                onPressed: {
                    start = Qt.point(mouse.x, mouse.y)
                    list.currentIndex = index
                    list.forceActiveFocus(Qt.MouseFocusReason)
                }
                onPositionChanged: {
                    const way = Math.abs(mouse.x - start.x) + Math.abs(mouse.y - start.y)
                    if (!pressed || !row.isHere || way < 10)
                        return
                    start = Qt.point(NaN, NaN)
                    files.dragRequested(model.name)
                }
            }
        }
    }
    ScrollHandle {
        anchors.right: parent.right
        anchors.top: list.top
        anchors.bottom: parent.bottom
        view: list
    }
    Label {
        visible: list.count === 0
        anchors.centerIn: parent
        text: qsTr("No files yet")
    }
    Item {
        id: breakQmlFocus
        activeFocusOnTab: true
    }
}
