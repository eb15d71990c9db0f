// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "widgets/Card.h"

#include <functional>
#include <vector>

class OxaUnderlineButton;

/// Shows OxaUnderlineButton as it is used: as a row of tabs.
class UnderlineCard : public Card
{
    Q_OBJECT

public:
    explicit UnderlineCard(QWidget *parent = nullptr);

protected:
    void onThemeChanged() override;

private:
    void addButton(const QString &text);
    QWidget *makeSwitch(const std::function<void(OxaUnderlineButton &button, bool on)> &set);
    void setUpSliders();
    void setLineWidth(int width);
    void setBottomPadding(int padding);
    void showImages();

    std::vector<OxaUnderlineButton *> m_buttons;
    bool m_hasImages = false;
};
