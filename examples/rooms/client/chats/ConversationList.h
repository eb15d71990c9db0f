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
class PersonCards;

/// The conversations, a search among them, and a filter.
class ConversationList : public Backdrop
{
    Q_OBJECT

public:
    /// Pictures and names of people show their cards of \a cards.
    ConversationList(Backend *backend, PersonCards *cards, QWidget *parent = nullptr);

    /// Makes the conversation \a id the current one, and shows its row if the filters let it.
    void setCurrent(const QString &id);

    void focusSearch();

    bool eventFilter(QObject *watched, QEvent *event) override;

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
    void pointAt(const QPoint &position);

    Backend *const m_backend;
    PersonCards *const m_cards;
    ConversationProxy *const m_proxy;
    ConversationDelegate *const m_delegate;
    OxaTextInput *m_search = nullptr;
    OxaListView *m_list = nullptr;
    OxaLabel *m_empty = nullptr;
    QString m_current;
    QTimer m_chooseSoon;
    QRect m_pointedAt; ///< The picture or name that the pointer is over.
};
