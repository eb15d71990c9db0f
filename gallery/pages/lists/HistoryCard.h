// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "widgets/Card.h"

class CodeEdit;
class HistoryModel;
class HistoryServer;
class LongListView;
class OxaLabel;
class QGridLayout;
class QLayout;

/// A list of ten million rows, with what its model holds and what it requests from a slow server.
class HistoryCard : public Card
{
    Q_OBJECT

public:
    explicit HistoryCard(QWidget *parent = nullptr);

private:
    QLayout *makeControls();
    QGridLayout *makeFigures();
    void addJump(QLayout *row, const QString &text, int listRow);
    void addLine(const QString &line);
    void showFigures();
    QString memoryText() const;

    HistoryModel *m_model;
    HistoryServer *m_server;
    LongListView *m_view;
    CodeEdit *m_log;
    OxaLabel *m_inView;
    OxaLabel *m_window;
    OxaLabel *m_requests;
    OxaLabel *m_memory;
};
