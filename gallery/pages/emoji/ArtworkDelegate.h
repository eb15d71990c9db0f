// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "widgets/ItemDelegate.h"

/// Paints an emoji's picture with its stem below.
class ArtworkDelegate : public ItemDelegate
{
    Q_OBJECT

public:
    using ItemDelegate::ItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

private:
    void paintTile(QPainter *painter, const QStyleOptionViewItem &option) const;
};
