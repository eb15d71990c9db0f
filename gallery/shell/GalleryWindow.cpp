// SPDX-License-Identifier: Apache-2.0
#include "GalleryWindow.h"

#include "GalleryApplication.h"
#include "HeaderBar.h"
#include "NavigationList.h"
#include "PageStack.h"
#include "TabOrder.h"
#include "looks/Metrics.h"
#include "looks/ThemeSwitcher.h"

#include <UiElements/keyboard/TabOrderUtils.h>

#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>

namespace {

/// Returns the rules for all scroll bars of the window: its sheet reaches everything in it.
QString scrollBarStyleText()
{
    return QStringLiteral("QScrollBar { background: transparent; border: none; }"
                          "QScrollBar:vertical { width: %1px; }"
                          "QScrollBar:horizontal { height: %1px; }"
                          "QScrollBar::handle {"
                          " background: $(gallery-scrollbar); border-radius: 3px; margin: 3px; }"
                          "QScrollBar::handle:hover { background: $(gallery-scrollbar.hovered); }"
                          "QScrollBar::handle:pressed { background: $(gallery-scrollbar.pressed); }"
                          "QScrollBar::handle:vertical { min-height: 32px; }"
                          "QScrollBar::handle:horizontal { min-width: 32px; }"
                          "QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }"
                          "QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }"
                          "QAbstractScrollArea::corner { background: transparent; border: none; }")
            .arg(Metrics::scrollBar);
}

QWidget *makeDivider(QWidget *parent)
{
    auto *divider = new OxaWidget(parent);
    divider->setObjectName(QStringLiteral("sidebarDivider"));
    divider->setCSS(QStringLiteral("$backgroundColors: gallery-divider;"));
    divider->setFixedWidth(1);
    return divider;
}

} // namespace

GalleryWindow::GalleryWindow(QWidget *parent)
    : OxaWidget(parent),
      m_header(new HeaderBar(GalleryApplication::get()->themeSwitcher(),
                             GalleryApplication::get()->textSettings(), this)),
      m_navigation(new NavigationList(this)),
      m_pages(new PageStack(this))
{
    setThemeType(GalleryApplication::get()->themeSwitcher()->themeType());
    setCSS(QStringLiteral("$backgroundColors: gallery-window-background;") + scrollBarStyleText());
    setMinimumSize(Metrics::smallestWindowWidth, Metrics::smallestWindowHeight);
    resize(Metrics::windowWidth, Metrics::windowHeight);

    auto *row = new QHBoxLayout;
    row->setSpacing(0);
    row->addWidget(m_navigation);
    row->addWidget(makeDivider(this));
    row->addWidget(m_pages, 1);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_header);
    column->addLayout(row, 1);
    // Pages scroll, and the header wraps: neither decides how small the window may be.
    column->setSizeConstraint(QLayout::SetNoConstraint);

    connect(m_navigation, &NavigationList::pageChosen, m_pages, &PageStack::showPage);
    connect(new QShortcut(Qt::Key_F6, this), &QShortcut::activated, this, [this] { focusPane(1); });
    connect(new QShortcut(Qt::SHIFT + Qt::Key_F6, this), &QShortcut::activated, this,
            [this] { focusPane(-1); });
}

/// Gives the focus to the widget that had it last in the pane \a step panes after the current one.
void GalleryWindow::focusPane(int step)
{
    QWidget *const panes[] = { m_header, m_navigation, m_pages };
    const int count = int(std::size(panes));
    const QWidget *focused = focusWidget();
    const auto *current = std::find_if(std::begin(panes), std::end(panes),
                                       [focused](const QWidget *pane) {
                                           return focused && pane->isAncestorOf(focused);
                                       });
    const int place = current == std::end(panes) ? (step > 0 ? -1 : 0)
                                                 : int(current - std::begin(panes));
    const QWidget *pane = panes[(place + step + count) % count];
    QWidget *target = pane->focusWidget();
    if (!TabOrderUtils::isTabFocusable(target))
        target = TabOrder::firstIn(*pane);
    if (target)
        target->setFocus(Qt::TabFocusReason);
}

void GalleryWindow::showPage(const QString &name)
{
    m_navigation->setCurrentPage(name);
    m_pages->showPage(name);
}
