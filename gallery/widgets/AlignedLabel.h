// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaLabel.h>

/// A label that keeps its text where the layout wants it, whatever language the text is in.
///
/// OxaLabel takes the side that suits an interface whose texts run as its layout does, and takes it
/// anew at each change of the direction. The gallery shows English from right to left as well.
class AlignedLabel : public OxaLabel
{
    Q_OBJECT

public:
    /// Where the text stands across the label.
    enum class Place {
        Start,  ///< Where lines of the layout begin.
        Centre, ///< In the middle.
    };

    explicit AlignedLabel(const QString &text, QWidget *parent = nullptr,
                          Place place = Place::Start);

private:
    void align();

    const Place m_place;
};
