// SPDX-License-Identifier: Apache-2.0
#include "OxaEmojiPushButton.h"

#include <UiElements/widgets/WidgetParts_p.h>

#include <QKeyEvent>
#include <QMouseEvent>

void OxaEmojiPushButton::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        Q_EMIT clicked();
}

void OxaEmojiPushButton::keyPressEvent(QKeyEvent *event)
{
    if (WidgetParts::isClickKey(event->key()))
        Q_EMIT clicked();
}
