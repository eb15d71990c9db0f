// SPDX-License-Identifier: Apache-2.0
#include "ControlRow.h"

#include "Metrics.h"
#include "widgets/Labels.h"

#include <UiElements/widgets/OxaLabel.h>

#include <QHBoxLayout>

namespace {

constexpr int captionWidth = 72;

} // namespace

ControlRow::ControlRow(const QString &caption, QWidget *control, QWidget *parent, Caption width)
    : OxaWidget(parent)
{
    OxaLabel *label = Labels::caption(caption, this);
    if (width == Caption::Aligned)
        label->setMinimumWidth(captionWidth);
    control->setAccessibleName(caption);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Metrics::small);
    row->addWidget(label);
    row->addWidget(control);
    if (control->sizePolicy().horizontalPolicy() == QSizePolicy::Fixed)
        row->addStretch(1);
}
