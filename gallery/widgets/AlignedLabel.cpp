// SPDX-License-Identifier: Apache-2.0
#include "AlignedLabel.h"

#include <QGuiApplication>

AlignedLabel::AlignedLabel(const QString &text, QWidget *parent, Place place)
    : OxaLabel(text, parent), m_place(place)
{
    connect(qGuiApp, &QGuiApplication::layoutDirectionChanged, this, &AlignedLabel::align);
    align();
}

void AlignedLabel::align()
{
    const Qt::Alignment start = QGuiApplication::isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft;
    const Qt::Alignment across = m_place == Place::Centre ? Qt::AlignHCenter
                                                          : start | Qt::AlignAbsolute;
    setAlignment((alignment() & Qt::AlignVertical_Mask) | across);
}
