// SPDX-License-Identifier: Apache-2.0
#include "MessageList.h"

#include "GifView.h"
#include "MessageRow.h"
#include "MessageText.h"
#include "RowHeights.h"
#include "TimeTexts.h"
#include "data/Backend.h"
#include "shell/Looks.h"
#include "shell/RoomsApplication.h"

#include <UiElements/fonts/FontUtils.h>

#include <QContextMenuEvent>
#include <QScrollBar>

namespace {

constexpr int goalRows = 3000;
constexpr int sliceMs = 5;
constexpr int slicesPerLayout = 60; ///< Laying out 100,000 rows takes as long as a slice or two.

} // namespace

MessageList::MessageList(Backend *backend, PersonCards *cards, QWidget *parent)
    : OxaListWidget(parent),
      m_backend(backend),
      m_cards(cards),
      m_heights(new RowHeights(
              [this](int row) {
                  const QSize content = contentSize(m_history->at(m_first + row));
                  return RowHeights::Size { layoutOf(row, content).height, content };
              },
              this))
{
    setAccessibleName(tr("Messages"));
    setCSS(Looks::listRules());
    setItemDelegate(m_heights);
    setSelectionMode(NoSelection);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // Rows would change their width.
    verticalScrollBar()->setSingleStep(24);
    setLoadExtraItemsNumber(4);
    connect(this, &OxaListWidget::updateItemWidget, this, &MessageList::makeRow);
    setItemWidgetsDynamicLoadingEnabled(true);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &MessageList::followScrollBar);
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, [this] {
        if (m_isAtBottom && !m_isChanging)
            verticalScrollBar()->setValue(verticalScrollBar()->maximum());
    });
    connect(RoomsApplication::get(), &RoomsApplication::settingsChanged, this,
            &MessageList::followSettings);
    followSettings();

    m_measureSoon.setInterval(sliceMs);
    m_settleSoon.setSingleShot(true);
    m_loadSoon.setSingleShot(true);
    connect(&m_settleSoon, &QTimer::timeout, this, [this] { changeRows([] {}); });
    connect(&m_loadSoon, &QTimer::timeout, this, &MessageList::loadMore);
    connect(&m_measureSoon, &QTimer::timeout, this, &MessageList::measureRest);
}

void MessageList::goToBottom()
{
    m_goal = -1;
    m_isAtBottom = true;
    m_unseen = 0;
    appendNew();
    Q_EMIT placeChanged();
}

void MessageList::goTo(int row)
{
    m_goal = row;
    reachGoal();
}

/// Goes to the row that goTo() was called for, or puts in some of the rows that are missing until
/// there: all of 100,000 would keep the user waiting.
void MessageList::reachGoal()
{
    Place place = this->place();
    beginInsert();
    if (m_goal < m_first + screenMargin)
        insertEarlier(qMin(goalRows, m_first - m_goal + 2 * screenMargin));
    const bool isThere = m_goal >= m_first;
    if (isThere) {
        place = { model()->index(std::exchange(m_goal, -1) - m_first, 0), 0 };
        m_isAtBottom = false;
    }
    settle(place);
    endInsert();
    if (isThere)
        followScrollBar();
    else
        m_loadSoon.start(0);
}

QString MessageList::accessibleText(int row) const
{
    const int at = row + m_first;
    if (!m_history || row < 0 || at >= m_history->count())
        return {};
    const Message &message = m_history->at(at);
    return tr("%1, %2: %3")
            .arg(m_backend->person(message.author).name, TimeTexts::time(message.at), message.text);
}

MessageList::Place MessageList::place() const
{
    const QModelIndex top = indexAt(QPoint(viewport()->width() / 2, 0));
    return { top, visualRect(top).top() };
}

/// Calls \a change, which inserts or removes rows or changes heights, and lays the rows out. What
/// is on screen stays where it is, or the list at its bottom.
void MessageList::changeRows(const std::function<void()> &change)
{
    const Place place = this->place();
    beginInsert();
    change();
    settle(place);
    endInsert();
}

/// Lays the rows out, measures those that come on screen by that, and so on until all there are as
/// high as they should be.
void MessageList::settle(const Place &place)
{
    m_isChanging = true;
    QScrollBar *bar = verticalScrollBar();
    for (int pass = 0; pass < 5; ++pass) {
        m_heights->take();
        scheduleDelayedItemsLayout();
        executeDelayedItemsLayout();
        if (m_isAtBottom)
            bar->setValue(bar->maximum());
        else if (place.row.isValid())
            bar->setValue(bar->value() + visualRect(place.row).top() - place.top);
        const auto [first, last] = rowsOnScreen();
        if (!m_heights->measure(first - screenMargin, last - first + 2 * screenMargin))
            break;
    }
    m_isChanging = false;
}

void MessageList::followScrollBar()
{
    if (m_isChanging)
        return;
    const QScrollBar *bar = verticalScrollBar();
    const bool wasAtBottom = m_isAtBottom;
    m_isAtBottom = bar->value() >= bar->maximum() - 4;
    if (m_isAtBottom)
        m_unseen = 0;
    if (bar->value() < 2 * viewport()->height())
        m_loadSoon.start(0); // Not in a slot of the scroll bar, which Qt still uses.
    if (m_isAtBottom != wasAtBottom)
        Q_EMIT placeChanged();
}

