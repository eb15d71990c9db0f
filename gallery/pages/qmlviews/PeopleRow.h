// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/qml/PopupContext.h>
#include <UiElements/widgets/OxaWidget.h>

class OxaLabel;

/// A row of people, each with a card that opens when the pointer rests there.
class PeopleRow : public OxaWidget
{
    Q_OBJECT

public:
    /// What becomes of the card, in the order of the timeline's colours.
    enum class State { Hidden, Waiting, Shown, Closing };

    explicit PeopleRow(QWidget *parent = nullptr);

    /// Returns what the card does now.
    State state() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showCard(const OxaLabel *person);

    // Asking for timers is not const.
    mutable PopupContext m_popups;
};
