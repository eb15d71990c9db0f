// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaPushButton.h>

/// A flat checkable button with one tool tip for each of its two states.
///
/// Only setChecked() of this class shows the state's tool tip: a click that toggles the button and
/// the property `checked` bypass it and change neither tool tip nor accessible name.
class UIELEMENTS_EXPORT OxaToggleButton : public OxaPushButton
{
    Q_OBJECT

public:
    /// Makes an unchecked button without tool tips.
    explicit OxaToggleButton(QWidget *parent = nullptr);

    /// Sets the tool tips of the two states and shows the one of the current state. Hides
    /// QWidget::setToolTip().
    void setToolTip(const QString &checkedTip, const QString &uncheckedTip);

    /// Checks or unchecks the button and makes the state's tip its tool tip and accessible name.
    /// Hides QAbstractButton::setChecked().
    void setChecked(bool checked);

private:
    QString currentToolTip() const;

    QString m_checkedToolTip;
    QString m_uncheckedToolTip;
};
