// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaColorSet.h>

#include <QAbstractTableModel>

#include <vector>

/// The colour sets of a store as a table: the name, and a column for each state.
///
/// The sets that the library uses are one group, all others another. A group begins with a row for
/// its heading.
class ColorSetModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Role {
        HeadingRole = Qt::UserRole, ///< True for the heading of a group.
        ColorRole,                  ///< The QColor of a state; invalid in the name's column.
    };

    explicit ColorSetModel(QObject *parent = nullptr);

    /// Shows the sets of \a colorSets.
    void setColorSets(const OxaColorSetMap &colorSets);

    /// Shows only the sets whose name, or one of whose colours, contains \a text in any case.
    void setFilter(const QString &text);

    /// Returns how many sets are shown.
    int colorSetCount() const;

    /// Returns \a color in hexadecimal digits, with its alpha where it is translucent.
    static QString textOf(const QColor &color);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    /// A set, or without one the heading of a group.
    struct Row
    {
        QString text;
        OxaColorSet colorSet;
    };

    void rebuild();
    void appendGroup(const QString &heading, bool ofLibrary);
    bool matches(const OxaColorSet &colorSet) const;
    QVariant cell(const Row &row, int column, int role) const;

    std::vector<OxaColorSet> m_colorSets;
    std::vector<Row> m_rows;
    QString m_filter;
};
