// SPDX-License-Identifier: Apache-2.0
#include "NumberRow.h"

#include "Metrics.h"
#include "widgets/ControlRow.h"
#include "widgets/Labels.h"
#include "widgets/Slider.h"

#include <UiElements/widgets/OxaLabel.h>

#include <QHBoxLayout>

namespace {

constexpr int numberWidth = 40;

} // namespace

NumberRow::NumberRow(const QString &caption, int minimum, int maximum, int value,
                     const QString &word, QWidget *parent)
    : OxaWidget(parent),
      m_word(word),
      m_slider(new Slider(minimum, maximum, value, this)),
      m_number(Labels::caption(QString(), this))
{
    m_number->setMinimumWidth(numberWidth);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Metrics::small);
    row->addWidget(new ControlRow(caption, m_slider, this), 1);
    row->addWidget(m_number);
    connect(m_slider, &Slider::valueChanged, this, &NumberRow::showValue);
    connect(m_slider, &Slider::valueChanged, this, &NumberRow::valueChanged);
    showValue();
}

int NumberRow::value() const { return m_slider->value(); }

void NumberRow::setValue(int value) { m_slider->setValue(value); }

void NumberRow::showValue()
{
    const bool isWord = !m_word.isEmpty() && m_slider->value() == m_slider->minimum();
    m_number->setText(isWord ? m_word : QString::number(m_slider->value()));
}
