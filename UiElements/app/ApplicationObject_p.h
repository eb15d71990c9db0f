// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QCoreApplication>

class OxaApplication;

/// Finds the application object for library code. A process may have none, and every caller must
/// work without it.
namespace ApplicationObject {

/// Returns the application object as \a Application, which is OxaApplication or its base class;
/// null without one.
template <typename Application>
Application *find()
{
    return qobject_cast<Application *>(QCoreApplication::instance());
}

/// Returns the application object. Without one it logs a warning and returns null.
OxaApplication *findOrWarn();

} // namespace ApplicationObject
