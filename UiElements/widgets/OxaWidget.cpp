// SPDX-License-Identifier: Apache-2.0
#include "OxaWidget.h"

#include "WidgetParts_p.h"

#include <UiElements/app/AppUtils.h>

#include <QGuiApplication>
#include <QLayout>
#include <QPainter>

namespace {

/// Returns margins given in reading direction as margins on screen.
QMargins onScreen(const QMargins &margins)
{
    return AppUtils::isRTLLayoutDirection() ? WidgetParts::mirrored(margins) : margins;
}

} // namespace

OxaWidget::OxaWidget(QWidget *parent, Qt::WindowFlags flags)
    : QWidget(parent, flags), m_themeBlock(this, OxaThemeBlock::Form::StyledBackground)
{
    m_themeBlock.followTheme();
    m_themeBlock.followObjectName();
    connect(qGuiApp, &QGuiApplication::layoutDirectionChanged, this,
            &OxaWidget::onLayoutDirectionChanged);
}

QString OxaWidget::getPixmapSrc() const { return m_pixmapPath; }

void OxaWidget::setPixmapSrc(const QString &path)
{
    m_pixmapPath = path;
    m_pixmap = QPixmap(path);
}

void OxaWidget::setContentsMargins(const QMargins &margins)
{
    QWidget::setContentsMargins(onScreen(margins));
}

void OxaWidget::setContentsMargins(int left, int top, int right, int bottom)
{
    setContentsMargins(QMargins(left, top, right, bottom));
}

void OxaWidget::setLayoutContentsMargins(const QMargins &margins)
{
    if (layout())
        layout()->setContentsMargins(onScreen(margins));
}

void OxaWidget::setLayoutContentsMargins(int left, int top, int right, int bottom)
{
    setLayoutContentsMargins(QMargins(left, top, right, bottom));
}

void OxaWidget::onLayoutDirectionChanged()
{
    QWidget::setContentsMargins(WidgetParts::mirrored(contentsMargins()));
    if (layout())
        layout()->setContentsMargins(WidgetParts::mirrored(layout()->contentsMargins()));
}

void OxaWidget::onThemeChanged() { }

void OxaWidget::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    if (m_pixmap.isNull())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(rect(), m_pixmap);
}
