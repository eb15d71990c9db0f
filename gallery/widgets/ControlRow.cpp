// SPDX-License-Identifier: Apache-2.0
#include "ControlRow.h"

#include "Labels.h"
#include "looks/Metrics.h"

#include <UiElements/widgets/OxaLabel.h>

#include <QHBoxLayout>

ControlRow::ControlRow(const QString &caption, QWidget *control, QWidget *parent)
    : OxaWidget(parent)
{
    control->setAccessibleName(caption);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Metrics::small);
    row->addWidget(Labels::caption(caption, this));
    row->addWidget(control);
    if (control->sizePolicy().horizontalPolicy() == QSizePolicy::Fixed)
        row->addStretch(1);
}
