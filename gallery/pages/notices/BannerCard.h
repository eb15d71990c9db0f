// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "widgets/Card.h"

#include <UiElements/widgets/AlertBanner.h>

#include <QPointer>

class ControlPanel;
class EmissionLog;
class OxaPushButton;

/// A banner that can be closed, with controls for what it shows. A new one takes the place of the
/// one before.
class BannerCard : public Card
{
    Q_OBJECT

public:
    explicit BannerCard(QWidget *parent = nullptr);

    /// Returns a banner whose text begins beside its icon, whatever its language.
    static AlertBanner *make(QWidget *parent = nullptr);

private:
    ControlPanel *makeControls();
    void addTexts(ControlPanel *controls);
    void renew();
    void closeBanner();
    void showInfo();

    QHBoxLayout *const m_place;
    OxaPushButton *const m_new;
    OxaPushButton *const m_close;
    EmissionLog *m_log = nullptr;
    QPointer<AlertBanner> m_banner;
    AlertBanner::AlertBannerInfo m_info;
};
