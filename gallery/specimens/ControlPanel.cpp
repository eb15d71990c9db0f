// SPDX-License-Identifier: Apache-2.0
#include "ControlPanel.h"

#include "looks/Metrics.h"
#include "widgets/ColumnsLayout.h"
#include "widgets/Fields.h"
#include "widgets/Labels.h"
#include "widgets/SegmentedControl.h"

#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaLineEdit.h>
#include <UiElements/widgets/OxaSlider.h>

#include <QHBoxLayout>

namespace {

constexpr int captionShare = 1;
constexpr int controlShare = 2;
constexpr int numberWidth = 32;
constexpr int leastSliderWidth = 64;

} // namespace

ControlPanel::ControlPanel(QWidget *parent) : OxaWidget(parent)
{
    new ColumnsLayout(Metrics::spacing, Metrics::small, this);
}

SegmentedControl *ControlPanel::addChoice(const QString &caption, const QStringList &texts,
                                          int current, const std::function<void(int)> &choose)
{
    auto *control = new SegmentedControl(texts);
    control->setCurrentIndex(current);
    connect(control, &SegmentedControl::chosen, this, choose);
    add(caption, control);
    return control;
}

OxaSlider *ControlPanel::addNumber(const QString &caption, int minimum, int maximum, int value,
                                   const std::function<void(int)> &change, const QString &word)
{
    auto *control = new OxaWidget;
    OxaSlider *slider = Fields::slider(minimum, maximum, value, control);
    slider->setMinimumWidth(leastSliderWidth);
    slider->setAccessibleName(caption);
    OxaLabel *number = Labels::caption(QString(), control);
    number->setMinimumWidth(numberWidth);
    auto *row = new QHBoxLayout(control);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Metrics::small);
    row->addWidget(slider, 1);
    row->addWidget(number);
    const auto show = [number, minimum, word](int shown) {
        number->setText(shown == minimum && !word.isEmpty() ? word : QString::number(shown));
    };
    connect(slider, &OxaSlider::valueChanged, number, show);
    connect(slider, &OxaSlider::valueChanged, this, change);
    show(value);
    place(caption, control);
    return slider;
}

OxaLineEdit *ControlPanel::addText(const QString &caption, const QString &text,
                                   const std::function<void(const QString &)> &change)
{
    auto *field = Fields::line();
    field->setText(text);
    field->setCursorPosition(0);
    connect(field, &QLineEdit::textChanged, this, change);
    add(caption, field);
    return field;
}

OxaLabel *ControlPanel::addValue(const QString &caption, const QString &text)
{
    OxaLabel *label = Labels::elidedLine(text);
    label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    // Its accessible name is what it says.
    place(caption, label)->setBuddy(label);
    return label;
}

void ControlPanel::add(const QString &caption, QWidget *control)
{
    control->setAccessibleName(caption);
    place(caption, control);
}

OxaLabel *ControlPanel::place(const QString &caption, QWidget *control)
{
    auto *row = new OxaWidget(this);
    auto *captioned = new QHBoxLayout(row);
    captioned->setContentsMargins(0, 0, 0, 0);
    captioned->setSpacing(Metrics::small);
    auto *share = new QHBoxLayout;
    share->addWidget(control);
    if (control->sizePolicy().horizontalPolicy() == QSizePolicy::Fixed)
        share->addStretch(1);
    // In fixed shares, so that controls are aligned whatever the lengths of captions.
    OxaLabel *label = Labels::caption(caption, row);
    captioned->addWidget(label, captionShare);
    captioned->addLayout(share, controlShare);
    layout()->addWidget(row);
    return label;
}
