// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "RowLayout.h"
#include "data/History.h"

#include <UiElements/widgets/OxaListWidget.h>

#include <QPersistentModelIndex>
#include <QPointer>
#include <QTextDocument>
#include <QTimer>

class Backend;
class MessageRow;
class PersonCards;
class RowHeights;

/// The messages of a conversation. Shows the newest of those that the history has, and more of them
/// as the user scrolls; what is on screen stays where it is, whatever comes or goes before it.
/// Stays at its bottom if it is there.
class MessageList : public OxaListWidget
{
    Q_OBJECT

public:
    MessageList(Backend *backend, PersonCards *cards, QWidget *parent);

    /// Shows the messages of \a history, from the first unread one on.
    void setHistory(History *history);
    History *history() const { return m_history; }

    bool isAtBottom() const { return m_isAtBottom; }

    /// How many messages of others have come since the list was at its bottom.
    int unseen() const { return m_unseen; }

    void goToBottom();

    /// Puts the message at \a row of the history on the top, as soon as all rows from it on are in
    /// the list.
    void goTo(int row);

    /// What assistive technology reads of the message in \a row of the list.
    QString accessibleText(int row) const;

Q_SIGNALS:
    /// isAtBottom() or unseen() changed.
    void placeChanged();
    /// The user wants a menu for \a message at \a position of the screen.
    void menuRequested(const Message &message, const QPoint &position);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    static constexpr int screenMargin = 10; ///< Rows measured before and after those on screen.

    struct Place
    {
        QPersistentModelIndex row;
        int top = 0;
    };

    void insertMessages(int first, int count);
    void removeMessages(int first, int count);
    void changeMessage(int row);
    void appendNew();
    void showFirst();
    void showMore(int count);
    int insertEarlier(int count);
    void loadMore();
    void reachGoal();

    Place place() const;
    void changeRows(const std::function<void()> &change);
    void settle(const Place &place);
    void insertRows(int first, int count);
    void followAnother(int row);
    void followScrollBar();
    void measureRest();
    void followSettings();
    void measureAll();

    void makeRow(QListWidgetItem *item);
    void fillRow(MessageRow *widget, int row);
    void refreshRows();
    void refreshRow(int row);
    RowLayout layoutOf(int row, const QSize &content) const;
    QSize contentSize(const Message &message);
    std::pair<int, int> rowsOnScreen() const;

    Backend *const m_backend;
    PersonCards *const m_cards;
    RowHeights *const m_heights;
    QPointer<History> m_history;
    std::unique_ptr<QTextDocument> m_ruler = std::make_unique<QTextDocument>();
    int m_first = 0; ///< The row of the history that is row 0 of the list.
    int m_goal = -1; ///< The row of the history that goTo() is on its way to.
    int m_unseen = 0;
    int m_contentWidth = 0;
    std::pair<int, int> m_scales; ///< Of all text, and of messages.
    int m_slices = 0;
    bool m_isAtBottom = true;
    bool m_isChanging = false;
    QTimer m_settleSoon;
    QTimer m_loadSoon;
    QTimer m_measureSoon;
};
