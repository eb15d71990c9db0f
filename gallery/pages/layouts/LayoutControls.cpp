// SPDX-License-Identifier: Apache-2.0
#include "LayoutControls.h"

#include "looks/Metrics.h"
#include "specimens/ControlPanel.h"

#include <QVBoxLayout>

namespace {

using Kind = LayoutSettings::Kind;

constexpr int mostTiles = 400;
constexpr int widestGap = 24;
constexpr int widestMargin = 64;
constexpr int longestRow = 16;
constexpr int widestBorder = 16;
constexpr int widestTile = 160;

/// The ratio is set in hundredths.
constexpr int percent = 100;

constexpr Qt::AlignmentFlag alignments[] = { Qt::AlignLeft, Qt::AlignCenter, Qt::AlignRight };

} // namespace

LayoutControls::LayoutControls(QWidget *parent)
    : OxaWidget(parent),
      m_column(new QVBoxLayout(this)),
      m_common(addGroup()),
      m_gaps(addGroup()),
      m_smart(addGroup()),
      m_ratio(addGroup())
{
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(Metrics::small);
    addCommonRows();
    addSmartRows();
    addRatioRows();
    setKind(m_settings.kind);
}

void LayoutControls::setKind(LayoutSettings::Kind kind)
{
    m_settings.kind = kind;
    m_gaps->setVisible(kind != Kind::FixedRatio);
    m_smart->setVisible(kind == Kind::Smart);
    m_ratio->setVisible(kind == Kind::FixedRatio);
    Q_EMIT changed();
}

/// Returns a function that hands a number to \a store and emits the change.
template <typename Store>
std::function<void(int)> LayoutControls::changing(Store store)
{
    return [this, store](int value) {
        store(m_settings, value);
        Q_EMIT changed();
    };
}

void LayoutControls::addCommonRows()
{
    const LayoutSettings &now = m_settings;
    m_common->addNumber(tr("Tiles"), 0, mostTiles, now.tileCount,
                        changing([](LayoutSettings &all, int value) { all.tileCount = value; }));
    m_common->addNumber(tr("Left margin"), 0, widestMargin, now.margins.left(),
                        changing([](LayoutSettings &all, int value) {
                            all.margins.setLeft(value);
                        }));
    m_gaps->addChoice(tr("Sizes"), { tr("Equal"), tr("Heights"), tr("Both") }, int(now.sizes),
                      changing([](LayoutSettings &all, int i) {
                          all.sizes = static_cast<LayoutSettings::Sizes>(i);
                      }));
    m_gaps->addNumber(tr("Across"), -1, widestGap, now.horizontalSpacing,
                      changing([](LayoutSettings &all, int value) {
                          all.horizontalSpacing = value;
                      }),
                      tr("style"));
    m_gaps->addNumber(tr("Down"), -1, widestGap, now.verticalSpacing,
                      changing([](LayoutSettings &all, int value) { all.verticalSpacing = value; }),
                      tr("style"));
}

void LayoutControls::addSmartRows()
{
    m_smart->addChoice(tr("Rows"), { tr("Left"), tr("Centre"), tr("Right") }, 0,
                       changing([](LayoutSettings &all, int i) { all.alignment = alignments[i]; }));
    // The layout has no limit of 0.
    m_smart->addNumber(tr("At most"), 0, longestRow, 0,
                       changing([](LayoutSettings &all, int value) {
                           all.maximumItemsPerRow = value == 0 ? -1 : value;
                       }),
                       tr("any"));
    m_smart->addNumber(tr("Exactly"), 0, longestRow, 0,
                       changing([](LayoutSettings &all, int value) {
                           all.fixedItemsPerRow = value;
                       }),
                       tr("any"));
}

void LayoutControls::addRatioRows()
{
    const auto &now = m_settings.itemData;
    m_ratio->addNumber(tr("Height, %"), 20, 2 * percent, qRound(now.heightToWidthRatio * percent),
                       changing([](LayoutSettings &all, int value) {
                           all.itemData.heightToWidthRatio = float(value) / percent;
                       }));
    m_ratio->addNumber(tr("Border"), 0, widestBorder, now.borderWidth,
                       changing([](LayoutSettings &all, int value) {
                           all.itemData.borderWidth = value;
                       }));
    m_ratio->addNumber(tr("Least width"), 0, widestTile, now.minimumWidth,
                       changing([](LayoutSettings &all, int value) {
                           all.itemData.minimumWidth = value;
                       }));
    m_ratio->addNumber(tr("Spacing"), 0, widestGap, now.spacing,
                       changing([](LayoutSettings &all, int value) {
                           all.itemData.spacing = value;
                       }));
}

ControlPanel *LayoutControls::addGroup()
{
    auto *group = new ControlPanel(this);
    m_column->addWidget(group);
    return group;
}
