// SPDX-License-Identifier: Apache-2.0
import QtQuick 2.15

// A scroll bar for a view: a handle that tells where the view is, and that can be dragged.
Item {
    id: bar

    property ListView view
    readonly property real way: height - handle.height
    readonly property real contentWay: Math.max(1, view.contentHeight - view.height)

    width: 12
    visible: view.contentHeight > view.height

    Rectangle {
        id: handle

        x: 2
        y: Math.max(0, Math.min(1, (bar.view.contentY - bar.view.originY) / bar.contentWay)) * bar.way
        width: 8
        height: Math.max(32, bar.height * bar.view.visibleArea.heightRatio)
        radius: 4
        color: looks.colors[area.containsMouse || area.pressed ? "scroll-handle.hovered"
                                                               : "scroll-handle"]
    }
    MouseArea {
        id: area

        anchors.fill: parent
        hoverEnabled: true
        preventStealing: true
        onPressed: scroll(mouse.y)
        onPositionChanged: if (pressed) scroll(mouse.y)

        function scroll(y) {
            const part = Math.max(0, Math.min(1, (y - handle.height / 2) / bar.way))
            bar.view.contentY = bar.view.originY + Math.round(part * bar.contentWay)
        }
    }
}
