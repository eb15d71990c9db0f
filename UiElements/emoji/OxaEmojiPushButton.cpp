// SPDX-License-Identifier: Apache-2.0
#include "OxaEmojiPushButton.h"

#include <QKeyEvent>
#include <QMouseEvent>

void OxaEmojiPushButton::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        Q_EMIT clicked();
}

void OxaEmojiPushButton::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    if (key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter)
        Q_EMIT clicked();
}
