// SPDX-License-Identifier: Apache-2.0
#include "IconDetails.h"

#include "IconDiagnosis.h"
#include "IconFiles.h"
#include "IconMatrix.h"
#include "looks/Metrics.h"
#include "looks/TextSettings.h"
#include "pages/colours/ColorSetModel.h"
#include "shell/GalleryApplication.h"
#include "widgets/Labels.h"
#include "widgets/ScrollArea.h"
#include "widgets/StatusBox.h"

#include <UiElements/widgets/OxaLabel.h>

#include <QVBoxLayout>

namespace {

using Outcome = IconDiagnosis::Outcome;

StatusBox::Kind kindOf(Outcome outcome)
{
    switch (outcome) {
    case Outcome::TakesColor:
        return StatusBox::Kind::Success;
    case Outcome::PaintsNothing:
        return StatusBox::Kind::Warning;
    case Outcome::Unreadable:
        return StatusBox::Kind::Error;
    default:
        return StatusBox::Kind::Note;
    }
}

} // namespace

IconDetails::IconDetails(IconRenderers *renderers, QWidget *parent)
    : OxaWidget(parent),
      m_name(Labels::heading(QString())),
      m_origin(Labels::caption(QString())),
      m_findings(new QVBoxLayout),
      m_state(Labels::caption(QString())),
      m_matrix(new IconMatrix(renderers))
{
    setCSS(QStringLiteral("$backgroundColors: gallery-card-background;"
                          "$borderColors: gallery-card-border;"
                          "$borderRadius: 8;"));
    for (OxaLabel *label : { m_name, m_origin, m_state }) {
        label->setElideMode(Qt::ElideMiddle);
        label->setMinimumWidth(1);
    }
    m_findings->setSpacing(Metrics::small);

    auto *contents = new OxaWidget;
    auto *column = new QVBoxLayout(contents);
    column->setContentsMargins(Metrics::spacing, Metrics::spacing, Metrics::spacing,
                               Metrics::spacing);
    column->setSpacing(Metrics::tight);
    column->addWidget(m_name);
    column->addWidget(m_origin);
    column->addSpacing(Metrics::small);
    column->addLayout(m_findings);
    column->addSpacing(Metrics::small);
    column->addWidget(m_state);
    column->addSpacing(Metrics::tight);
    column->addWidget(m_matrix);
    column->addStretch(1);

    auto *area = new ScrollArea(this);
    area->setAccessibleName(tr("About the icon"));
    area->showFocus();
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setContents(contents);
    auto *frame = new QVBoxLayout(this);
    frame->setContentsMargins(1, 1, 1, 1);
    frame->addWidget(area);
    connect(GalleryApplication::get()->textSettings(), &TextSettings::sizesChanged, this,
            &IconDetails::fitMatrix);
    fitMatrix();
}

void IconDetails::showIcon(const IconFile &file, const IconDiagnosis &diagnosis)
{
    m_path = file.path;
    m_name->setText(file.name);
    m_origin->setText(file.origin);
    m_origin->setToolTip(file.path);
    // Painting a file that cannot be read logs a warning each time.
    const bool isReadable = diagnosis.outcome != Outcome::Unreadable;
    m_state->setVisible(isReadable);
    m_matrix->setVisible(isReadable);
    StatusBox::clear(m_findings);
    m_findings->addWidget(
            new StatusBox(kindOf(diagnosis.outcome), diagnosis.title(), diagnosis.reason));
    if (!diagnosis.advice.isEmpty()) {
        m_findings->addWidget(Labels::paragraph(tr("To change that: %1").arg(diagnosis.advice)));
    }
}

void IconDetails::showColor(const QString &state, const QColor &color)
{
    m_state->setText(tr("%1, %2, pixel for pixel").arg(state, ColorSetModel::textOf(color)));
    m_matrix->setIcon(m_path, color);
}

void IconDetails::fitMatrix()
{
    m_matrix->updateGeometry();
    setFixedWidth(m_matrix->sizeHint().width() + 2 * (Metrics::spacing + 1) + Metrics::scrollBar);
}
