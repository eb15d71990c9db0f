// SPDX-License-Identifier: Apache-2.0
#include "ModelRecorder.h"

#include <UiElements/models/BaseListModel.h>

namespace {

QString rolesText(const QVector<int> &roles)
{
    QStringList numbers;
    for (const int role : roles)
        numbers += QString::number(role);
    return roles.isEmpty() ? QString()
                           : QStringLiteral(" [%1]").arg(numbers.join(QLatin1Char(',')));
}

} // namespace

ModelRecorder::ModelRecorder(const BaseListModel *model, QObject *parent) : QObject(parent)
{
    connect(model, &BaseListModel::rowsInserted, this,
            [this](const QModelIndex &, int first, int last) { noteRange("ins", first, last); });
    connect(model, &BaseListModel::rowsRemoved, this,
            [this](const QModelIndex &, int first, int last) { noteRange("rem", first, last); });
    connect(model, &BaseListModel::dataChanged, this,
            [this](const QModelIndex &first, const QModelIndex &last, const QVector<int> &roles) {
                noteRange("chg", first.row(), last.row(), roles);
            });
    connect(model, &BaseListModel::modelReset, this,
            [this] { m_notes += QStringLiteral("reset"); });
    connect(model, &BaseListModel::countChanged, this,
            [this](int count) { m_notes += QStringLiteral("count %1").arg(count); });
}

void ModelRecorder::record(const QString &name, const std::function<void()> &operation)
{
    m_notes.clear();
    operation();
    const QString notes = m_notes.isEmpty() ? tr("no signal") : m_notes.join(QStringLiteral(" | "));
    Q_EMIT recorded(QStringLiteral("%1: %2").arg(name, notes));
}

void ModelRecorder::noteRange(const char *what, int first, int last, const QVector<int> &roles)
{
    m_notes += QStringLiteral("%1 %2,%3").arg(QLatin1String(what)).arg(first).arg(last)
            + rolesText(roles);
}
