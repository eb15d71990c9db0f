// SPDX-License-Identifier: Apache-2.0
#include "IconMatrix.h"

#include "IconRenderers.h"
#include "looks/Metrics.h"

#include <UiElements/fonts/OxaFont.h>
#include <UiElements/svg/OxaSvgRenderer.h>

#include <QPainter>
#include <QStyle>

#include <iterator>
#include <numeric>

namespace {

constexpr int sizes[] = { 12, 16, 24 };
constexpr qreal ratios[] = { 1.0, 1.5, 2.0, 3.0 };
constexpr int rows = int(std::size(sizes));
constexpr int columns = int(std::size(ratios));

int pixels(int size, qreal ratio) { return qRound(size * ratio); }

OxaFont headingFont() { return OxaFont(OxaFont::Token::RadioButtonLabelSecondary); }

int headingWidth()
{
    return QFontMetrics(headingFont()).horizontalAdvance(QStringLiteral("00")) + Metrics::small;
}

int headingHeight() { return QFontMetrics(headingFont()).height() + Metrics::tight; }

/// Returns where \a column begins; for the number of columns, where the last one ends.
int left(int column)
{
    return std::accumulate(ratios, ratios + column, headingWidth(), [](int x, qreal ratio) {
        return x + pixels(sizes[rows - 1], ratio) + Metrics::small;
    });
}

int top(int row)
{
    return std::accumulate(sizes, sizes + row, headingHeight(), [](int y, int size) {
        return y + pixels(size, ratios[columns - 1]) + Metrics::small;
    });
}

} // namespace

IconMatrix::IconMatrix(IconRenderers *renderers, QWidget *parent)
    : OxaWidget(parent), m_renderers(renderers)
{
    setAccessibleName(tr("Sizes and pixel ratios"));
    connect(m_renderers, &IconRenderers::repaintNeeded, this, qOverload<>(&QWidget::update));
}

void IconMatrix::setIcon(const QString &path, const QColor &color)
{
    m_path = path;
    m_color = color;
    update();
}

QSize IconMatrix::sizeHint() const
{
    return { left(columns) - Metrics::small, top(rows) - Metrics::small };
}

void IconMatrix::paintEvent(QPaintEvent *event)
{
    OxaWidget::paintEvent(event);
    QPainter painter(this);
    paintHeadings(painter);
    if (m_path.isEmpty())
        return;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column)
            painter.drawImage(cell(row, column).topLeft(), picture(sizes[row], ratios[column]));
    }
}

QRect IconMatrix::cell(int row, int column) const
{
    const int side = pixels(sizes[row], ratios[column]);
    const QRect mirrored(left(column), top(row), side, side);
    return QStyle::visualRect(layoutDirection(), rect(), mirrored);
}

void IconMatrix::paintHeadings(QPainter &painter) const
{
    painter.setFont(headingFont());
    painter.setPen(OxaThemeUtils::getColorSet("gallery-caption-text", getThemeType()).normal);
    for (int column = 0; column < columns; ++column) {
        const QRect heading(left(column), 0, left(column + 1) - left(column), headingHeight());
        paintHeading(painter, heading, tr("%1×").arg(ratios[column]));
    }
    for (int row = 0; row < rows; ++row) {
        const QRect heading(0, top(row), headingWidth(), painter.fontMetrics().height());
        paintHeading(painter, heading, QString::number(sizes[row]));
    }
}

void IconMatrix::paintHeading(QPainter &painter, const QRect &cell, const QString &text) const
{
    const Qt::Alignment start = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft);
    // A value is written from left to right in both directions.
    painter.setLayoutDirection(Qt::LeftToRight);
    painter.drawText(QStyle::visualRect(layoutDirection(), rect(), cell), int(start | Qt::AlignTop),
                     text);
}

QImage IconMatrix::picture(int size, qreal ratio) const
{
    const int side = pixels(size, ratio);
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    image.setDevicePixelRatio(ratio);
    QPainter painter(&image);
    m_renderers->get(m_path)->draw(&painter, QRectF(0, 0, size, size), m_color, 1.0);
    painter.end();
    image.setDevicePixelRatio(1.0);
    return image;
}
