// SPDX-License-Identifier: Apache-2.0
#include "OxaListWidget.h"

#include <QAbstractItemDelegate>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QResizeEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>
#include <utility>

/// Calls \a work, in which Qt may lay out rows, and then does the pass that the scroll bar has
/// asked for: outside of Qt's functions, so that its slots may delete the list. Returns whether the
/// list is still there.
template <typename Work>
bool OxaListWidget::holdPasses(Work work)
{
    const QPointer<OxaListWidget> self(this);
    ++m_holds;
    work();
    if (self && --m_holds == 0 && std::exchange(m_isPassDue, false))
        updateCurrentVisibleListItems();
    return self;
}

OxaListWidget::OxaListWidget(QWidget *parent, bool isScrollAtBottom)
    : QListWidget(parent), m_isScrollAtBottom(isScrollAtBottom)
{
    m_themeBlock.followTheme();
    connect(this, &OxaListWidget::visibleUpdated, this, &OxaListWidget::delayScrollToBottom,
            Qt::QueuedConnection);
}

void OxaListWidget::onThemeChanged() { }

void OxaListWidget::setItemWidgetsDynamicLoadingEnabled(bool enabled)
{
    m_isDynamic = enabled;
    const QScrollBar *bar = verticalScrollBar();
    if (enabled) {
        connect(bar, &QScrollBar::rangeChanged, this, &OxaListWidget::onScrollRangeChanged,
                Qt::UniqueConnection);
        connect(bar, &QScrollBar::valueChanged, this, &OxaListWidget::onScrollValueChanged,
                Qt::UniqueConnection);
    } else {
        disconnect(bar, &QScrollBar::rangeChanged, this, &OxaListWidget::onScrollRangeChanged);
        disconnect(bar, &QScrollBar::valueChanged, this, &OxaListWidget::onScrollValueChanged);
    }
}

void OxaListWidget::delayScrollToBottom()
{
    if (m_isScrollAtBottom)
        scrollToLastRow();
}

void OxaListWidget::endInsert()
{
    m_isInserting = false;
    if (m_isDynamic)
        updateCurrentVisibleListItems();
}

void OxaListWidget::insertItem(int row, QListWidgetItem *item)
{
    if (m_isInserting && !m_sticksToBottom) { // Nothing follows.
        QListWidget::insertItem(row, item);
        return;
    }
    // The second row of a list does not stick: there have to be two before.
    const bool sticks = m_sticksToBottom && count() > 1
            && viewport()->rect().contains(visualItemRect(this->item(count() - 1)).topLeft());
    if (!holdPasses([&] { QListWidget::insertItem(row, item); }))
        return;

    const QPointer<OxaListWidget> self(this);
    if (!verticalScrollBar()->isVisible() && m_isDynamic)
        updateCurrentVisibleListItems();
    if (self && sticks)
        scrollToLastRow();
}

void OxaListWidget::removeItem(int row)
{
    QListWidgetItem *item = this->item(row);
    if (item)
        removeItemWidget(item);
    m_loadedItems.erase(item);
    delete takeItem(row);
}

void OxaListWidget::setItemWidget(QListWidgetItem *item, QWidget *widget)
{
    const bool isInside = std::exchange(m_isSettingWidget, true);
    QListWidget::setItemWidget(item, widget);
    m_isSettingWidget = isInside;
    if (!std::exchange(m_isOnlyWidgetNew, false))
        return;
    takeLayoutRequest();
    placeItemWidget(item, widget);
}

void OxaListWidget::setVisible(bool visible)
{
    if (!visible)
        m_isScrollAtBottom = verticalScrollBar()->value() == verticalScrollBar()->maximum();

    if (!holdPasses([&] { QListWidget::setVisible(visible); }))
        return;
    const QPointer<OxaListWidget> self(this);
    if (visible && m_isDynamic)
        updateCurrentVisibleListItems();
    if (self)
        Q_EMIT visibleUpdated();
}

void OxaListWidget::doItemsLayout()
{
    if (m_isTakingRequest)
        m_isRequestTaken = true;
    else
        QListWidget::doItemsLayout();
}

void OxaListWidget::updateCurrentVisibleListItems()
{
    if (m_isInserting)
        return;
    layOutRows();
    keepFocus();
    removeInvisibleItemWidget();

    const QPointer<OxaListWidget> self(this);
    for (int row = firstVisibleItemIndex(); self; ++row) {
        QListWidgetItem *item = this->item(row);
        if (!item || (!item->isHidden() && isBelowViewport(item)))
            return;
        if (!item->isHidden() && !itemWidget(item))
            askForRow(item);
    }
}

void OxaListWidget::onScrollValueChanged(int) { followScrollBar(); }

void OxaListWidget::onScrollRangeChanged(int, int) { followScrollBar(); }

bool OxaListWidget::event(QEvent *event)
{
    // A key's handler changes the current row, and who hears of that may want the row's widget.
    if (event->type() == QEvent::KeyPress)
        return QListWidget::event(event);

    bool isHandled = false;
    holdPasses([&] {
        // Qt lays out all rows at each change of style, and a theme switch sends one for each sheet
        // on the way to the list: once is enough, when the rows are asked for.
        const bool isStyleChange = event->type() == QEvent::StyleChange;
        if (isStyleChange)
            m_isTakingRequest = true;
        isHandled = QListWidget::event(event);
        if (!isStyleChange) // The list may be gone.
            return;
        m_isTakingRequest = false;
        if (std::exchange(m_isRequestTaken, false))
            scheduleDelayedItemsLayout();
    });
    return isHandled;
}

