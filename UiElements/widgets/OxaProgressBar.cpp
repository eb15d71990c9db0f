// SPDX-License-Identifier: Apache-2.0
#include "OxaProgressBar.h"

#include <UiElements/app/AppUtils.h>
#include <UiElements/theme/StateColor_p.h>

#include <QPainter>

namespace {

/// How many more bars on the same pixels can still change a colour that is nearly transparent.
constexpr int visibleLayers = 256;

/// Returns \a length as one that a widget can have.
int bounded(int length) { return qBound(0, length, QWIDGETSIZE_MAX); }

} // namespace

OxaProgressBar::OxaProgressBar(QWidget *parent, int barCount)
    : QProgressBar(parent), m_barCount(barCount)
{
    m_themeBlock.followTheme();
    // Qt compares a new value with the one that it painted last itself, and may not repaint.
    connect(this, &QProgressBar::valueChanged, this, qOverload<>(&QWidget::update));
}

void OxaProgressBar::setBarColorSetName(const std::string &name)
{
    m_barColors.fetch(QString::fromStdString(name), this);
    update();
}

void OxaProgressBar::setTrackColorSetName(const std::string &name)
{
    m_trackColors.fetch(QString::fromStdString(name), this);
    update();
}

int OxaProgressBar::getBarWidth() const { return m_barWidth; }

void OxaProgressBar::setBarWidth(int width)
{
    m_barWidth = width;
    update();
}

int OxaProgressBar::getBarHeight() const { return m_barHeight; }

void OxaProgressBar::setBarHeight(int height)
{
    m_barHeight = height;
    update();
}

int OxaProgressBar::getIdleBarHeight() const { return m_idleBarHeight; }

void OxaProgressBar::setIdleBarHeight(int height)
{
    m_idleBarHeight = height;
    update();
}

void OxaProgressBar::onThemeChanged()
{
    m_barColors.fetch(this);
    m_trackColors.fetch(this);
    m_isRightToLeft = AppUtils::isRTLLayoutDirection();
    update();
}

void OxaProgressBar::paintEvent(QPaintEvent *)
{
    const qint64 filled = qMax<qint64>(0, qint64(value()) * m_barCount / 100);
    QPainter painter(this);
    paintBars(painter, 0, filled, m_barHeight, orTransparent(m_barColors.colors().normal));
    paintBars(painter, filled, m_barCount, m_idleBarHeight,
              orTransparent(m_trackColors.colors().normal));
}

/// Paints the bars from \a first to before \a end. There may be any number of them: those that are
/// out of sight, or on top of too many others, are left out.
void OxaProgressBar::paintBars(QPainter &painter, qint64 first, qint64 end, int height,
                               const QColor &color) const
{
    const int barWidth = bounded(m_barWidth);
    const int barHeight = bounded(height);
    const int y = this->height() / 2 - barHeight / 2;
    const int room = width() - barWidth;
    const int step = m_barCount > 1 ? room / (m_barCount - 1) : room;
    end = qMin(end, first + width() + visibleLayers);
    for (qint64 bar = first; bar < end; ++bar) {
        const qint64 x = m_isRightToLeft ? room - bar * step : bar * step;
        if (x >= width() || x <= -barWidth)
            break;
        painter.fillRect(int(x), y, barWidth, barHeight, color);
    }
}
