// SPDX-License-Identifier: Apache-2.0
#include "ResizeFrame.h"

#include "ResizeHandle.h"

#include <QGuiApplication>
#include <QStyle>

namespace {

constexpr QSize smallest(96, 64);

} // namespace

ResizeFrame::ResizeFrame(QWidget *contents, QWidget *parent)
    : OxaWidget(parent),
      m_contents(contents),
      m_handle(new ResizeHandle(this)),
      m_wanted(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX)
{
    m_contents->setParent(this);
    setMinimumSize(smallest + m_handle->size());
    connect(m_handle, &ResizeHandle::dragged, this,
            [this](const QPoint &by) { setContentsSize(contentsSize() + QSize(by.x(), by.y())); });
    connect(qGuiApp, &QGuiApplication::layoutDirectionChanged, this, &ResizeFrame::place);
}

void ResizeFrame::setContentsSize(const QSize &size)
{
    m_wanted = size.expandedTo(smallest);
    place();
}

void ResizeFrame::resizeEvent(QResizeEvent *event)
{
    OxaWidget::resizeEvent(event);
    place();
}

void ResizeFrame::place()
{
    const QRect room = rect();
    const QSize size = m_wanted.boundedTo(room.size() - m_handle->size());
    const auto onScreen = [&room](const QRect &logical) {
        return QStyle::visualRect(QGuiApplication::layoutDirection(), room, logical);
    };
    m_contents->setGeometry(onScreen(QRect(QPoint(), size)));
    m_handle->setGeometry(onScreen(QRect(QPoint(size.width(), size.height()), m_handle->size())));
}
