// SPDX-License-Identifier: Apache-2.0
#include "FocusPage.h"

#include "CompoundSample.h"
#include "TabOrderOverlay.h"
#include "WindowWatcher.h"
#include "looks/Metrics.h"
#include "shell/TabOrder.h"
#include "widgets/Buttons.h"
#include "widgets/Card.h"
#include "widgets/CodeEdit.h"
#include "widgets/ColumnsLayout.h"
#include "widgets/ControlRow.h"
#include "widgets/Fields.h"
#include "widgets/SegmentedControl.h"

#include <UiElements/widgets/OxaLineEdit.h>

#include <QHBoxLayout>

namespace {

constexpr int leastListLines = 8;

/// What the third button of the sample does with the focus.
enum class Sample { Takes, ClickOnly, Disabled, Hidden };

void apply(Sample sample, OxaPushButton &button)
{
    button.setFocusPolicy(sample == Sample::ClickOnly ? Qt::ClickFocus : Qt::TabFocus);
    button.setEnabled(sample != Sample::Disabled);
    button.setVisible(sample != Sample::Hidden);
}

} // namespace

FocusPage::FocusPage(QWidget *parent)
    : Page(tr("Focus"),
           tr("What Tab stops at in this window, and in which order. Go through it with Tab and "
              "Shift+Tab: the number of the widget with the focus is marked."),
           parent)
{
    auto *samples = new OxaWidget(this);
    auto *column = new QVBoxLayout(samples);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Metrics::spacing);
    column->addWidget(makeCompoundCard());
    column->addWidget(makeStatesCard());
    column->addStretch(1);
    ColumnsLayout *columns = makeColumns();
    columns->addWidget(samples);
    columns->addWidget(makeListCard());
    body()->setStretchFactor(columns, 1);
}

FocusPage::~FocusPage()
{
    delete m_overlay;
    delete m_watcher;
}

Card *FocusPage::makeCompoundCard()
{
    auto *card = new Card(tr("A compound widget"),
                          tr("Sorting its layout changes the tab order with it."), this);
    auto *sample = new CompoundSample(card);
    auto *order = new SegmentedControl({ tr("Forwards"), tr("Backwards"), tr("Shuffled") }, card);
    connect(order, &SegmentedControl::chosen, this, [this, sample](int i) {
        void (CompoundSample::*const orders[])() = { &CompoundSample::sortForwards,
                                                     &CompoundSample::sortBackwards,
                                                     &CompoundSample::shuffle };
        const auto arrange = orders[i];
        (sample->*arrange)();
        refresh();
    });
    card->body()->addWidget(sample);
    card->body()->addWidget(new ControlRow(tr("Order"), order, card));
    return card;
}

Card *FocusPage::makeStatesCard()
{
    auto *card = new Card(
            tr("What Tab skips"),
            tr("Hidden and disabled widgets, and those that take the focus only by a click."),
            this);
    auto *row = new QHBoxLayout;
    row->setSpacing(Metrics::small);
    auto *name = Fields::line(card);
    name->setAccessibleName(tr("Name"));
    name->setPlaceholderText(tr("Name"));
    auto *button = Buttons::make(tr("Invite"), card);
    row->addWidget(name, 1);
    row->addWidget(button);
    auto *state = new SegmentedControl({ tr("Tab"), tr("Click"), tr("Disabled"), tr("Hidden") },
                                       card);
    connect(state, &SegmentedControl::chosen, this, [this, button](int i) {
        apply(static_cast<Sample>(i), *button);
        refresh();
    });
    card->body()->addLayout(row);
    card->body()->addWidget(new ControlRow(tr("Invite"), state, card));
    return card;
}

Card *FocusPage::makeListCard()
{
    auto *card = new Card(tr("Tab order"), QString(), this);
    m_overlayControl = new SegmentedControl({ tr("Over the window"), tr("Text only") }, card);
    m_overlayControl->setAccessibleName(tr("Tab order"));
    connect(m_overlayControl, &SegmentedControl::chosen, this, &FocusPage::refresh);
    card->addToHeading(m_overlayControl);
    m_list = new CodeEdit(card);
    m_list->setReadOnly(true);
    m_list->setMinimumLines(leastListLines);
    m_list->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_list->setAccessibleName(tr("Tab order as text"));
    card->body()->addWidget(m_list, 1);
    return card;
}

void FocusPage::showEvent(QShowEvent *event)
{
    Page::showEvent(event);
    follow(window());
}

void FocusPage::hideEvent(QHideEvent *event)
{
    Page::hideEvent(event);
    if (!m_overlay)
        return;
    // Not deleted at once: the window may be going through its children to hide them.
    m_overlay->hide();
    m_overlay->deleteLater();
    m_watcher->deleteLater();
}

void FocusPage::follow(QWidget *window)
{
    delete m_overlay;
    delete m_watcher;
    m_overlay = new TabOrderOverlay(window);
    m_watcher = new WindowWatcher(window);
    connect(m_watcher, &WindowWatcher::changed, this, &FocusPage::refresh);
    refresh();
}

void FocusPage::refresh()
{
    if (!m_overlay)
        return;
    const std::vector<QWidget *> stops = TabOrder::of(window());
    QStringList lines;
    for (const QWidget *stop : stops) {
        lines += QStringLiteral("%1 %2 %3")
                         .arg(stop->hasFocus() ? QStringLiteral("▸") : QStringLiteral(" "))
                         .arg(lines.size() + 1, 2)
                         .arg(TabOrder::describe(*stop));
    }
    const QString text = lines.join(QLatin1Char('\n'));
    if (m_list->toPlainText() != text)
        m_list->setPlainText(text);
    m_overlay->setVisible(m_overlayControl->currentIndex() == 0);
    m_overlay->setStops(stops);
}
