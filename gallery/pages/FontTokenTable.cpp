// SPDX-License-Identifier: Apache-2.0
#include "FontTokenTable.h"

#include "GalleryApplication.h"
#include "Metrics.h"
#include "TextSettings.h"
#include "widgets/Labels.h"

#include <UiElements/widgets/OxaLabel.h>

#include <QGridLayout>
#include <QMetaEnum>

FontTokenTable::FontTokenTable(QWidget *parent) : OxaWidget(parent)
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(Metrics::spacing);
    grid->setVerticalSpacing(Metrics::small);
    grid->setColumnStretch(1, 1);
    const auto tokens = QMetaEnum::fromType<OxaFont::Token>();
    for (int i = 0; i < tokens.keyCount(); ++i)
        addRow(grid, QString::fromLatin1(tokens.key(i)),
               static_cast<OxaFont::Token>(tokens.value(i)));
    connect(GalleryApplication::get()->textSettings(), &TextSettings::sizesChanged, this,
            &FontTokenTable::showFigures);
    showFigures();
}

void FontTokenTable::addRow(QGridLayout *grid, const QString &name, OxaFont::Token token)
{
    OxaLabel *sample = Labels::elidedLine(tr("The quick brown fox jumps"), this);
    sample->setFontToken(token);
    const Row row = { token, Labels::caption(QString(), this), Labels::caption(QString(), this) };
    const int line = int(m_rows.size());
    grid->addWidget(Labels::caption(name, this), line, 0);
    grid->addWidget(sample, line, 1);
    grid->addWidget(row.weight, line, 2);
    grid->addWidget(row.size, line, 3);
    m_rows.push_back(row);
}

void FontTokenTable::showFigures()
{
    for (const Row &row : m_rows) {
        const OxaFont font(row.token);
        row.weight->setText(tr("Weight %1").arg(font.weight()));
        row.size->setText(tr("%1 px").arg(font.pixelSize()));
    }
}
