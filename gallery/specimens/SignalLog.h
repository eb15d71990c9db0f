// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "widgets/CodeEdit.h"

#include <functional>

/// A log of what objects emit, a line for each signal.
class SignalLog : public CodeEdit
{
    Q_OBJECT

public:
    explicit SignalLog(QWidget *parent = nullptr);

    /// Logs the signals of \a sender from now on, but for those that Qt and the theme give every
    /// widget, and calls \a noted after each. \a sender may be deleted before the log.
    void watch(
            QObject *sender, const std::function<void()> &noted = [] {});
};
