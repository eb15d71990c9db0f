// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

class OxaLabel;

/// Replaces a list that has nothing to show: says what is missing, and offers a button to act.
class EmptyState : public OxaWidget
{
    Q_OBJECT

public:
    EmptyState(const QString &advice, const QString &action, QWidget *parent = nullptr);

    /// Sets the line that says what is missing.
    void setSummary(const QString &summary);

Q_SIGNALS:
    /// The button was pressed.
    void actionTriggered();

private:
    OxaLabel *m_summary;
};
