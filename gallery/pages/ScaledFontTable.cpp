// SPDX-License-Identifier: Apache-2.0
#include "ScaledFontTable.h"

#include "GalleryApplication.h"
#include "Metrics.h"
#include "TextSettings.h"
#include "widgets/Labels.h"

#include <UiElements/fonts/OxaFontManager.h>
#include <UiElements/fonts/OxaScaledFonts.h>
#include <UiElements/widgets/OxaLabel.h>

#include <QGridLayout>
#include <QMetaProperty>

namespace {

using Factor = FontManagerEnum::FontScalingFactor;
using View = FontManagerEnum::FontType;

constexpr Factor factors[] = { Factor::Small, Factor::Regular, Factor::Medium, Factor::Large };
constexpr View views[] = { View::MessagingView, View::MeetingView };

/// Returns the names of the fonts, which are the properties of the class that holds them.
std::vector<QByteArray> fontNames()
{
    const QMetaObject &type = OxaScaledFonts::staticMetaObject;
    std::vector<QByteArray> names;
    for (int i = type.propertyOffset(); i < type.propertyCount(); ++i)
        names.emplace_back(type.property(i).name());
    return names;
}

QFont fontOf(const OxaScaledFonts &fonts, const QByteArray &name)
{
    return fonts.property(name.constData()).value<QFont>();
}

} // namespace

ScaledFontTable::ScaledFontTable(QWidget *parent) : OxaWidget(parent)
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(Metrics::spacing);
    grid->setVerticalSpacing(Metrics::small);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
    addHeadings(grid);
    for (const QByteArray &name : fontNames())
        addRow(grid, grid->rowCount(), name);
    connect(GalleryApplication::get()->textSettings(), &TextSettings::sizesChanged, this,
            &ScaledFontTable::showFonts);
    showFonts();
}

void ScaledFontTable::addHeadings(QGridLayout *grid)
{
    const QStringList headings = { tr("Font"),  tr("Messaging view"), tr("Meeting view"),
                                   tr("Small"), tr("Regular"),        tr("Medium"),
                                   tr("Large") };
    for (int column = 0; column < headings.size(); ++column)
        grid->addWidget(Labels::caption(headings[column], this), 0, column);
}

void ScaledFontTable::addRow(QGridLayout *grid, int row, const QByteArray &font)
{
    int column = 0;
    grid->addWidget(Labels::caption(QString::fromLatin1(font), this), row, column++);
    for (const View view : views) {
        OxaLabel *label = Labels::elidedLine(tr("Good day"), this);
        grid->addWidget(label, row, column++);
        m_samples.push_back({ label, view, font });
    }
    for (const Factor factor : factors) {
        OxaLabel *label = Labels::caption(QString(), this);
        grid->addWidget(label, row, column++);
        m_figures.push_back({ label, factor, font });
    }
}

void ScaledFontTable::showFonts()
{
    OxaFontManager *manager = OxaFontManager::get();
    for (const Sample &sample : m_samples)
        sample.label->setFont(fontOf(*manager->getFont(sample.view), sample.font));
    // Tables of its own, so that the figures say what a factor gives to a view that was regular.
    for (const Factor factor : factors) {
        OxaScaledFonts fonts;
        fonts.setScalingFactor(factor);
        for (const Figure &figure : m_figures) {
            if (figure.factor == factor)
                figure.label->setText(QString::number(fontOf(fonts, figure.font).pixelSize()));
        }
    }
}
