// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "LayoutSettings.h"
#include "Tile.h"

#include <UiElements/theme/OxaThemeBlock.h>

#include <random>

/// Hundreds of tiles in one of the layouts. For Tab they are one stop; arrow keys and page keys go
/// from tile to tile.
///
/// It is no OxaWidget: that would exchange the margins of its layout when the direction changes,
/// and the layout does so itself.
class TileBoard : public QWidget
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QWidget)

public:
    explicit TileBoard(QWidget *parent = nullptr);
    ~TileBoard() override;

    const LayoutSettings &settings() const { return m_settings; }

    /// Lays the tiles out by \a settings, in their present order.
    void setSettings(const LayoutSettings &settings);

    /// Returns the current layout; a new one after each setSettings().
    const FlowLayout &flow() const { return *m_flow; }

    void shuffle();
    void sortByNumber();

    /// Adds a tile in front of all. The former first one goes to the end.
    void prependTile();

Q_SIGNALS:
    /// The tiles were laid out.
    void laidOut();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    bool focusNextPrevChild(bool next) override;

protected Q_SLOTS:
    virtual void onThemeChanged();

private:
    Tile *makeTile(int number);
    void makeLayout();
    std::vector<Tile *> tiles() const;
    void refreshLook();

    LayoutSettings m_settings;
    TileLook m_look;
    FlowLayout *m_flow = nullptr;
    std::mt19937 m_generator;
};
