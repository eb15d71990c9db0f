// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

class OxaLabel;
class Slider;

/// A slider for a number, with a caption before it and the number behind it.
class NumberRow : public OxaWidget
{
    Q_OBJECT

public:
    /// Makes a row for numbers from \a minimum to \a maximum. A \a word stands for the smallest
    /// one.
    NumberRow(const QString &caption, int minimum, int maximum, int value,
              const QString &word = QString(), QWidget *parent = nullptr);

    int value() const;

    /// Sets the number. Signals that it changed if it did.
    void setValue(int value);

Q_SIGNALS:
    void valueChanged(int value);

private:
    void showValue();

    const QString m_word;
    Slider *m_slider;
    OxaLabel *m_number;
};
