// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

class QMetaMethod;
class QObject;

/// The arguments of the hub's signals, by the names of their types. Many of the types belong to the
/// outer application, and Qt's meta-type system knows none of those.
namespace SignalArguments {

/// Returns the value at \a value as a short text: a string in quotation marks, a pointer as "null"
/// or the class of what it points to. A type that neither the hub's signals have nor Qt can turn
/// into text gives "?".
QString text(const QByteArray &typeName, const void *value);

/// Emits \a signal of \a sender with a default-constructed value for each argument. Returns false,
/// and emits nothing, if no signal of the hub has one of the types.
bool emitWithDefaults(QObject *sender, const QMetaMethod &signal);

} // namespace SignalArguments
