// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "shell/Backdrop.h"

#include <QTimer>

class Backend;
class ConversationDelegate;
class ConversationProxy;
class OxaLabel;
class OxaListView;
class OxaTextInput;

/// The conversations, a search among them, and a filter.
class ConversationList : public Backdrop
{
    Q_OBJECT

public:
    explicit ConversationList(Backend *backend, QWidget *parent = nullptr);

    /// Makes the conversation \a id the current one, and shows its row if the filters let it.
    void setCurrent(const QString &id);

    void focusSearch();

Q_SIGNALS:
    /// The user has chosen the conversation \a id.
    void chosen(const QString &id);
    /// Files were dropped onto the row of the conversation \a id.
    void filesDropped(const QString &id, const QStringList &names);

private:
    QWidget *makeFilters();
    void makeList();
    void step(int rows);
    void choose();
    void showMatches();
    void showEmpty();
    void refresh();

    Backend *const m_backend;
    ConversationProxy *const m_proxy;
    ConversationDelegate *const m_delegate;
    OxaTextInput *m_search = nullptr;
    OxaListView *m_list = nullptr;
    OxaLabel *m_empty = nullptr;
    QString m_current;
    QTimer m_chooseSoon;
};
