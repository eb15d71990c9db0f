// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PeopleRow.h"

#include <QTimer>

#include <deque>

/// Draws what a card has been doing in the last seconds. The present is at the end of the line,
/// where text ends.
class HoverTimeline : public OxaWidget
{
    Q_OBJECT

public:
    HoverTimeline(const PeopleRow *people, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void sample();

    const PeopleRow *const m_people;
    std::deque<PeopleRow::State> m_states; // the latest last
    QTimer m_timer;
};
