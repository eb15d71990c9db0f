// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "widgets/Card.h"

class CodeEdit;
class ConversationList;
class ConversationModel;
class ModelRecorder;
class QHBoxLayout;
class QLayout;
class OxaSlider;

/// A list of conversations, buttons that change it, and a log of what its model emits.
class ConversationsCard : public Card
{
    Q_OBJECT

public:
    explicit ConversationsCard(QWidget *parent = nullptr);

private:
    using Action = void (ConversationsCard::*)();

    QLayout *makeButtons();
    QHBoxLayout *makeLists();
    QLayout *makeReplaceRow();
    void addButton(QLayout *row, const QString &text, const char *operation, Action action);
    void run(const char *operation, Action action);
    int currentRow() const;

    void append();
    void answer();
    void markRead();
    void replace();
    void remove();
    void clear();

    ConversationModel *m_model;
    ModelRecorder *m_recorder;
    ConversationList *m_list;
    CodeEdit *m_log;
    OxaSlider *m_share;
    int m_made = 0;
    int m_step = 0;
};
