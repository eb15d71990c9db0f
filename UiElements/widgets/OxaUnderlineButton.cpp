// SPDX-License-Identifier: Apache-2.0
#include "OxaUnderlineButton.h"

#include <UiElements/svg/DrawUtils.h>
#include <UiElements/svg/OxaSvgIcon.h>
#include <UiElements/theme/StateColor_p.h>
#include <UiElements/widgets/WidgetParts_p.h>

#include <QPainter>
#include <QStyleOptionButton>

namespace {

constexpr int groundRadius = 14;
constexpr int underlineInset = 4;
constexpr QSize unreadDotSize(10, 10);
constexpr int unreadDotTop = 12;
constexpr int unreadDotRoom = 12;
constexpr QSize leftIconSize(17, 17);
constexpr int leftIconInset = 3;
constexpr int leftIconRoom = 23;
constexpr QSize anchorIconSize(8, 8);
constexpr int anchorIconRoom = 8;
constexpr int anchorIconInset = 3;
constexpr int anchorIconGap = 6;

} // namespace

OxaUnderlineButton::OxaUnderlineButton(QWidget *parent)
    : OxaPushButton(parent, QAccessible::PushButton)
{
    // Stored without the setters: the pen stays black until one of them runs.
    m_backgroundColorSet.fetch(QStringLiteral("oxa-underlineButton-background"), this);
    m_textColorSet.fetch(QStringLiteral("oxa-underlineButton-text"), this);
    m_underlineColorSet = m_textColorSet;
    setProperty("focusBorderRadius", groundRadius);
}

OxaUnderlineButton::~OxaUnderlineButton() = default;

int OxaUnderlineButton::getBorderWidth() const { return m_borderWidth; }

void OxaUnderlineButton::setBorderWidth(int width) { m_borderWidth = width; }

int OxaUnderlineButton::getBottomPadding() const { return m_bottomPadding; }

void OxaUnderlineButton::setBottomPadding(int padding)
{
    m_bottomPadding = padding;
    update();
}

bool OxaUnderlineButton::getShowUnreadIndicator() const { return m_showUnreadIndicator; }

void OxaUnderlineButton::setShowUnreadIndicator(bool show)
{
    const bool isChange = m_showUnreadIndicator != show;
    m_showUnreadIndicator = show;
    update();
    if (isChange)
        WidgetParts::tellAccessibility(this, QAccessible::DescriptionChanged);
}

QImage OxaUnderlineButton::getLeftIcon() const { return m_leftIcon; }

void OxaUnderlineButton::setLeftIcon(const QImage &image)
{
    m_leftIcon = image;
    update();
}

QString OxaUnderlineButton::getAnchorIcon() const
{
    return m_anchorIcon ? m_anchorIcon->getFilePath() : QString();
}

void OxaUnderlineButton::setAnchorIcon(const QString &path)
{
    if (!m_anchorIcon)
        m_anchorIcon = std::make_unique<OxaSvgIcon>();
    m_anchorIcon->setIconSize(anchorIconSize);
    m_anchorIcon->setFilePath(path);
    m_anchorIcon->setColorSet(colorSet(QStringLiteral("oxa-spaceTabs-text")));
    update();
}

void OxaUnderlineButton::setBackgroundColorSet(const QString &name)
{
    m_backgroundColorSet.fetch(name, this);
}

void OxaUnderlineButton::setTextColorSet(const QString &name)
{
    m_textColorSet.fetch(name, this);
    m_underlinePen = penOf(m_textColorSet.colors().pressed);
}

void OxaUnderlineButton::setUnderlineColorSet(const QString &name)
{
    m_underlineColorSet.fetch(name, this);
    m_underlinePen = penOf(m_underlineColorSet.colors().normal);
}

void OxaUnderlineButton::onThemeChanged()
{
    OxaPushButton::onThemeChanged();
    // A set that the theme lacks is not looked up again.
    if (m_backgroundColorSet.colors().isValid())
        setBackgroundColorSet(m_backgroundColorSet.name());
    if (m_textColorSet.colors().isValid())
        setTextColorSet(m_textColorSet.name());
    if (m_underlineColorSet.colors().isValid())
        setUnderlineColorSet(m_underlineColorSet.name());
    if (m_anchorIcon)
        m_anchorIcon->setColorSet(colorSet(QStringLiteral("oxa-spaceTabs-text")));
}

void OxaUnderlineButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QStyleOptionButton option;
    initButtonStyleOption(&option);

    const QColor textColor = paintGround(painter, option);
    const QRect textRect = paintIcons(painter, option);
    painter.setPen(orTransparent(textColor));
    painter.drawText(textRect, Qt::AlignCenter,
                     painter.fontMetrics().elidedText(option.text, getElideMode(),
                                                      textRect.width()));
    if (m_showUnreadIndicator)
        drawUnreadDot(painter, option.rect);
    const QRect frame = option.rect.adjusted(0, 0, 0, -m_bottomPadding);
    DrawUtils::drawFocusRect(&painter, option.state, frame, m_backgroundColorSet.colors().pressed,
                             this);
}

OxaColorSet OxaUnderlineButton::colorSet(const QString &name) const
{
    return OxaThemeUtils::getColorSet(name.toStdString(), this);
}

QPen OxaUnderlineButton::penOf(const QColor &color) const
{
    return { QBrush(orTransparent(color)), qreal(m_borderWidth), Qt::SolidLine, Qt::SquareCap,
             Qt::BevelJoin };
}

/// Paints the fill and the underline for the option's state, and returns the colour of its text.
QColor OxaUnderlineButton::paintGround(QPainter &painter, const QStyleOptionButton &option) const
{
    const QRect rect = option.rect;
    QColor textColor = m_textColorSet.colors().normal;
    if (!option.state.testFlag(QStyle::State_Enabled)) {
        textColor = m_textColorSet.colors().disabled;
    } else if (option.state.testFlag(QStyle::State_MouseOver)) {
        painter.setBrush(orTransparent(m_backgroundColorSet.colors().hovered));
        painter.drawRoundedRect(rect, groundRadius, groundRadius);
        textColor = m_textColorSet.colors().hovered;
    }
    if (option.state.testFlag(QStyle::State_Sunken) || isChecked()) {
        textColor = m_textColorSet.colors().pressed;
        painter.setPen(m_underlinePen);
        painter.drawLine(rect.left() + underlineInset, rect.bottom(), rect.right() - underlineInset,
                         rect.bottom());
    }
    return textColor;
}

/// Paints the image and the icon beside the text, and returns the room that is left for it.
QRect OxaUnderlineButton::paintIcons(QPainter &painter, const QStyleOptionButton &option) const
{
    const QRect rect = option.rect;
    const bool hasAnchor = m_anchorIcon && m_anchorIcon->isValid();
    QRect textRect = rect.adjusted(0, 0, hasAnchor ? -anchorIconRoom : 0, -m_bottomPadding);
    if (m_showUnreadIndicator) {
        textRect.setLeft(rect.left() + unreadDotRoom);
    } else if (!m_leftIcon.isNull()) {
        const QPoint topLeft(rect.left() + leftIconInset, rect.top() + rect.height() / 2 - 8);
        painter.drawImage(QRect(topLeft, leftIconSize), m_leftIcon);
        textRect.setLeft(rect.left() + leftIconRoom);
    }
    if (hasAnchor) {
        const QSize size = m_anchorIcon->getIconSize();
        const QPoint topLeft(rect.right() - size.width() - anchorIconInset,
                             (rect.top() + rect.bottom()) / 2 - qRound(size.height() * 0.5));
        painter.save();
        painter.translate(topLeft);
        m_anchorIcon->draw(&painter, option.state);
        painter.restore();
        textRect.setRight(topLeft.x() - anchorIconGap);
    }
    return textRect;
}

void OxaUnderlineButton::drawUnreadDot(QPainter &painter, const QRect &rect) const
{
    painter.setBrush(
            orTransparent(colorSet(QStringLiteral("oxa-unreadCountCircle-background")).normal));
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(QRect(QPoint(rect.left(), rect.top() + unreadDotTop), unreadDotSize));
}
