// SPDX-License-Identifier: Apache-2.0
#include "AlertBanner.h"

#include "WidgetParts_p.h"

#include <UiElements/svg/OxaSvgLabel.h>

#include <QHBoxLayout>
#include <QPointer>

namespace {

constexpr QSize iconSize(12, 12);

OxaCSSData styleOf(AlertBanner::AlertType type)
{
    using Type = AlertBanner::AlertType;
    OxaCSSData style;
    switch (type) {
    case Type::Error:
        style.backgroundColorSetName = QStringLiteral("alertBackground-error");
        style.textColorSetName = QStringLiteral("alertText-error");
        break;
    case Type::Warning:
        style.backgroundColorSetName = QStringLiteral("alertBackground-warning");
        style.textColorSetName = QStringLiteral("alertText-warning");
        break;
    case Type::Info:
    default:
        style.backgroundColorSetName = QStringLiteral("background-primary");
        style.textColorSetName = QStringLiteral("text-secondary");
        break;
    }
    return style;
}

} // namespace

AlertBanner::AlertBanner(QWidget *parent)
    : OxaWidget(parent),
      m_horizontalLayout(new QHBoxLayout(this)),
      m_spacerBeforeIcon(new QSpacerItem(12, 12, QSizePolicy::Fixed, QSizePolicy::Minimum)),
      m_alertIcon(new OxaSvgLabel(this)),
      m_spacerAfterIcon(new QSpacerItem(8, 8, QSizePolicy::Fixed, QSizePolicy::Minimum)),
      m_alertLabel(new OxaLabel(this))
{
    setObjectName(QStringLiteral("AlertBanner"));
    resize(400, 56);
    setCSS(QStringLiteral(
            "$backgroundColors: alertBackground-warning; $textColors: alertText-warning;"));

    m_horizontalLayout->setObjectName(QStringLiteral("horizontalLayout"));
    m_horizontalLayout->setSpacing(0);
    m_horizontalLayout->setContentsMargins(0, 0, 0, -1); // The style's margin below.
    m_horizontalLayout->addItem(m_spacerBeforeIcon);
    addIcon();
    m_horizontalLayout->addItem(m_spacerAfterIcon);
    addLabel();
}

void AlertBanner::addIcon()
{
    m_alertIcon->setObjectName(QStringLiteral("alertIcon"));
    QSizePolicy policy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    policy.setHeightForWidth(m_alertIcon->sizePolicy().hasHeightForWidth());
    m_alertIcon->setSizePolicy(policy);
    m_alertIcon->setFixedSize(iconSize);
    m_alertIcon->setFocusPolicy(Qt::NoFocus);
    m_alertIcon->setCSS(QStringLiteral("$textColors: oxa-footer-warning-icon;"));
    m_alertIcon->setSvgIcon(QStringLiteral("qrc:/Resources/warning_12.svg"));
    m_alertIcon->setSvgIconSize(iconSize);
    m_horizontalLayout->addWidget(m_alertIcon);
}

void AlertBanner::addLabel()
{
    m_alertLabel->setObjectName(QStringLiteral("alertLabel"));
    m_alertLabel->setTextFormat(Qt::RichText);
    m_alertLabel->setWordWrap(true);
    m_alertLabel->setOpenExternalLinks(false);
    // Links by keyboard also make the label a stop of Tab: QLabel sets Qt::StrongFocus for them.
    m_alertLabel->setTextInteractionFlags(Qt::LinksAccessibleByMouse
                                          | Qt::LinksAccessibleByKeyboard);
    m_alertLabel->setCSS(getCSS());
    connect(m_alertLabel, &QLabel::linkActivated, this, &AlertBanner::alertLinkActivated);
    m_horizontalLayout->addWidget(m_alertLabel);
}

void AlertBanner::setAlert(const AlertBannerInfo &info)
{
    m_alertLabel->setText(info.alertText);
    m_alertLabel->setWordWrap(info.wordWrap);
    if (!info.showIcon)
        hideAlertIcon();
    resize(info.bannerSize);
    const QPointer<AlertBanner> self(this); // A slot of the parts' signals may delete the banner.
    setAlertStyle(info.alertType);
    if (self && isVisible())
        WidgetParts::tellAccessibility(this, QAccessible::Alert);
}

void AlertBanner::showEvent(QShowEvent *event)
{
    OxaWidget::showEvent(event);
    WidgetParts::tellAccessibility(this, QAccessible::Alert);
}

void AlertBanner::setAlertStyle(AlertType type)
{
    const QPointer<AlertBanner> self(this); // A slot of the parts' signals may delete the banner.
    const OxaCSSData style = styleOf(type);
    if (type == AlertType::Info)
        m_alertIcon->setSvgIcon(QStringLiteral("qrc:/Resources/info_16.svg"));
    if (self)
        m_alertLabel->setCSS(style);
    if (self)
        m_alertIcon->setCSS(style);
    if (self)
        setCSS(style);
}

void AlertBanner::hideAlertIcon()
{
    m_alertIcon->setVisible(false);
    for (QSpacerItem *spacer : { m_spacerBeforeIcon, m_spacerAfterIcon })
        spacer->changeSize(0, 0, QSizePolicy::Minimum, QSizePolicy::Minimum);
    m_horizontalLayout->invalidate();
}
