// SPDX-License-Identifier: Apache-2.0
#include "PressesCard.h"

#include "ButtonLooks.h"
#include "Metrics.h"
#include "widgets/CodeEdit.h"
#include "widgets/ControlRow.h"
#include "widgets/SegmentedControl.h"

#include <UiElements/widgets/OxaPushButton.h>

#include <QVBoxLayout>

namespace {

constexpr int linesInSight = 4;
constexpr int linesToKeep = 200;

} // namespace

PressesCard::PressesCard(QWidget *parent)
    : Card(tr("Presses"),
           tr("Click, hold it down for half a second, click with the right button, or tab "
              "through."),
           parent),
      m_button(new OxaPushButton(tr("Hold me"), this)),
      m_log(new CodeEdit(this))
{
    ButtonLooks::apply(*m_button);
    m_button->setLongPressEnabled(true);
    m_log->setReadOnly(true);
    m_log->setAccessibleName(tr("What the button emits"));
    m_log->setMaximumBlockCount(linesToKeep);
    m_log->setMinimumLines(linesInSight);
    m_log->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);

    auto *longPress = new SegmentedControl({ tr("Off"), tr("On") }, this);
    longPress->setCurrentIndex(1);
    connect(longPress, &SegmentedControl::chosen, m_button,
            [button = m_button](int i) { button->setLongPressEnabled(i == 1); });

    note(&OxaPushButton::clicked, "clicked()");
    note(&OxaPushButton::longPressed, "longPressed()");
    note(&OxaPushButton::rightClick, "rightClick()");
    note(&OxaPushButton::mouseEntered, "mouseEntered()");
    note(&OxaPushButton::mouseExited, "mouseExited()");
    note(&OxaPushButton::onFocusIn, "onFocusIn()");
    note(&OxaPushButton::onFocusOut, "onFocusOut()");

    body()->addWidget(m_button);
    body()->addWidget(m_log, 1);
    body()->addWidget(new ControlRow(tr("Long press"), longPress, this));
}

template <typename Signal>
void PressesCard::note(Signal signal, const char *name)
{
    connect(m_button, signal, m_log,
            [log = m_log, name] { log->appendPlainText(QString::fromLatin1(name)); });
}
