// SPDX-License-Identifier: Apache-2.0
#include "SignalsPage.h"

#include "SignalArguments.h"
#include "SignalDelegate.h"
#include "SignalModel.h"
#include "SignalWatcher.h"
#include "looks/Metrics.h"
#include "widgets/Buttons.h"
#include "widgets/CodeEdit.h"
#include "widgets/EmptyState.h"
#include "widgets/Fields.h"
#include "widgets/Labels.h"
#include "widgets/ListView.h"
#include "widgets/WrapLayout.h"

#include <UiElements/app/OxaAppSignals.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaTextInput.h>

#include <QTime>
#include <QVBoxLayout>

namespace {

constexpr int linesToKeep = 1000;
constexpr int recountMs = 500;

/// Returns \a signal with the values of its arguments, one to a line.
QString emissionText(const QMetaMethod &signal, const QStringList &arguments)
{
    const QByteArrayList names = signal.parameterNames();
    QString text = QTime::currentTime().toString(QStringLiteral("hh:mm:ss "))
            + QString::fromLatin1(signal.methodSignature());
    for (int i = 0; i < arguments.size(); ++i)
        text += QStringLiteral("\n    %1 = %2").arg(QString::fromLatin1(names[i]), arguments[i]);
    return text;
}

} // namespace

SignalsPage::SignalsPage(QWidget *parent)
    : Page(tr("Signals"),
           tr("The library passes on what users want from the application by these signals. Choose "
              "one and emit it, or let something else emit one: the log shows all of them."),
           parent),
      m_model(new SignalModel(OxaAppSignals::get(), this)),
      m_view(new ListView(m_model, new SignalDelegate, this)),
      m_emptyState(new EmptyState(tr("Try a part of a name, such as “space”, or of a type."),
                                  tr("Clear the search"), this)),
      m_search(Fields::search(tr("Search names and types"), this)),
      m_count(Labels::chip(QString(), this)),
      m_log(new CodeEdit(this)),
      m_emit(makeButton(tr("Emit"), &SignalsPage::emitChosen)),
      m_addReceiver(makeButton(tr("Add a receiver"), &SignalsPage::addReceiver)),
      m_removeReceivers(makeButton(tr("Remove receivers"), &SignalsPage::removeReceivers))
{
    new SignalWatcher(
            OxaAppSignals::get(),
            [this](const QMetaMethod &signal, const QStringList &arguments) {
                note(signal, arguments);
            },
            this);

    m_view->setMinimumHeight(Metrics::leastListHeight);
    m_view->setAccessibleName(tr("Signals"));
    auto *row = new QHBoxLayout;
    row->setSpacing(Metrics::spacing);
    row->addWidget(m_view, 1);
    row->addWidget(m_emptyState, 1);
    row->addLayout(makeLog(), 1);
    body()->addLayout(makeToolbar());
    body()->addLayout(row, 1);

    connect(m_search, &OxaTextInput::textChanged, this, &SignalsPage::search);
    connect(m_emptyState, &EmptyState::actionTriggered, m_search,
            [this] { Fields::clear(m_search); });
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &SignalsPage::choose);
    connect(m_view, &ListView::activated, this, &SignalsPage::emitChosen);
    // Only the sender is notified of connections.
    connect(&m_recount, &QTimer::timeout, m_model, &SignalModel::refreshReceivers);
    search(QString());
    m_view->setCurrentIndex(m_model->indexOf("closeContactCards(bool)"));
    addReceiver();
    emitChosen();
}

void SignalsPage::showEvent(QShowEvent *event)
{
    Page::showEvent(event);
    m_model->refreshReceivers();
    m_recount.start(recountMs);
}

void SignalsPage::hideEvent(QHideEvent *event)
{
    Page::hideEvent(event);
    m_recount.stop();
}

QLayout *SignalsPage::makeToolbar()
{
    auto *row = new WrapLayout(Metrics::small);
    for (QWidget *widget : std::initializer_list<QWidget *> { m_search, m_emit, m_addReceiver,
                                                              m_removeReceivers, m_count })
        row->addWidget(widget);
    return row;
}

QBoxLayout *SignalsPage::makeLog()
{
    m_log->setReadOnly(true);
    m_log->setAccessibleName(tr("What is emitted"));
    m_log->setMaximumBlockCount(linesToKeep);
    auto *clear = Buttons::make(tr("Clear the log"), this);
    connect(clear, &OxaPushButton::clicked, m_log, &CodeEdit::clear);
    auto *column = new QVBoxLayout;
    column->setSpacing(Metrics::small);
    column->addWidget(m_log, 1);
    column->addWidget(clear, 0, Qt::AlignRight);
    return column;
}

OxaPushButton *SignalsPage::makeButton(const QString &text, void (SignalsPage::*action)())
{
    auto *button = Buttons::make(text, this);
    connect(button, &OxaPushButton::clicked, this, action);
    return button;
}

void SignalsPage::search(const QString &text)
{
    const QByteArray chosen = m_model->signalAt(m_view->currentIndex()).methodSignature();
    m_model->setFilter(text);
    const QModelIndex index = m_model->indexOf(chosen);
    m_view->setCurrentIndex(index.isValid() ? index : m_model->firstSignal());
    m_emptyState->setSummary(tr("Nothing matches “%1”").arg(text.trimmed()));
    const int count = m_model->signalCount();
    m_count->setText(count == 1 ? tr("1 signal") : tr("%1 signals").arg(count));
    m_view->setVisible(count > 0);
    m_emptyState->setVisible(count == 0);
    choose(m_view->currentIndex());
}

void SignalsPage::choose(const QModelIndex &index)
{
    const bool isSignal = m_model->signalAt(index).isValid();
    for (OxaPushButton *button : { m_emit, m_addReceiver, m_removeReceivers })
        button->setEnabled(isSignal);
}

void SignalsPage::emitChosen()
{
    const QMetaMethod signal = m_model->signalAt(m_view->currentIndex());
    if (signal.isValid())
        SignalArguments::emitWithDefaults(OxaAppSignals::get(), signal);
}

void SignalsPage::addReceiver()
{
    m_receiver.connectTo(OxaAppSignals::get(), m_model->signalAt(m_view->currentIndex()));
    m_model->refreshReceivers();
}

void SignalsPage::removeReceivers()
{
    m_receiver.disconnectFrom(OxaAppSignals::get(), m_model->signalAt(m_view->currentIndex()));
    m_model->refreshReceivers();
}

void SignalsPage::note(const QMetaMethod &signal, const QStringList &arguments)
{
    m_log->appendPlainText(emissionText(signal, arguments));
}
