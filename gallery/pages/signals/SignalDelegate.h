// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "widgets/ItemDelegate.h"

/// Paints the rows of a SignalModel: headings, and signals with their parameters and receivers.
class SignalDelegate : public ItemDelegate
{
    Q_OBJECT

public:
    using ItemDelegate::ItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

private:
    void paintTexts(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index,
                    const QRect &rect) const;
    void paintReceivers(QPainter *painter, const QRect &rect, const QString &count,
                        QStyle::State state) const;
};
