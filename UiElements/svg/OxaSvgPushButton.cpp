// SPDX-License-Identifier: Apache-2.0
#include "OxaSvgPushButton.h"

#include <UiElements/svg/DrawUtils.h>

#include <QPainter>
#include <QStyleOptionButton>
#include <QTextDocument>

OxaSvgPushButton::OxaSvgPushButton(QWidget *parent, const QAccessible::Role &role)
    : OxaSvgPushButton(QString(), parent, role)
{
}

OxaSvgPushButton::OxaSvgPushButton(const QString &text, QWidget *parent,
                                   const QAccessible::Role &role)
    : OxaPushButton(text, parent, role), m_iconBlock(this, textColors())
{
    connect(this, &OxaSvgPushButton::cssChanged, this, [this] { onCSSChanged(); });
    connect(this, &OxaSvgPushButton::svgIconColorSetChanged, this,
            &OxaSvgPushButton::onSvgIconColorSetChanged);
    connect(this, &OxaSvgPushButton::svgIconSizeChanged, this,
            &OxaSvgPushButton::onSvgIconSizeChanged);
    OxaSvgIconBlock::lookAgainAfter(this, &OxaSvgPushButton::svgIconCheckedChanged, m_checkedIcon);
    setElideMode(Qt::ElideRight);
    setAttribute(Qt::WA_Hover);
    update();
}

OxaSvgPushButton::~OxaSvgPushButton() = default;

QString OxaSvgPushButton::getSvgIconChecked() const
{
    return m_checkedIcon ? m_checkedIcon->getFilePath() : QString();
}

void OxaSvgPushButton::setSvgIconChecked(const QString &path)
{
    if (path.isEmpty()) {
        m_checkedIcon.reset();
        update();
        return;
    }
    if (!m_checkedIcon)
        m_checkedIcon = std::make_unique<OxaSvgIcon>();
    m_checkedIcon->setFilePath(path);
    matchPlainIcon(*m_checkedIcon);
    Q_EMIT svgIconCheckedChanged(path);
}

void OxaSvgPushButton::setSvgIconVisible(bool visible)
{
    for (OxaSvgIcon *icon : { m_iconBlock.icon().get(), m_checkedIcon.get() }) {
        if (!icon)
            continue;
        icon->setVisible(visible);
        update();
    }
}

Qt::TextFormat OxaSvgPushButton::getTextFormat() const { return m_textFormat; }

void OxaSvgPushButton::setTextFormat(Qt::TextFormat format)
{
    if (format != Qt::PlainText && format != Qt::RichText)
        return;
    m_textFormat = format;
    if (format == Qt::PlainText) {
        if (m_textDocument)
            m_textDocument->deleteLater();
        m_textDocument.clear();
    } else {
        if (!m_textDocument)
            m_textDocument = new QTextDocument(this);
        m_textDocument->setUndoRedoEnabled(false);
        m_textDocument->setDocumentMargin(0.0);
        m_textDocument->setDefaultFont(font());
        // The alignment's number, not its meaning: CenterAlign reads as Qt::AlignLeft, since the
        // block of icon and text is centred as a whole.
        QTextOption option(Qt::Alignment(int(getTextHorAlign())) | Qt::AlignVCenter);
        option.setTextDirection(layoutDirection());
        m_textDocument->setDefaultTextOption(option);
        setText(text());
    }
    update();
}

void OxaSvgPushButton::setText(const QString &text)
{
    QPushButton::setText(text);
    if (m_textDocument) {
        m_textDocument->setHtml(text);
        update();
    }
}

void OxaSvgPushButton::setFont(const QFont &font)
{
    QPushButton::setFont(font);
    if (m_textDocument) {
        m_textDocument->setDefaultFont(font);
        update();
    }
}

QSize OxaSvgPushButton::sizeHint() const
{
    QSize size = QPushButton::sizeHint(); // NOLINT(bugprone-parent-virtual-call)
    if (!text().isEmpty())
        size.rwidth() += getTextLeftPadding() + getTextRightPadding();
    const auto &icon = m_iconBlock.icon();
    if (icon && icon->isValid() && icon->isVisible()) {
        const QMargins padding = getSvgIconPadding();
        size += QSize(padding.left() + padding.right(), padding.top() + padding.bottom())
                + icon->getIconSize();
    }
    return size;
}

void OxaSvgPushButton::onCSSChanged()
{
    const QString name = getSvgIconColorSet();
    const OxaColorSet set = name.isEmpty() ? textColors()
                                           : OxaThemeUtils::getColorSet(name.toStdString(), this);
    for (OxaSvgIcon *icon : { m_iconBlock.icon().get(), m_checkedIcon.get() }) {
        if (icon)
            icon->setColorSet(set);
    }
}

const std::unique_ptr<OxaSvgIcon> &OxaSvgPushButton::currentSvgIcon() const
{
    return m_checkedIcon && isChecked() ? m_checkedIcon : m_iconBlock.icon();
}

QTextDocument *OxaSvgPushButton::textDocument() const { return m_textDocument; }

OxaColorSet OxaSvgPushButton::colorSetOrText(const QString &name) const
{
    return m_iconBlock.colorSetOrFallback(name);
}

void OxaSvgPushButton::updateIconPath(const std::unique_ptr<OxaSvgIcon> &icon, const QString &path)
{
    OxaSvgIconBlock::showPath(icon.get(), path, this);
}

void OxaSvgPushButton::initButtonStyleOption(QStyleOptionButton *option) const
{
    // The style draws the frame only: the text is painted beside the icon. Skips the base class,
    // which would elide the text first.
    QPushButton::initStyleOption(option);
    option->text.clear();
}

void OxaSvgPushButton::paintEvent(QPaintEvent *event)
{
    OxaPushButton::paintEvent(event);
    QPainter painter(this);
    QStyleOptionButton option;
    QPushButton::initStyleOption(&option);
    DrawUtils::drawSvgIconText(&painter, this, m_textDocument, option, currentSvgIcon(),
                               textColors());
}

void OxaSvgPushButton::onThemeChanged()
{
    OxaPushButton::onThemeChanged();
    refreshSvgIconColorSet();
}

void OxaSvgPushButton::onSvgIconColorSetChanged(const OxaColorSet &colorSet)
{
    if (m_checkedIcon)
        m_checkedIcon->setColorSet(colorSet);
}

void OxaSvgPushButton::onSvgIconSizeChanged(const QSize &size)
{
    if (m_checkedIcon)
        m_checkedIcon->setIconSize(size);
}

/// Gives \a icon the look of the plain icon, or the text's colours if there is none.
void OxaSvgPushButton::matchPlainIcon(OxaSvgIcon &icon) const
{
    if (const auto &plain = m_iconBlock.icon()) {
        icon.setColorSet(plain->getColorSet());
        icon.setIconSize(plain->getIconSize());
        return;
    }
    if (!icon.getColorSet().isValid())
        icon.setColorSet(textColors());
}
