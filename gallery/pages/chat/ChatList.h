// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ChatLook.h"

#include <UiElements/widgets/OxaListWidget.h>

#include <QElapsedTimer>
#include <QTimer>

class ChatDelegate;
class WrappedEmojiLabel;

/// A chat of 100,000 messages, whose rows have a widget only while they are in view.
///
/// The heights of all rows are known before: those of the texts at the current width are kept. A
/// row whose height changes when its widget is made would make Qt lay out all rows again.
class ChatList : public OxaListWidget
{
    Q_OBJECT

public:
    static constexpr int firstLength = 100000;

    /// Makes the chat, which has its messages and is at its end once it is shown.
    explicit ChatList(QWidget *parent = nullptr);

    /// Returns the number of row widgets that exist.
    int rowWidgetCount() const;

    /// Returns the number of row widgets that were ever made.
    int madeCount() const { return m_made; }

    /// Returns the mean time from the begin of scrolling until the new rows are painted, in
    /// milliseconds for a page. 0 before the list was scrolled.
    qreal msPerPage() const { return m_pages > 0 ? m_milliseconds / m_pages : 0; }

    /// Returns what the message of \a row begins.
    ChatStart startOf(int row) const;

    /// Returns the height of \a row at the current width.
    int heightOf(int row);

    /// Brings \a row to the upper edge, or as near as the end of the list allows.
    void goTo(int row);

    /// Adds \a count older messages at the start. What the reader sees stays where it is.
    void insertAbove(int count);

    /// Adds a message at the end.
    void append();

    /// Removes the current message, or the last one.
    void removeOne();

Q_SIGNALS:
    /// Rows were scrolled, added or removed, and what is in view is painted.
    void settled();

protected:
    void focusInEvent(QFocusEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;

protected Q_SLOTS:
    void onThemeChanged() override;

private:
    void insert(int row, const std::vector<ChatMessage> &messages);
    void makeWidget(QListWidgetItem *item);
    void dropWidget(int row);
    void refresh();
    void forgetHeights();
    template <typename Work>
    void keepPlace(Work work);
    void settle();
    void onSettled();
    void orderReactions();

    ChatLook m_look;
    ChatDelegate *m_delegate;
    WrappedEmojiLabel *m_ruler;
    std::vector<int> m_textHeights; ///< By the number of the text; 0 where not known.
    int m_made = 0;
    bool m_isFilled = false;
    bool m_isScrolledByUser = true;
    QElapsedTimer m_clock;
    QTimer m_settleTimer;
    qreal m_pagesNow = 0;
    qreal m_pages = 0;
    qreal m_milliseconds = 0;
};
