// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

#include <vector>

class OxaLabel;
class TileBoard;

/// The numbers of a layout: the size that it has, the size that it needs, and its rows.
class LayoutFigures : public OxaWidget
{
    Q_OBJECT

public:
    /// Shows the numbers of \a board whenever its tiles are laid out.
    explicit LayoutFigures(const TileBoard *board, QWidget *parent = nullptr);

private:
    struct Figure
    {
        OxaLabel *caption;
        OxaLabel *value;
    };

    void refresh();
    void set(std::size_t place, const QString &caption, const QString &value);
    void showFlow();
    void showRatio();

    const TileBoard *m_board;
    std::vector<Figure> m_figures;
};
