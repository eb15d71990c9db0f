// SPDX-License-Identifier: Apache-2.0
#include "IconDelegate.h"

#include "IconModel.h"
#include "IconRenderers.h"
#include "looks/Metrics.h"

#include <UiElements/svg/OxaSvgRenderer.h>

#include <QAbstractItemView>
#include <QPainter>

namespace {

using Outcome = IconDiagnosis::Outcome;

constexpr int markSize = 16;

/// Returns the name of the icon that stands for \a outcome.
QString markOf(Outcome outcome)
{
    switch (outcome) {
    case Outcome::TakesColor:
        return QStringLiteral("check_16");
    case Outcome::PaintsNothing:
    case Outcome::Unreadable:
        return QStringLiteral("warning_12");
    default:
        return QStringLiteral("info_16");
    }
}

QRect squareIn(const QRect &rect, int size)
{
    return { rect.x() + (rect.width() - size) / 2, rect.y() + (rect.height() - size) / 2, size,
             size };
}

} // namespace

IconDelegate::IconDelegate(const IconModel *model, IconRenderers *renderers, QObject *parent)
    : ItemDelegate(parent), m_model(model), m_renderers(renderers)
{
}

void IconDelegate::refresh(OxaThemeUtils::AppThemeType themeType)
{
    ItemDelegate::refresh(themeType);
    m_good = OxaThemeUtils::getColorSet("gallery-success-text", themeType);
    m_other = OxaThemeUtils::getColorSet("gallery-note-text", themeType);
    m_bad = OxaThemeUtils::getColorSet("gallery-error-text", themeType);
}

int IconDelegate::rowHeight() const
{
    const int lines = QFontMetrics(look().font).height()
            + QFontMetrics(look().captionFont).height();
    return qMax(lines, m_iconSize) + Metrics::spacing;
}

int IconDelegate::stateColumnWidth() const
{
    const int word = QFontMetrics(look().captionFont).horizontalAdvance(QStringLiteral("disabled"));
    return qMax(word, m_iconSize) + Metrics::small;
}

void IconDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const
{
    painter->save();
    if (index.column() == IconModel::NameColumn)
        paintName(painter, option, index);
    else
        paintIcon(painter, option.rect, index);
    paintFrame(painter, option, index);
    painter->restore();
}

void IconDelegate::paintFrame(QPainter *painter, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const
{
    paintLine(painter, option.rect);
    const auto *view = qobject_cast<const QAbstractItemView *>(option.widget);
    if (view && view->currentIndex() == index)
        paintFocusFrame(painter, option.rect,
                        index.column() == IconModel::NameColumn ? option.state : QStyle::State());
}

void IconDelegate::paintName(QPainter *painter, const QStyleOptionViewItem &option,
                             const QModelIndex &index) const
{
    // Only the name has the background of a chosen row: the icons have the colours of a set that
    // is made for the background of the card.
    painter->fillRect(option.rect, colorFor(look().ground, option.state));

    const IconDiagnosis &diagnosis = m_model->diagnosis(index.row());
    const bool isChosen = option.state.testFlag(QStyle::State_Selected);
    const QRect inner = option.rect.adjusted(Metrics::spacing, 0, -Metrics::small, 0);
    const QRect mark(inner.topLeft(), QSize(markSize, inner.height()));
    const QColor markColor = isChosen ? look().text.checked : markColors(diagnosis.outcome).normal;
    m_renderers->get(OxaSvgRenderer::resourcePath(markOf(diagnosis.outcome)))
            ->draw(painter,
                   squareIn(QStyle::visualRect(option.direction, option.rect, mark), markSize),
                   markColor, 1.0);
    const QRect texts = inner.adjusted(markSize + Metrics::small, 0, 0, 0);
    paintTexts(painter, option, QStyle::visualRect(option.direction, option.rect, texts), index);
}

const OxaColorSet &IconDelegate::markColors(IconDiagnosis::Outcome outcome) const
{
    switch (outcome) {
    case Outcome::TakesColor:
        return m_good;
    case Outcome::PaintsNothing:
    case Outcome::Unreadable:
        return m_bad;
    default:
        return m_other;
    }
}

void IconDelegate::paintTexts(QPainter *painter, const QStyleOptionViewItem &option,
                              const QRect &rect, const QModelIndex &index) const
{
    const IconDiagnosis &diagnosis = m_model->diagnosis(index.row());
    const int nameHeight = QFontMetrics(look().font).height();
    const int captionHeight = QFontMetrics(look().captionFont).height();
    const int top = rect.y() + (rect.height() - nameHeight - captionHeight) / 2;
    painter->setFont(look().font);
    painter->setPen(colorFor(look().text, option.state));
    drawElided(painter, QRect(rect.x(), top, rect.width(), nameHeight), index.data().toString(),
               option.direction);
    painter->setFont(look().captionFont);
    painter->setPen(colorFor(look().captionText, option.state));
    drawElided(painter, QRect(rect.x(), top + nameHeight, rect.width(), captionHeight),
               tr("%1, %2").arg(diagnosis.title(), diagnosis.painterText()), option.direction);
}

void IconDelegate::paintIcon(QPainter *painter, const QRect &rect, const QModelIndex &index) const
{
    // A renderer would try again, and warn, at each paint.
    if (m_model->diagnosis(index.row()).outcome == Outcome::Unreadable)
        return;
    painter->setClipRect(rect);
    m_renderers->get(m_model->file(index.row()).path)
            ->draw(painter, squareIn(rect, m_iconSize),
                   m_colorSet.colorForState(IconModel::stateOf(index.column())), 1.0);
}
