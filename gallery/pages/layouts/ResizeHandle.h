// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaThemeBlock.h>

#include <QWidget>

/// The corner by which a frame is made larger or smaller.
class ResizeHandle : public QWidget
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QWidget)

public:
    explicit ResizeHandle(QWidget *parent = nullptr);

Q_SIGNALS:
    /// The user wants the frame larger by so many pixels, or smaller if negative. Moving towards
    /// the end of a line makes it larger in both directions of text.
    void dragged(const QPoint &by);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

protected Q_SLOTS:
    virtual void onThemeChanged();

private:
    void fitCursor();

    QPoint m_pressedAt;
    QColor m_color;
    QColor m_focusBorder;
};
