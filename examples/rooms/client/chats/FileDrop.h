// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

class QDropEvent;
class QWidget;

/// Takes files that are dropped onto a widget: their names, since nothing is opened.
class FileDrop : public QObject
{
    Q_OBJECT

public:
    static constexpr int mostFiles = 20;

    /// Takes what is dropped onto \a target, which owns this. Give the viewport of a list.
    explicit FileDrop(QWidget *target);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// Files called \a names were dropped at \a position of the target.
    void dropped(const QStringList &names, const QPoint &position);
};
