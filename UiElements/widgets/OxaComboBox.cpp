// SPDX-License-Identifier: Apache-2.0
#include "OxaComboBox.h"

#include "WidgetParts_p.h"

#include <QAbstractItemView>
#include <QPointer>

#include <cmath>
#include <limits>

namespace {

constexpr QSize initialIconSize(12, 12);

OxaColorSet colorSet(const std::string &name, const OxaComboBox *box)
{
    return OxaThemeUtils::getColorSet(name, box);
}

void refreshColorSet(OxaSvgIcon &icon, const OxaComboBox *box)
{
    const OxaColorSet set = icon.getColorSet();
    if (set.isValid())
        icon.setColorSet(colorSet(set.name.toStdString(), box));
}

OxaCSSData initialBorder()
{
    OxaCSSData border;
    border.borderTop = border.borderRight = border.borderBottom = border.borderLeft = true;
    return border;
}

} // namespace

OxaComboBox::OxaComboBox(QWidget *parent)
    : QComboBox(parent),
      m_themeBlock(this, OxaThemeBlock::Form::Full,
                   { &m_textColors, &m_backgroundColors, &m_borderColors, &m_border }),
      m_dropdownIcon(QStringLiteral(":/Resources/arrow-down_8.svg")),
      m_dropdownIconExpanded(QStringLiteral(":/Resources/arrow-up_8.svg")),
      m_border(initialBorder())
{
    takeConfig();
    const OxaColorSet arrowColors = colorSet("oxa-rills-combobox-dropdown-arrow", this);
    m_dropdownIcon.setColorSet(arrowColors);
    m_dropdownIconExpanded.setColorSet(arrowColors);
    setSvgDropdownIconSize(initialIconSize);

    view()->window()->setWindowFlags(Qt::Popup | Qt::FramelessWindowHint
                                     | Qt::NoDropShadowWindowHint);
    takeList();
    connect(this, QOverload<int>::of(&QComboBox::highlighted), this,
            &OxaComboBox::highLightedIndex);
    // With a name of its own, the box tells its choice as its description.
    connect(this, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this] {
        if (!accessibleName().isEmpty())
            WidgetParts::tellAccessibility(this, QAccessible::DescriptionChanged);
    });
    m_themeBlock.followTheme();
    OxaComboBox::applyCustomCSS();
}

OxaComboBox::~OxaComboBox() = default;

QString OxaComboBox::getSvgDropdownIcon() const { return m_dropdownIcon.getFilePath(); }

void OxaComboBox::setSvgDropdownIcon(const QString &path)
{
    m_dropdownIcon.setFilePath(path);
    const QPointer<OxaComboBox> self(this);
    Q_EMIT svgDropdownIconChanged(path);
    if (self)
        applyCustomCSS();
}

QString OxaComboBox::getSvgDropDownIconExpanded() const
{
    return m_dropdownIconExpanded.getFilePath();
}

void OxaComboBox::setSvgDropDownIconExpanded(const QString &path)
{
    m_dropdownIconExpanded.setFilePath(path);
    const QPointer<OxaComboBox> self(this);
    Q_EMIT svgDropdownIconExpandedChanged(path);
    if (self)
        applyCustomCSS();
}

QSize OxaComboBox::getSvgDropdownIconSize() const { return m_dropdownIcon.getIconSize(); }

void OxaComboBox::setSvgDropdownIconSize(const QSize &size)
{
    m_dropdownIcon.setIconSize(size);
    m_dropdownIconExpanded.setIconSize(size);
    const QPointer<OxaComboBox> self(this);
    Q_EMIT svgDropdownIconSizeChanged(size);
    if (self)
        applyCustomCSS();
    if (self)
        update();
}

int OxaComboBox::getSvgDropdownIconPadding() const { return m_svgDropdownIconPadding; }

