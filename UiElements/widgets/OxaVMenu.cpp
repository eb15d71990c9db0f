// SPDX-License-Identifier: Apache-2.0
#include "OxaVMenu.h"

#include "FocusStop_p.h"
#include "OxaSeparator.h"

#include <UiElements/svg/OxaSvgAnchorButton.h>
#include <UiElements/svg/OxaSvgLabel.h>

#include <QVBoxLayout>

#include <memory>

namespace {

constexpr QSize minimumItemSize(240, 40);
constexpr int itemPadding = 12;

void setFourSides(OxaCSSData &style)
{
    style.borderTop = style.borderRight = style.borderBottom = style.borderLeft = true;
    style.borderWidth = 1;
}

OxaCSSData itemStyle()
{
    OxaCSSData style;
    style.backgroundColorSetName = QStringLiteral("mainList-item");
    style.textColorSetName = QStringLiteral("oxa-menuItemButton-text");
    style.borderColorSetName = QStringLiteral("mainList-item");
    setFourSides(style);
    return style;
}

} // namespace

OxaVMenu::OxaVMenu(QWidget *parent) : OxaWidget(parent), m_layout(new QVBoxLayout(this))
{
    setObjectName(QStringLiteral("OxaVMenu"));
    setFocusPolicy(Qt::StrongFocus);
    m_layout->setSpacing(0);
    m_layout->setContentsMargins(QMargins());
}

OxaProperties::SvgPushButtonWidget<OxaSvgPushButton> OxaVMenu::addMenuItem(
        std::function<void()> callback)
{
    auto *button = new OxaSvgPushButton(this, QAccessible::MenuItem);
    if (callback)
        connect(button, &QAbstractButton::clicked, button,
                [callback = std::move(callback)] { callback(); });
    button->setObjectName(QStringLiteral("menu_item_%1").arg(m_layout->count()));
    button->setCSS(itemStyle());
    button->setTextHorAlign(OxaEnum::HorAlign::LeftAlign);
    button->setTextRightPadding(itemPadding);
    button->setMinimumSize(minimumItemSize);
    button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    button->setFont(font());
    button->setCheckable(false);
    button->setSvgIconAlignment(OxaEnum::Alignment::Left);
    button->setSvgIconPadding(QMargins(itemPadding, 0, itemPadding, 0));
    if (m_layout->count() == 0) {
        m_passesFocusOn = true;
        setFocusProxy(button);
    }
    button->installEventFilter(this);
    m_layout->addWidget(button);
    return OxaProperties::SvgPushButtonWidget<OxaSvgPushButton>(button);
}

OxaSvgPushButton *OxaVMenu::addButton()
{
    auto *button = new OxaSvgPushButton(this);
    addLimited(button);
    return button;
}

OxaSvgAnchorButton *OxaVMenu::addAnchorButton()
{
    auto *button = new OxaSvgAnchorButton(this);
    addLimited(button);
    return button;
}

OxaSvgLabel *OxaVMenu::addSectionTitle()
{
    auto *title = new OxaSvgLabel(this);
    title->setFontToken(OxaFont::Token::BodySecondary);
    addLimited(title);
    return title;
}

OxaSeparator *OxaVMenu::addSeparator(const QString &colorSetName, int inset)
{
    auto *separator = new OxaSeparator(this);
    m_layout->addWidget(separator);
    if (!colorSetName.isEmpty()) {
        separator->setColorSetName(colorSetName);
        separator->onThemeChanged(); // The setter stores the name alone.
    }
    if (inset > 0) {
        const QMargins margins = m_layout->contentsMargins();
        const int width = maximumWidth() - 2 * inset - (margins.left() + margins.right());
        separator->setFixedWidth(qMax(0, width));
        m_layout->setAlignment(separator, Qt::AlignHCenter);
    }
    return separator;
}

void OxaVMenu::addSpacer(int height)
{
    m_layout->addSpacerItem(new QSpacerItem(1, height, QSizePolicy::Fixed, QSizePolicy::Fixed));
}

void OxaVMenu::addWidget(QWidget *widget, int stretch, Qt::Alignment alignment)
{
    m_layout->addWidget(widget, stretch, alignment);
    if (widget)
        widget->installEventFilter(this);
}

int OxaVMenu::count() const { return m_layout->count(); }

void OxaVMenu::clear()
{
    m_passesFocusOn = false;
    while (const std::unique_ptr<QLayoutItem> item { m_layout->takeAt(0) })
        delete item->widget();
}

void OxaVMenu::setMargin(const QMargins &margins) { setLayoutContentsMargins(margins); }

void OxaVMenu::setSpacing(int spacing) { m_layout->setSpacing(spacing); }

void OxaVMenu::setBackgroundColorSet(const QString &name)
{
    OxaCSSData style = getOxaCSS();
    style.backgroundColorSetName = name;
    setCSS(style);
}

void OxaVMenu::setBorderRadius(int radius)
{
    OxaCSSData style = getOxaCSS();
    setFourSides(style);
    style.radiusCorner = 0;
    style.borderRadius = quint8(radius);
    setCSS(style);
}

bool OxaVMenu::eventFilter(QObject *watched, QEvent *event)
{
    if (FocusStop::isAffectedBy(*event) && m_passesFocusOn)
        setFocusProxy(FocusStop::firstIn(*m_layout));
    return OxaWidget::eventFilter(watched, event);
}

/// Adds \a widget at most as wide as the menu.
void OxaVMenu::addLimited(QWidget *widget)
{
    widget->setMaximumWidth(maximumWidth());
    widget->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    m_layout->addWidget(widget);
    widget->installEventFilter(this);
}
