// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

class OxaLabel;

/// What stands in the place of a list that has nothing to show: what is missing, what to try, and a
/// button that does it.
class EmptyState : public OxaWidget
{
    Q_OBJECT

public:
    EmptyState(const QString &advice, const QString &action, QWidget *parent = nullptr);

    /// Sets the line that tells what is missing.
    void setSummary(const QString &summary);

Q_SIGNALS:
    /// The button was pressed.
    void actionTriggered();

private:
    OxaLabel *m_summary;
};
