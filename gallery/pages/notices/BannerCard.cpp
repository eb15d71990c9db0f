// SPDX-License-Identifier: Apache-2.0
#include "BannerCard.h"

#include "looks/Metrics.h"
#include "specimens/ControlPanel.h"
#include "specimens/EmissionLog.h"
#include "widgets/AlignedLabel.h"
#include "widgets/Buttons.h"

#include <QHBoxLayout>

#include <utility>

namespace {

constexpr int leastBannerHeight = 56;
const QString labelName = QStringLiteral("alertLabel");

struct Text
{
    QString name;
    QString html;
};

QVector<Text> texts()
{
    return { { BannerCard::tr("Short"),
               BannerCard::tr("You are offline. <a href=\"retry\">Try again</a>") },
             { BannerCard::tr("Long"),
               BannerCard::tr("The meeting is being recorded, and its captions are kept with it. "
                              "Everyone who was invited can read both for thirty days; after that "
                              "they are deleted. Read <a href=\"who\">who was invited</a>, or "
                              "<a href=\"stop\">stop the recording</a>.") },
             { BannerCard::tr("Arabic"),
               QStringLiteral("أنت غير متصل بالشبكة. <a href=\"retry\">حاول مرة أخرى</a>") },
             { BannerCard::tr("Hebrew"),
               QStringLiteral("אין חיבור לרשת. <a href=\"retry\">לנסות שוב</a>") } };
}

} // namespace

BannerCard::BannerCard(QWidget *parent)
    : Card(tr("AlertBanner"),
           tr("Tab goes to its text, then from link to link, and Return follows one. A banner "
              "whose icon was hidden never shows it again: take a new one."),
           parent),
      m_place(new QHBoxLayout),
      m_new(Buttons::make(tr("New banner"), this)),
      m_close(Buttons::make(tr("Close"), this))
{
    m_info.alertText = texts().constFirst().html;
    m_place->setSpacing(Metrics::small);
    m_place->addStrut(leastBannerHeight);
    m_place->addStretch();
    m_place->addWidget(m_close);
    body()->addLayout(m_place);
    body()->addWidget(makeControls());
    m_log = new EmissionLog(this);
    body()->addWidget(m_log);
    addToHeading(m_new);
    connect(m_close, &OxaPushButton::clicked, this, &BannerCard::closeBanner);
    connect(m_new, &OxaPushButton::clicked, this, &BannerCard::renew);
    renew();
}

AlertBanner *BannerCard::make(QWidget *parent)
{
    auto *banner = new AlertBanner(parent);
    AlignedLabel::keepAligned(banner->findChild<OxaLabel *>(labelName));
    return banner;
}

ControlPanel *BannerCard::makeControls()
{
    auto *controls = new ControlPanel(this);
    controls->addChoice(QStringLiteral("alertType"),
                        { tr("Error"), tr("Warning"), tr("Info"), tr("Other") }, 0, [this](int i) {
                            m_info.alertType = static_cast<AlertBanner::AlertType>(i);
                            showInfo();
                        });
    addTexts(controls);
    controls->addChoice(QStringLiteral("showIcon"), { tr("Yes"), tr("No") }, 0, [this](int i) {
        m_info.showIcon = i == 0;
        showInfo();
    });
    controls->addChoice(QStringLiteral("wordWrap"), { tr("Yes"), tr("No") }, 0, [this](int i) {
        m_info.wordWrap = i == 0;
        showInfo();
    });
    return controls;
}

void BannerCard::addTexts(ControlPanel *controls)
{
    const QVector<Text> all = texts();
    QStringList names;
    for (const Text &text : all)
        names += text.name;
    controls->addChoice(QStringLiteral("alertText"), names, 0, [this, all](int i) {
        m_info.alertText = all[i].html;
        showInfo();
    });
}

void BannerCard::renew()
{
    delete m_banner;
    m_banner = make(this);
    m_log->follow(m_banner);
    m_place->insertWidget(0, m_banner, 1);
    QWidget *label = m_banner->findChild<OxaLabel *>(labelName);
    setTabOrder(m_new, label);
    setTabOrder(label, m_close);
    m_close->setEnabled(true);
    showInfo();
}

void BannerCard::closeBanner()
{
    delete m_banner;
    if (m_close->hasFocus())
        m_new->setFocus();
    m_close->setEnabled(false);
}

void BannerCard::showInfo()
{
    if (m_banner)
        m_banner->setAlert(m_info);
}
