// SPDX-License-Identifier: Apache-2.0
#include "HoverTimeline.h"

#include <UiElements/theme/OxaThemeUtils.h>

#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace {

constexpr int sampleMs = 50;
constexpr std::size_t samples = 160; // 8 seconds
constexpr int lineHeight = 24;

/// The colour sets of the states, and how much of the line's height each fills, in quarters. So
/// states differ without colour too.
const struct
{
    const char *colorSet;
    int quarters;
} looks[] = { { "gallery-divider", 1 },
              { "gallery-note-border", 2 },
              { "gallery-accent", 4 },
              { "gallery-error-border", 3 } };

} // namespace

HoverTimeline::HoverTimeline(const PeopleRow *people, QWidget *parent)
    : OxaWidget(parent), m_people(people), m_states(samples, PeopleRow::State::Hidden)
{
    setFixedHeight(lineHeight);
    setMinimumWidth(samples);
    setAccessibleName(tr("Timeline of the card"));
    m_timer.setInterval(sampleMs);
    connect(&m_timer, &QTimer::timeout, this, &HoverTimeline::sample);
    m_timer.start();
}

void HoverTimeline::sample()
{
    if (!isVisible())
        return;
    const PeopleRow::State state = m_people->state();
    const bool isSteady = std::all_of(m_states.begin(), m_states.end(),
                                      [state](PeopleRow::State each) { return each == state; });
    m_states.pop_front();
    m_states.push_back(state);
    if (!isSteady)
        update();
}

void HoverTimeline::paintEvent(QPaintEvent *event)
{
    OxaWidget::paintEvent(event);
    QPainter painter(this);
    for (std::size_t i = 0; i < samples; ++i) {
        const auto &look = looks[static_cast<std::size_t>(m_states[i])];
        const int left = int(i) * width() / int(samples);
        const int right = int(i + 1) * width() / int(samples);
        const int height = lineHeight * look.quarters / 4;
        const QRect bar(left, lineHeight - height, right - left, height);
        painter.fillRect(QStyle::visualRect(layoutDirection(), rect(), bar),
                         OxaThemeUtils::getColorSet(look.colorSet, this).normal);
    }
}
