// SPDX-License-Identifier: Apache-2.0
#include "OxaSvgIconBlock.h"

#include <UiElements/theme/OxaThemeUtils.h>

#include <QPointer>

#include <utility>

OxaSvgIconBlock::~OxaSvgIconBlock() = default;

QString OxaSvgIconBlock::path() const { return m_icon ? m_icon->getFilePath() : QString(); }

void OxaSvgIconBlock::setPath(const QString &path)
{
    OxaSvgIcon &icon = ensureSvgIconExists();
    icon.setFilePath(path);
    if (!icon.getColorSet().isValid())
        icon.setColorSet(m_fallbackColors);
    m_class.emitPathChanged(m_widget, path);
}

QSize OxaSvgIconBlock::size() const { return m_icon ? m_icon->getIconSize() : QSize(); }

void OxaSvgIconBlock::setSize(const QSize &size)
{
    ensureSvgIconExists().setIconSize(size);
    const QPointer<QWidget> widget(m_widget); // A slot may delete the widget.
    m_class.emitSizeChanged(m_widget, size);
    if (widget)
        widget->update();
}

void OxaSvgIconBlock::setColorSetName(const QString &name)
{
    m_colorSetName = name;
    OxaSvgIcon &icon = ensureSvgIconExists();
    icon.setColorSet(colorSetOrFallback(name));
    const QPointer<QWidget> widget(m_widget); // A slot may delete the widget.
    m_class.emitColorSetChanged(m_widget, icon.getColorSet());
    if (widget)
        widget->update();
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
        icon.setInnerColorSet(m_fallbackColors);
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
    ensureSvgIconExists().setInnerColorSet(colorSetOrFallback(name));
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

void OxaSvgIconBlock::refreshColorSets()
{
    const QPointer<QWidget> widget(m_widget); // A slot may delete the widget.
    if (!m_colorSetName.isEmpty())
        setColorSetName(m_colorSetName);
    if (widget && !m_innerColorSetName.isEmpty())
        setInnerColorSetName(m_innerColorSetName);
}

OxaColorSet OxaSvgIconBlock::colorSetOrFallback(const QString &name) const
{
    const OxaColorSet set = OxaThemeUtils::getColorSet(name.toStdString(), m_widget);
    return set.isValid() ? set : m_fallbackColors;
}

void OxaSvgIconBlock::showPath(OxaSvgIcon *icon, const QString &path, QWidget *widget)
{
    if (icon && (!icon->isValid() || icon->getFilePath() != path))
        icon->setFilePath(path);
    widget->update();
}

OxaSvgIcon &OxaSvgIconBlock::ensureSvgIconExists()
{
    if (!m_icon)
        setIcon(std::make_unique<OxaSvgIcon>());
    return *m_icon;
}

void OxaSvgIconBlock::setIcon(std::unique_ptr<OxaSvgIcon> icon)
{
    m_icon = std::move(icon);
    QObject::connect(m_icon.get(), &OxaSvgIcon::repaintNeeded, m_widget, [widget = m_widget] {
        if (widget->isVisible())
            widget->update();
    });
}
