// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaPushButton.h>

/// A button that is moved within its parent, by dragging it or with its arrow keys.
class DragSource : public OxaPushButton
{
    Q_OBJECT

public:
    explicit DragSource(QWidget *parent = nullptr);

    /// Returns the button's rectangle on the screen.
    QRect onScreen() const;

    /// Moves the button to \a place, or as near to it as its parent has room.
    void moveInside(const QPoint &place);

Q_SIGNALS:
    /// The button is elsewhere.
    void moved();

    /// The button was clicked, and not dragged.
    void chosen();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QPoint m_pressedAt;
    bool m_isDragged = false;
};
