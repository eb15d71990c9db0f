// SPDX-License-Identifier: Apache-2.0
#include "SvgIconBlock.h"

#include <UiElements/theme/OxaThemeUtils.h>

#include <QWidget>

SvgIconBlock::SvgIconBlock(QWidget *widget, const OxaColorSet &textColorSet)
    : m_widget(widget), m_textColorSet(textColorSet)
{
}

SvgIconBlock::~SvgIconBlock() = default;

QString SvgIconBlock::path() const { return m_icon ? m_icon->getFilePath() : QString(); }

void SvgIconBlock::setPath(const QString &path)
{
    OxaSvgIcon &icon = ensureSvgIconExists();
    icon.setFilePath(path);
    if (!icon.getColorSet().isValid())
        icon.setColorSet(m_textColorSet);
}

QSize SvgIconBlock::size() const { return m_icon ? m_icon->getIconSize() : QSize(); }

void SvgIconBlock::setSize(const QSize &size) { ensureSvgIconExists().setIconSize(size); }

void SvgIconBlock::setColorSetName(const QString &name)
{
    m_colorSetName = name;
    ensureSvgIconExists().setColorSet(colorSetOrText(name));
}

OxaColorSet SvgIconBlock::colorSet() const
{
    return m_icon ? m_icon->getColorSet() : OxaColorSet();
}

QString SvgIconBlock::innerPath() const { return m_icon ? m_icon->getInnerFilePath() : QString(); }

void SvgIconBlock::setInnerPath(const QString &path)
{
    OxaSvgIcon &icon = ensureSvgIconExists();
    icon.setInnerFilePath(path);
    if (!icon.getInnerColorSet().isValid())
        icon.setInnerColorSet(m_textColorSet);
}

QSize SvgIconBlock::innerSize() const { return m_icon ? m_icon->getInnerIconSize() : QSize(); }

void SvgIconBlock::setInnerSize(const QSize &size)
{
    ensureSvgIconExists().setInnerIconSize(size);
    m_widget->update();
}

void SvgIconBlock::setInnerColorSetName(const QString &name)
{
    m_innerColorSetName = name;
    ensureSvgIconExists().setInnerColorSet(colorSetOrText(name));
    m_widget->update();
}

void SvgIconBlock::setAlignment(OxaEnum::Alignment alignment)
{
    m_alignment = alignment;
    m_widget->update();
}

void SvgIconBlock::setTextHorAlign(OxaEnum::HorAlign align)
{
    m_textHorAlign = align;
    m_widget->update();
}

void SvgIconBlock::setTextLeftPadding(int padding)
{
    m_textLeftPadding = padding;
    m_widget->update();
}

void SvgIconBlock::setTextRightPadding(int padding)
{
    m_textRightPadding = padding;
    m_widget->update();
}

void SvgIconBlock::setTopLeftPadding(const QPoint &padding)
{
    m_padding.setLeft(padding.x());
    m_padding.setTop(padding.y());
    m_widget->update();
}

void SvgIconBlock::setBottomRightPadding(const QPoint &padding)
{
    m_padding.setRight(padding.x());
    m_padding.setBottom(padding.y());
    m_widget->update();
}

OxaColorSet SvgIconBlock::colorSetOrText(const QString &name) const
{
    const OxaColorSet set = OxaThemeUtils::getColorSet(name.toStdString(),
                                                       OxaThemeUtils::getThemeTypeOfWidget(
                                                               m_widget));
    return set.isValid() ? set : m_textColorSet;
}

void SvgIconBlock::updateIconPath(OxaSvgIcon *icon, const QString &path) const
{
    if (icon && (!icon->isValid() || icon->getFilePath() != path))
        icon->setFilePath(path);
    m_widget->update();
}

OxaSvgIcon &SvgIconBlock::ensureSvgIconExists()
{
    if (!m_icon) {
        m_icon = std::make_unique<OxaSvgIcon>();
        QObject::connect(m_icon.get(), &OxaSvgIcon::repaintNeeded, m_widget, [widget = m_widget] {
            if (widget->isVisible())
                widget->update();
        });
    }
    return *m_icon;
}
