// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

/// What the people of the seeded archive are called and say, by script.
namespace Words {

constexpr int scripts = 5;

QStringList firstNames(int script);
QStringList lastNames(int script);
QStringList sentences(int script);
QStringList topics();
QStringList professions();

} // namespace Words
