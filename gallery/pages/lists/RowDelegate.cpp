// SPDX-License-Identifier: Apache-2.0
#include "RowDelegate.h"

#include "AvatarColors.h"
#include "RowRole.h"
#include "looks/Metrics.h"

#include <QPainter>

namespace {

constexpr int avatarSize = 36;

} // namespace

void RowDelegate::refresh(OxaThemeUtils::AppThemeType themeType)
{
    ItemDelegate::refresh(themeType);
    m_avatarText = OxaThemeUtils::getColorSet("avatar-text", themeType);
    m_avatars.clear();
    for (int i = 0; i < AvatarColors::count(); ++i) {
        const std::string name = AvatarColors::setName(i).toStdString();
        m_avatars.push_back(OxaThemeUtils::getColorSet(name, themeType).normal);
    }
}

int RowDelegate::rowHeight() const
{
    const int texts = QFontMetrics(look().headingFont).height()
            + QFontMetrics(look().captionFont).height();
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
        if (unread > 0)
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
    const QFontMetrics detail(look().captionFont);
    const int titleHeight = QFontMetrics(look().headingFont).height();
    const int top = inner.top() + (inner.height() - titleHeight - detail.height()) / 2;
    const int left = inner.left() + avatarSize + Metrics::small + Metrics::tight;
    const int timeWidth = detail.horizontalAdvance(QStringLiteral("00:00"));
    const int badgeWidth = badgeText.isEmpty() ? 0 : badgeSize(badgeText).width();
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

void RowDelegate::paintPlaceholder(QPainter *painter, const Parts &parts) const
{
    painter->setPen(Qt::NoPen);
    painter->setBrush(look().line.normal);
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
    painter->setFont(look().headingFont);
    painter->setPen(m_avatarText.normal);
    painter->drawText(rect, Qt::AlignCenter, index.data(RowRole::Title).toString().mid(0, 1));
}

void RowDelegate::paintTexts(QPainter *painter, const QStyleOptionViewItem &option,
                             const Parts &parts, const QModelIndex &index) const
{
    painter->setFont(look().headingFont);
    painter->setPen(colorFor(look().text, option.state));
    drawElided(painter, parts.title, index.data(RowRole::Title).toString(), option.direction);
    painter->setFont(look().captionFont);
    painter->setPen(colorFor(look().captionText, option.state));
    drawElided(painter, parts.detail, index.data(RowRole::Detail).toString(), option.direction);
    painter->drawText(parts.time, Qt::AlignCenter, index.data(RowRole::Time).toString());
}
