// SPDX-License-Identifier: Apache-2.0
#include "Card.h"

#include "Labels.h"
#include "looks/Metrics.h"

#include <UiElements/widgets/OxaLabel.h>

#include <QVBoxLayout>

namespace {

constexpr int headingHeight = 32;

/// Above the heading's line, which has some room above its text.
constexpr int topMargin = 11;

} // namespace

Card::Card(const QString &heading, const QString &explanation, QWidget *parent)
    : OxaWidget(parent), m_headingLine(new QHBoxLayout), m_body(new QVBoxLayout)
{
    setCSS(QStringLiteral("$backgroundColors: gallery-card-background;"
                          "$borderColors: gallery-card-border;"
                          "$borderRadius: 8;"));

    m_headingLine->setSpacing(Metrics::small);
    // As high as a control beside the heading, so that headings of adjacent cards are aligned.
    m_headingLine->addStrut(headingHeight);
    m_headingLine->addWidget(Labels::heading(heading, this), 1);
    m_body->setSpacing(Metrics::spacing);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(Metrics::gap, topMargin, Metrics::gap, Metrics::gap);
    column->setSpacing(0);
    column->addLayout(m_headingLine);
    if (!explanation.isEmpty())
        column->addWidget(Labels::paragraph(explanation, this));
    column->addSpacing(Metrics::small + Metrics::tight);
    column->addLayout(m_body, 1);
}

void Card::addToHeading(QWidget *widget) { m_headingLine->addWidget(widget, 0, Qt::AlignVCenter); }
