// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/fonts/FontManagerEnum.h>
#include <UiElements/widgets/OxaWidget.h>

#include <vector>

class OxaLabel;
class QGridLayout;

/// Shows each font of the scaled fonts: a sample from each view, and its size at each factor.
class ScaledFontTable : public OxaWidget
{
    Q_OBJECT

public:
    explicit ScaledFontTable(QWidget *parent = nullptr);

private:
    /// A sample in a view's font.
    struct Sample
    {
        OxaLabel *label;
        FontManagerEnum::FontType view;
        QByteArray font;
    };

    /// A size at a factor.
    struct Figure
    {
        OxaLabel *label;
        FontManagerEnum::FontScalingFactor factor;
        QByteArray font;
    };

    void addHeadings(QGridLayout *grid);
    void addRow(QGridLayout *grid, int row, const QByteArray &font);
    void showFonts();

    std::vector<Sample> m_samples;
    std::vector<Figure> m_figures;
};
