// SPDX-License-Identifier: Apache-2.0
#include "StyleTextPreview.h"

#include "looks/Metrics.h"
#include "looks/WarningCollector.h"
#include "widgets/AlignedLabel.h"
#include "widgets/Labels.h"

#include <QGridLayout>

#include <utility>

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
    const std::pair<QString, QWidget *> samples[] = { { tr("OxaLabel"), m_label },
                                                      { tr("OxaLabel, disabled"), m_disabledLabel },
                                                      { tr("OxaWidget"), m_widget } };
    int column = 0;
    for (const auto &[caption, sample] : samples) {
        sample->setObjectName(sampleName());
        sample->setMinimumHeight(sampleHeight);
        grid->addWidget(Labels::caption(caption, this), 0, column);
        grid->addWidget(sample, 1, column);
        grid->setColumnStretch(column++, 1);
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
