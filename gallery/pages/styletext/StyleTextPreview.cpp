// SPDX-License-Identifier: Apache-2.0
#include "StyleTextPreview.h"

#include "looks/Metrics.h"
#include "looks/WarningCollector.h"
#include "widgets/AlignedLabel.h"
#include "widgets/Labels.h"

#include <QGridLayout>

namespace {

constexpr int sampleHeight = 56;

QString sampleName() { return QStringLiteral("preview"); }

} // namespace

StyleTextPreview::StyleTextPreview(QWidget *parent)
    : OxaWidget(parent),
      m_label(new AlignedLabel(tr("A label"), this, AlignedLabel::Place::Centre)),
      m_disabledLabel(new AlignedLabel(tr("Disabled"), this, AlignedLabel::Place::Centre)),
      m_widget(new OxaWidget(this))
{
    m_label->setTextInteractionFlags(Qt::TextSelectableByKeyboard);
    m_label->setFocusPolicy(Qt::StrongFocus);
    m_disabledLabel->setEnabled(false);

    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(Metrics::spacing);
    grid->setVerticalSpacing(Metrics::tight);
    const QStringList captions = { tr("OxaLabel"), tr("OxaLabel, disabled"), tr("OxaWidget") };
    QWidget *const samples[] = { m_label, m_disabledLabel, m_widget };
    for (int column = 0; column < captions.size(); ++column) {
        samples[column]->setObjectName(sampleName());
        samples[column]->setMinimumHeight(sampleHeight);
        grid->addWidget(Labels::caption(captions[column], this), 0, column);
        grid->addWidget(samples[column], 1, column);
        grid->setColumnStretch(column, 1);
    }
}

QString StyleTextPreview::selector() { return QLatin1Char('#') + sampleName(); }

void StyleTextPreview::setStyleText(const QString &styleText)
{
    const WarningCollector silenced;
    m_label->setCSS(styleText);
    m_disabledLabel->setCSS(styleText);
    m_widget->setCSS(styleText);
}
