// SPDX-License-Identifier: Apache-2.0
#include "FlowLayout.h"

#include "LayoutPass_p.h"

#include <QGuiApplication>
#include <QStyle>
#include <QWidget>

#include <algorithm>
#include <limits>
#include <unordered_map>
#include <utility>

namespace {

constexpr int stepsOfAPage = 4;

/// Returns how many steps \a key goes up or down; 0 for a key that does neither.
int verticalSteps(Qt::Key key)
{
    switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Down:
        return 1;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return stepsOfAPage;
    default:
        return 0;
    }
}

/// 64 bits, so that the square of a large distance does not overflow.
qint64 squaredDistance(const QPoint &a, const QPoint &b)
{
    const qint64 dx = qint64(a.x()) - b.x();
    const qint64 dy = qint64(a.y()) - b.y();
    return dx * dx + dy * dy;
}

} // namespace

FlowLayout::FlowLayout(QWidget *parent, QMargins margins, int hSpacing, int vSpacing)
    : QLayout(parent), m_horizontalSpacing(hSpacing), m_verticalSpacing(vSpacing)
{
    setContentsMargins(margins);
    followLayoutDirection();
}

FlowLayout::FlowLayout(QMargins margins, int hSpacing, int vSpacing)
    : m_horizontalSpacing(hSpacing), m_verticalSpacing(vSpacing)
{
    setContentsMargins(margins);
    followLayoutDirection();
}

FlowLayout::~FlowLayout()
{
    while (QLayoutItem *item = FlowLayout::takeAt(0))
        delete item;
}

void FlowLayout::addItem(QLayoutItem *item) { m_items.push_back(item); }

void FlowLayout::prependWidget(QWidget *widget)
{
    addWidget(widget);
    // Swapped, instead of moving the whole list: the former first item becomes the last.
    std::swap(m_items.front(), m_items.back());
    invalidate();
}

int FlowLayout::count() const { return int(m_items.size()); }

QLayoutItem *FlowLayout::itemAt(int index) const
{
    return index >= 0 && index < int(m_items.size()) ? m_items[std::size_t(index)] : nullptr;
}

QWidget *FlowLayout::widgetAt(int index) const
{
    QLayoutItem *item = itemAt(index);
    return item ? item->widget() : nullptr;
}

QLayoutItem *FlowLayout::takeAt(int index)
{
    QLayoutItem *item = FlowLayout::itemAt(index);
    if (item)
        m_items.erase(m_items.begin() + index);
    return item;
}

int FlowLayout::indexOf(QWidget *widget) const
{
    int index = 0;
    while (QLayoutItem *item = itemAt(index)) {
        if (item->widget() == widget)
            return index;
        ++index;
    }
    return -1;
}

int FlowLayout::horizontalSpacing() const
{
    return m_horizontalSpacing >= 0 ? m_horizontalSpacing
                                    : smartSpacing(QStyle::PM_LayoutHorizontalSpacing);
}

int FlowLayout::verticalSpacing() const
{
    return m_verticalSpacing >= 0 ? m_verticalSpacing
                                  : smartSpacing(QStyle::PM_LayoutVerticalSpacing);
}

void FlowLayout::sort(std::function<bool(QLayoutItem *, QLayoutItem *)> lessThan)
{
    // The algorithm copies its argument many times: a small lambda, and not the function itself.
    std::sort(m_items.begin(), m_items.end(),
              [&lessThan](QLayoutItem *a, QLayoutItem *b) { return lessThan(a, b); });
    // A widget that is in the list twice is followed by the widget after its first item.
    std::unordered_map<const QWidget *, std::size_t> positions;
    for (std::size_t i = 0; i < m_items.size(); ++i)
        positions.emplace(m_items[i]->widget(), i);
    for (QLayoutItem *item : m_items) {
        const std::size_t next = positions[item->widget()] + 1;
        if (next < m_items.size())
            QWidget::setTabOrder(item->widget(), m_items[next]->widget());
    }
    invalidate();
}

QWidget *FlowLayout::nextWidget(QWidget *current, Qt::Key key) const
{
    const int index = indexOf(current);
    if (index == -1)
        return nullptr;
    if (key == Qt::Key_Left)
        return widgetAt(index - 1);
    if (key == Qt::Key_Right)
        return widgetAt(index + 1);

    const bool upwards = key == Qt::Key_Up || key == Qt::Key_PageUp;
    QWidget *result = nullptr;
    // A null widget may find an item without a widget, but leads nowhere.
    for (int steps = verticalSteps(key); steps > 0 && current; --steps) {
        current = nearestWidget(*current, upwards);
        if (current)
            result = current;
    }
    return result;
}

Qt::Orientations FlowLayout::expandingDirections() const { return {}; }

bool FlowLayout::hasHeightForWidth() const { return true; }

int FlowLayout::heightForWidth(int width) const
{
    return doLayout(QRect(0, 0, LayoutPass::held(width), 0), false);
}

void FlowLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    doLayout(rect, true);
}

QSize FlowLayout::sizeHint() const { return minimumSize(); }

QSize FlowLayout::minimumSize() const
{
    // QSize(-1, -1): the header promises this size for an empty layout.
    QSize size;
    for (const QLayoutItem *item : m_items)
        size = size.expandedTo(LayoutPass::held(item->minimumSize()));
    const QMargins margins = contentsMargins();
    return { size.width() + margins.left() + margins.right(),
             size.height() + margins.top() + margins.bottom() };
}

int FlowLayout::smartSpacing(QStyle::PixelMetric metric) const
{
    QObject *owner = parent();
    if (!owner)
        return -1;
    if (!owner->isWidgetType())
        return static_cast<QLayout *>(owner)->spacing();
    auto *widget = static_cast<QWidget *>(owner);
    return widget->style()->pixelMetric(metric, nullptr, widget);
}

void FlowLayout::onLayoutDirectionChanged()
{
    const QMargins margins = contentsMargins();
    setContentsMargins(margins.right(), margins.top(), margins.left(), margins.bottom());
}

void FlowLayout::followLayoutDirection()
{
    auto *application = qobject_cast<QGuiApplication *>(QCoreApplication::instance());
    if (!application)
        return;
    connect(application, &QGuiApplication::layoutDirectionChanged, this,
            &FlowLayout::onLayoutDirectionChanged);
}

/// Returns the widget nearest to \a current of those above it or below it, or null. Of equally near
/// ones it is the first in the list when moving up, and the last when moving down.
QWidget *FlowLayout::nearestWidget(const QWidget &current, bool upwards) const
{
    const QRect rect = current.geometry();
    const QPoint centre = rect.center();
    const int halfHeight = rect.height() / 2;
    const int total = count();
    qint64 best = std::numeric_limits<int>::max();
    QWidget *nearest = nullptr;
    for (int i = 0; i < total; ++i) {
        QWidget *widget = widgetAt(upwards ? i : total - 1 - i);
        if (!widget || widget == &current)
            continue;
        const QPoint other = widget->geometry().center();
        const bool isBeyond = upwards ? other.y() < centre.y() - halfHeight
                                      : other.y() > centre.y() + halfHeight;
        const qint64 distance = squaredDistance(other, centre);
        if (isBeyond && distance < best) {
            best = distance;
            nearest = widget;
        }
    }
    return nearest;
}
