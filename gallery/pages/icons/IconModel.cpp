// SPDX-License-Identifier: Apache-2.0
#include "IconModel.h"

#include <QElapsedTimer>

namespace {

const char *const states[] = { "normal", "hovered", "pressed", "disabled", "focused", "checked" };

/// How long the survey may block the event loop.
constexpr int sliceMs = 8;

bool takesColor(const IconDiagnosis &diagnosis)
{
    return diagnosis.outcome == IconDiagnosis::Outcome::TakesColor;
}

bool hasState(int column) { return column >= IconModel::FirstStateColumn; }

} // namespace

IconModel::IconModel(QObject *parent) : QAbstractTableModel(parent)
{
    connect(&m_surveyTimer, &QTimer::timeout, this, &IconModel::survey);
}

void IconModel::setFiles(const std::vector<IconFile> &files)
{
    m_entries.clear();
    m_entries.reserve(files.size());
    for (const IconFile &file : files)
        m_entries.push_back({ file, std::nullopt });
    m_surveyed = 0;
    m_taking = 0;
    m_surveyTimer.start();
    rebuild();
    survey();
}

void IconModel::setFilter(const QString &text)
{
    m_filter = text.trimmed();
    rebuild();
}

void IconModel::setShown(Shown shown)
{
    m_shown = shown;
    rebuild();
}

const IconDiagnosis &IconModel::diagnosis(int row) const { return diagnosisOf(entry(row)); }

QString IconModel::stateOf(int column)
{
    return QString::fromLatin1(states[hasState(column) ? column - FirstStateColumn : 0]);
}

int IconModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int IconModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant IconModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const int column = index.column();
    if (role == Qt::DisplayRole && column == NameColumn)
        return file(index.row()).name;
    if (role == Qt::ToolTipRole && column == NameColumn)
        return diagnosis(index.row()).reason;
    if (role == Qt::AccessibleTextRole && hasState(column))
        return tr("%1, %2").arg(file(index.row()).name, stateOf(column));
    return {};
}

QVariant IconModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return int((hasState(section) ? Qt::AlignHCenter : Qt::AlignLeft) | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    return hasState(section) ? stateOf(section) : tr("Icon");
}

const IconDiagnosis &IconModel::diagnosisOf(const Entry &entry)
{
    if (!entry.diagnosis)
        entry.diagnosis = IconDiagnosis::of(entry.file.path);
    return *entry.diagnosis;
}

void IconModel::rebuild()
{
    beginResetModel();
    m_rows.clear();
    // A filtered list grows with the survey, which has not reached the other files.
    const std::size_t known = m_shown == Shown::All ? m_entries.size() : std::size_t(m_surveyed);
    for (std::size_t i = 0; i < known; ++i) {
        if (isListed(m_entries[i]))
            m_rows.push_back(i);
    }
    endResetModel();
}

bool IconModel::isListed(const Entry &entry) const
{
    if (!entry.file.name.contains(m_filter, Qt::CaseInsensitive))
        return false;
    return m_shown == Shown::All || takesColor(diagnosisOf(entry)) == (m_shown == Shown::Taking);
}

void IconModel::survey()
{
    QElapsedTimer elapsed;
    elapsed.start();
    while (m_surveyed < fileCount() && !elapsed.hasExpired(sliceMs))
        surveyNext();
    if (m_surveyed == fileCount())
        m_surveyTimer.stop();
    Q_EMIT surveyed();
}

void IconModel::surveyNext()
{
    const Entry &next = m_entries[std::size_t(m_surveyed)];
    if (takesColor(diagnosisOf(next)))
        ++m_taking;
    if (m_shown != Shown::All && isListed(next)) {
        beginInsertRows({}, rowCount(), rowCount());
        m_rows.push_back(std::size_t(m_surveyed));
        endInsertRows();
    }
    ++m_surveyed;
}
