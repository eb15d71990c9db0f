// SPDX-License-Identifier: Apache-2.0
#include "ChatList.h"

#include "ChatRow.h"
#include "looks/TextSettings.h"
#include "pages/emoji/ReactionButton.h"
#include "pages/emoji/WrappedEmojiLabel.h"
#include "shell/GalleryApplication.h"
#include "widgets/ListView.h"

#include <QScopedValueRollback>
#include <QScrollBar>

#include <utility>

namespace {

constexpr quint32 seed = 20;
constexpr int minutesOfDay = 24 * 60;
constexpr int firstMinute = 1000 * minutesOfDay; ///< There is room for older messages.
constexpr int daysOfInsertion = 3;               ///< More than what is inserted above takes.

class ChatItem : public QListWidgetItem
{
public:
    explicit ChatItem(const ChatMessage &message) : m_message(message) { }

    ChatMessage &message() { return m_message; }

    QVariant data(int role) const override
    {
        // The item itself has no text, which the list would paint.
        if (role != Qt::AccessibleTextRole)
            return QListWidgetItem::data(role);
        return QStringLiteral("%1, %2: %3")
                .arg(ChatHistory::authorOf(m_message), ChatHistory::timeOf(m_message),
                     ChatHistory::texts()[m_message.text]);
    }

private:
    ChatMessage m_message;
};

ChatMessage &messageOf(QListWidgetItem *item) { return static_cast<ChatItem *>(item)->message(); }

} // namespace

/// Knows the heights of rows, and marks the current one.
class ChatDelegate : public ItemDelegate
{
public:
    explicit ChatDelegate(ChatList *list) : ItemDelegate(list), m_list(list) { }

    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &index) const override
    {
        return { 1, m_list->heightOf(index.row()) };
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &) const override
    {
        if (option.state.testFlag(QStyle::State_HasFocus))
            paintFocusFrame(painter, option.rect, option.state);
    }

    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &) const override
    {
        editor->setGeometry(option.rect);
    }

private:
    ChatList *const m_list;
};

ChatList::ChatList(QWidget *parent)
    : OxaListWidget(parent, false),
      m_look(getThemeType()),
      m_delegate(new ChatDelegate(this)),
      m_ruler(new WrappedEmojiLabel(QString(), this))
{
    m_ruler->hide();
    setCSS(ListView::frameStyleText());
    setItemDelegate(m_delegate);
    setSelectionMode(NoSelection);
    setVerticalScrollMode(ScrollPerPixel);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    forgetHeights();
    onThemeChanged();

    m_settleTimer.setSingleShot(true);
    connect(&m_settleTimer, &QTimer::timeout, this, &ChatList::onSettled);
    connect(this, &OxaListWidget::updateItemWidget, this, &ChatList::makeWidget);
    connect(GalleryApplication::get()->textSettings(), &TextSettings::sizesChanged, this,
            &ChatList::refresh);

    setScrollToBottomAutomatically(true);
    setItemWidgetsDynamicLoadingEnabled(true);
}

int ChatList::rowWidgetCount() const
{
    return viewport()->findChildren<ChatRow *>(QString(), Qt::FindDirectChildrenOnly).size();
}

int ChatList::heightOf(int row)
{
    const ChatMessage &message = messageOf(item(row));
    int &textHeight = m_textHeights[message.text];
    if (textHeight == 0) {
        m_ruler->setText(ChatHistory::texts()[message.text]);
        textHeight = m_ruler->sizeHint().height();
    }
    return textHeight + m_look.heightAroundText(message, startOf(row));
}

void ChatList::goTo(int row) { scrollToItem(item(row), PositionAtTop); }

void ChatList::insertAbove(int count)
{
    const int minute = item(0) ? messageOf(item(0)).minute : firstMinute;
    const auto messages = ChatHistory::make(count, seed + quint32(this->count()),
                                            minute - daysOfInsertion * minutesOfDay);
    keepPlace([this, &messages] {
        dropWidget(0); // It has another message before it then.
        insert(0, messages);
    });
}

void ChatList::append()
{
    const int minute = count() > 0 ? messageOf(item(count() - 1)).minute : firstMinute;
    const auto messages = ChatHistory::make(1, seed + quint32(count()), minute);
    const QScopedValueRollback<bool> isByUser(m_isScrolledByUser, false);
    insert(count(), messages);
    settle();
}

void ChatList::removeOne()
{
    const int row = currentItem() ? currentRow() : count() - 1;
    keepPlace([this, row] {
        dropWidget(row + 1); // It has another message before it then.
        removeItem(row);
    });
}

