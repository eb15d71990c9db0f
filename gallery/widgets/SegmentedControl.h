// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

class QButtonGroup;

/// A row of buttons of which one is checked: a choice between a few visible options.
class SegmentedControl : public OxaWidget
{
    Q_OBJECT

public:
    /// Makes a control with a segment for each of \a texts; the first is checked.
    explicit SegmentedControl(const QStringList &texts, QWidget *parent = nullptr);

    int currentIndex() const;

    /// Checks the segment at \a index, without a signal.
    void setCurrentIndex(int index);

Q_SIGNALS:
    /// The user chose the segment at \a index.
    void chosen(int index);

private:
    QButtonGroup *m_buttons;
};
