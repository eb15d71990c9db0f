// SPDX-License-Identifier: Apache-2.0
#include "LayoutControls.h"

#include "Metrics.h"
#include "NumberRow.h"
#include "widgets/ControlRow.h"
#include "widgets/SegmentedControl.h"

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

void LayoutControls::addCommonRows()
{
    LayoutSettings &all = m_settings;
    addRow(m_common, tr("Tiles"), 0, mostTiles, all.tileCount, QString(),
           [&all](int value) { all.tileCount = value; });
    addRow(m_common, tr("Left margin"), 0, widestMargin, all.margins.left(), QString(),
           [&all](int value) { all.margins.setLeft(value); });
    addRow(m_gaps, tr("Sizes"), { tr("Equal"), tr("Heights"), tr("Both") }, int(all.sizes),
           [&all](int i) { all.sizes = static_cast<LayoutSettings::Sizes>(i); });
    addRow(m_gaps, tr("Across"), -1, widestGap, all.horizontalSpacing, tr("style"),
           [&all](int value) { all.horizontalSpacing = value; });
    addRow(m_gaps, tr("Down"), -1, widestGap, all.verticalSpacing, tr("style"),
           [&all](int value) { all.verticalSpacing = value; });
}

void LayoutControls::addSmartRows()
{
    LayoutSettings &all = m_settings;
    const Qt::AlignmentFlag alignments[] = { Qt::AlignLeft, Qt::AlignCenter, Qt::AlignRight };
    addRow(m_smart, tr("Rows"), { tr("Left"), tr("Centre"), tr("Right") }, 0,
           [&all, alignments](int i) { all.alignment = alignments[i]; });
    // 0 is no limit that the layout knows.
    addRow(m_smart, tr("At most"), 0, longestRow, 0, tr("any"),
           [&all](int value) { all.maximumItemsPerRow = value == 0 ? -1 : value; });
    addRow(m_smart, tr("Exactly"), 0, longestRow, 0, tr("any"),
           [&all](int value) { all.fixedItemsPerRow = value; });
}

void LayoutControls::addRatioRows()
{
    ItemData &item = m_settings.itemData;
    addRow(m_ratio, tr("Height, %"), 20, 2 * percent, qRound(item.heightToWidthRatio * percent),
           QString(), [&item](int value) { item.heightToWidthRatio = float(value) / percent; });
    addRow(m_ratio, tr("Border"), 0, widestBorder, item.borderWidth, QString(),
           [&item](int value) { item.borderWidth = value; });
    addRow(m_ratio, tr("Least width"), 0, widestTile, item.minimumWidth, QString(),
           [&item](int value) { item.minimumWidth = value; });
    addRow(m_ratio, tr("Spacing"), 0, widestGap, item.spacing, QString(),
           [&item](int value) { item.spacing = value; });
}

OxaWidget *LayoutControls::addGroup()
{
    auto *group = new OxaWidget(this);
    auto *column = new QVBoxLayout(group);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Metrics::small);
    m_column->addWidget(group);
    return group;
}

void LayoutControls::addRow(QWidget *group, const QString &caption, int minimum, int maximum,
                            int value, const QString &word, const std::function<void(int)> &store)
{
    auto *row = new NumberRow(caption, minimum, maximum, value, word, group);
    group->layout()->addWidget(row);
    connect(row, &NumberRow::valueChanged, this, [this, store](int number) {
        store(number);
        Q_EMIT changed();
    });
}

void LayoutControls::addRow(QWidget *group, const QString &caption, const QStringList &choices,
                            int chosen, const std::function<void(int)> &store)
{
    auto *control = new SegmentedControl(choices, group);
    control->setCurrentIndex(chosen);
    group->layout()->addWidget(new ControlRow(caption, control, group));
    connect(control, &SegmentedControl::chosen, this, [this, store](int index) {
        store(index);
        Q_EMIT changed();
    });
}
