// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLabel>

#include <widgets/Buttons.h>
#include <widgets/SegmentedControl.h>

/// Finds and uses the controls of a card by their names, as a user does.
namespace Controls {

/// Returns the child of \a parent with \a name as its accessible name, or with a label that says
/// so; or null.
template <typename Widget>
Widget *called(const QWidget &parent, const char *name)
{
    const auto widgets = parent.findChildren<Widget *>();
    for (Widget *widget : widgets) {
        if (widget->accessibleName() == QLatin1String(name))
            return widget;
    }
    const auto labels = parent.findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->buddy() && label->text() == QLatin1String(name))
            return qobject_cast<Widget *>(label->buddy());
    }
    return nullptr;
}

/// Returns the button below \a parent whose text is \a text, or null.
template <typename ButtonClass = OxaPushButton>
ButtonClass *withText(const QWidget &parent, const char *text)
{
    const auto buttons = parent.findChildren<ButtonClass *>();
    for (ButtonClass *button : buttons) {
        if (button->text() == QString::fromUtf8(text))
            return button;
    }
    return nullptr;
}

/// Chooses the segment \a text of the control called \a name.
inline void choose(const QWidget &parent, const char *name, const char *text)
{
    withText<OxaToggleButton>(*called<SegmentedControl>(parent, name), text)->click();
}

} // namespace Controls
