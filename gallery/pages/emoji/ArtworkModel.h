// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ArtworkKind.h"

#include <QAbstractListModel>

#include <optional>
#include <vector>

/// The emoji with artwork, all of them or those of one kind.
class ArtworkModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        EmojiRole = Qt::UserRole + 1, ///< The text of the emoji.
        PathRole,                     ///< The file.
    };

    /// Lists the files that the application has now.
    explicit ArtworkModel(QObject *parent = nullptr);

    /// Shows the emoji of \a kind, or all.
    void setKind(std::optional<ArtworkKind> kind);

    /// Returns how many emoji of \a kind there are.
    int count(ArtworkKind kind) const;

    /// Returns how many emoji there are of all kinds.
    int fullCount() const { return int(m_all.size()); }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    struct Artwork
    {
        QString stem;
        QString emoji;
        ArtworkKind kind;
    };

    std::vector<Artwork> m_all;
    std::vector<std::size_t> m_rows; ///< The indices of the shown ones.
};
