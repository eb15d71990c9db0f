// SPDX-License-Identifier: Apache-2.0
#include "ParticipantTile.h"

#include "people/Avatar.h"
#include "protocol/Literal.h"
#include "shell/Looks.h"

#include <UiElements/svg/OxaSvgLabel.h>
#include <UiElements/svg/OxaSvgRenderer.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaProgressBar.h>

#include <QVBoxLayout>

#include <utility>

namespace {

constexpr int pictureSize = 72;
constexpr int bars = 16;
constexpr int heightWithPicture = 140; ///< Smaller tiles have the name and the level only,
constexpr int heightWithLevel = 72;    ///< and still smaller ones just the name.
constexpr int loud = 45;               ///< From here on somebody speaks,
constexpr int quiet = 25;              ///< and below here no longer.

QString tileStyle(bool isSpeaking)
{
    return u"$backgroundColors: call-tile; $borderColors: %1; $borders: all; "
           "$borderWidth: 2; $borderRadius: 12; #tile { margin: 4px; }"_s.arg(
                   isSpeaking ? u"call-tile-speaking"_s : u"call-tile-border"_s);
}

} // namespace

ParticipantTile::ParticipantTile(const Person &person, QWidget *parent)
    : OxaWidget(parent),
      m_avatar(new Avatar(pictureSize, this)),
      m_level(new OxaProgressBar(this, bars))
{
    setObjectName(u"tile"_s);
    setCSS(tileStyle(false));
    setAccessibleName(person.name);
    m_avatar->setPerson(person, false);
    m_name = Looks::makeLabel(person.name, OxaFont::Token::SubheaderSecondary, u"text-primary"_s,
                              this);
    Looks::centre(m_name);
    m_name->setMinimumWidth(1);
    m_state = new OxaSvgLabel(this);
    m_state->setCSS(u"$textColors: text-secondary;"_s);
    m_state->setFixedSize(16, 16);
    m_state->hide();
    m_level->setFixedSize(bars * 5, 16);
    m_level->setBarWidth(3);
    m_level->setBarHeight(12);
    m_level->setIdleBarHeight(4);
    m_level->setRange(0, 100);
    m_level->setValue(0);
    m_level->setAccessibleName(tr("How loud %1 is").arg(person.name));

    auto *name = new QHBoxLayout;
    name->setSpacing(4);
    name->addStretch(1);
    name->addWidget(m_state);
    name->addWidget(m_name);
    name->addStretch(1);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(12, 8, 12, 8);
    column->setSpacing(8);
    column->addStretch(1);
    column->addWidget(m_avatar, 0, Qt::AlignHCenter);
    column->addLayout(name);
    column->addWidget(m_level, 0, Qt::AlignHCenter);
    column->addStretch(1);
}

void ParticipantTile::resizeEvent(QResizeEvent *event)
{
    OxaWidget::resizeEvent(event);
    m_avatar->setVisible(height() >= heightWithPicture);
    m_level->setVisible(height() >= heightWithLevel);
}

void ParticipantTile::setLevel(int level)
{
    m_level->setValue(level);
    const bool isSpeaking = level > (m_isSpeaking ? quiet : loud);
    if (std::exchange(m_isSpeaking, isSpeaking) != isSpeaking)
        setCSS(tileStyle(isSpeaking));
}

void ParticipantTile::setState(const QString &icon)
{
    m_state->setVisible(!icon.isEmpty());
    if (!icon.isEmpty())
        m_state->setSvgIcon(OxaSvgRenderer::resourcePath(icon));
}
