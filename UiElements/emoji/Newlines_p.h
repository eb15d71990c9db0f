// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QRegularExpression>
#include <QSet>
#include <QStringList>

/// What ends a line in texts that users write.
namespace Newlines {

/// Returns the six characters. U+000F is one of them; the vertical tab, U+000B, is not.
QSet<QChar> characters();

/// Returns an expression that matches one of them.
const QRegularExpression &expression();

/// Returns whether \a text has more than one line.
bool isIn(const QString &text);

/// Returns the lines of \a text that are not empty.
QStringList split(const QString &text);

} // namespace Newlines
