// SPDX-License-Identifier: Apache-2.0
#pragma once

// Longer than other headers: what the list does to Qt's way of laying out is written here.

#include <UiElements/UiElementsExport.h>
#include <UiElements/fonts/OxaFontBlock.h>
#include <UiElements/theme/OxaThemeBlock.h>

#include <QListWidget>

#include <set>
#include <vector>

/// A list for very many rows with a widget each, which takes part in theming. With dynamic loading
/// a row's widget exists only while the row is on screen, or near it. The list can also stay at its
/// bottom while rows are added, as a chat does.
///
///     connect(list, &OxaListWidget::updateItemWidget, this, [list](QListWidgetItem *item) {
///         list->setItemWidget(item, new MessageWidget(item->text(), list->viewport()));
///     });
///     list->setItemWidgetsDynamicLoadingEnabled(true);
///
/// A pass asks for the widgets of the rows on screen, and removes those of rows that are further
/// off than the margin; if the focus is in one of those, the list takes it. Its cost does not
/// depend on the number of rows, unless a slot changes a row's size hint, after which Qt lays out
/// all rows. A slot may remove rows, and may delete the list, except while Qt itself handles a key,
/// a mouse button, the focus or a resize, or is asked for positions.
///
/// To fill the list, insert all rows between beginInsert() and endInsert(), and only then call
/// setScrollToBottomAutomatically(). Otherwise the time grows with the square of the number of
/// rows; and without beginInsert(), a list that stays at its bottom makes a widget for each row.
/// Items inserted in other ways get their widgets at the next pass.
///
/// Rows stand below the viewport, a plain widget, which hands no theme type on. A list with a type
/// of its own hands it to its rows when it makes them, and when it changes:
///
///     row->setThemeType(OxaThemeUtils::themeTypeToString(list->getThemeType()));
///
/// Rows of different heights scroll best with setVerticalScrollMode(ScrollPerPixel). A list that
/// gets lower is no longer at its bottom: call scrollToBottom() where that matters.
class UIELEMENTS_EXPORT OxaListWidget : public QListWidget
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QListWidget)

    // Here, because the font block below sends events while the list is made.
    bool m_isDynamic = false;
    bool m_sticksToBottom = false;
    int m_extraRows = 0;
    std::set<QListWidgetItem *> m_loadedItems;
    bool m_isInserting = false;
    bool m_isScrollAtBottom;
    int m_holds = 0;                ///< Above 0, a pass that the scroll bar asks for waits.
    bool m_isPassDue = false;       ///< A pass waits.
    bool m_isTakingRequest = false; ///< Inside takeLayoutRequest().
    bool m_isRequestTaken = false;
    bool m_isSettingWidget = false; ///< Inside setItemWidget().
    bool m_isOnlyWidgetNew = false; ///< The layout that is asked for is that of setItemWidget().

    UIELEMENTS_FONT_BLOCK
    Q_PROPERTY(bool itemWidgetsDynamicLoadingEnabled READ isItemWidgetsDynamicLoadingEnabled WRITE
                       setItemWidgetsDynamicLoadingEnabled)
    Q_PROPERTY(bool scrollToBottomAutomatically READ isScrollToBottomAutomatically WRITE
                       setScrollToBottomAutomatically)
    Q_PROPERTY(int loadExtraItemsNumber READ getLoadExtraItemsNumber WRITE setLoadExtraItemsNumber)

