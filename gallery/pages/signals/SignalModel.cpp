// SPDX-License-Identifier: Apache-2.0
#include "SignalModel.h"

#include "SignalGroups.h"
#include "SignalWatcher.h"

#include <algorithm>

namespace {

QString parametersOf(const QMetaMethod &signal)
{
    const QByteArrayList types = signal.parameterTypes();
    const QByteArrayList names = signal.parameterNames();
    QByteArrayList parameters;
    for (int i = 0; i < types.size(); ++i)
        parameters += types[i] + ' ' + names[i];
    return QString::fromLatin1(parameters.join(", "));
}

/// Returns the signals that \a type declares itself, in order.
std::vector<QMetaMethod> signalsOf(const QMetaObject &type)
{
    std::vector<QMetaMethod> found;
    for (int i = type.methodOffset(); i < type.methodCount(); ++i) {
        if (type.method(i).methodType() == QMetaMethod::Signal)
            found.push_back(type.method(i));
    }
    return found;
}

} // namespace

SignalModel::SignalModel(const QObject *hub, QObject *parent)
    : QAbstractListModel(parent), m_hub(hub)
{
    rebuild();
}

void SignalModel::setFilter(const QString &text)
{
    m_filter = text.trimmed();
    rebuild();
}

void SignalModel::refreshReceivers()
{
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        Row &row = m_rows[i];
        const int receivers = row.signal.isValid() ? receiversOf(row.signal) : 0;
        if (receivers == row.receivers)
            continue;
        row.receivers = receivers;
        Q_EMIT dataChanged(index(int(i)), index(int(i)), { ReceiversRole });
    }
}

int SignalModel::signalCount() const
{
    return int(std::count_if(m_rows.begin(), m_rows.end(),
                             [](const Row &row) { return row.signal.isValid(); }));
}

QMetaMethod SignalModel::signalAt(const QModelIndex &index) const
{
    return index.isValid() ? m_rows[std::size_t(index.row())].signal : QMetaMethod();
}

QModelIndex SignalModel::indexOf(const QByteArray &signature) const
{
    const auto found = std::find_if(m_rows.begin(), m_rows.end(), [&signature](const Row &row) {
        return row.signal.isValid() && row.signal.methodSignature() == signature;
    });
    return found == m_rows.end() ? QModelIndex() : index(int(found - m_rows.begin()));
}

QModelIndex SignalModel::firstSignal() const
{
    return index(1); // Behind the heading of its group.
}

QString SignalModel::signatureOf(const QMetaMethod &signal)
{
    return QStringLiteral("%1(%2)").arg(QString::fromLatin1(signal.name()), parametersOf(signal));
}

int SignalModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant SignalModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const Row &row = m_rows[std::size_t(index.row())];
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return row.text;
    case HeadingRole:
        return !row.signal.isValid();
    case NameRole:
        return QString::fromLatin1(row.signal.name());
    case ParametersRole:
        return parametersOf(row.signal);
    case ReceiversRole:
        return row.receivers;
    default:
        return {};
    }
}

Qt::ItemFlags SignalModel::flags(const QModelIndex &index) const
{
    if (!signalAt(index).isValid())
        return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}

void SignalModel::rebuild()
{
    beginResetModel();
    m_rows.clear();
    const std::vector<QMetaMethod> all = signalsOf(*m_hub->metaObject());
    auto next = all.begin();
    const std::vector<SignalGroup> groups = signalGroups();
    for (const SignalGroup &group : groups) {
        const bool isLast = &group == &groups.back();
        const QByteArray following = isLast ? QByteArray() : (&group + 1)->firstSignal;
        const auto end = std::find_if(next, all.end(), [&following](const QMetaMethod &signal) {
            return signal.name() == following;
        });
        std::vector<Row> rows;
        for (; next != end; ++next) {
            const QString signature = signatureOf(*next);
            if (signature.contains(m_filter, Qt::CaseInsensitive))
                rows.push_back({ signature, *next, receiversOf(*next) });
        }
        if (rows.empty())
            continue;
        m_rows.push_back({ tr("%1 (%2)").arg(group.heading).arg(rows.size()), {}, 0 });
        m_rows.insert(m_rows.end(), rows.begin(), rows.end());
    }
    endResetModel();
}

int SignalModel::receiversOf(const QMetaMethod &signal) const
{
    // The watcher is not counted as a receiver.
    return qMax(0, SignalWatcher::connectionCount(m_hub, signal) - 1);
}
