// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QCoreApplication>
#include <QImage>
#include <QPixmap>
#include <QPushButton>
#include <QWidget>

#include <vector>

constexpr QSize buttonSize(96, 28);

/// A shown window full of buttons of one class, to measure its repainting.
template <typename ButtonClass>
class ButtonWindow
{
    Q_DISABLE_COPY_MOVE(ButtonWindow)

public:
    /// Shows \a count buttons, each set up by \a prepare.
    template <typename Prepare>
    ButtonWindow(int count, Prepare prepare)
    {
        const int rows = (count + columns - 1) / columns;
        m_window.setFixedSize(columns * buttonSize.width(), margin + rows * buttonSize.height());
        for (int i = 0; i < count; ++i) {
            auto *button = new ButtonClass(&m_window);
            prepare(*button);
            button->setFocusPolicy(Qt::NoFocus);
            button->setGeometry({ QPoint(i % columns * buttonSize.width(),
                                         margin + i / columns * buttonSize.height()),
                                  buttonSize });
            m_buttons.push_back(button);
        }
        m_window.show();
        QCoreApplication::processEvents();
    }
    ~ButtonWindow() = default;

    void repaint() { m_window.repaint(); }
    const ButtonClass &button() const { return *m_buttons.front(); }
    QImage picture() { return m_window.grab().toImage(); }

private:
    static constexpr int columns = 25;
    static constexpr int margin = 8; ///< The pointer is at the window's top left, over no button.

    QWidget m_window;
    std::vector<ButtonClass *> m_buttons;
};
