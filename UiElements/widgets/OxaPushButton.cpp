// SPDX-License-Identifier: Apache-2.0
#include "OxaPushButton.h"

#include "WidgetParts_p.h"

#include <UiElements/theme/FocusFrame_p.h>

#include <QMouseEvent>
#include <QPointer>
#include <QStyleOptionButton>
#include <QTimer>

namespace {

constexpr int longPressMs = 500;

} // namespace

OxaPushButton::OxaPushButton(QWidget *parent, const QAccessible::Role &role)
    : OxaPushButton(QString(), parent, role)
{
}

OxaPushButton::OxaPushButton(const QString &text, QWidget *parent, const QAccessible::Role &role)
    : OxaPushButton(QIcon(), text, parent, role)
{
}

OxaPushButton::OxaPushButton(const QIcon &icon, const QString &text, QWidget *parent,
                             const QAccessible::Role &role)
    : QPushButton(parent),
      m_themeBlock(this, OxaThemeBlock::Form::Full, { &m_textColors }),
      m_accessibleRole(role),
      m_useGlobalFocusBorders(FocusFrame::areBordersGlobal())
{
    // Not by QPushButton's constructor: assistive technology is told of a text at once, and would
    // take this for a plain QPushButton from then on.
    setText(text);
    setIcon(icon);
    setAutoDefault(true);
    m_themeBlock.followTheme();
}

QString OxaPushButton::getFocusRectColorSet() const { return m_focusRectColorSet.colors().name; }

void OxaPushButton::setFocusRectColorSet(const QString &name)
{
    m_focusRectColorSet.fetch(name, this);
}

bool OxaPushButton::isLongPressEnabled() const { return m_isLongPressEnabled; }

void OxaPushButton::setLongPressEnabled(bool enabled) { m_isLongPressEnabled = enabled; }

bool OxaPushButton::isBadgeVisible() const { return m_isBadgeVisible; }

void OxaPushButton::setBadgeVisible(bool visible)
{
    const bool isChange = m_isBadgeVisible != visible;
    m_isBadgeVisible = visible;
    repaint();
    if (isChange)
        WidgetParts::tellAccessibility(this, QAccessible::DescriptionChanged);
}

void OxaPushButton::setIcon(const QIcon &icon)
{
    m_hasIcon = !icon.isNull();
    QAbstractButton::setIcon(icon);
}

void OxaPushButton::setIconColor(const QColor &color, QIcon::Mode mode)
{
    setIconColor(color, mode, QIcon::On);
    setIconColor(color, mode, QIcon::Off);
}

void OxaPushButton::setIconColor(const QColor &color, QIcon::Mode mode, QIcon::State state)
{
    QIcon recolored = icon();
    if (recolored.isNull())
        return;

    recolored.addPixmap(WidgetParts::tinted(recolored.pixmap(iconSize(), mode, state), color), mode,
                        state);
    setIcon(recolored);
}

void OxaPushButton::setPixmap(const QPixmap &pixmap)
{
    m_pixmap = pixmap;
    m_hasIcon = !pixmap.isNull();
}

void OxaPushButton::setPixmapIconVisibility(bool visible) { m_isPixmapIconVisible = visible; }

QUuid OxaPushButton::getObjectId() const { return m_objectId; }

RillsAccessible::AcceleratorType OxaPushButton::getAcceleratorType() const
{
    return m_acceleratorType;
}

void OxaPushButton::setAcceleratorType(const RillsAccessible::AcceleratorType &type)
{
    m_acceleratorType = type;
}

RillsAccessible::AccessibleMode OxaPushButton::getAccessibleMode() const
{
    return m_accessibleMode;
}

void OxaPushButton::setAccessibleMode(const RillsAccessible::AccessibleMode &mode)
{
    m_accessibleMode = mode;
}

QString OxaPushButton::getElidedText(const QString &text, int extraWidth, int sideMargin) const
{
    return m_elision.elidedText(text, 2 * sideMargin + extraWidth);
}

int OxaPushButton::getLineWidth() const { return m_elision.lineWidth(); }

const OxaColorSet &OxaPushButton::textColors() const { return m_textColors; }

const QPixmap &OxaPushButton::getPixmap() const { return m_pixmap; }

void OxaPushButton::onThemeChanged()
{
    // A set that the theme lacks is not looked up again.
    if (m_focusRectColorSet.colors().isValid())
        m_focusRectColorSet.fetch(this);
}

void OxaPushButton::onButtonDownTimeout()
{
    if (!isDown())
        return;
    // A button that is no longer down does not click when it is released.
    setDown(false);
    Q_EMIT longPressed();
}

void OxaPushButton::mousePressEvent(QMouseEvent *event)
{
    // A slot may delete the button, for example one of a menu that the button opens.
    const QPointer<OxaPushButton> self(this);
    if (event->button() == Qt::RightButton)
        Q_EMIT rightClick();
    if (!self)
        return;
    if (m_isLongPressEnabled) {
        if (!m_longPressTimer) {
            m_longPressTimer = new QTimer(this);
            m_longPressTimer->setSingleShot(true);
            // A coarse timer may fire early, and turn a click into a long press.
            m_longPressTimer->setTimerType(Qt::PreciseTimer);
            connect(m_longPressTimer, &QTimer::timeout, this, &OxaPushButton::onButtonDownTimeout);
        }
        m_longPressTimer->start(longPressMs);
    }
    QAbstractButton::mousePressEvent(event); // NOLINT(bugprone-parent-virtual-call)
}

void OxaPushButton::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_longPressTimer)
        m_longPressTimer->stop();
    QAbstractButton::mouseReleaseEvent(event); // NOLINT(bugprone-parent-virtual-call)
}

void OxaPushButton::focusInEvent(QFocusEvent *event)
{
    const QPointer<OxaPushButton> self(this); // A slot may delete the button.
    Q_EMIT onFocusIn();
    if (self)
        QPushButton::focusInEvent(event);
}

void OxaPushButton::focusOutEvent(QFocusEvent *event)
{
    const QPointer<OxaPushButton> self(this); // A slot may delete the button.
    Q_EMIT onFocusOut();
    if (self)
        QPushButton::focusOutEvent(event);
}

void OxaPushButton::enterEvent(QEvent *event)
{
    QWidget::enterEvent(event); // NOLINT(bugprone-parent-virtual-call)
    Q_EMIT mouseEntered();
}

void OxaPushButton::leaveEvent(QEvent *event)
{
    QWidget::leaveEvent(event); // NOLINT(bugprone-parent-virtual-call)
    Q_EMIT mouseExited();
}
