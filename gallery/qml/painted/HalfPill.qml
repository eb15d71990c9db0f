// SPDX-License-Identifier: Apache-2.0
import QtQuick 2.15
import Gallery 1.0
import UiElements 1.0

Rectangle {
    id: root

    color: controller.surface

    PaintedItemController {
        id: controller

        item: pill
    }

    OxaHalfPill {
        id: pill

        // On whole pixels, so that straight edges are sharp.
        x: Math.round((root.width - width) / 2)
        y: Math.round((root.height - height) / 2)
        width: 200
        height: 48
        borderWidth: 2
        backgroundColor: controller.background
        borderColor: controller.border
        Accessible.name: "OxaHalfPill"

        // These do not repaint by themselves.
        onBorderChanged: update()
        onEdgeChanged: update()
    }
}
