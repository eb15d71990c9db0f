// SPDX-License-Identifier: Apache-2.0
#include "OxaObject.h"

OxaObject::OxaObject(QObject *parent) : QObject(parent) { }
