// SPDX-License-Identifier: Apache-2.0
#include "Page.h"

#include "Metrics.h"
#include "widgets/Labels.h"
#include "widgets/ScrollArea.h"

#include <UiElements/widgets/OxaLabel.h>

#include <QVBoxLayout>

Page::Page(const QString &title, const QString &summary, QWidget *parent) : OxaWidget(parent)
{
    auto *head = new QVBoxLayout;
    head->setContentsMargins(Metrics::margin, Metrics::gap, Metrics::margin, Metrics::spacing);
    head->setSpacing(Metrics::tight);
    head->addWidget(Labels::title(title, this));
    head->addWidget(Labels::paragraph(summary, this));

    m_body = new QVBoxLayout;
    m_body->setContentsMargins(Metrics::margin, 0, Metrics::margin, Metrics::margin);
    m_body->setSpacing(Metrics::spacing);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(head);
    column->addLayout(m_body, 1);
}

void Page::makeBodyScroll()
{
    auto *area = new ScrollArea(this);
    auto *contents = new OxaWidget(area->viewport());
    auto *scrolled = new QVBoxLayout(contents);
    scrolled->setSpacing(m_body->spacing());
    contents->setLayoutContentsMargins(Metrics::margin, 0, Metrics::margin - Metrics::scrollBar,
                                       Metrics::margin);
    area->setContents(contents);

    m_body->setContentsMargins(0, 0, 0, 0);
    m_body->addWidget(area);
    m_body = scrolled;
}
