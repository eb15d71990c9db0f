// SPDX-License-Identifier: Apache-2.0
#include "Dialog.h"

#include "Buttons.h"
#include "looks/Metrics.h"

#include <QVBoxLayout>

Dialog::Dialog(const QString &title, QWidget *parent)
    : OxaDialog(parent), m_body(new QVBoxLayout), m_buttons(new QHBoxLayout)
{
    setWindowTitle(title);
    setCSS(QStringLiteral("$backgroundColors: gallery-window-background;"));
    m_body->setSpacing(Metrics::spacing);
    m_buttons->setSpacing(Metrics::small);
    m_buttons->addStretch(1);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(Metrics::gap, Metrics::gap, Metrics::gap, Metrics::gap);
    column->setSpacing(Metrics::gap);
    column->addLayout(m_body, 1);
    column->addLayout(m_buttons);
}

OxaPushButton *Dialog::addButton(const QString &text, void (QDialog::*action)())
{
    OxaPushButton *button = Buttons::make(text, this);
    button->setAutoDefault(false);
    connect(button, &OxaPushButton::clicked, this, action);
    m_buttons->addWidget(button);
    return button;
}