void OxaListWidget::resizeEvent(QResizeEvent *event)
{
    const QPointer<OxaListWidget> self(this);
    QListWidget::resizeEvent(event);
    if (!self || event->size().width() == event->oldSize().width())
        return;
    const std::set<QListWidgetItem *> items = m_loadedItems;
    for (QListWidgetItem *item : items) {
        if (m_loadedItems.count(item) != 0)
            Q_EMIT updateItemSize(item);
        if (!self)
            return;
    }
}

void OxaListWidget::reset()
{
    m_loadedItems.clear();
    QListWidget::reset();
}

void OxaListWidget::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                                const QVector<int> &roles)
{
    // Qt's setItemWidget() calls this, too, to have all rows laid out. It leaves the widget's place
    // to that layout, and calls no more functions.
    if (m_isSettingWidget && sender() != model())
        m_isOnlyWidgetNew = !takeLayoutRequest();
    QListWidget::dataChanged(topLeft, bottomRight, roles);
}

void OxaListWidget::rowsAboutToBeRemoved(const QModelIndex &parent, int start, int end)
{
    for (auto it = m_loadedItems.begin(); it != m_loadedItems.end();) {
        const int row = this->row(*it);
        it = row >= start && row <= end ? m_loadedItems.erase(it) : std::next(it);
    }
    QListWidget::rowsAboutToBeRemoved(parent, start, end);
}

void OxaListWidget::updateEditorGeometries()
{
    // Qt calls this for each row that is inserted, and would lay out all rows each time.
    if (m_isInserting && !m_loadedItems.empty() && takeLayoutRequest())
        scheduleDelayedItemsLayout();
    else
        QListWidget::updateEditorGeometries();
}

/// Takes the focus if it is in a row that is about to lose its widget: it would be nowhere, and no
/// key would do anything. A slot may remove rows.
void OxaListWidget::keepFocus()
{
    const QWidget *focus = window()->focusWidget();
    if (!focus || !viewport()->isAncestorOf(focus))
        return;
    while (focus->parentWidget() != viewport())
        focus = focus->parentWidget();
    const std::vector<QListWidgetItem *> items = invisibleItems();
    const auto hasFocus = [this, focus](QListWidgetItem *item) {
        return itemWidget(item) == focus;
    };
    if (std::any_of(items.begin(), items.end(), hasFocus))
        setFocus();
}

void OxaListWidget::removeInvisibleItemWidget()
{
    for (QListWidgetItem *item : invisibleItems()) {
        removeItemWidget(item);
        m_loadedItems.erase(item);
    }
}

/// Returns the loaded rows that are further off than the margin.
std::vector<QListWidgetItem *> OxaListWidget::invisibleItems() const
{
    if (m_loadedItems.empty())
        return {};
    const int first = firstVisibleItemIndex();
    const int last = lastVisibleItemIndex();
    std::vector<QListWidgetItem *> items;
    for (QListWidgetItem *item : m_loadedItems) {
        const int row = this->row(item);
        if (first - row > m_extraRows || row - last > m_extraRows)
            items.push_back(item);
    }
    return items;
}

int OxaListWidget::firstVisibleItemIndex() const
{
    return row(itemAt(viewport()->rect().topLeft()));
}

/// Returns the row behind the last one on screen, or -1 where the first is not known.
int OxaListWidget::lastVisibleItemIndex() const
{
    int row = firstVisibleItemIndex();
    while (const QListWidgetItem *item = this->item(row)) {
        if (!item->isHidden() && isBelowViewport(item))
            break;
        ++row;
    }
    return row;
}

/// Never says so of a row without height, whose place Qt does not give as that on screen.
bool OxaListWidget::isBelowViewport(const QListWidgetItem *item) const
{
    const QRect rect = visualItemRect(item);
    return rect.isValid() && rect.top() > viewport()->rect().bottom();
}

/// Counts \a item as loaded afterwards, unless a slot has removed it, and does the layout that a
/// slot asks for. A slot may delete the list.
void OxaListWidget::askForRow(QListWidgetItem *item)
{
    const QPointer<OxaListWidget> self(this);
    const QPersistentModelIndex index = indexFromItem(item);
    Q_EMIT updateItemWidget(item);
    if (!self)
        return;
    if (index.isValid())
        m_loadedItems.insert(item);
    holdPasses([this] { executeDelayedItemsLayout(); });
}

void OxaListWidget::scrollToLastRow()
{
    if (holdPasses([this] { executeDelayedItemsLayout(); }))
        scrollToBottom();
}

void OxaListWidget::followScrollBar()
{
    if (m_holds > 0)
        m_isPassDue = true;
    else
        updateCurrentVisibleListItems();
}

/// Does the layout that is asked for. The caller does the pass for what the scroll bar becomes.
void OxaListWidget::layOutRows()
{
    const QScopedValueRollback<int> holds(m_holds, m_holds + 1);
    const QScopedValueRollback<bool> isPassDue(m_isPassDue);
    executeDelayedItemsLayout();
}

/// Withdraws the layout that is asked for, and returns whether there was one. Qt tells nobody, but
/// calls doItemsLayout() if there is one.
bool OxaListWidget::takeLayoutRequest()
{
    const QScopedValueRollback<bool> isTaking(m_isTakingRequest, true);
    executeDelayedItemsLayout();
    return std::exchange(m_isRequestTaken, false);
}

/// Does what a layout of all rows would do for \a widget.
void OxaListWidget::placeItemWidget(QListWidgetItem *item, QWidget *widget)
{
    const QModelIndex index = indexFromItem(item);
    QStyleOptionViewItem option = viewOptions();
    option.rect = visualRect(index);
    if (!option.rect.isValid())
        widget->hide();
    else if (QAbstractItemDelegate *delegate = itemDelegate(index))
        delegate->updateEditorGeometry(widget, option, index);
}
