// SPDX-License-Identifier: Apache-2.0
#include "OxaLineEdit.h"

#include "ContextMenu_p.h"
#include "MaskedUpdates_p.h"
#include "WidgetParts_p.h"

#include <UiElements/svg/VisualUtils.h>
#include <UiElements/theme/FocusFrame_p.h>

#include <QContextMenuEvent>
#include <QMenu>
#include <QPainter>

OxaLineEdit::OxaLineEdit(QWidget *parent) : QLineEdit(parent) { initialise(); }

OxaLineEdit::OxaLineEdit(const QString &text, QWidget *parent) : QLineEdit(text, parent)
{
    initialise();
}

QString OxaLineEdit::getPlaceholderColorSetName() const { return m_placeholderColorSet.name; }

void OxaLineEdit::setPlaceholderColorSetName(const QString &name)
{
    m_placeholderColorSet = OxaThemeUtils::getColorSet(name.toStdString(), this);
    updatePlaceholderColor();
}

void OxaLineEdit::enableFocusRing() { m_isFocusRingEnabled = true; }

void OxaLineEdit::onLayoutDirectionChanged()
{
    setContentsMargins(WidgetParts::mirrored(contentsMargins()));
    if (alignment() == Qt::AlignCenter || alignment() == Qt::AlignHCenter)
        return;
    // Meant so: any other value aligns to the left, also Qt::RightToLeft.
    const bool isForcedLeft = qApp->property("TextDirection").toInt() != Qt::LeftToRight;
    const bool startsAtTheRight = !isForcedLeft && QGuiApplication::isRightToLeft();
    setAlignment((alignment() & Qt::AlignVertical_Mask)
                 | (startsAtTheRight ? Qt::AlignRight : Qt::AlignLeft));
}

void OxaLineEdit::onThemeChanged()
{
    if (m_placeholderColorSet.isValid())
        setPlaceholderColorSetName(m_placeholderColorSet.name);
}

bool OxaLineEdit::event(QEvent *event)
{
    const QEvent::Type type = event->type();
    const bool isHover = type == QEvent::HoverEnter || type == QEvent::HoverLeave;
    if (!isHover && type != QEvent::PaletteChange)
        return QLineEdit::event(event);
    updatePlaceholderColor();
    if (isHover) {
        update(); // As QWidget does, for rules of a sheet.
        Q_EMIT hoveredChanged(type == QEvent::HoverEnter);
    }
    return true;
}

QVariant OxaLineEdit::inputMethodQuery(Qt::InputMethodQuery query) const
{
    return inputMethodQuery(query, QVariant());
}

QVariant OxaLineEdit::inputMethodQuery(Qt::InputMethodQuery query, const QVariant &argument) const
{
    constexpr auto texts = Qt::ImSurroundingText | Qt::ImCurrentSelection | Qt::ImTextBeforeCursor
            | Qt::ImTextAfterCursor;
    if (texts.testFlag(query) && echoMode() != QLineEdit::Normal)
        return QString();
    return QLineEdit::inputMethodQuery(query, argument);
}

void OxaLineEdit::paintEvent(QPaintEvent *event)
{
    QLineEdit::paintEvent(event);
    const QStyleOptionFocusRect option = FocusFrame::optionFor(this);
    if (!m_isFocusRingEnabled || !FocusFrame::isShown(option.state))
        return;
    // On no device: styles that draw the frame in a window of their own only want to know where.
    QPainter painter;
    FocusFrame::draw(&painter, option, this);
}

void OxaLineEdit::contextMenuEvent(QContextMenuEvent *event)
{
    ContextMenu::popUp(createStandardContextMenu(), this, event->globalPos());
}

/// What both constructors share.
void OxaLineEdit::initialise()
{
    setAttribute(Qt::WA_Hover); // QLineEdit gets no hover events otherwise.
    MaskedUpdates::ensureInstalled();
    connect(qGuiApp, &QGuiApplication::layoutDirectionChanged, this,
            &OxaLineEdit::onLayoutDirectionChanged);
    m_themeBlock.followTheme();
    VisualUtils::EventFilter::overrideShortcutOverride(this);
}

void OxaLineEdit::updatePlaceholderColor()
{
    if (!m_placeholderColorSet.isValid())
        return;
    const QColor &resting = underMouse() ? m_placeholderColorSet.hovered
                                         : m_placeholderColorSet.normal;
    const QColor &color = isEnabled() ? resting : m_placeholderColorSet.disabled;
    QPalette colors = palette();
    if (colors.color(QPalette::PlaceholderText) == color)
        return;
    colors.setColor(QPalette::PlaceholderText, color);
    setPalette(colors);
}
