// SPDX-License-Identifier: Apache-2.0
#include "IconDelegate.h"

#include "IconModel.h"
#include "IconRenderers.h"
#include "Metrics.h"

#include <UiElements/fonts/OxaFont.h>
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
    : QStyledItemDelegate(parent), m_model(model), m_renderers(renderers)
{
}

void IconDelegate::refresh(OxaThemeUtils::AppThemeType themeType)
{
    m_ground = OxaThemeUtils::getColorSet("gallery-list-item", themeType);
    m_nameText = OxaThemeUtils::getColorSet("gallery-list-item-text", themeType);
    m_captionText = OxaThemeUtils::getColorSet("gallery-list-item-caption-text", themeType);
    m_line = OxaThemeUtils::getColorSet("gallery-card-border", themeType);
    m_focusBorder = OxaThemeUtils::getColorSet("gallery-focus-border", themeType);
    m_good = OxaThemeUtils::getColorSet("gallery-success-text", themeType);
    m_other = OxaThemeUtils::getColorSet("gallery-note-text", themeType);
    m_bad = OxaThemeUtils::getColorSet("gallery-error-text", themeType);
    m_nameFont = OxaFont(OxaFont::Token::BodySecondary);
    m_captionFont = OxaFont(OxaFont::Token::RadioButtonLabelSecondary);
}

int IconDelegate::rowHeight() const
{
    const int lines = QFontMetrics(m_nameFont).height() + QFontMetrics(m_captionFont).height();
    return qMax(lines, m_iconSize) + Metrics::spacing;
}

int IconDelegate::stateColumnWidth() const
{
    const int word = QFontMetrics(m_captionFont).horizontalAdvance(QStringLiteral("disabled"));
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
    painter->setPen(m_line.normal);
    painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    const auto *view = qobject_cast<const QAbstractItemView *>(option.widget);
    if (!view || view->currentIndex() != index)
        return;
    painter->setPen(QPen(m_focusBorder.normal, 2));
    painter->drawRect(option.rect.adjusted(1, 1, -1, -2));
}

void IconDelegate::paintName(QPainter *painter, const QStyleOptionViewItem &option,
                             const QModelIndex &index) const
{
    // Only the name has the ground of a chosen row: the icons have the colours of a set that is
    // made for the ground of the card.
    const bool isChosen = option.state.testFlag(QStyle::State_Selected);
    if (isChosen)
        painter->fillRect(option.rect, m_ground.checked);
    else if (option.state.testFlag(QStyle::State_MouseOver))
        painter->fillRect(option.rect, m_ground.hovered);

    const IconDiagnosis &diagnosis = m_model->diagnosis(index.row());
    const Qt::LayoutDirection direction = painter->layoutDirection();
    const QRect inner = option.rect.adjusted(Metrics::spacing, 0, -Metrics::small, 0);
    const QRect mark(inner.topLeft(), QSize(markSize, inner.height()));
    const QColor markColor = isChosen ? m_nameText.checked : markColors(diagnosis.outcome).normal;
    m_renderers->get(OxaSvgRenderer::resourcePath(markOf(diagnosis.outcome)))
            ->draw(painter, squareIn(QStyle::visualRect(direction, option.rect, mark), markSize),
                   markColor, 1.0);
    const QRect texts = inner.adjusted(markSize + Metrics::small, 0, 0, 0);
    paintTexts(painter, QStyle::visualRect(direction, option.rect, texts), index, isChosen);
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

void IconDelegate::paintTexts(QPainter *painter, const QRect &rect, const QModelIndex &index,
                              bool isChosen) const
{
    const auto paintLine = [painter, &rect](int y, const QFont &font, const QString &text) {
        painter->setFont(font);
        const QFontMetrics metrics = painter->fontMetrics();
        painter->drawText(QRect(rect.x(), y, rect.width(), metrics.height()),
                          Qt::AlignLeft | Qt::AlignVCenter,
                          metrics.elidedText(text, Qt::ElideRight, rect.width()));
    };
    const IconDiagnosis &diagnosis = m_model->diagnosis(index.row());
    const int nameHeight = QFontMetrics(m_nameFont).height();
    const int captionHeight = QFontMetrics(m_captionFont).height();
    const int top = rect.y() + (rect.height() - nameHeight - captionHeight) / 2;
    painter->setPen(isChosen ? m_nameText.checked : m_nameText.normal);
    paintLine(top, m_nameFont, index.data().toString());
    painter->setPen(isChosen ? m_captionText.checked : m_captionText.normal);
    paintLine(top + nameHeight, m_captionFont,
              tr("%1, %2").arg(diagnosis.title(), diagnosis.painterText()));
}

void IconDelegate::paintIcon(QPainter *painter, const QRect &rect, const QModelIndex &index) const
{
    // A renderer would try, and warn, at each paint.
    if (m_model->diagnosis(index.row()).outcome == Outcome::Unreadable)
        return;
    painter->setClipRect(rect);
    m_renderers->get(m_model->file(index.row()).path)
            ->draw(painter, squareIn(rect, m_iconSize),
                   m_colorSet.colorForState(IconModel::stateOf(index.column())), 1.0);
}
