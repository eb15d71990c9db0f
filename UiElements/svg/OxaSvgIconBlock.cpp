// SPDX-License-Identifier: Apache-2.0
#include "OxaSvgIconBlock.h"

#include <UiElements/theme/OxaThemeUtils.h>

#include <QWidget>

OxaSvgIconBlock::OxaSvgIconBlock(QWidget *widget, const OxaColorSet &textColorSet)
    : m_widget(widget), m_textColorSet(textColorSet)
{
}

OxaSvgIconBlock::~OxaSvgIconBlock() = default;

QString OxaSvgIconBlock::path() const { return m_icon ? m_icon->getFilePath() : QString(); }

void OxaSvgIconBlock::setPath(const QString &path)
{
    OxaSvgIcon &icon = ensureSvgIconExists();
    icon.setFilePath(path);
    if (!icon.getColorSet().isValid())
        icon.setColorSet(m_textColorSet);
}

QSize OxaSvgIconBlock::size() const { return m_icon ? m_icon->getIconSize() : QSize(); }

void OxaSvgIconBlock::setSize(const QSize &size) { ensureSvgIconExists().setIconSize(size); }

void OxaSvgIconBlock::setColorSetName(const QString &name)
{
    m_colorSetName = name;
    ensureSvgIconExists().setColorSet(colorSetOrText(name));
}

OxaColorSet OxaSvgIconBlock::colorSet() const
{
    return m_icon ? m_icon->getColorSet() : OxaColorSet();
}

QString OxaSvgIconBlock::innerPath() const
{
    return m_icon ? m_icon->getInnerFilePath() : QString();
}

void OxaSvgIconBlock::setInnerPath(const QString &path)
{
    OxaSvgIcon &icon = ensureSvgIconExists();
    icon.setInnerFilePath(path);
    if (!icon.getInnerColorSet().isValid())
        icon.setInnerColorSet(m_textColorSet);
}

QSize OxaSvgIconBlock::innerSize() const { return m_icon ? m_icon->getInnerIconSize() : QSize(); }

void OxaSvgIconBlock::setInnerSize(const QSize &size)
{
    ensureSvgIconExists().setInnerIconSize(size);
    m_widget->update();
}

void OxaSvgIconBlock::setInnerColorSetName(const QString &name)
{
    m_innerColorSetName = name;
    ensureSvgIconExists().setInnerColorSet(colorSetOrText(name));
    m_widget->update();
}

void OxaSvgIconBlock::setAlignment(OxaEnum::Alignment alignment)
{
    m_alignment = alignment;
    m_widget->update();
}

void OxaSvgIconBlock::setTextHorAlign(OxaEnum::HorAlign align)
{
    m_textHorAlign = align;
    m_widget->update();
}

void OxaSvgIconBlock::setTextLeftPadding(int padding)
{
    m_textLeftPadding = padding;
    m_widget->update();
}

void OxaSvgIconBlock::setTextRightPadding(int padding)
{
    m_textRightPadding = padding;
    m_widget->update();
}

void OxaSvgIconBlock::setTopLeftPadding(const QPoint &padding)
{
    m_padding.setLeft(padding.x());
    m_padding.setTop(padding.y());
    m_widget->update();
}

void OxaSvgIconBlock::setBottomRightPadding(const QPoint &padding)
{
    m_padding.setRight(padding.x());
    m_padding.setBottom(padding.y());
    m_widget->update();
}

OxaColorSet OxaSvgIconBlock::colorSetOrText(const QString &name) const
{
    const OxaColorSet set = OxaThemeUtils::getColorSet(name.toStdString(), m_widget);
    return set.isValid() ? set : m_textColorSet;
}

void OxaSvgIconBlock::updateIconPath(OxaSvgIcon *icon, const QString &path) const
{
    if (icon && (!icon->isValid() || icon->getFilePath() != path))
        icon->setFilePath(path);
    m_widget->update();
}

OxaSvgIcon &OxaSvgIconBlock::ensureSvgIconExists()
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
