// SPDX-License-Identifier: Apache-2.0
#include "AlignedLabel.h"

#include <QGuiApplication>

AlignedLabel::AlignedLabel(const QString &text, QWidget *parent, Place place)
    : OxaLabel(text, parent)
{
    keepAligned(this, place);
}

void AlignedLabel::keepAligned(QLabel *label, Place place)
{
    const auto align = [label, place] {
        const Qt::Alignment start = QGuiApplication::isRightToLeft() ? Qt::AlignRight
                                                                     : Qt::AlignLeft;
        const Qt::Alignment across = place == Place::Centre ? Qt::AlignHCenter
                                                            : start | Qt::AlignAbsolute;
        label->setAlignment((label->alignment() & Qt::AlignVertical_Mask) | across);
    };
    connect(qGuiApp, &QGuiApplication::layoutDirectionChanged, label, align);
    align();
}
