// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "LayoutSettings.h"

#include <QColor>
#include <QWidget>

#include <vector>

/// The look of tiles.
struct TileLook
{
    std::vector<QColor> grounds;
    QColor text;
    int borderWidth = 0; ///< Empty space on each side, in pixels.
};

/// A numbered rectangle that is laid out. It is painted rather than styled: there are hundreds.
class Tile : public QWidget
{
    Q_OBJECT

public:
    /// Makes the tile \a number, painted with \a look, which must outlive it.
    Tile(int number, const TileLook &look, QWidget *parent);

    int number() const { return m_number; }

    /// Sets how its size differs from that of other tiles.
    void setSizes(LayoutSettings::Sizes sizes);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    const int m_number;
    const TileLook &m_look;
    LayoutSettings::Sizes m_sizes = LayoutSettings::Sizes::Equal;
};
