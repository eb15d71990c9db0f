// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

#include <vector>

class OxaLabel;
class QGridLayout;

/// Shows each font token: its name, a sample, its weight and its size.
class FontTokenTable : public OxaWidget
{
    Q_OBJECT

public:
    explicit FontTokenTable(QWidget *parent = nullptr);

private:
    /// The figures of a token, which follow the font scale.
    struct Row
    {
        OxaFont::Token token;
        OxaLabel *weight;
        OxaLabel *size;
    };

    void addRow(QGridLayout *grid, const QString &name, OxaFont::Token token);
    void showFigures();

    std::vector<Row> m_rows;
};
