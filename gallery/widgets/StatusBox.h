// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

/// A coloured box that tells how something is, in a bold line and one that explains it.
class StatusBox : public OxaWidget
{
    Q_OBJECT

public:
    /// How good the news is; which colours the box has.
    enum class Kind { Note, Success, Warning, Error };

    StatusBox(Kind kind, const QString &summary, const QString &explanation,
              QWidget *parent = nullptr);

    /// Deletes all widgets of \a layout, where boxes that are no longer true stand.
    static void clear(QLayout *layout);
};
