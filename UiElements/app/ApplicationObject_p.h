// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QCoreApplication>

class OxaApplication;

/// Where library code finds the application object. A process may be without one, and every caller
/// must do without it then.
namespace ApplicationObject {

/// Returns the application object as \a Application, which is OxaApplication or its base; null
/// without one.
template <typename Application>
Application *find()
{
    return qobject_cast<Application *>(QCoreApplication::instance());
}

/// Returns the application object. Without one it logs a warning and returns null.
OxaApplication *findOrWarn();

} // namespace ApplicationObject
