// SPDX-License-Identifier: Apache-2.0
import QtQuick 2.15

// The type does not exist, so that the page can show what becomes of such a file.
MissingType {}
