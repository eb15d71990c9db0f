// SPDX-License-Identifier: Apache-2.0
#include "OxaSvgAnchorButton.h"

#include <UiElements/svg/DrawUtils.h>

#include <QGuiApplication>
#include <QPainter>
#include <QPointer>
#include <QStyleOptionButton>

OxaSvgAnchorButton::OxaSvgAnchorButton(QWidget *parent) : OxaSvgAnchorButton(QString(), parent) { }

OxaSvgAnchorButton::OxaSvgAnchorButton(const QString &text, QWidget *parent)
    : OxaSvgPushButton(text, parent, QAccessible::PushButton)
{
    setCheckable(true);
    OxaSvgIconBlock::lookAgainAfter(this, &OxaSvgAnchorButton::anchorSvgOnChanged, m_anchorOn);
    OxaSvgIconBlock::lookAgainAfter(this, &OxaSvgAnchorButton::anchorSvgOffChanged, m_anchorOff);
}

OxaSvgAnchorButton::~OxaSvgAnchorButton() = default;

QString OxaSvgAnchorButton::getAnchorSvgOn() const { return m_anchorOn->getFilePath(); }

void OxaSvgAnchorButton::setAnchorSvgOn(const QString &path)
{
    m_anchorOn->setFilePath(path);
    const QPointer<OxaSvgAnchorButton> self(this); // A slot may delete the button.
    Q_EMIT anchorSvgOnChanged(path);
    if (self)
        update();
}

QString OxaSvgAnchorButton::getAnchorSvgOff() const { return m_anchorOff->getFilePath(); }

void OxaSvgAnchorButton::setAnchorSvgOff(const QString &path)
{
    m_anchorOff->setFilePath(path);
    const QPointer<OxaSvgAnchorButton> self(this); // A slot may delete the button.
    Q_EMIT anchorSvgOffChanged(path);
    if (self)
        update();
}

QSize OxaSvgAnchorButton::getAnchorIconSize() const { return m_anchorOn->getIconSize(); }

void OxaSvgAnchorButton::setAnchorIconSize(const QSize &size)
{
    m_anchorOn->setIconSize(size);
    m_anchorOff->setIconSize(size);
    update();
}

void OxaSvgAnchorButton::setAnchorIconVisible(bool visible)
{
    m_anchorOn->setVisible(visible);
    m_anchorOff->setVisible(visible);
    update();
}

QString OxaSvgAnchorButton::getAnchorSvgColorSet() const { return m_anchorColorSetName; }

void OxaSvgAnchorButton::setAnchorSvgColorSet(const QString &name)
{
    m_anchorColorSetName = name;
    m_anchorOn->setColorSet(colorSetOrText(name));
    m_anchorOff->setColorSet(m_anchorOn->getColorSet());
    update();
}

int OxaSvgAnchorButton::getAnchorPadding() const { return m_anchorOffset.x(); }

void OxaSvgAnchorButton::setAnchorPadding(int padding)
{
    m_anchorOffset.setX(padding);
    update();
}

QPoint OxaSvgAnchorButton::getAnchorSvgOffset() const { return m_anchorOffset; }

void OxaSvgAnchorButton::setAnchorSvgOffset(const QPoint &offset)
{
    m_anchorOffset = offset;
    update();
}

bool OxaSvgAnchorButton::getIsLeftAnchor() const { return m_isLeftAnchor; }

void OxaSvgAnchorButton::setIsLeftAnchor(bool isLeft)
{
    m_isLeftAnchor = isLeft;
    update();
}

bool OxaSvgAnchorButton::getAlignAnchorIconToText() const { return m_alignAnchorIconToText; }

void OxaSvgAnchorButton::setAlignAnchorIconToText(bool align)
{
    m_alignAnchorIconToText = align;
    update();
}

QSize OxaSvgAnchorButton::sizeHint() const
{
    QSize size = OxaSvgPushButton::sizeHint();
    if (m_anchorOn->isValid() && m_anchorOn->isVisible())
        size += QSize(m_anchorOffset.x(), m_anchorOffset.y()) + getAnchorIconSize();
    return size;
}

bool OxaSvgAnchorButton::isLeading() const
{
    return m_isLeftAnchor == QGuiApplication::isLeftToRight();
}

QPoint OxaSvgAnchorButton::adjustRect(QRect &rect) const
{
    if (!m_anchorOn->isValid() && !m_anchorOff->isValid())
        return {};

    const QSize size = getAnchorIconSize();
    const int y = (rect.top() + rect.bottom()) / 2 - qRound(size.height() * 0.5)
            + m_anchorOffset.y();
    if (isLeading()) {
        const int x = rect.left() + getAnchorPadding();
        // Ignores the rectangle's own left edge: a rectangle that starts further right is widened.
        rect.setLeft(getAnchorPadding() + size.width());
        return { x, y };
    }
    const int x = rect.right() - size.width() - getAnchorPadding();
    rect.setRight(x);
    return { x, y };
}

void OxaSvgAnchorButton::onCSSChanged()
{
    OxaSvgPushButton::onCSSChanged();
    if (!m_anchorColorSetName.isEmpty())
        return;
    m_anchorOn->setColorSet(textColors());
    m_anchorOff->setColorSet(textColors());
}

void OxaSvgAnchorButton::onThemeChanged()
{
    const QPointer<OxaSvgAnchorButton> self(this); // A slot may delete the button.
    OxaSvgPushButton::onThemeChanged();
    if (self && !m_anchorColorSetName.isEmpty())
        setAnchorSvgColorSet(m_anchorColorSetName);
}

void OxaSvgAnchorButton::paintEvent(QPaintEvent *)
{
    paintButton();
    QPainter painter(this);
    QStyleOptionButton option;
    QPushButton::initStyleOption(&option);
    const QPoint position = adjustRect(option.rect);
    const QRect block = paintBlock(painter, option);
    paintAnchor(painter, position, block, option.state);
}

QRect OxaSvgAnchorButton::paintBlock(QPainter &painter, const QStyleOptionButton &option)
{
    const QPixmap &pixmap = getPixmap();
    if (pixmap.isNull())
        return DrawUtils::drawSvgIconText(&painter, this, textDocument(), option, currentSvgIcon(),
                                          textColors());
    if (iconSize() != pixmap.size())
        setIconSize(pixmap.size());
    return DrawUtils::drawPixmapIconText(&painter, this, textDocument(), option, pixmap,
                                         textColors());
}

void OxaSvgAnchorButton::paintAnchor(QPainter &painter, QPoint position, const QRect &block,
                                     QStyle::State state) const
{
    const OxaSvgIcon &anchor = isChecked() ? *m_anchorOn : *m_anchorOff;
    if (!anchor.isValid())
        return;
    if (m_alignAnchorIconToText)
        position.setX(isLeading() ? block.left() - getAnchorPadding() - getAnchorIconSize().width()
                                  : getAnchorPadding() + block.right());
    painter.translate(position);
    anchor.draw(&painter, state);
}
