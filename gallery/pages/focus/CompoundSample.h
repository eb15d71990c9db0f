// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/layouts/SmartLayout.h>
#include <UiElements/widgets/OxaWidget.h>

#include <random>

class OxaPushButton;

/// Items of a layout between two buttons. The tab order goes from the first button through the
/// items, in the order of the layout, to the last one.
class CompoundSample : public OxaWidget
{
    Q_OBJECT

public:
    explicit CompoundSample(QWidget *parent = nullptr);

    /// Sorts the items by their names.
    void sortForwards();
    void sortBackwards();
    void shuffle();

private:
    void alignToStart();
    void chain();

    OxaPushButton *m_first;
    OxaPushButton *m_last;
    SmartLayout *m_items;
    std::mt19937 m_generator;
};
