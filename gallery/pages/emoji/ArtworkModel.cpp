// SPDX-License-Identifier: Apache-2.0
#include "ArtworkModel.h"

#include <QDir>

#include <algorithm>

namespace {

const QString folder = QStringLiteral(":/emojis");

} // namespace

ArtworkModel::ArtworkModel(QObject *parent) : QAbstractListModel(parent)
{
    const QStringList names = QDir(folder).entryList({ QStringLiteral("*.svg") }, QDir::Files,
                                                     QDir::Name);
    for (const QString &name : names) {
        const QString stem = name.chopped(4);
        const QString emoji = emojiOfStem(stem);
        if (!emoji.isEmpty())
            m_all.push_back({ stem, emoji, artworkKindOf(emoji) });
    }
    setKind({});
}

void ArtworkModel::setKind(std::optional<ArtworkKind> kind)
{
    beginResetModel();
    m_rows.clear();
    for (std::size_t i = 0; i < m_all.size(); ++i) {
        if (!kind || m_all[i].kind == kind)
            m_rows.push_back(i);
    }
    endResetModel();
}

int ArtworkModel::count(ArtworkKind kind) const
{
    return int(std::count_if(m_all.begin(), m_all.end(),
                             [kind](const Artwork &artwork) { return artwork.kind == kind; }));
}

int ArtworkModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant ArtworkModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const Artwork &artwork = m_all[m_rows[std::size_t(index.row())]];
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return artwork.stem;
    case Qt::AccessibleTextRole:
    case EmojiRole:
        return artwork.emoji;
    case PathRole:
        return QStringLiteral("%1/%2.svg").arg(folder, artwork.stem);
    default:
        return {};
    }
}
