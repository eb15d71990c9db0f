// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/models/BaseListModel.h>

/// A list of people by name.
class PeopleModel : public BaseListModel
{
    Q_OBJECT

public:
    enum Role { NameRole = Qt::UserRole + 1 };

    using BaseListModel::BaseListModel;

    QHash<int, QByteArray> roleNames() const override { return { { NameRole, "name" } }; }

    /// The rows have no value for Qt::DisplayRole, which is what Qt's item views show.
    QVariant data(const QModelIndex &index, int role) const override
    {
        return BaseListModel::data(index, role == Qt::DisplayRole ? int(NameRole) : role);
    }
};
