// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaLabel.h>

/// A label that aligns its text with the layout, whatever the language of the text.
///
/// OxaLabel aligns for texts that run as the layout does, and again at each change of the
/// direction. The gallery shows English in a right-to-left layout as well.
class AlignedLabel : public OxaLabel
{
    Q_OBJECT

public:
    /// The horizontal position of the text.
    enum class Place {
        Start,  ///< Where lines of the layout begin.
        Centre, ///< In the middle.
    };

    explicit AlignedLabel(const QString &text, QWidget *parent = nullptr,
                          Place place = Place::Start);

    /// Aligns the text of another \a label in the same way from now on.
    static void keepAligned(QLabel *label, Place place = Place::Start);
};
