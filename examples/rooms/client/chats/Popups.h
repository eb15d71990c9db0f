// SPDX-License-Identifier: Apache-2.0
#pragma once

class PopupWidget;
class QPushButton;
class QRect;
class QWidget;

/// Popups as this client has them. Each deletes itself once it is hidden.
namespace Popups {

/// Shows \a content above \a button, or below it; on the other side for want of room.
PopupWidget *show(QPushButton *button, QWidget *content, bool isAbove = true);

/// Shows \a content beside \a rect, on the screen.
PopupWidget *show(QWidget *parent, const QRect &rect, QWidget *content);

} // namespace Popups
