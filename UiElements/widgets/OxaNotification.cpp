// SPDX-License-Identifier: Apache-2.0
#include "OxaNotification.h"

#include "WidgetParts_p.h"

#include <QGraphicsOpacityEffect>
#include <QPointer>
#include <QPropertyAnimation>
#include <QTimer>

namespace {

constexpr double shownOpacity = 1.0;
constexpr double fadeStartOpacity = 0.9; // Meant so: the fade begins with a step.

} // namespace

OxaNotification::OxaNotification(QWidget *parent) : OxaWidget(parent) { }

void OxaNotification::start()
{
    if (m_showTimeout < 1) {
        if (m_timer)
            m_timer->stop();
        return;
    }
    if (!m_timer) {
        m_timer = new QTimer(this);
        m_timer->setTimerType(Qt::PreciseTimer);
        connect(m_timer, &QTimer::timeout, this, &OxaNotification::onFadeOut);
    }
    m_timer->setInterval(m_showTimeout);
    m_timer->start();
}

void OxaNotification::showEvent(QShowEvent *event)
{
    OxaWidget::showEvent(event);
    WidgetParts::tellAccessibility(this, QAccessible::Alert);
}

void OxaNotification::onFadeOut()
{
    // The timer goes on during a fade, which then has its effect already.
    if (m_fadeOutDuration < 1 || qobject_cast<QGraphicsOpacityEffect *>(graphicsEffect()))
        return;
    auto *effect = new QGraphicsOpacityEffect(this);
    setGraphicsEffect(effect);
    effect->setOpacity(shownOpacity);

    auto *animation = new QPropertyAnimation(effect, "opacity", effect);
    animation->setDuration(m_fadeOutDuration);
    animation->setStartValue(fadeStartOpacity);
    animation->setEndValue(0.0);
    connect(animation, &QAbstractAnimation::finished, this, &OxaNotification::onFadeOutFinished);
    animation->start();
}

void OxaNotification::onFadeOutFinished()
{
    if (m_timer)
        m_timer->stop();
    const QPointer<OxaNotification> self(this); // A slot may delete the notification.
    Q_EMIT fadeOutCompleted();
    if (self)
        setGraphicsEffect(nullptr);
}
