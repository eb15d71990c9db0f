// SPDX-License-Identifier: Apache-2.0
import QtQuick 2.15
import UiElements 1.0

OxaBalloon {
    width: 120
    height: 80
    arrowAnchor: controller ? controller.arrowAnchor : OxaBalloon.None
    arrowOffset: controller ? controller.arrowOffset : 0

    OxaQmlPopupController {
        id: controller
    }
}
