// SPDX-License-Identifier: Apache-2.0
#include "StatesCard.h"

#include "ButtonLooks.h"
#include "FrozenButton.h"
#include "Metrics.h"
#include "widgets/Labels.h"

#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaToggleButton.h>
#include <UiElements/widgets/OxaUnderlineButton.h>

#include <QGridLayout>

namespace {

struct State
{
    const char *name;
    QStyle::State flags;
    bool isEnabled = true;
    bool isChecked = false;
};
constexpr State states[] = {
    { QT_TRANSLATE_NOOP("StatesCard", "Normal"), QStyle::State_None },
    { QT_TRANSLATE_NOOP("StatesCard", "Hovered"), QStyle::State_MouseOver },
    { QT_TRANSLATE_NOOP("StatesCard", "Pressed"), QStyle::State_MouseOver | QStyle::State_Sunken },
    { QT_TRANSLATE_NOOP("StatesCard", "Checked"), QStyle::State_None, true, true },
    { QT_TRANSLATE_NOOP("StatesCard", "Disabled"), QStyle::State_None, false },
    { QT_TRANSLATE_NOOP("StatesCard", "Focused"),
      QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange },
};

QString text() { return StatesCard::tr("Answer"); }

void preparePush(OxaPushButton &button)
{
    ButtonLooks::apply(button);
    button.setText(text());
    button.setFocusRectColorSet(QStringLiteral("gallery-button-background"));
}

void prepareAccent(OxaPushButton &button)
{
    preparePush(button);
    button.setCSS(ButtonLooks::accent());
}

void prepareUnderline(OxaUnderlineButton &button)
{
    button.setFontToken(OxaFont::Token::TagLabelPrimary);
    button.setText(text());
    button.setUnderlineColorSet(QStringLiteral("gallery-accent"));
}

void prepareToggle(OxaToggleButton &button)
{
    preparePush(button);
    button.setCSS(ButtonLooks::toggle());
}

} // namespace

StatesCard::StatesCard(QWidget *parent)
    : Card(tr("States"), tr("What a button looks like in each state, without anybody's help."),
           parent)
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(Metrics::spacing);
    grid->setVerticalSpacing(Metrics::small);
    int row = 1;
    for (const State &state : states)
        grid->addWidget(Labels::caption(tr(state.name)), row++, 0);
    addColumn(grid, "OxaPushButton", preparePush);
    addColumn(grid, "OxaPushButton", prepareAccent);
    addColumn(grid, "OxaUnderlineButton", prepareUnderline);
    addColumn(grid, "OxaToggleButton", prepareToggle);
    grid->setColumnStretch(grid->columnCount(), 1);
    body()->addLayout(grid);
}

template <typename ButtonClass>
void StatesCard::addColumn(QGridLayout *grid, const char *name,
                           void (*prepare)(ButtonClass &button))
{
    const int column = grid->columnCount();
    grid->addWidget(Labels::line(QString::fromLatin1(name)), 0, column, Qt::AlignHCenter);
    int row = 1;
    for (const State &state : states) {
        auto *button = new FrozenButton<ButtonClass>(state.flags);
        grid->addWidget(button, row++, column, Qt::AlignHCenter);
        prepare(*button);
        button->setCheckable(true);
        button->setChecked(state.isChecked);
        button->setEnabled(state.isEnabled);
    }
}
