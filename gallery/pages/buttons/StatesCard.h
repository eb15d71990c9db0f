// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "widgets/Card.h"

class OxaPushButton;
class QGridLayout;

/// Shows each class of button in each of its states, side by side.
class StatesCard : public Card
{
    Q_OBJECT

public:
    explicit StatesCard(QWidget *parent = nullptr);

private:
    /// Adds a row for the class called \a name, with what \a prepare makes of its buttons.
    template <typename ButtonClass>
    void addColumn(QGridLayout *grid, const char *name, void (*prepare)(ButtonClass &button));
};
