// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

/// What the people of the seeded archive are called and say, by script.
namespace Words {

constexpr int scripts = 5;

extern const QStringList firstNames[scripts];
extern const QStringList lastNames[scripts];
extern const QStringList sentences[scripts];
extern const QStringList topics;
extern const QStringList professions;

} // namespace Words
