// SPDX-License-Identifier: Apache-2.0
#include "PopupContextTimer.h"

PopupContextTimer::PopupContextTimer() = default;

void PopupContextTimer::stopAndDelete()
{
    stop();
    deleteLater();
}

void PopupContextTimer::stopAndEmit()
{
    stop();
    if (!m_popupPending)
        disconnect(this, &PopupContextTimer::stopped, nullptr, nullptr);
    Q_EMIT stopped();
}
