// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "data/Records.h"

#include <functional>

class QPoint;
class QWidget;

/// The context menu of a message.
namespace MessageMenu {

struct Actions
{
    std::function<void(const QString &emoji)> react;
    std::function<void()> chooseReaction;
    std::function<void(const QString &quote)> reply;
    std::function<void()> retry;
};

/// Opens the menu of \a message at \a position on the screen.
void open(QWidget *parent, const Message &message, const QPoint &position, const Actions &actions);

} // namespace MessageMenu
