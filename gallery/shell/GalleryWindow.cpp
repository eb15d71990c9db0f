// SPDX-License-Identifier: Apache-2.0
#include "GalleryWindow.h"

#include "GalleryApplication.h"
#include "HeaderBar.h"
#include "NavigationList.h"
#include "PageStack.h"
#include "ShortcutsDialog.h"
#include "TabOrder.h"
#include "looks/Metrics.h"
#include "looks/TextSettings.h"
#include "looks/ThemeSwitcher.h"
#include "widgets/Dividers.h"
#include "widgets/Fields.h"

#include <UiElements/app/OxaAppSignals.h>
#include <UiElements/keyboard/TabOrderUtils.h>
#include <UiElements/widgets/OxaSeparator.h>
#include <UiElements/widgets/OxaSplitter.h>
#include <UiElements/widgets/OxaTextInput.h>

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

} // namespace

GalleryWindow::GalleryWindow(QWidget *parent)
    : OxaMainWindow(parent),
      m_header(new HeaderBar(GalleryApplication::get()->themeSwitcher(),
                             GalleryApplication::get()->textSettings(), this)),
      m_navigation(new NavigationList(this)),
      m_pages(new PageStack(this))
{
    setWindowTitle(QGuiApplication::applicationDisplayName());
    setThemeType(GalleryApplication::get()->themeSwitcher()->themeType());
    setCSS(QStringLiteral("$backgroundColors: gallery-window-background;") + scrollBarStyleText());
    setMinimumSize(Metrics::smallestWindowWidth, Metrics::smallestWindowHeight);
    resize(Metrics::windowWidth, Metrics::windowHeight);
    setCentralWidget(makeContents());

    connect(m_navigation, &NavigationList::pageChosen, m_pages, &PageStack::showPage);
    connect(m_pages, &PageStack::pageShown, m_navigation, &NavigationList::setCurrentPage);
    followShortcuts();
}

QWidget *GalleryWindow::makeContents()
{
    auto *contents = new OxaWidget(this);
    OxaSplitter *splitter = Dividers::splitter(contents);
    splitter->addWidget(m_navigation);
    splitter->addWidget(m_pages);
    splitter->setStretchFactor(1, 1);

    auto *column = new QVBoxLayout(contents);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_header);
    column->addWidget(Dividers::line(contents));
    column->addWidget(splitter, 1);
    return contents;
}

void GalleryWindow::followShortcuts()
{
    const OxaAppSignals *hub = OxaAppSignals::get();
    const auto follow = [this, hub](void (OxaAppSignals::*shortcut)(), auto action) {
        connect(hub, shortcut, this, action);
    };
    follow(&OxaAppSignals::moveUpSpaceList, [this] { m_pages->showNeighbour(-1); });
    follow(&OxaAppSignals::moveDownSpaceList, [this] { m_pages->showNeighbour(1); });
    follow(&OxaAppSignals::selectPrevSpaceInHistory, [this] { m_pages->goInHistory(-1); });
    follow(&OxaAppSignals::selectNextSpaceInHistory, [this] { m_pages->goInHistory(1); });
    follow(&OxaAppSignals::openGlobalSearch, [this] { focusSearch(); });
    follow(&OxaAppSignals::expandTabSelectorWidget,
           [this] { m_navigation->setVisible(m_navigation->isHidden()); });
    follow(&OxaAppSignals::showKeyboardShortcutsDialog,
           [this] { (new ShortcutsDialog(this))->open(); });
    follow(&OxaAppSignals::openHelpPopUp, [this] { (new ShortcutsDialog(this))->open(); });
    TextSettings *settings = GalleryApplication::get()->textSettings();
    follow(&OxaAppSignals::zoomInMessageView, [settings] { settings->zoomMessages(1); });
    follow(&OxaAppSignals::zoomOutMessageView, [settings] { settings->zoomMessages(-1); });
    // The table has none of these.
    connect(new QShortcut(Qt::Key_F6, this), &QShortcut::activated, this, [this] { focusPane(1); });
    connect(new QShortcut(Qt::SHIFT + Qt::Key_F6, this), &QShortcut::activated, this,
            [this] { focusPane(-1); });
}

/// Gives the focus to the widget that had it last in the pane \a step panes after the current one,
/// past a pane that is hidden.
void GalleryWindow::focusPane(int step)
{
    const QWidget *const panes[] = { m_header, m_navigation, m_pages };
    const int count = int(std::size(panes));
    const QWidget *focused = focusWidget();
    const auto *current = std::find_if(std::begin(panes), std::end(panes),
                                       [focused](const QWidget *pane) {
                                           return focused && pane->isAncestorOf(focused);
                                       });
    int place = current == std::end(panes) ? (step > 0 ? -1 : 0) : int(current - std::begin(panes));
    do
        place = (place + step + count) % count;
    while (panes[place]->isHidden());
    QWidget *target = panes[place]->focusWidget();
    if (!TabOrderUtils::isTabFocusable(target))
        target = TabOrder::firstIn(*panes[place]);
    if (target)
        target->setFocus(Qt::TabFocusReason);
}

/// Goes to the search of the current page, if it has one.
void GalleryWindow::focusSearch()
{
    OxaTextInput *search = Fields::searchIn(*m_pages->currentWidget());
    if (!search)
        return;
    activateWindow(); // The shortcut works in all windows.
    search->setFocus();
}

void GalleryWindow::showPage(const QString &name) { m_pages->showPage(name); }
