// SPDX-License-Identifier: Apache-2.0
#include "CentralWidget_p.h"

#include <UiElements/app/BoundedPixels_p.h>
#include <UiElements/theme/StateColor_p.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaSeparator.h>
#include <UiElements/widgets/PopupWidget.h>

#include <QGraphicsDropShadowEffect>
#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QVBoxLayout>

using ArrowPostion = WidgetData::ArrowPostion;

namespace {

constexpr int headerHeight = 56;
constexpr double shadowBlurRadius = 4.0;
constexpr double cornerMarginFactor = 0.71; // Keeps the content's corners inside rounded ones.

QPoint middleOf(const QRect &rect)
{
    return { (rect.left() + rect.right()) / 2, (rect.top() + rect.bottom()) / 2 };
}

/// Returns an arrow on the line at \a base, with its tip \a height below it.
QPolygon horizontalArrow(int tipX, int half, int base, int height)
{
    return QPolygon({ { tipX + half, base }, { tipX, base + height }, { tipX - half, base } });
}

/// Returns an arrow on the line at \a base, with its tip \a height right of it.
QPolygon verticalArrow(int tipY, int half, int base, int height)
{
    return QPolygon({ { base, tipY - half }, { base + height, tipY }, { base, tipY + half } });
}

/// Returns the outline of \a body and \a arrow together.
QPainterPath united(const QRect &body, int radius, const QPolygon &arrow)
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill); // An arrow below or right overlaps the body by a pixel.
    path.addRoundedRect(body, radius, radius);
    path.addPolygon(arrow);
    return path.simplified();
}

} // namespace

CentralWidget::CentralWidget(PopupWidget *popup, const WidgetData &widgetData)
    : OxaWidget(popup), m_layout(new QVBoxLayout(this)), m_popup(popup), m_data(widgetData)
{
    m_layout->setSpacing(0);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setObjectName(QStringLiteral("CentralWidget"));
    setArrowPosition(widgetData.m_arrowPostion);
    setHeaderText(widgetData.m_headerText);

    m_shadow = new QGraphicsDropShadowEffect(this);
    m_shadow->setColor(orTransparent(widgetData.m_widgetBorderBlurColour));
    m_shadow->setOffset(0, 0);
    m_shadow->setBlurRadius(shadowBlurRadius);
    setGraphicsEffect(m_shadow);

    // The base class has swapped the margins then, but the arrow stays on its side.
    connect(qGuiApp, &QGuiApplication::layoutDirectionChanged, this,
            [this] { setArrowPosition(m_data.m_arrowPostion); });
}

void CentralWidget::setArrowPosition(ArrowPostion position)
{
    m_data.m_arrowPostion = position;
    QMargins margins(1, 1, 1, 1);
    switch (position) {
    case ArrowPostion::Top:
        margins.setTop(m_arrowHeight + 1);
        break;
    case ArrowPostion::Bottom:
        margins.setBottom(m_arrowHeight + 1);
        break;
    case ArrowPostion::Left:
        margins.setLeft(m_arrowWidth / 2 + 1);
        break;
    case ArrowPostion::Right:
        margins.setRight(m_arrowWidth / 2 + 1);
        break;
    case ArrowPostion::NoArrowAbove:
    case ArrowPostion::NoArrowBelow:
        break;
    }
    if (m_data.m_addMariginForCentralWidget)
        margins += int(m_data.m_cornerRadius * cornerMarginFactor);
    m_layout->setContentsMargins(margins);
    updateGeometry();
}

void CentralWidget::setHeaderText(const QString &text)
{
    if (!text.isEmpty() && !m_headerLabel)
        addHeader();
    if (!m_headerLabel)
        return;
    m_headerLabel->setVisible(!text.isEmpty());
    if (m_separator)
        m_separator->setVisible(!text.isEmpty());
    if (!text.isEmpty())
        m_headerLabel->setText(text);
}

void CentralWidget::addHeader()
{
    m_headerLabel = new OxaLabel(this);
    m_headerLabel->setFont(QFont(QStringLiteral("Segoe UI"), 12, QFont::DemiBold));
    m_headerLabel->setFixedHeight(headerHeight);
    m_headerLabel->setAlignment(Qt::AlignCenter);
    OxaCSSData style;
    style.textColorSetName = QStringLiteral("text-primary");
    m_headerLabel->setCSS(style);
    m_layout->insertWidget(0, m_headerLabel);
    m_separator = new OxaSeparator(this);
    m_layout->insertWidget(1, m_separator);
}

void CentralWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(orTransparent(m_data.m_widgetBorderColour));
    painter.setBrush(orTransparent(m_data.m_widgetColour));
    painter.drawPath(outline());
}

QPainterPath CentralWidget::outline() const
{
    const QRect all = rect();
    const int wanted = int(all.width() * 0.2);
    const int width = qMin(wanted % 2 == 0 ? wanted + 1 : wanted, m_arrowWidth);
    const int half = width / 2;
    const QPoint aim = mapFromGlobal(middleOf(BoundedPixels::bounded(m_popup->getOriginRect())));
    const int tipX = aim.x() < half ? half : qMin(aim.x(), all.right() - width);

    QRect body = all;
    QPolygon arrow;
    switch (m_data.m_arrowPostion) {
    case ArrowPostion::Top:
        body.setTop(body.top() + m_arrowHeight);
        arrow = horizontalArrow(tipX, half, body.top(), -m_arrowHeight);
        break;
    case ArrowPostion::Bottom:
        body.setBottom(body.bottom() - m_arrowHeight);
        arrow = horizontalArrow(tipX, half, body.bottom(), m_arrowHeight);
        break;
    case ArrowPostion::Left:
        body.setLeft(body.left() + m_arrowHeight);
        arrow = verticalArrow(aim.y(), half, body.left(), -m_arrowHeight);
        break;
    case ArrowPostion::Right:
        body.setRight(body.right() - m_arrowHeight);
        arrow = verticalArrow(aim.y(), half, body.right(), m_arrowHeight);
        break;
    case ArrowPostion::NoArrowAbove:
    case ArrowPostion::NoArrowBelow:
        break;
    }
    return united(body, qMin(radiusLimit(body), m_data.m_cornerRadius), arrow);
}

int CentralWidget::radiusLimit(const QRect &body) const
{
    switch (m_data.m_arrowPostion) {
    case ArrowPostion::Left:
    case ArrowPostion::Right:
    case ArrowPostion::NoArrowAbove:
        return body.width() / 2;
    case ArrowPostion::Top:
    case ArrowPostion::Bottom:
    case ArrowPostion::NoArrowBelow:
        break;
    }
    return body.height() / 2;
}
