// SPDX-License-Identifier: Apache-2.0

// The style text of a combo box and the sheet of its list.

#include "OxaComboBox.h"

#include <QAbstractItemView>
#include <QPointer>
#include <QStyle>

namespace {

/// Writes \a color as lists' sheets have it: "rgba(12,34,56,0.50)".
QString colorText(const QColor &color)
{
    const int decimals = color.alpha() % 255 == 0 ? 1 : 2;
    const float alpha = static_cast<float>(color.alpha()) / 255.0F;
    return QStringLiteral("rgba(%1,%2,%3,%4)")
            .arg(color.red())
            .arg(color.green())
            .arg(color.blue())
            .arg(static_cast<double>(alpha), 0, 'f', decimals);
}

/// Returns the declaration of \a property, or nothing for a colour that does not exist: as a text
/// it would be black.
QString colorDeclaration(const char *property, const QColor &color)
{
    if (!color.isValid())
        return {};
    return QLatin1String(property) + colorText(color) + QLatin1Char(';');
}

} // namespace

void OxaComboBox::applyCustomCSS()
{
    if (objectName().isEmpty())
        return;
    restoreConfig();
    m_isStyled = true;
    OxaCSSData css = m_border;
    css.radiusCorner = 0; // Every corner has the radius, whatever a style text said.
    css.rectangularCornerMask = 0;
    css.backgroundColorSetName = m_backgroundColors.name;
    css.borderColorSetName = m_borderColors.name;
    css.textColorSetName = m_textColors.name;
    css.plainStyleSheet = fieldStyleSheet();

    const QPointer<OxaComboBox> self(this);
    styleList();
    if (self)
        setCSS(OxaThemeUtils::convertToOxaCSS(css));
    if (self)
        Q_EMIT cssChanged();
    if (self)
        update();
}

QString OxaComboBox::fieldStyleSheet() const
{
    // The arrow's height lacks its colon, so that Qt drops it: meant so, the icon has the height.
    // The drop-down's selector bears no name, and holds for combo boxes below this one too.
    const QSize iconSize = m_dropdownIcon.getIconSize();
    return QStringLiteral("OxaComboBox#%1 {"
                          "combobox-popup: 0;"
                          "padding-left: %2px;"
                          "padding-right: 4px;"
                          "}"
                          "OxaComboBox::drop-down {"
                          "background-color: transparent; "
                          "width: %3px;"
                          "padding-left: %4px;"
                          "padding-right: %4px;"
                          "}"
                          "OxaComboBox#%1::down-arrow {"
                          "width: %5px;"
                          "height %6px; "
                          "}")
            .arg(objectName(), QString::number(m_leftPadding), QString::number(dropDownWidth()),
                 QString::number(m_svgDropdownIconPadding), QString::number(iconSize.width()),
                 QString::number(iconSize.height()));
}

QString OxaComboBox::listStyleSheet() const
{
    const auto normalColor = [this](const QString &name) {
        return OxaThemeUtils::getColorSet(name.toStdString(), this).normal;
    };
    QString sheet = QStringLiteral("QAbstractItemView#rillsAstractItemView {");
    sheet += colorDeclaration("background-color: ",
                              m_popupBackgroundColor.isEmpty()
                                      ? m_backgroundColors.normal
                                      : normalColor(m_popupBackgroundColor));
    if (!m_selectedBackgroundColor.isEmpty())
        sheet += colorDeclaration("selection-background-color: ",
                                  normalColor(m_selectedBackgroundColor));
    sheet += QStringLiteral("border-radius: %1px;").arg(m_itemViewBorderRadius);
    sheet += colorDeclaration("border: 1px solid ", m_borderColors.normal);
    sheet += colorDeclaration("color: ", m_textColors.normal);
    return sheet + QLatin1Char('}');
}

void OxaComboBox::styleList()
{
    // A slot of its name's signal may delete the list, and the box with it.
    const QPointer<QAbstractItemView> list(view());
    const QString sheet = listStyleSheet();
    if (list)
        list->setObjectName(QStringLiteral("rillsAstractItemView"));
    if (!list)
        return;
    list->setStyleSheet(sheet);
    list->style()->unpolish(this);
    list->style()->polish(this);
}
