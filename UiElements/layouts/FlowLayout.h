// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <QLayout>
#include <QMargins>
#include <QStyle>

#include <functional>
#include <vector>

/// The base of layouts that wrap: it keeps the items in order, knows their spacing, and finds
/// neighbours for the keyboard. Subclasses place the items in doLayout().
///
/// Positions are computed from the left edge in any direction. A change of the application's layout
/// direction only exchanges the left and the right margin; a layout that is made while the
/// direction is right to left keeps its margins as they are. An OxaWidget also exchanges the
/// margins of its layout: on one, both exchanges together change nothing.
class UIELEMENTS_EXPORT FlowLayout : public QLayout
{
    Q_OBJECT

public:
    /// Makes the layout of \a parent. Spacings are in pixels; a negative one is replaced by that of
    /// the style or the parent layout, see horizontalSpacing().
    FlowLayout(QWidget *parent, QMargins margins, int hSpacing, int vSpacing);

    /// Makes a layout without a parent, to be put on a widget or into another layout.
    FlowLayout(QMargins margins, int hSpacing, int vSpacing);

    /// Deletes the items, but not their widgets.
    ~FlowLayout() override;

    /// Appends \a item, which the layout owns from now on. Does not invalidate.
    void addItem(QLayoutItem *item) override;

    /// Makes \a widget the first item. The item that was the first becomes the last one, and all
    /// others keep their places. Invalidates.
    void prependWidget(QWidget *widget);

    /// Returns the number of items, hidden ones included.
    int count() const override;

    /// Returns the item at \a index; null when there is none.
    QLayoutItem *itemAt(int index) const override;

    /// Returns the widget of the item at \a index; null when there is no item or no widget.
    QWidget *widgetAt(int index) const;

    /// Removes the item at \a index and passes its ownership to the caller; null when there is
    /// none. Does not invalidate.
    QLayoutItem *takeAt(int index) override;

    /// Returns the index of the first item of \a widget; -1 when there is none.
    int indexOf(QWidget *widget) const override;
    using QLayout::indexOf;

    /// Returns the pixels between items that are side by side.
    ///
    /// If the layout was made with a negative value, it is that of the parent widget's style, or
    /// the spacing of the parent layout; -1 without a parent. With -1, items are as far apart as
    /// the style of each item's widget places push buttons.
    int horizontalSpacing() const;

    /// Returns the pixels between items above each other, in the same way.
    int verticalSpacing() const;

    /// Sorts the items, and the tab order of their widgets along with them. Items that compare
    /// equal may change places. Invalidates.
    void sort(std::function<bool(QLayoutItem *, QLayoutItem *)> lessThan);

    /// Returns the widget that \a key leads to from \a current; null if there is none, and for keys
    /// other than these:
    ///
    /// - Left and Right: the widget before or after it in the list, even if direction or wrapping
    ///   places that elsewhere on the screen.
    /// - Up and Down: the nearest one, from centre to centre, of those whose centre lies more than
    ///   half the height of \a current above or below its own centre.
    /// - Page up and Page down: the same up to four times.
    ///
    /// Hidden and disabled widgets count as well.
    QWidget *nextWidget(QWidget *current, Qt::Key key) const;

protected:
    /// Computes the positions of the items in \a rect and returns the height that they need,
    /// margins included. Moves items only if \a apply is true.
    virtual int doLayout(const QRect &rect, bool apply) const = 0;

public:
    /// Returns minimumSize().
    QSize sizeHint() const override;

    /// Returns the largest minimum size of the items, plus the margins: room for one column.
    /// Without items it is one pixel less than the margins in both directions.
    QSize minimumSize() const override;

    /// Returns none: the layout never asks for more room than its items do.
    Qt::Orientations expandingDirections() const override;

    /// Lays the items out in \a rect.
    void setGeometry(const QRect &rect) override;

    /// Returns true.
    bool hasHeightForWidth() const override;

    /// Returns the height that the items need in \a width, margins included. Moves nothing.
    int heightForWidth(int width) const override;

protected:
    /// Returns the items in order, for a pass over all of them.
    const std::vector<QLayoutItem *> &items() const { return m_items; }

    /// Returns \a metric of the parent widget's style, or the spacing of the parent layout; -1
    /// without a parent.
    int smartSpacing(QStyle::PixelMetric metric) const;

protected Q_SLOTS:
    /// Exchanges the left and the right margin.
    void onLayoutDirectionChanged();

private:
    void followLayoutDirection();
    QWidget *nearestWidget(const QWidget &current, bool upwards) const;

    std::vector<QLayoutItem *> m_items;
    int m_horizontalSpacing;
    int m_verticalSpacing;
};
