// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/models/EmptyStateBaseListModel.h>

/// The conversations of a messenger, with the roles of RowRole.
class ConversationModel : public EmptyStateBaseListModel
{
    Q_OBJECT

public:
    explicit ConversationModel(QObject *parent = nullptr);

    QHash<int, QByteArray> roleNames() const override;

    /// Returns the title for Qt::DisplayRole as well, which is what assistive technology reads.
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
};
