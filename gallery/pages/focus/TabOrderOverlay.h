// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaThemeBlock.h>

#include <QWidget>

#include <vector>

/// Draws the tab order of a window over it: a number on everything that Tab stops at, and an arrow
/// from each to the next. It is transparent for mouse events.
class TabOrderOverlay : public QWidget
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QWidget)

public:
    explicit TabOrderOverlay(QWidget *window);

    /// Shows \a stops, which are widgets of the window.
    void setStops(const std::vector<QWidget *> &stops);

protected:
    void paintEvent(QPaintEvent *event) override;

protected Q_SLOTS:
    virtual void onThemeChanged();

private:
    /// A visible widget that Tab stops at.
    struct Stop
    {
        int number;
        QPoint centre; ///< Of its badge.
        bool hasFocus;
    };

    QPoint badgeOf(const QWidget &widget) const;
    void paintArrow(QPainter &painter, const QPoint &from, const QPoint &to) const;
    void paintBadge(QPainter &painter, const Stop &stop) const;

    std::vector<Stop> m_stops;
    QColor m_line;
    QColor m_ground;
    QColor m_text;
    QColor m_focusGround;
};
