// SPDX-License-Identifier: Apache-2.0
#include "History.h"

int History::rowOf(int) const { return -1; }
bool History::isComplete() const { return true; }
void History::loadEarlier() { }
void History::loadBackTo(const QDate &) { }
