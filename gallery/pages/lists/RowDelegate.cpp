// SPDX-License-Identifier: Apache-2.0
#include "RowDelegate.h"

#include "AvatarColors.h"
#include "Metrics.h"
#include "RowRole.h"

#include <UiElements/fonts/OxaFont.h>

#include <QPainter>

namespace {

constexpr int avatarSize = 36;

const QColor &colorOf(const OxaColorSet &colorSet, QStyle::State state)
{
    if (state.testFlag(QStyle::State_Selected))
        return colorSet.checked;
    return state.testFlag(QStyle::State_MouseOver) ? colorSet.hovered : colorSet.normal;
}

/// Draws \a text from where lines of the layout begin, but in its own direction: a full stop stands
/// behind an English sentence in any interface.
void drawElided(QPainter *painter, const QRect &rect, const QString &text,
                Qt::LayoutDirection direction)
{
    painter->setLayoutDirection(text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    const Qt::Alignment alignment = QStyle::visualAlignment(direction, Qt::AlignLeft)
            | Qt::AlignAbsolute | Qt::AlignVCenter;
    painter->drawText(rect, int(alignment),
                      painter->fontMetrics().elidedText(text, Qt::ElideRight, rect.width()));
}

} // namespace

RowDelegate::RowDelegate(QObject *parent) : QStyledItemDelegate(parent) { }

void RowDelegate::refresh(OxaThemeUtils::AppThemeType themeType)
{
    const auto set = [themeType](const char *name) {
        return OxaThemeUtils::getColorSet(name, themeType);
    };
    m_ground = set("gallery-list-item");
    m_titleText = set("gallery-list-item-text");
    m_detailText = set("gallery-list-item-caption-text");
    m_line = set("gallery-divider");
    m_focusBorder = set("gallery-focus-border");
    m_avatarText = set("avatar-text");
    m_badgeGround = set("oxa-unreadCountCircle-background");
    m_badgeText = set("oxa-unreadCountCircle-text");
    m_avatars.clear();
    for (int i = 0; i < AvatarColors::count(); ++i)
        m_avatars.push_back(set(qPrintable(AvatarColors::setName(i))).normal);
    m_titleFont = OxaFont(OxaFont::Token::TagLabelPrimary);
    m_detailFont = OxaFont(OxaFont::Token::RadioButtonLabelSecondary);
}

int RowDelegate::rowHeight() const
{
    const int texts = QFontMetrics(m_titleFont).height() + QFontMetrics(m_detailFont).height();
    return qMax(avatarSize, texts + 2) + 2 * Metrics::small;
}

QSize RowDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    return { avatarSize, rowHeight() };
}

void RowDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                        const QModelIndex &index) const
{
    const int unread = index.data(RowRole::Unread).toInt();
    const QString badgeText = unread > 0 ? QString::number(unread) : QString();
    const Parts parts = partsOf(option, badgeText);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    paintGround(painter, option);
    if (index.data(RowRole::Title).isValid()) {
        paintAvatar(painter, parts.avatar, index);
        paintTexts(painter, option, parts, index);
        paintBadge(painter, parts.badge, badgeText, option.state);
    } else {
        paintPlaceholder(painter, parts);
    }
    painter->restore();
}

