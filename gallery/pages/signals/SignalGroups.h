// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <vector>

/// A group of the hub's signals.
struct SignalGroup
{
    QString heading;
    QByteArray firstSignal; ///< The name of the signal that the group begins with.
};

/// Returns the groups of the hub's signals, in the order of its meta-object.
std::vector<SignalGroup> signalGroups();
