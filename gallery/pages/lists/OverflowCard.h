// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "widgets/Card.h"

class OverflowBar;
class OxaLabel;
class SmallListModel;

/// A bar of people that can be made too narrow, and the names of those that it has no room for.
class OverflowCard : public Card
{
    Q_OBJECT

public:
    explicit OverflowCard(QWidget *parent = nullptr);

private:
    void showHidden();

    SmallListModel *m_people;
    OverflowBar *m_bar;
    OxaLabel *m_hidden;
};
