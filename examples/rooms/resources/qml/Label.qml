// SPDX-License-Identifier: Apache-2.0
import QtQuick 2.15

// A text in the font of a token and in the colours of a set.
Text {
    property string token: "BodySecondary"
    property string colors: "text-secondary"

    font: looks.fonts[token]
    color: looks.colors[colors]
    elide: Text.ElideRight
    textFormat: Text.PlainText
}
