// SPDX-License-Identifier: Apache-2.0
#include "ToggleCard.h"

#include "ButtonLooks.h"
#include "Metrics.h"
#include "widgets/Button.h"
#include "widgets/ControlRow.h"
#include "widgets/Labels.h"

#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaToggleButton.h>

#include <QVBoxLayout>

ToggleCard::ToggleCard(QWidget *parent)
    : Card(tr("Toggle button"),
           tr("A flat button with a tool tip for each state. A click toggles it and leaves the "
              "tool tip alone: the application sets what its new state is called."),
           parent),
      m_button(new OxaToggleButton(this)),
      m_toolTip(Labels::line(QString(), this)),
      m_accessibleName(Labels::line(QString(), this))
{
    m_button->setText(tr("Microphone"));
    ButtonLooks::apply(*m_button);
    m_button->setCSS(ButtonLooks::toggle());
    m_button->setToolTip(tr("Mute"), tr("Unmute"));
    connect(m_button, &OxaToggleButton::toggled, this, &ToggleCard::showTexts);

    auto *check = new Button(tr("Check"), this);
    connect(check, &Button::clicked, this, [this] { setChecked(true); });
    auto *uncheck = new Button(tr("Uncheck"), this);
    connect(uncheck, &Button::clicked, this, [this] { setChecked(false); });
    auto *row = new QHBoxLayout;
    row->setSpacing(Metrics::small);
    row->addWidget(m_button);
    row->addStretch(1);
    row->addWidget(check);
    row->addWidget(uncheck);

    for (OxaLabel *value : { m_toolTip, m_accessibleName })
        value->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    body()->addLayout(row);
    body()->addStretch(1);
    body()->addWidget(new ControlRow(tr("Tool tip"), m_toolTip, this));
    body()->addWidget(new ControlRow(tr("Name"), m_accessibleName, this));
    setChecked(true);
}

void ToggleCard::setChecked(bool checked)
{
    m_button->setChecked(checked);
    showTexts();
}

void ToggleCard::showTexts()
{
    m_toolTip->setText(m_button->toolTip());
    m_accessibleName->setText(m_button->accessibleName());
}
