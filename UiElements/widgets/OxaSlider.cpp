// SPDX-License-Identifier: Apache-2.0
#include "OxaSlider.h"

#include <UiElements/theme/FocusFrame_p.h>

#include <QPainter>

namespace {

constexpr int handleLength = 18; ///< Pixels along each side.

/// Returns the square around the handle. Not mirrored: the application's style relies on that.
QRect handleRect(const QSlider &slider)
{
    const bool isHorizontal = slider.orientation() == Qt::Horizontal;
    const int length = isHorizontal ? slider.width() : slider.height();
    const int along = QStyle::sliderPositionFromValue(slider.minimum(), slider.maximum(),
                                                      slider.value(), length - handleLength);
    const int across = (isHorizontal ? slider.height() : slider.width()) / 2 - handleLength / 2;
    return { isHorizontal ? along : across, isHorizontal ? across : along, handleLength,
             handleLength };
}

} // namespace

OxaSlider::OxaSlider(QWidget *parent) : QSlider(parent) { m_themeBlock.followTheme(); }

OxaSlider::OxaSlider(Qt::Orientation orientation, QWidget *parent) : QSlider(orientation, parent)
{
    m_themeBlock.followTheme();
}

void OxaSlider::onThemeChanged() { }

void OxaSlider::paintEvent(QPaintEvent *event)
{
    QSlider::paintEvent(event);
    // Cheaper than the option that the next test needs.
    if (!hasFocus())
        return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    if (!FocusFrame::isShown(option.state))
        return;
    QPainter painter(this);
    FocusFrame::draw(&painter, FocusFrame::optionFor(this, handleRect(*this)), this);
}
