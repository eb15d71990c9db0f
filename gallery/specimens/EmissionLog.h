// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "widgets/CodeEdit.h"

/// A log of what objects emit, one line for each signal.
class EmissionLog : public CodeEdit
{
    Q_OBJECT

public:
    explicit EmissionLog(QWidget *parent = nullptr);

    /// Logs the signals of \a sender until it is deleted, except for those that Qt and the theme
    /// give every widget.
    void follow(QObject *sender);

Q_SIGNALS:
    /// A line was added.
    void noted();
};
