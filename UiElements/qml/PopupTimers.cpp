// SPDX-License-Identifier: Apache-2.0
#include "PopupTimers.h"

PopupTimers::PopupTimers() : closeTimer(new PopupContextTimer), openTimer(new PopupContextTimer)
{
    closeTimer->setSingleShot(true);
}

PopupTimers::~PopupTimers()
{
    if (closeTimer)
        closeTimer->stopAndDelete();
    if (openTimer)
        openTimer->stopAndDelete();
}