void ChatList::focusInEvent(QFocusEvent *event)
{
    // Qt would make the first of all rows current, and the arrow keys would go there.
    if (!currentItem())
        setCurrentItem(itemAt(viewport()->rect().center()));
    OxaListWidget::focusInEvent(event);
}

void ChatList::resizeEvent(QResizeEvent *event)
{
    keepPlace([this, event] {
        OxaListWidget::resizeEvent(event);
        if (event->size().width() != event->oldSize().width())
            forgetHeights();
        // Not before: showing the list lays out its rows, at whatever size it has until then.
        if (!std::exchange(m_isFilled, true))
            insert(0, ChatHistory::make(firstLength, seed, firstMinute));
    });
}

void ChatList::scrollContentsBy(int dx, int dy)
{
    if (m_isScrolledByUser) {
        if (m_pagesNow == 0)
            m_clock.start();
        m_pagesNow += qMin(1.0, qAbs(dy) / qreal(viewport()->height()));
    }
    OxaListWidget::scrollContentsBy(dx, dy);
    settle();
}

void ChatList::onThemeChanged()
{
    m_look = ChatLook(getThemeType());
    m_delegate->refresh(getThemeType());
    viewport()->update();
}

ChatStart ChatList::startOf(int row) const
{
    QListWidgetItem *before = item(row - 1);
    return ChatHistory::startOf(messageOf(item(row)), before ? &messageOf(before) : nullptr);
}

void ChatList::insert(int row, const std::vector<ChatMessage> &messages)
{
    for (const ChatMessage &message : messages)
        insertItem(row++, new ChatItem(message));
}

void ChatList::makeWidget(QListWidgetItem *item)
{
    setItemWidget(item,
                  new ChatRow(messageOf(item), startOf(row(item)), m_look,
                              visualItemRect(item).size(), viewport()));
    ++m_made;
}

void ChatList::dropWidget(int row)
{
    if (QListWidgetItem *item = this->item(row))
        removeItemWidget(item);
}

/// Applies another size of text.
void ChatList::refresh()
{
    keepPlace([this] {
        onThemeChanged();
        forgetHeights();
        const auto rows = viewport()->findChildren<ChatRow *>();
        for (const ChatRow *row : rows)
            removeItemWidget(itemAt(row->geometry().center()));
    });
}

void ChatList::forgetHeights()
{
    m_textHeights.assign(std::size_t(ChatHistory::texts().size()), 0);
    m_ruler->resize(ChatLook::textWidth(viewport()->width()), QWIDGETSIZE_MAX);
    scheduleDelayedItemsLayout();
}

/// Calls \a work, which changes rows, and then scrolls to what was in view before: the end, or the
/// first row.
template <typename Work>
void ChatList::keepPlace(Work work)
{
    const QScopedValueRollback<bool> isByUser(m_isScrolledByUser, false);
    const bool sticks = isScrollToBottomAutomatically();
    const bool wasAtEnd = verticalScrollBar()->value() == verticalScrollBar()->maximum();
    const QPersistentModelIndex first = indexAt(viewport()->rect().topLeft());
    const int top = visualRect(first).top();

    setScrollToBottomAutomatically(false);
    beginInsert();
    work();
    executeDelayedItemsLayout();
    if (wasAtEnd)
        verticalScrollBar()->setValue(verticalScrollBar()->maximum());
    else if (first.isValid())
        verticalScrollBar()->setValue(verticalScrollBar()->value() + visualRect(first).top() - top);
    endInsert();
    setScrollToBottomAutomatically(sticks);
    settle();
}

void ChatList::settle() { m_settleTimer.start(0); }

void ChatList::onSettled()
{
    if (m_pagesNow > 0)
        m_milliseconds += qreal(m_clock.nsecsElapsed()) / 1e6;
    m_pages += std::exchange(m_pagesNow, 0);
    orderReactions();
    Q_EMIT settled();
}

/// Makes Tab go from the list to the reactions in view, from the first message to the last.
void ChatList::orderReactions()
{
    QWidget *before = this;
    const int bottom = viewport()->height() - 1;
    const int last = indexAt(QPoint(0, bottom)).row();
    for (int row = indexAt(QPoint()).row(); row <= last; ++row) {
        const QWidget *widget = itemWidget(item(row));
        const auto buttons = widget ? widget->findChildren<ReactionButton *>()
                                    : QList<ReactionButton *>();
        for (ReactionButton *button : buttons) {
            setTabOrder(before, button);
            before = button;
        }
    }
}
