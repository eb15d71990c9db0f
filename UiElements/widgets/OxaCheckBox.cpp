// SPDX-License-Identifier: Apache-2.0
#include "OxaCheckBox.h"

#include <UiElements/svg/DrawUtils.h>

#include <QPainter>
#include <QStyleOptionButton>

namespace {

constexpr int checkboxMargin = 3;
constexpr int borderRadius = 2;
constexpr int initialTextPadding = 10;
constexpr QSize frameAroundTick(4, 4);

} // namespace

OxaCheckBox::OxaCheckBox(QWidget *parent, bool rounded)
    : QCheckBox(parent),
      m_themeBlock(this, OxaThemeBlock::Form::Full, { &m_textColors }),
      m_iconBlock(this, m_textColors),
      m_isRounded(rounded)
{
    m_focusColors.fetch(this);
    m_iconBlock.setIcon(std::make_unique<OxaSvgIcon>(QStringLiteral(":/Resources/check_12_w.svg")));
    m_iconBlock.icon()->setIconSize(m_checkboxSize - frameAroundTick);
    m_themeBlock.followTheme();
    setTextLeftPadding(initialTextPadding);
    setSvgIconAlignment(OxaEnum::Alignment::Left);
    setTextHorAlign(OxaEnum::HorAlign::LeftAlign);
    setAttribute(Qt::WA_Hover);
    setProperty("focusBorderRadius", borderRadius / 2);
    connect(this, &OxaCheckBox::cssChanged, this, &OxaCheckBox::onCSSChanged);
    connect(this, &OxaCheckBox::svgIconColorSetChanged, this,
            &OxaCheckBox::onSvgIconColorSetChanged);
    connect(this, &OxaCheckBox::svgIconSizeChanged, this, &OxaCheckBox::onSvgIconSizeChanged);
}

QSize OxaCheckBox::getCheckboxSize() const { return m_checkboxSize; }

void OxaCheckBox::setCheckboxSize(const QSize &size)
{
    m_checkboxSize = size;
    m_iconBlock.icon()->setIconSize(size - frameAroundTick);
    update();
}

int OxaCheckBox::getCheckboxMargin() const { return checkboxMargin; }

bool OxaCheckBox::isDefaultStyle() const { return m_isDefaultStyle; }

void OxaCheckBox::setIsDefaultStyle(bool isDefault)
{
    m_isDefaultStyle = isDefault;
    update();
}

bool OxaCheckBox::getWordWrap() const { return m_wordWrap; }

void OxaCheckBox::setWordWrap(bool wrap)
{
    m_wordWrap = wrap;
    update();
}

int OxaCheckBox::geTextPadding() const
{
    const QMargins padding = getSvgIconPadding();
    return m_checkboxSize.width() + getTextLeftPadding() + getTextRightPadding() + padding.left()
            + padding.right();
}

int OxaCheckBox::textFlags() const
{
    return m_wordWrap ? Qt::AlignVCenter | Qt::TextWordWrap : int(Qt::AlignVCenter);
}

QSize OxaCheckBox::sizeHint() const
{
    QSize size = QCheckBox::sizeHint();
    if (!m_isDefaultStyle)
        return size;
    const QMargins padding = getSvgIconPadding();
    if (text().isEmpty()) {
        // Higher than the box on purpose: rows without a text keep apart.
        size.rheight() += m_checkboxSize.height() + padding.top() + padding.bottom();
    } else {
        const QRect room = rect().adjusted(0, 0, -geTextPadding(), 0);
        const QRect bounds = fontMetrics().boundingRect(room, textFlags(), text());
        size = QSize(bounds.width() + getTextLeftPadding() + getTextRightPadding(),
                     bounds.height());
    }
    size.rwidth() += checkboxMargin + m_checkboxSize.width() + padding.left() + padding.right();
    return size;
}

QString OxaCheckBox::getElidedText(const QString &text, int extraWidth, int sideMargin) const
{
    return m_elision.elidedText(text, 2 * sideMargin + extraWidth);
}

int OxaCheckBox::getLineWidth() const { return m_elision.lineWidth(); }

bool OxaCheckBox::hitButton(const QPoint &position) const
{
    // All of the widget, where QCheckBox would take the box and the text.
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    return QAbstractButton::hitButton(position); // clazy:exclude=skipped-base-method
}

void OxaCheckBox::paintEvent(QPaintEvent *event)
{
    if (!m_isDefaultStyle) {
        QCheckBox::paintEvent(event);
        return;
    }
    QPainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    static const std::unique_ptr<OxaSvgIcon> noTick;
    const bool isTicked = m_iconBlock.icon() && checkState() == Qt::Checked;
    DrawUtils::drawCheckbox(&painter, this, option, isTicked ? m_iconBlock.icon() : noTick,
                            m_textColors, m_borderColors.colors(),
                            isTicked ? m_checkedColors.colors() : m_uncheckedColors.colors(),
                            m_focusColors.colors(), m_isRounded, borderRadius);
}

void OxaCheckBox::enterEvent(QEvent *event)
{
    QWidget::enterEvent(event); // NOLINT(bugprone-parent-virtual-call): nobody adds to it
    Q_EMIT mouseEntered();
}

void OxaCheckBox::leaveEvent(QEvent *event)
{
    QWidget::leaveEvent(event); // NOLINT(bugprone-parent-virtual-call): nobody adds to it
    Q_EMIT mouseExited();
}

void OxaCheckBox::onThemeChanged()
{
    m_defaultTextColors.fetch(this);
    m_textColors = m_defaultTextColors.colors();
    m_borderColors.fetch(this);
    m_iconColors.fetch(this);
    m_checkedColors.fetch(this);
    m_uncheckedColors.fetch(this);
    m_focusColors.fetch(this);
    m_iconBlock.icon()->setColorSet(m_iconColors.colors());
    update();
}

void OxaCheckBox::onCSSChanged()
{
    if (!m_textColors.isValid())
        m_textColors = m_defaultTextColors.colors();
    if (getSvgIconColorSet().isEmpty())
        m_iconBlock.icon()->setColorSet(m_iconColors.colors());
}

void OxaCheckBox::onSvgIconColorSetChanged(const OxaColorSet &colorSet)
{
    m_iconBlock.icon()->setColorSet(colorSet);
}

void OxaCheckBox::onSvgIconSizeChanged(const QSize &size) { m_iconBlock.icon()->setIconSize(size); }
