// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/layouts/FlowLayout.h>

#include <QWidget>

#include <memory>
#include <vector>

/// Items to lay out, and texts that describe where they are.
namespace Blocks {

/// A widget with a size hint and no limits.
class Block : public QWidget
{
public:
    explicit Block(const QSize &size, QWidget *parent = nullptr) : QWidget(parent), m_size(size) { }

    QSize sizeHint() const override { return m_size; }
    QSize minimumSizeHint() const override { return m_size; }

private:
    const QSize m_size;
};

/// An item without a widget that has a size hint, and counts how often it was moved.
class Item : public QLayoutItem
{
public:
    explicit Item(const QSize &size) : m_size(size) { }

    QSize sizeHint() const override { return m_size; }
    QSize minimumSize() const override { return m_size; }
    QSize maximumSize() const override { return { QLAYOUTSIZE_MAX, QLAYOUTSIZE_MAX }; }
    Qt::Orientations expandingDirections() const override { return Qt::Horizontal | Qt::Vertical; }
    QRect geometry() const override { return m_geometry; }
    bool isEmpty() const override { return m_isHidden; }
    void setGeometry(const QRect &rect) override
    {
        m_geometry = rect;
        ++moves;
    }
    void hide() { m_isHidden = true; }

    int moves = 0;

private:
    const QSize m_size;
    QRect m_geometry;
    bool m_isHidden = false;
};

/// \a LayoutClass with a public layout pass.
template <typename LayoutClass>
class Opened : public LayoutClass
{
public:
    using FlowLayout::doLayout;
    using LayoutClass::LayoutClass;
};

/// Adds an item for each of \a sizes.
inline void fill(FlowLayout &layout, const std::vector<QSize> &sizes)
{
    for (const QSize &size : sizes)
        layout.addItem(new Item(size));
}

/// Returns \a rect as "x,y wxh".
inline QString text(const QRect &rect)
{
    return QStringLiteral("%1,%2 %3x%4")
            .arg(rect.x())
            .arg(rect.y())
            .arg(rect.width())
            .arg(rect.height());
}

/// Returns where the items of \a layout are.
inline std::vector<QRect> rects(const QLayout &layout)
{
    std::vector<QRect> result;
    for (int i = 0; i < layout.count(); ++i)
        result.push_back(layout.itemAt(i)->geometry());
    return result;
}

/// Returns the same as "x,y wxh | x,y wxh".
inline QString text(const QLayout &layout)
{
    QStringList texts;
    for (const QRect &rect : rects(layout))
        texts += text(rect);
    return texts.join(QStringLiteral(" | "));
}

} // namespace Blocks
