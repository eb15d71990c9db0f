// SPDX-License-Identifier: Apache-2.0
#include "IconsCard.h"

#include "ButtonLooks.h"
#include "Metrics.h"
#include "widgets/ControlRow.h"
#include "widgets/SegmentedControl.h"

#include <UiElements/svg/OxaSvgRenderer.h>
#include <UiElements/widgets/OxaPushButton.h>

#include <QVBoxLayout>

namespace {

constexpr QSize iconSize(16, 16);
constexpr QSize pixmapSize(28, 28);
constexpr int pixelRatio = 2;

QPixmap pixmapOf(const char *name, const QSize &size, const QColor &color)
{
    const OxaSvgRenderer renderer(OxaSvgRenderer::resourcePath(QString::fromLatin1(name)), nullptr);
    return renderer.renderPixmap(QRectF(QPointF(), size), size * pixelRatio, pixelRatio, color,
                                 Qt::transparent);
}

/// Returns an icon with one picture for the checked button, and one for any other.
QIcon makeIcon()
{
    QIcon icon;
    icon.addPixmap(pixmapOf("star_16", iconSize, Qt::black), QIcon::Normal, QIcon::Off);
    icon.addPixmap(pixmapOf("star-filled_16", iconSize, Qt::black), QIcon::Normal, QIcon::On);
    return icon;
}

} // namespace

IconsCard::IconsCard(QWidget *parent)
    : Card(tr("Icons and badge"),
           tr("An icon with a picture for each state, painted over with a colour set; a pixmap "
              "under the frame; a badge on top."),
           parent),
      m_iconButton(new OxaPushButton(tr("Favourite"), this)),
      m_pixmapButton(new OxaPushButton(this))
{
    setUpButtons();
    auto *row = new QHBoxLayout;
    row->setSpacing(Metrics::spacing);
    row->addWidget(m_iconButton);
    row->addWidget(m_pixmapButton);
    row->addStretch(1);
    body()->addLayout(row);
    body()->addStretch(1);
    addControls();
    tint();
}

void IconsCard::onThemeChanged()
{
    Card::onThemeChanged();
    tint();
}

void IconsCard::setUpButtons()
{
    ButtonLooks::apply(*m_iconButton);
    m_iconButton->setCSS(ButtonLooks::steady());
    m_iconButton->setIconSize(iconSize);
    m_iconButton->setCheckable(true);
    m_iconButton->setChecked(true);
    m_pixmapButton->setAccessibleName(tr("Notifications"));
    m_pixmapButton->setFixedSize(pixmapSize);
    m_pixmapButton->setCSS(QStringLiteral("OxaPushButton { background: transparent;"
                                          " border: 1px solid $(gallery-button-border);"
                                          " border-radius: 6px; }"));
    showBadges(true);
}

void IconsCard::addControls()
{
    const QStringList colorSets = { QStringLiteral("gallery-icon"),
                                    QStringLiteral("gallery-accent"),
                                    QStringLiteral("presence-busy") };
    auto *colors = new SegmentedControl({ tr("Text"), tr("Accent"), tr("Busy") }, this);
    connect(colors, &SegmentedControl::chosen, this, [this, colorSets](int i) {
        m_iconColors = colorSets[i];
        tint();
    });
    auto *pixmap = new SegmentedControl({ tr("Hidden"), tr("Shown") }, this);
    pixmap->setCurrentIndex(1);
    connect(pixmap, &SegmentedControl::chosen, this, [this](int i) { showPixmap(i == 1); });
    auto *badge = new SegmentedControl({ tr("Off"), tr("On") }, this);
    badge->setCurrentIndex(1);
    connect(badge, &SegmentedControl::chosen, this, [this](int i) { showBadges(i == 1); });

    body()->addWidget(new ControlRow(tr("Colour"), colors, this));
    body()->addWidget(new ControlRow(tr("Pixmap"), pixmap, this));
    body()->addWidget(new ControlRow(tr("Badge"), badge, this));
}

void IconsCard::tint()
{
    const OxaColorSet colors = OxaThemeUtils::getColorSet(m_iconColors.toStdString(),
                                                          getThemeType());
    m_iconButton->setIcon(makeIcon());
    m_iconButton->setIconColor(colors.normal, QIcon::Normal, QIcon::Off);
    m_iconButton->setIconColor(colors.checked, QIcon::Normal, QIcon::On);
    m_pixmapButton->setPixmap(pixmapOf("bell_24", pixmapSize, colors.normal));
    m_pixmapButton->update();
}

void IconsCard::showPixmap(bool visible)
{
    m_pixmapButton->setPixmapIconVisibility(visible);
    m_pixmapButton->update();
}

void IconsCard::showBadges(bool visible)
{
    m_iconButton->setBadgeVisible(visible);
    m_pixmapButton->setBadgeVisible(visible);
}
