// SPDX-License-Identifier: Apache-2.0
import QtQml 2.15

QtObject {
    required property int value
}
