// SPDX-License-Identifier: Apache-2.0
import QtQuick 2.15

Item {
    Missing {}
}
