// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

/// A coloured box that shows a status: a bold line, and an explanation.
class StatusBox : public OxaWidget
{
    Q_OBJECT

public:
    /// The kind of status, which selects the box's colours.
    enum class Kind { Note, Success, Warning, Error };

    StatusBox(Kind kind, const QString &summary, const QString &explanation,
              QWidget *parent = nullptr);

    /// Deletes all widgets of \a layout, to remove outdated boxes.
    static void clear(QLayout *layout);
};
