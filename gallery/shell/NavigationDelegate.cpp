// SPDX-License-Identifier: Apache-2.0
#include "NavigationDelegate.h"

#include "looks/Metrics.h"

#include <UiElements/fonts/OxaFont.h>

#include <QPainter>

namespace {

constexpr int radius = 6;
constexpr int inset = 12; ///< Of a text in its row's background.

bool isGroup(const QModelIndex &index) { return !index.flags().testFlag(Qt::ItemIsEnabled); }

} // namespace

NavigationDelegate::NavigationDelegate(QObject *parent) : ItemDelegate(parent) { }

void NavigationDelegate::refresh(OxaThemeUtils::AppThemeType themeType)
{
    ItemDelegate::refresh(themeType);
    const auto colors = [themeType](const char *name) {
        return OxaThemeUtils::getColorSet(name, themeType);
    };
    m_page = { colors("gallery-sidebar-item"), colors("gallery-sidebar-item-text"),
               look().focusBorder.normal };
    m_currentPage = { colors("gallery-sidebar-current-item"),
                      colors("gallery-sidebar-current-item-text"), look().focusBorder.checked };
    m_groupFont = OxaFont(OxaFont::Token::TagLabelSecondary);
}

QSize NavigationDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &index) const
{
    const QFontMetrics metrics(isGroup(index) ? m_groupFont : look().headingFont);
    const int room = isGroup(index) ? Metrics::gap : Metrics::spacing;
    return { metrics.horizontalAdvance(index.data().toString()) + 2 * (Metrics::small + inset),
             metrics.height() + room };
}

void NavigationDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                               const QModelIndex &index) const
{
    const bool isCurrent = option.state.testFlag(QStyle::State_Selected);
    const Colors &colors = isCurrent ? m_currentPage : m_page;
    const QRect ground = option.rect.adjusted(Metrics::small, 1, -Metrics::small, -1);
    QRect text = ground.adjusted(inset, 0, -inset, 0);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (isGroup(index)) {
        text.setTop(text.top() + Metrics::small);
        painter->setFont(m_groupFont);
        painter->setPen(look().captionText.normal);
    } else {
        paintBackground(painter, ground, colors, option.state);
        painter->setFont(look().headingFont);
        painter->setPen(option.state.testFlag(QStyle::State_MouseOver) ? colors.text.hovered
                                                                       : colors.text.normal);
    }
    drawElided(painter, text, index.data().toString(), option.direction);
    painter->restore();
}

void NavigationDelegate::paintBackground(QPainter *painter, const QRect &rect, const Colors &colors,
                                         QStyle::State state) const
{
    painter->setPen(Qt::NoPen);
    painter->setBrush(state.testFlag(QStyle::State_MouseOver) ? colors.ground.hovered
                                                              : colors.ground.normal);
    painter->drawRoundedRect(rect, radius, radius);
    if (!state.testFlag(QStyle::State_HasFocus))
        return;
    painter->setPen(QPen(colors.focusBorder, 2));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(rect.adjusted(1, 1, -1, -1), radius - 1, radius - 1);
}
