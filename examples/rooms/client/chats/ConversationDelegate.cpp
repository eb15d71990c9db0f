// SPDX-License-Identifier: Apache-2.0
#include "ConversationDelegate.h"

#include "EmojiLine.h"
#include "TimeTexts.h"
#include "data/Backend.h"
#include "data/ConversationModel.h"
#include "people/Avatar.h"
#include "shell/Looks.h"
#include "shell/RoomsApplication.h"

#include <UiElements/theme/OxaThemeUtils.h>

#include <QPainter>

using Role = ConversationModel::Role;

namespace {

constexpr int margin = 8;
constexpr int avatarSize = 40;
constexpr int rowMargin = 4; ///< Left and right of a row's ground.

QColor rowColor(const char *set, QStyle::State state)
{
    const OxaColorSet row = OxaThemeUtils::getColorSet(set, OxaThemeUtils::AppThemeType::Global);
    if (state & QStyle::State_Selected)
        return row.checked;
    return state & QStyle::State_MouseOver ? row.hovered : row.normal;
}

QRect mirrored(const QStyleOptionViewItem &option, const QRect &rect)
{
    return QStyle::visualRect(option.direction, option.rect, rect);
}

} // namespace

ConversationDelegate::ConversationDelegate(Backend *backend, QObject *parent)
    : QStyledItemDelegate(parent), m_backend(backend)
{
    refresh();
}

void ConversationDelegate::refresh()
{
    m_titleFont = OxaFont(OxaFont::Token::BodySecondary);
    m_unreadFont = OxaFont(OxaFont::Token::SubheaderSecondary);
    m_textFont = OxaFont(OxaFont::Token::RadioButtonLabelSecondary);
    m_isPreviewShown = RoomsApplication::get()->settings().previewsShown;
}

QSize ConversationDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    const int texts = QFontMetrics(m_unreadFont).height()
            + (m_isPreviewShown ? QFontMetrics(m_textFont).height() + 2 : 0);
    return { 1, qMax(avatarSize, texts) + 2 * margin };
}

void ConversationDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                 const QModelIndex &index) const
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setLayoutDirection(option.direction);
    paintGround(painter, option);
    const Parts parts = partsOf(option);
    const QString person = index.data(Role::PersonRole).toString();
    const QString id = person.isEmpty() ? index.data(Role::IdRole).toString() : person;
    const QString title = index.data(Role::TitleRole).toString();
    Avatar::paint(painter, mirrored(option, parts.picture),
                  { id, title, {}, {}, m_backend->person(person).presence }, !person.isEmpty());
    paintTexts(painter, parts, option, index);
    painter->restore();
}

QRect ConversationDelegate::personAt(const QPoint &position,
                                     const QStyleOptionViewItem &option) const
{
    const Parts parts = partsOf(option);
    for (const QRect &part : { parts.picture, parts.upper }) {
        const QRect place = mirrored(option, part);
        if (place.contains(position))
            return place;
    }
    return {};
}

ConversationDelegate::Parts ConversationDelegate::partsOf(const QStyleOptionViewItem &option) const
{
    const QRect inside = option.rect.adjusted(rowMargin + margin, margin, -rowMargin - margin,
                                              -margin);
    QRect picture(inside.topLeft(), QSize(avatarSize, avatarSize));
    picture.moveTop(inside.center().y() - avatarSize / 2);
    const int left = picture.right() + 13;
    const int upperHeight = QFontMetrics(m_unreadFont).height();
    const int lowerHeight = QFontMetrics(m_textFont).height();
    QRect upper(left, 0, inside.right() + 1 - left, upperHeight);
    upper.moveTop(inside.center().y()
                  - (upperHeight + (m_isPreviewShown ? lowerHeight + 2 : 0)) / 2);
    return { picture, upper, QRect(left, upper.bottom() + 3, upper.width(), lowerHeight) };
}

void ConversationDelegate::paintGround(QPainter *painter, const QStyleOptionViewItem &option) const
{
    const QRectF ground = QRectF(option.rect).adjusted(rowMargin, 1, -rowMargin, -1);
    painter->setPen(Qt::NoPen);
    painter->setBrush(rowColor("row", option.state));
    painter->drawRoundedRect(ground, 6, 6);
    if (option.state & QStyle::State_HasFocus)
        Looks::paintFocus(painter, ground);
}

void ConversationDelegate::paintTexts(QPainter *painter, Parts parts,
                                      const QStyleOptionViewItem &option,
                                      const QModelIndex &index) const
{
    const int unread = index.data(Role::UnreadRole).toInt();
    const QFont &titleFont = unread > 0 ? m_unreadFont : m_titleFont;
    QRect &upper = parts.upper;
    QRect &lower = parts.lower;

    const qint64 at = index.data(Role::LastAtRole).toLongLong();
    const QString time = TimeTexts::brief(QDateTime::fromMSecsSinceEpoch(at));
    const QColor quiet = rowColor("row-text-secondary", option.state);
    painter->setFont(m_textFont);
    painter->setPen(quiet);
    painter->drawText(mirrored(option, upper), Qt::AlignRight | Qt::AlignVCenter, time);
    upper.setRight(upper.right() - QFontMetrics(m_textFont).horizontalAdvance(time) - 8);

    QRect &line = m_isPreviewShown ? lower : upper;
    if (unread > 0)
        line.setRight(line.right() - paintBadge(painter, mirrored(option, line), unread) - 8);
    const QColor ink = rowColor("row-text", option.state);
    EmojiLine::paint(painter, mirrored(option, upper), index.data(Role::TitleRole).toString(),
                     titleFont, ink);
    if (m_isPreviewShown)
        EmojiLine::paint(painter, mirrored(option, lower), preview(index), m_textFont, quiet);
}

/// Paints the badge where \a line ends, and returns its width.
int ConversationDelegate::paintBadge(QPainter *painter, const QRect &line, int count) const
{
    const QString text = count > 99 ? tr("99+") : QLocale().toString(count);
    const QFontMetrics metrics(m_textFont);
    const int height = metrics.height() + 2;
    QRect badge(0, 0, qMax(height, metrics.horizontalAdvance(text) + 10), height);
    badge.moveCenter(line.center());
    if (painter->layoutDirection() == Qt::RightToLeft)
        badge.moveLeft(line.left());
    else
        badge.moveRight(line.right());
    painter->setPen(Qt::NoPen);
    painter->setBrush(Looks::color("badge"));
    painter->drawRoundedRect(badge, height / 2.0, height / 2.0);
    painter->setPen(Looks::color("badge-text"));
    painter->setFont(m_textFont);
    painter->drawText(badge, Qt::AlignCenter, text);
    return badge.width();
}

QString ConversationDelegate::preview(const QModelIndex &index) const
{
    const QString author = index.data(Role::LastAuthorRole).toString();
    const QString text = index.data(Role::PreviewRole).toString();
    if (author == m_backend->me())
        return tr("You: %1").arg(text);
    if (!index.data(Role::PersonRole).toString().isEmpty() || author.isEmpty())
        return text;
    return tr("%1: %2").arg(m_backend->person(author).name.section(QLatin1Char(' '), 0, 0), text);
}
