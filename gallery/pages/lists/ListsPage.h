// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Page.h"

/// Shows the list models at work: rows found by id, rows that live elsewhere, what overflows, and
/// what an empty list says.
class ListsPage : public Page
{
    Q_OBJECT

public:
    explicit ListsPage(QWidget *parent = nullptr);
};
