// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "IconDiagnosis.h"
#include "IconFiles.h"

#include <QAbstractTableModel>
#include <QTimer>

#include <optional>
#include <vector>

/// SVG files as a table: the name with the diagnosis of the file, and a column for each state.
///
/// A file is diagnosed when it is asked for, and all of them, one after the other, when the event
/// loop is idle: thousands of files do not block the window.
class IconModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column {
        NameColumn,
        FirstStateColumn,
        ColumnCount = FirstStateColumn + 6,
    };

    /// Which files are listed.
    enum class Shown {
        All,    ///< All of them.
        Taking, ///< Those that take all of the colour.
        Others, ///< Those that don't.
    };

    explicit IconModel(QObject *parent = nullptr);

    /// Lists \a files.
    void setFiles(const std::vector<IconFile> &files);

    /// Lists only the files whose name contains \a text in any case.
    void setFilter(const QString &text);

    /// Lists only those files. They are added as they are diagnosed.
    void setShown(Shown shown);

    /// Returns how many files there are, listed or not.
    int fileCount() const { return int(m_entries.size()); }

    /// Returns how many of the files were diagnosed.
    int surveyedCount() const { return m_surveyed; }

    /// Returns how many of those take all of the colour.
    int takingCount() const { return m_taking; }

    /// Returns the file at \a row.
    const IconFile &file(int row) const { return entry(row).file; }

    /// Returns the diagnosis of the file at \a row.
    const IconDiagnosis &diagnosis(int row) const;

    /// Returns the word for the state of \a column; "normal" for a column without a state.
    static QString stateOf(int column);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

Q_SIGNALS:
    /// More files were diagnosed.
    void surveyed();

private:
    struct Entry
    {
        IconFile file;
        mutable std::optional<IconDiagnosis> diagnosis;
    };

    static const IconDiagnosis &diagnosisOf(const Entry &entry);

    const Entry &entry(int row) const { return m_entries[m_rows[std::size_t(row)]]; }
    void rebuild();
    bool isListed(const Entry &entry) const;
    void survey();
    void surveyNext();

    std::vector<Entry> m_entries;
    std::vector<std::size_t> m_rows; ///< The entries that are listed.
    QString m_filter;
    Shown m_shown = Shown::All;
    QTimer m_surveyTimer;
    int m_surveyed = 0;
    int m_taking = 0;
};
