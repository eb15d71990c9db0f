// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "widgets/Card.h"

class OxaPushButton;

/// Shows what a button can carry: an icon in any colour, a pixmap under its frame, a badge.
class IconsCard : public Card
{
    Q_OBJECT

public:
    explicit IconsCard(QWidget *parent = nullptr);

protected:
    void onThemeChanged() override;

private:
    void setUpButtons();
    void addControls();
    void tint();
    void showPixmap(bool visible);
    void showBadges(bool visible);

    OxaPushButton *m_iconButton;
    OxaPushButton *m_pixmapButton;
    QString m_iconColors = QStringLiteral("gallery-icon");
};
