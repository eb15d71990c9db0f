// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <QLayout>
#include <QMargins>
#include <QStyle>

#include <functional>
#include <vector>

/// The base of layouts that wrap: it keeps the items in order, says how far apart they stand, and
/// finds neighbours for the keyboard. Where the items go is for doLayout() of a subclass to say.
///
/// Positions are computed from the left edge in any direction. All that a change of the
/// application's layout direction does is to exchange the left and the right margin; a layout that
/// is made while the direction is right to left keeps its margins as they are. An OxaWidget does
/// the same to its layout: on one, both exchanges together change nothing.
class UIELEMENTS_EXPORT FlowLayout : public QLayout
{
    Q_OBJECT

public:
    /// Makes the layout of \a parent. Spacings are in pixels; with a negative one the surroundings
    /// decide, see horizontalSpacing().
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

    /// Takes the item at \a index out and hands it to the caller; null when there is none. Does not
    /// invalidate.
    QLayoutItem *takeAt(int index) override;

    /// Returns the index of the first item of \a widget; -1 when there is none.
    int indexOf(QWidget *widget) const override;
    using QLayout::indexOf;

    /// Returns the pixels between items that stand side by side.
    ///
    /// Where the layout was made with a negative value, it is what the style of the parent widget
    /// says, or the spacing of the parent layout. Without a parent it is -1. Items whose distance
    /// comes to -1 are as far apart as the style of each one's widget keeps push buttons.
    int horizontalSpacing() const;

    /// Returns the pixels between items above each other, in the same way.
    int verticalSpacing() const;

    /// Sorts the items, and the tab order of their widgets along with them. Items that compare
    /// equal may change places. Invalidates.
    void sort(std::function<bool(QLayoutItem *, QLayoutItem *)> lessThan);

    /// Returns the widget that \a key leads to from \a current; null where there is none, and for
    /// keys other than these:
    ///
    /// - Left and Right: the widget before or after it in the list, also where direction or
    ///   wrapping put that elsewhere on the screen.
    /// - Up and Down: the nearest one, from centre to centre, of those whose centre lies more than
    ///   half the height of \a current above or below its own centre.
    /// - Page up and Page down: the same up to four times over.
    ///
    /// Hidden and disabled widgets count as well.
    QWidget *nextWidget(QWidget *current, Qt::Key key) const;

protected:
    /// Computes where the items stand in \a rect and returns the height that they need, margins
    /// included. Items move only with \a apply.
    virtual int doLayout(const QRect &rect, bool apply) const = 0;

public:
    /// Returns minimumSize().
    QSize sizeHint() const override;

    /// Returns the size of the largest minimum of the items plus the margins: room for one column.
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
