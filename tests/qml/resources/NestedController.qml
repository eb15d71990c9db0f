// SPDX-License-Identifier: Apache-2.0
import QtQuick 2.15
import Tests 1.0

Item {
    Item {
        TestController {}
    }
}
