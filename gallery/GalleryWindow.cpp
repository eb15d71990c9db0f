// SPDX-License-Identifier: Apache-2.0
#include "GalleryWindow.h"

#include "GalleryApplication.h"
#include "HeaderBar.h"
#include "Metrics.h"
#include "NavigationList.h"
#include "ThemeSwitcher.h"
#include "widgets/PageStack.h"

#include <QVBoxLayout>

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
}

void GalleryWindow::showPage(const QString &name)
{
    m_navigation->setCurrentPage(name);
    m_pages->showPage(name);
}
