// SPDX-License-Identifier: Apache-2.0
#include "EmptyState.h"

#include "AlignedLabel.h"
#include "Buttons.h"
#include "looks/Metrics.h"

#include <QVBoxLayout>

namespace {

OxaLabel *makeLine(OxaFont::Token token, const char *styleText, QWidget *parent)
{
    auto *label = new AlignedLabel(QString(), parent, AlignedLabel::Place::Centre);
    label->setFontToken(token);
    label->setCSS(QString::fromLatin1(styleText));
    return label;
}

} // namespace

EmptyState::EmptyState(const QString &advice, const QString &action, QWidget *parent)
    : OxaWidget(parent)
{
    setCSS(QStringLiteral("$backgroundColors: gallery-card-background;"
                          "$borderColors: gallery-card-border;"
                          "$borderRadius: 8;"));
    m_summary = makeLine(OxaFont::Token::SubheaderPrimary, "$textColors: gallery-heading-text;",
                         this);
    OxaLabel *adviceLine = makeLine(OxaFont::Token::BodySecondary,
                                    "$textColors: gallery-caption-text;", this);
    adviceLine->setText(advice);
    auto *button = Buttons::make(action, this);
    connect(button, &OxaPushButton::clicked, this, &EmptyState::actionTriggered);

    auto *column = new QVBoxLayout(this);
    column->setSpacing(Metrics::small);
    column->addStretch(2);
    column->addWidget(m_summary);
    column->addWidget(adviceLine);
    column->addSpacing(Metrics::small);
    column->addWidget(button, 0, Qt::AlignHCenter);
    column->addStretch(3);
}

void EmptyState::setSummary(const QString &summary) { m_summary->setText(summary); }
