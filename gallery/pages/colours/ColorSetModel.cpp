// SPDX-License-Identifier: Apache-2.0
#include "ColorSetModel.h"

#include "looks/LibraryColorSets.h"

#include <algorithm>

namespace {

struct State
{
    const char *name;
    QColor OxaColorSet::*color;
};
constexpr State states[] = {
    { "normal", &OxaColorSet::normal },   { "hovered", &OxaColorSet::hovered },
    { "pressed", &OxaColorSet::pressed }, { "disabled", &OxaColorSet::disabled },
    { "focused", &OxaColorSet::focused }, { "checked", &OxaColorSet::checked },
};

const State &stateOf(int column) { return states[column - 1]; }

} // namespace

ColorSetModel::ColorSetModel(QObject *parent) : QAbstractTableModel(parent) { }

void ColorSetModel::setColorSets(const OxaColorSetMap &colorSets)
{
    m_colorSets.clear();
    m_colorSets.reserve(colorSets.size());
    for (const auto &entry : colorSets)
        m_colorSets.push_back(entry.second);
    std::sort(m_colorSets.begin(), m_colorSets.end(),
              [](const OxaColorSet &a, const OxaColorSet &b) { return a.name < b.name; });
    rebuild();
}

void ColorSetModel::setFilter(const QString &text)
{
    m_filter = text.trimmed();
    rebuild();
}

int ColorSetModel::colorSetCount() const
{
    return int(std::count_if(m_rows.begin(), m_rows.end(),
                             [](const Row &row) { return row.colorSet.isValid(); }));
}

QString ColorSetModel::textOf(const QColor &color)
{
    return color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
}

int ColorSetModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int ColorSetModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : 1 + int(std::size(states));
}

QVariant ColorSetModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const Row &row = m_rows[std::size_t(index.row())];
    const bool isHeading = !row.colorSet.isValid();
    if (role == HeadingRole)
        return isHeading;
    if (index.column() > 0)
        return isHeading ? QVariant() : cell(row, index.column(), role);
    return role == Qt::DisplayRole ? QVariant(row.text) : QVariant();
}

QVariant ColorSetModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return int((section == 0 ? Qt::AlignLeft : Qt::AlignHCenter) | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    return section == 0 ? tr("Colour set") : QString::fromLatin1(stateOf(section).name);
}

Qt::ItemFlags ColorSetModel::flags(const QModelIndex &index) const
{
    if (!index.isValid() || index.data(HeadingRole).toBool())
        return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}

void ColorSetModel::rebuild()
{
    beginResetModel();
    m_rows.clear();
    appendGroup(tr("Used by the library"), true);
    appendGroup(tr("The gallery's own"), false);
    endResetModel();
}

void ColorSetModel::appendGroup(const QString &heading, bool ofLibrary)
{
    const QStringList libraryNames = libraryColorSetNames();
    std::vector<Row> rows;
    for (const OxaColorSet &colorSet : m_colorSets) {
        if (libraryNames.contains(colorSet.name) == ofLibrary && matches(colorSet))
            rows.push_back({ colorSet.name, colorSet });
    }
    if (rows.empty())
        return;
    m_rows.push_back({ tr("%1 (%2)").arg(heading).arg(rows.size()), OxaColorSet() });
    m_rows.insert(m_rows.end(), rows.begin(), rows.end());
}

bool ColorSetModel::matches(const OxaColorSet &colorSet) const
{
    const auto holdsFilter = [this, &colorSet](const State &state) {
        return textOf(colorSet.*state.color).contains(m_filter, Qt::CaseInsensitive);
    };
    return colorSet.name.contains(m_filter, Qt::CaseInsensitive)
            || std::any_of(std::begin(states), std::end(states), holdsFilter);
}

QVariant ColorSetModel::cell(const Row &row, int column, int role) const
{
    const State &state = stateOf(column);
    const QColor color = row.colorSet.*state.color;
    switch (role) {
    case Qt::DisplayRole:
        return textOf(color);
    case Qt::ToolTipRole:
        return tr("$(%1.%2)").arg(row.colorSet.name, QString::fromLatin1(state.name));
    case ColorRole:
        return color;
    default:
        return {};
    }
}
