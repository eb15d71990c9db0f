// SPDX-License-Identifier: Apache-2.0
#include "OxaPillTabButton.h"

namespace {

constexpr QSize pillIconSize(12, 12);
constexpr int sidePadding = 12;

} // namespace

OxaPillTabButton::OxaPillTabButton(QWidget *parent) : OxaPillTabButton(QString(), parent) { }

OxaPillTabButton::OxaPillTabButton(const QString &text, QWidget *parent)
    : OxaSvgPushButton(text, parent, QAccessible::PushButton)
{
    setCheckable(true);
    connect(this, &OxaPillTabButton::toggled, this, &OxaPillTabButton::onApplyCSS);
    connect(this, &OxaPillTabButton::svgIconChanged, this, &OxaPillTabButton::onSvgIconChanged,
            Qt::QueuedConnection);
    m_unchecked.icon = m_unchecked.text = QStringLiteral("oxa-contentTabViewButton-text");
    m_checked.icon = m_checked.text = QStringLiteral("oxa-contentTabViewButtonChecked-text");
    setSvgIconSize(pillIconSize);
    setSvgIconTopLeftPadding(QPoint(sidePadding, 0));
    setTextRightPadding(sidePadding);
    setTextLeftPadding(sidePadding);
    setFontToken(OxaFont::Token::BodySecondary);
}

QString OxaPillTabButton::getBackgroundColorSet() const { return m_unchecked.background; }

void OxaPillTabButton::setBackgroundColorSet(const QString &name)
{
    m_unchecked.background = name;
    m_unchecked.border = QStringLiteral("oxa-defaultBorderForButton");
    onApplyCSS(isChecked());
}

QString OxaPillTabButton::getTextColorSet() const { return m_unchecked.text; }

void OxaPillTabButton::setTextColorSet(const QString &name)
{
    m_unchecked.text = name;
    onApplyCSS(isChecked());
}

QString OxaPillTabButton::getIconColorSet() const { return m_unchecked.icon; }

void OxaPillTabButton::setIconColorSet(const QString &name)
{
    m_unchecked.icon = name;
    onApplyCSS(isChecked());
}

QString OxaPillTabButton::getBackgroundColorSetChecked() const { return m_checked.background; }

void OxaPillTabButton::setBackgroundColorSetChecked(const QString &name)
{
    m_checked.background = name;
    m_checked.border = name;
    onApplyCSS(isChecked());
}

QString OxaPillTabButton::getTextColorSetChecked() const { return m_checked.text; }

void OxaPillTabButton::setTextColorSetChecked(const QString &name)
{
    m_checked.text = name;
    onApplyCSS(isChecked());
}

QString OxaPillTabButton::getIconColorSetChecked() const { return m_checked.icon; }

void OxaPillTabButton::setIconColorSetChecked(const QString &name)
{
    m_checked.icon = name;
    onApplyCSS(isChecked());
}

void OxaPillTabButton::resizeEvent(QResizeEvent *event)
{
    const QPointer<OxaPillTabButton> self(this); // A slot may delete the button.
    roundToHeight();
    if (self)
        QWidget::resizeEvent(
                event); // NOLINT(bugprone-parent-virtual-call): no other class adds to it
}

void OxaPillTabButton::onApplyCSS(bool isChecked)
{
    const Colors &colors = isChecked ? m_checked : m_unchecked;
    const QPointer<OxaPillTabButton> self(this); // A slot may delete the button.
    setSvgIconColorSet(colors.icon);
    if (!self)
        return;
    const bool hasBorder = !colors.border.trimmed().isEmpty();
    m_style.backgroundColorSetName = colors.background;
    m_style.borderColorSetName = colors.border;
    m_style.textColorSetName = colors.text;
    m_style.borderTop = m_style.borderRight = hasBorder;
    m_style.borderBottom = m_style.borderLeft = hasBorder;
    roundToHeight();
}

void OxaPillTabButton::onSvgIconChanged(const QString &)
{
    const QMargins padding = getSvgIconPadding();
    setMaximumWidth(getTextRightPadding() + getTextLeftPadding()
                    + fontMetrics().horizontalAdvance(text()) + m_style.borderWidth * 2
                    + getSvgIconSize().width() + padding.left() + padding.right());
}

/// Applies the pill's style with a radius of half its height.
void OxaPillTabButton::roundToHeight()
{
    m_style.borderRadius = static_cast<quint8>(height() / 2);
    m_style.radiusCorner = 0;
    setCSS(m_style);
}
