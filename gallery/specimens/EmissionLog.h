// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "widgets/CodeEdit.h"

/// A log of what objects emit, one line for each signal.
class EmissionLog : public CodeEdit
{
    Q_OBJECT

public:
    explicit EmissionLog(QWidget *parent = nullptr);

    /// Logs the signals of \a sender until it is deleted, except for those of the theme and of
    /// \a plain, a class of Qt that its class derives from.
    void follow(QObject *sender, const QMetaObject &plain = QWidget::staticMetaObject);

Q_SIGNALS:
    /// A line was added.
    void noted();
};
