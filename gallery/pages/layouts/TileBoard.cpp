// SPDX-License-Identifier: Apache-2.0
#include "TileBoard.h"

#include "looks/TextSettings.h"
#include "pages/lists/AvatarColors.h"
#include "shell/GalleryApplication.h"

#include <UiElements/fonts/OxaFont.h>
#include <UiElements/keyboard/TabOrderUtils.h>
#include <UiElements/layouts/AutoGridLayout.h>
#include <UiElements/layouts/SmartLayout.h>

#include <QAccessible>
#include <QGuiApplication>
#include <QKeyEvent>

#include <unordered_map>

namespace {

const Tile *tileOf(QLayoutItem *item) { return static_cast<const Tile *>(item->widget()); }

/// Returns \a margins, given for left to right, as they are on the screen: a layout exchanges them
/// when the direction changes, but not when it is made.
QMargins onScreen(const QMargins &margins)
{
    return QGuiApplication::isRightToLeft()
            ? QMargins(margins.right(), margins.top(), margins.left(), margins.bottom())
            : margins;
}

FlowLayout *newLayout(const LayoutSettings &settings)
{
    const QMargins margins = onScreen(settings.margins);
    const int hSpacing = settings.horizontalSpacing;
    const int vSpacing = settings.verticalSpacing;
    switch (settings.kind) {
    case LayoutSettings::Kind::AutoGrid:
        return new AutoGridLayout(margins, hSpacing, vSpacing);
    case LayoutSettings::Kind::Smart: {
        auto *layout = new SmartLayout(nullptr, margins, hSpacing, vSpacing, settings.alignment,
                                       settings.maximumItemsPerRow, false);
        layout->setFixedItemsPerRow(settings.fixedItemsPerRow);
        return layout;
    }
    case LayoutSettings::Kind::FixedRatio:
        break;
    }
    auto *layout = new FixedItemRatioLayoutNotSupportScroll(margins, hSpacing, vSpacing);
    layout->setItemData(settings.itemData);
    return layout;
}

} // namespace

TileBoard::TileBoard(QWidget *parent) : QWidget(parent)
{
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(tr("Tiles"));
    setProperty("accessibleRole", QVariant::fromValue(QAccessible::List));
    m_themeBlock.followTheme();
    connect(GalleryApplication::get()->textSettings(), &TextSettings::sizesChanged, this,
            &TileBoard::refreshLook);
    setSettings(LayoutSettings());
}

TileBoard::~TileBoard() = default;

void TileBoard::setSettings(const LayoutSettings &settings)
{
    m_settings = settings;
    const bool hasBorders = settings.kind == LayoutSettings::Kind::FixedRatio;
    m_look.borderWidth = hasBorders ? settings.itemData.borderWidth : 0;
    makeLayout();
    update();
}

void TileBoard::shuffle()
{
    std::unordered_map<QLayoutItem *, std::mt19937::result_type> places;
    for (int i = 0; i < m_flow->count(); ++i)
        places[m_flow->itemAt(i)] = m_generator();
    m_flow->sort([&places](QLayoutItem *a, QLayoutItem *b) { return places[a] < places[b]; });
}

void TileBoard::sortByNumber()
{
    m_flow->sort([](QLayoutItem *a, QLayoutItem *b) {
        return tileOf(a)->number() < tileOf(b)->number();
    });
}

void TileBoard::prependTile()
{
    m_flow->prependWidget(makeTile(m_flow->count() + 1));
    m_settings.tileCount = m_flow->count();
}

void TileBoard::onThemeChanged() { refreshLook(); }

bool TileBoard::event(QEvent *event)
{
    const bool isHandled = QWidget::event(event);
    // The layout has filtered these before.
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize)
        Q_EMIT laidOut();
    return isHandled;
}

void TileBoard::keyPressEvent(QKeyEvent *event)
{
    QWidget *next = m_flow->nextWidget(focusWidget(), static_cast<Qt::Key>(event->key()));
    if (next)
        next->setFocus(Qt::OtherFocusReason);
    else
        QWidget::keyPressEvent(event);
}

void TileBoard::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    if (QWidget *first = m_flow->widgetAt(0))
        first->setFocus(event->reason());
}

bool TileBoard::focusNextPrevChild(bool next)
{
    return TabOrderUtils::focusNextPrevChild(next, this, m_flow);
}

Tile *TileBoard::makeTile(int number)
{
    auto *tile = new Tile(number, m_look, this);
    tile->setFont(OxaFont(OxaFont::Token::TagLabelSecondary));
    tile->setSizes(m_settings.sizes);
    return tile;
}

/// Makes a layout for the settings, with as many tiles as they say. Those that there were before
/// keep their order.
void TileBoard::makeLayout()
{
    const std::vector<Tile *> former = tiles();
    delete m_flow;
    m_flow = newLayout(m_settings);
    setLayout(m_flow);
    for (Tile *tile : former) {
        if (tile->number() > m_settings.tileCount) {
            delete tile;
            continue;
        }
        tile->setSizes(m_settings.sizes);
        m_flow->addWidget(tile);
    }
    for (int number = m_flow->count() + 1; number <= m_settings.tileCount; ++number)
        m_flow->addWidget(makeTile(number));
    // A new layout on a visible widget, and its items, do not request a pass.
    m_flow->invalidate();
    QCoreApplication::postEvent(this, new QEvent(QEvent::LayoutRequest));
}

std::vector<Tile *> TileBoard::tiles() const
{
    const int count = m_flow ? m_flow->count() : 0;
    std::vector<Tile *> result;
    result.reserve(std::size_t(count));
    for (int i = 0; i < count; ++i)
        result.push_back(static_cast<Tile *>(m_flow->widgetAt(i)));
    return result;
}

void TileBoard::refreshLook()
{
    const auto color = [this](const QString &name) {
        return OxaThemeUtils::getColorSet(name.toStdString(), getThemeType()).normal;
    };
    m_look.grounds.clear();
    m_look.grounds.reserve(std::size_t(AvatarColors::count()));
    for (int i = 0; i < AvatarColors::count(); ++i)
        m_look.grounds.push_back(color(AvatarColors::setName(i)));
    m_look.text = color(QStringLiteral("avatar-text"));
    for (Tile *tile : tiles()) {
        tile->setFont(OxaFont(OxaFont::Token::TagLabelSecondary));
        tile->update();
    }
}