/// Measures a slice of the rows that nobody has looked at, and lays them out now and then.
void MessageList::measureRest()
{
    const bool isMore = m_heights->measureFor(sliceMs, rowsOnScreen().first);
    if (isMore && ++m_slices % slicesPerLayout != 0)
        return;
    changeRows([] {});
    if (!isMore)
        m_measureSoon.stop();
}

/// Also runs after each change of the theme.
void MessageList::followSettings()
{
    const Settings &settings = RoomsApplication::get()->settings();
    const std::pair scales(settings.fontScale, settings.messagingSize);
    if (std::exchange(m_scales, scales) != scales)
        measureAll();
    else
        refreshRows();
}

/// Measures all rows again, those on screen at once.
void MessageList::measureAll()
{
    if (!m_history)
        return;
    m_heights->forgetAll();
    changeRows([this] {
        const auto [first, last] = rowsOnScreen();
        m_heights->measure(first - screenMargin, last - first + 2 * screenMargin);
    });
    refreshRows();
    m_measureSoon.start();
}

void MessageList::makeRow(QListWidgetItem *item)
{
    auto *widget = new MessageRow(viewport());
    connect(widget, &MessageRow::reactionToggled, this, [this, item](const QString &emoji) {
        m_backend->react(m_history->conversation(), m_history->at(m_first + row(item)).seq, emoji);
    });
    connect(widget, &MessageRow::retryRequested, this, [this, item] {
        m_backend->retry(m_history->conversation(), m_history->at(m_first + row(item)).key);
    });
    fillRow(widget, row(item));
    setItemWidget(item, widget);
    if (m_heights->measure(row(item), 1))
        m_settleSoon.start(0);
}

void MessageList::fillRow(MessageRow *widget, int row)
{
    const Message &message = m_history->at(m_first + row);
    // A row that is measured now has its text in the ruler.
    const bool isKnown = m_heights->isKnown(row);
    const QSize size = m_heights->contentSize(row);
    widget->setMessage(message, m_backend->person(message.author),
                       RowLook::of(*m_history, m_first + row, m_backend->me()), size, m_cards,
                       isKnown ? nullptr : &m_ruler);
}

void MessageList::refreshRow(int row)
{
    if (auto *widget = qobject_cast<MessageRow *>(itemWidget(item(row))))
        fillRow(widget, row);
}

void MessageList::refreshRows()
{
    const auto [first, last] = rowsOnScreen();
    const int end = qMin(last + screenMargin, count() - 1);
    for (int row = qMax(0, first - screenMargin); row <= end; ++row)
        refreshRow(row);
}

RowLayout MessageList::layoutOf(int row, const QSize &content) const
{
    return RowLayout::of(RowLook::of(*m_history, m_first + row, m_backend->me()),
                         m_history->at(m_first + row), content, viewport()->width());
}

QSize MessageList::contentSize(const Message &message)
{
    const int width = RowLayout::contentWidth(viewport()->width());
    if (message.kind == Message::Kind::Gif)
        return GifView::movieSize();
    if (message.kind == Message::Kind::Text) {
        const QColor link = OxaThemeUtils::getColorSet("button-hyperlink-text", this).normal;
        return MessageText::layOut(m_ruler.get(), message.text, width, link, devicePixelRatioF());
    }
    const QFontMetrics metrics = FontUtils::fontMetrics(OxaFont::Token::BodySecondary);
    return { qMin(width, metrics.horizontalAdvance(message.text) + 64), metrics.height() + 24 };
}

/// Returns the first and the last row on screen.
std::pair<int, int> MessageList::rowsOnScreen() const
{
    const int middle = viewport()->width() / 2;
    const QModelIndex first = indexAt(QPoint(middle, 0));
    const QModelIndex last = indexAt(QPoint(middle, viewport()->height() - 1));
    return { qMax(0, first.row()), last.isValid() ? last.row() : count() - 1 };
}

void MessageList::resizeEvent(QResizeEvent *event)
{
    const bool wasAtBottom = m_isAtBottom;
    OxaListWidget::resizeEvent(event);
    m_isAtBottom = wasAtBottom;
    const int contentWidth = RowLayout::contentWidth(viewport()->width());
    if (std::exchange(m_contentWidth, contentWidth) != contentWidth)
        measureAll();
    else if (m_isAtBottom)
        verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

void MessageList::focusInEvent(QFocusEvent *event)
{
    if (!currentItem() && count() > 0)
        setCurrentRow(rowsOnScreen().second);
    OxaListWidget::focusInEvent(event);
}

void MessageList::keyPressEvent(QKeyEvent *event)
{
    const bool isMenuKey = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isMenuKey || !currentItem()) {
        OxaListWidget::keyPressEvent(event);
        return;
    }
    QContextMenuEvent menu(QContextMenuEvent::Keyboard, QPoint());
    contextMenuEvent(&menu);
}

void MessageList::contextMenuEvent(QContextMenuEvent *event)
{
    const bool isByMouse = event->reason() == QContextMenuEvent::Mouse;
    const QPoint position = viewport()->mapFromGlobal(event->globalPos());
    const QModelIndex index = isByMouse ? indexAt(position) : currentIndex();
    if (!index.isValid())
        return;
    const QPoint middle = viewport()->mapToGlobal(
            visualRect(index).intersected(viewport()->rect()).center());
    Q_EMIT menuRequested(m_history->at(m_first + index.row()),
                         isByMouse ? event->globalPos() : middle);
}
