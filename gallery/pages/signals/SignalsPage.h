// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "SignalReceiver.h"
#include "shell/Page.h"

#include <QTimer>

class OxaPushButton;
class CodeEdit;
class EmptyState;
class ListView;
class OxaLabel;
class QBoxLayout;
class QLayout;
class OxaTextInput;
class SignalModel;

/// Shows the signals of the hub, how many receivers each has, and what is emitted.
class SignalsPage : public Page
{
    Q_OBJECT

public:
    explicit SignalsPage(QWidget *parent = nullptr);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QLayout *makeToolbar();
    QBoxLayout *makeLog();
    OxaPushButton *makeButton(const QString &text, void (SignalsPage::*action)());
    void search(const QString &text);
    void choose(const QModelIndex &index);
    void emitChosen();
    void addReceiver();
    void removeReceivers();
    void note(const QMetaMethod &signal, const QStringList &arguments);

    SignalModel *m_model;
    ListView *m_view;
    EmptyState *m_emptyState;
    OxaTextInput *m_search;
    OxaLabel *m_count;
    CodeEdit *m_log;
    OxaPushButton *m_emit;
    OxaPushButton *m_addReceiver;
    OxaPushButton *m_removeReceivers;
    QTimer m_recount;
    SignalReceiver m_receiver;
};
