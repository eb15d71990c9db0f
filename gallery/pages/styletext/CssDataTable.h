// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaCSSData.h>
#include <UiElements/widgets/OxaWidget.h>

#include <vector>

class OxaLabel;

/// Shows the structured form of a style text, a line for each field.
class CssDataTable : public OxaWidget
{
    Q_OBJECT

public:
    explicit CssDataTable(QWidget *parent = nullptr);

    void showData(const OxaCSSData &cssData);

private:
    std::vector<OxaLabel *> m_values;
};