RowDelegate::Parts RowDelegate::partsOf(const QStyleOptionViewItem &option,
                                        const QString &badgeText) const
{
    const QRect inner = option.rect.adjusted(Metrics::spacing, 0, -Metrics::spacing, 0);
    const QFontMetrics detail(m_detailFont);
    const int titleHeight = QFontMetrics(m_titleFont).height();
    const int top = inner.top() + (inner.height() - titleHeight - detail.height()) / 2;
    const int left = inner.left() + avatarSize + Metrics::small + Metrics::tight;
    const int timeWidth = detail.horizontalAdvance(QStringLiteral("00:00"));
    const int badgeWidth = badgeText.isEmpty()
            ? 0
            : qMax(detail.height(), detail.horizontalAdvance(badgeText) + 2 * Metrics::tight);
    const auto line = [&inner, left](int y, int height, int widthAtEnd) {
        return QRect(left, y, inner.right() + 1 - left - widthAtEnd - Metrics::small, height);
    };
    const auto atEnd = [&inner, &detail](int y, int width) {
        return QRect(inner.right() + 1 - width, y, width, detail.height());
    };
    Parts parts = {
        QRect(inner.left(), inner.center().y() - avatarSize / 2, avatarSize, avatarSize),
        line(top, titleHeight, timeWidth), line(top + titleHeight, detail.height(), badgeWidth),
        atEnd(top, timeWidth), atEnd(top + titleHeight, badgeWidth)
    };
    for (QRect *part : { &parts.avatar, &parts.title, &parts.detail, &parts.time, &parts.badge })
        *part = QStyle::visualRect(option.direction, option.rect, *part);
    return parts;
}

void RowDelegate::paintGround(QPainter *painter, const QStyleOptionViewItem &option) const
{
    painter->fillRect(option.rect, colorOf(m_ground, option.state));
    painter->fillRect(QRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1),
                      m_line.normal);
    if (!option.state.testFlag(QStyle::State_HasFocus))
        return;
    painter->setPen(QPen(m_focusBorder.normal, 2));
    painter->drawRect(option.rect.adjusted(1, 1, -1, -2));
}

void RowDelegate::paintPlaceholder(QPainter *painter, const Parts &parts) const
{
    painter->setPen(Qt::NoPen);
    painter->setBrush(m_line.normal);
    painter->drawEllipse(parts.avatar);
    for (const QRect &rect : { parts.title, parts.detail, parts.time }) {
        const int inset = rect.height() / 3;
        painter->drawRoundedRect(rect.adjusted(0, inset, 0, -inset), 2, 2);
    }
}

void RowDelegate::paintAvatar(QPainter *painter, const QRect &rect, const QModelIndex &index) const
{
    painter->setPen(Qt::NoPen);
    painter->setBrush(
            m_avatars[std::size_t(index.data(RowRole::Avatar).toInt()) % m_avatars.size()]);
    painter->drawEllipse(rect);
    painter->setFont(m_titleFont);
    painter->setPen(m_avatarText.normal);
    painter->drawText(rect, Qt::AlignCenter, index.data(RowRole::Title).toString().mid(0, 1));
}

void RowDelegate::paintTexts(QPainter *painter, const QStyleOptionViewItem &option,
                             const Parts &parts, const QModelIndex &index) const
{
    painter->setFont(m_titleFont);
    painter->setPen(colorOf(m_titleText, option.state));
    drawElided(painter, parts.title, index.data(RowRole::Title).toString(), option.direction);
    painter->setFont(m_detailFont);
    painter->setPen(colorOf(m_detailText, option.state));
    drawElided(painter, parts.detail, index.data(RowRole::Detail).toString(), option.direction);
    painter->drawText(parts.time, Qt::AlignCenter, index.data(RowRole::Time).toString());
}

void RowDelegate::paintBadge(QPainter *painter, const QRect &rect, const QString &text,
                             QStyle::State state) const
{
    if (text.isEmpty())
        return;
    // A chosen row may be as bright as a badge. There the badge is the row turned inside out.
    const bool isSelected = state.testFlag(QStyle::State_Selected);
    const qreal radius = rect.height() / 2.0;
    painter->setPen(Qt::NoPen);
    painter->setBrush(isSelected ? m_titleText.checked : m_badgeGround.normal);
    painter->drawRoundedRect(rect, radius, radius);
    painter->setFont(m_detailFont);
    painter->setPen(isSelected ? m_ground.checked : m_badgeText.normal);
    painter->drawText(rect, Qt::AlignCenter, text);
}