public:
    /// Makes an empty list. With \a isScrollAtBottom it scrolls to its bottom when it is shown.
    explicit OxaListWidget(QWidget *parent = nullptr, bool isScrollAtBottom = false);

    /// Returns whether row widgets exist only near the rows on screen. False by default.
    bool isItemWidgetsDynamicLoadingEnabled() const { return m_isDynamic; }

    /// Makes scrolling run passes, or no longer. Runs none itself, and keeps the widgets there are.
    void setItemWidgetsDynamicLoadingEnabled(bool enabled);

    /// Returns whether the list stays at its bottom when rows are inserted. False by default.
    bool isScrollToBottomAutomatically() const { return m_sticksToBottom; }

    /// Sets whether insertItem() scrolls to the bottom when the last row is on screen. The list
    /// then lays out all rows at each insertion.
    void setScrollToBottomAutomatically(bool enabled) { m_sticksToBottom = enabled; }

    /// Returns the number of rows on each side of the screen that keep their widgets. 0 by default.
    int getLoadExtraItemsNumber() const { return m_extraRows; }

    /// Sets the number of rows that keep their widgets, from the next pass on. Rows in the margin
    /// are not asked for widgets.
    void setLoadExtraItemsNumber(int number) { m_extraRows = number; }

    /// Sets whether delayScrollToBottom() scrolls. Hiding the list sets it, too: to whether the
    /// list is at its bottom then.
    void setIsScrollAtBottom(bool isScrollAtBottom) { m_isScrollAtBottom = isScrollAtBottom; }

    /// Scrolls to the bottom if the list was there when it was last hidden. visibleUpdated() runs
    /// it later.
    void delayScrollToBottom();

    /// Keeps insertItem() from running passes, but not from scrolling to the bottom, until
    /// endInsert().
    void beginInsert() { m_isInserting = true; }

    /// Ends what beginInsert() began, and runs one pass if loading is dynamic.
    void endInsert();

    /// Inserts \a item before \a row, and takes it over. Where there is no scroll bar yet it runs a
    /// pass if loading is dynamic. Hides Qt's function.
    void insertItem(int row, QListWidgetItem *item);

    /// Deletes the item at \a row and its widget. Does nothing where there is none.
    void removeItem(int row);

    /// Shows \a widget on the row of \a item and takes it over, as Qt's function does, which this
    /// one hides. Unlike Qt's it does not lay out all rows again.
    void setItemWidget(QListWidgetItem *item, QWidget *widget);

    /// Also notes whether the list is at its bottom when it is hidden; runs a pass when it is
    /// shown, if loading is dynamic; and emits visibleUpdated() in either case.
    void setVisible(bool visible) override;

    /// Lays out all rows, as Qt does.
    void doItemsLayout() override;

Q_SIGNALS:
    /// The row of \a item comes on screen and has no widget. The slot makes it and calls
    /// setItemWidget().
    void updateItemWidget(QListWidgetItem *item);

    /// The list's width has changed, and \a item has a widget. The slot sets the item's size hint.
    void updateItemSize(QListWidgetItem *item);

    /// setVisible() was called, with whatever value.
    void visibleUpdated();

protected Q_SLOTS:
    /// Runs at each change of the theme type, for subclasses to look up what they paint with.
    virtual void onThemeChanged();

protected:
    /// Runs a pass, but not between beginInsert() and endInsert().
    void updateCurrentVisibleListItems();

    /// Runs a pass; the scroll bar is at \a value.
    void onScrollValueChanged(int value);

    /// Runs a pass; the scroll bar goes from \a minimum to \a maximum.
    void onScrollRangeChanged(int minimum, int maximum);

    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void reset() override;
    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                     const QVector<int> &roles = QVector<int>()) override;
    void rowsAboutToBeRemoved(const QModelIndex &parent, int start, int end) override;
    void updateEditorGeometries() override;

private:
    void keepFocus();
    void removeInvisibleItemWidget();
    std::vector<QListWidgetItem *> invisibleItems() const;
    int firstVisibleItemIndex() const;
    int lastVisibleItemIndex() const;
    bool isBelowViewport(const QListWidgetItem *item) const;
    void askForRow(QListWidgetItem *item);
    template <typename Work>
    bool holdPasses(Work work);
    void followScrollBar();
    void scrollToLastRow();
    void layOutRows();
    bool takeLayoutRequest();
    void placeItemWidget(QListWidgetItem *item, QWidget *widget);
};