void OxaComboBox::setSvgDropdownIconPaddingRight(int padding)
{
    m_svgDropdownIconPadding = padding;
    const QPointer<OxaComboBox> self(this);
    Q_EMIT svgDropdownIconPaddingChanged(padding);
    if (self)
        applyCustomCSS();
}

int OxaComboBox::getItemViewBorderRadius() const { return m_itemViewBorderRadius; }

void OxaComboBox::setItemViewBorderRadius(int radius)
{
    m_itemViewBorderRadius = radius;
    applyCustomCSS();
}

QPoint OxaComboBox::getItemViewDropdownOffset() const { return m_itemViewDropdownOffset; }

void OxaComboBox::setItemViewDropdownOffset(const QPoint &offset)
{
    m_itemViewDropdownOffset = offset;
    applyCustomCSS();
}

bool OxaComboBox::isOpenedUpwards() const { return m_isOpenedUpwards; }

void OxaComboBox::setOpenedUpwards(bool upwards) { m_isOpenedUpwards = upwards; }

QString OxaComboBox::getSelectedBackgroundColor() const { return m_selectedBackgroundColor; }

void OxaComboBox::setSelectedBackgroundColor(const QString &colorSetName)
{
    m_selectedBackgroundColor = colorSetName;
}

QString OxaComboBox::getPopupBackgroundColor() const { return m_popupBackgroundColor; }

void OxaComboBox::setPopupBackgroundColor(const QString &colorSetName)
{
    m_popupBackgroundColor = colorSetName;
}

bool OxaComboBox::isShowPopupEnabled() const { return m_isShowPopupEnabled; }

void OxaComboBox::setShowPopupEnabled(bool enabled) { m_isShowPopupEnabled = enabled; }

bool OxaComboBox::isComboBoxAnimationEnabled() const { return m_isAnimated; }

void OxaComboBox::setComboBoxAnimationEnabled(bool enabled) { m_isAnimated = enabled; }

void OxaComboBox::setLeftPadding(double padding)
{
    using Limits = std::numeric_limits<int>;
    m_leftPadding = std::isnan(padding)
            ? 0
            : static_cast<int>(qBound(double(Limits::min()), padding, double(Limits::max())));
    applyCustomCSS();
}

void OxaComboBox::setEditable(bool editable)
{
    QComboBox::setEditable(editable);
    applyCustomCSS();
}

void OxaComboBox::updateStyle(const UTComboBoxConfig &config)
{
    m_config = config;
    takeConfig();
    m_dropdownIcon.setColorSet(m_textColors);
    m_dropdownIconExpanded.setColorSet(m_textColors);
    applyCustomCSS();
}

void OxaComboBox::takeConfig()
{
    m_textColors = colorSet(m_config.textColorSetName, this);
    m_backgroundColors = colorSet(m_config.backgroundColorSetName, this);
    m_borderColors = colorSet(m_config.borderColorSetName, this);
    m_border.borderWidth = static_cast<quint8>(m_config.borderWidth);
    m_border.borderRadius = static_cast<quint8>(m_config.borderRadius);
}

/// Takes the configuration again if a change of theme or name, before the box was first styled, has
/// applied an empty style text: that takes the sets and all sides of the border away.
void OxaComboBox::restoreConfig()
{
    if (m_isStyled || m_border.borderTop || !getCSS().isEmpty())
        return;
    m_border = initialBorder();
    takeConfig();
}

void OxaComboBox::highLightedIndex(int index) { m_highlightedIndex = index; }

void OxaComboBox::onThemeChanged()
{
    refreshColorSet(m_dropdownIcon, this);
    refreshColorSet(m_dropdownIconExpanded, this);
    applyCustomCSS();
}

int OxaComboBox::dropDownWidth() const
{
    const int iconWidth = m_dropdownIcon.isVisible() ? m_dropdownIcon.getIconSize().width() : -1;
    return iconWidth + 2 * m_svgDropdownIconPadding;
}
