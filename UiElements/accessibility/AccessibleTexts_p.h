// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

class QWidget;

/// What widgets of the library say: their texts without markup, with emoji as characters, and what
/// they show beside them. Each function takes a widget of the class in its name.
namespace AccessibleTexts {

/// Returns the text of a label. Without the marks of keys, where it has a buddy.
QString ofLabel(const QWidget &label);

/// Returns the text of a button of any kind, without the marks of keys.
QString ofButton(const QWidget &button);

/// Returns the texts of the labels in \a container that it shows, such as those of a banner.
QString ofLabelsIn(const QWidget &container);

/// Returns the header of a popup, or else the accessible name of its content.
QString ofPopup(const QWidget &popup);

/// Says that a button has a badge, or an unread dot.
QString badgeOf(const QWidget &button);

/// Returns what a combo box shows where that is not its name.
QString choiceOf(const QWidget &comboBox);

/// Returns the counter of the field with the line edit \a edit: "3 of 20 characters".
QString counterOf(const QWidget &edit);

/// Returns the messages of the errors in \a field, any widget or a part of a field; or else says
/// that there is one where it shows that.
QString errorOf(const QWidget &field);

} // namespace AccessibleTexts
