// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

#include <functional>

class OxaLabel;
class OxaLineEdit;
class SegmentedControl;
class OxaSlider;

/// Controls with captions, in two columns if there is room. A control hands the user's choice to a
/// function, and its caption is its accessible name.
class ControlPanel : public OxaWidget
{
    Q_OBJECT

public:
    explicit ControlPanel(QWidget *parent = nullptr);

    /// Adds a choice between \a texts, of which \a current is checked.
    SegmentedControl *addChoice(const QString &caption, const QStringList &texts, int current,
                                const std::function<void(int index)> &choose);

    /// Adds a slider with its number behind it. \a word is shown instead of the smallest number.
    OxaSlider *addNumber(const QString &caption, int minimum, int maximum, int value,
                         const std::function<void(int value)> &change,
                         const QString &word = QString());

    /// Adds a field for a text.
    OxaLineEdit *addText(const QString &caption, const QString &text,
                         const std::function<void(const QString &text)> &change);

    /// Adds a read-only text, and returns its label.
    OxaLabel *addValue(const QString &caption, const QString &text = QString());

    /// Adds \a control.
    void add(const QString &caption, QWidget *control);

private:
    /// Returns the caption.
    OxaLabel *place(const QString &caption, QWidget *control);
};
