// SPDX-License-Identifier: Apache-2.0
#include "TabbedPages.h"

#include "looks/Metrics.h"
#include "looks/TextSettings.h"
#include "shell/GalleryApplication.h"
#include "widgets/Buttons.h"
#include "widgets/Labels.h"
#include "widgets/Menus.h"
#include "widgets/WrapLayout.h"

#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaMenu.h>
#include <UiElements/widgets/OxaStackedWidget.h>
#include <UiElements/widgets/OxaTabBar.h>
#include <UiElements/widgets/OxaUnderlineButton.h>

#include <QVBoxLayout>

namespace {

constexpr int firstTabs = 4;
constexpr int mostTabs = 10; // More would not fit into the smallest window.
constexpr int narrowestTab = 48;
constexpr int tabHeight = 36;
constexpr int pageHeight = 64;
constexpr int unreadTab = 1;

OxaPushButton *makeTab(QWidget *bar)
{
    auto *tab = new OxaUnderlineButton(bar);
    tab->setFontToken(OxaFont::Token::TagLabelPrimary);
    tab->setUnderlineColorSet(QStringLiteral("gallery-accent"));
    tab->setMinimumWidth(narrowestTab);
    tab->setFixedHeight(tabHeight);
    return tab;
}

QString title(int number)
{
    const QStringList titles = { TabbedPages::tr("Chat"),    TabbedPages::tr("Files"),
                                 TabbedPages::tr("Members"), TabbedPages::tr("Meetings"),
                                 TabbedPages::tr("Tasks"),   TabbedPages::tr("Notes"),
                                 TabbedPages::tr("Polls") };
    return titles[number % titles.size()];
}

QWidget *makePage(const QString &title)
{
    OxaLabel *page = Labels::paragraph(TabbedPages::tr("The page of the tab %1.").arg(title));
    page->setMargin(Metrics::spacing);
    return page;
}

} // namespace

TabbedPages::TabbedPages(QWidget *parent)
    : OxaWidget(parent),
      m_bar(new OxaTabBar(this)),
      m_pages(new OxaStackedWidget(this)),
      m_add(Buttons::make(tr("Add a tab"), this)),
      m_remove(Buttons::make(tr("Remove the current one"), this)),
      m_removeAll(Buttons::make(tr("Remove all"), this))
{
    m_bar->setAccessibleName(tr("Tabs"));
    m_bar->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    m_bar->setFontToken(OxaFont::Token::TagLabelPrimary);
    m_bar->setHorizontalPadding(Metrics::spacing);
    m_bar->setNewTabButtonFunc(makeTab);
    // Tabs begin where the page does, also where they do not fill the bar.
    m_bar->layout()->setAlignment(Qt::AlignLeft);
    m_pages->setFixedHeight(pageHeight);
    m_pages->setCSS(QStringLiteral("$backgroundColors: gallery-code-background;"
                                   "$borderColors: gallery-card-border; $borderRadius: 4;"));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Metrics::small);
    column->addWidget(m_bar);
    column->addWidget(m_pages);
    column->addLayout(makeButtons());

    connect(m_bar, &OxaTabBar::currentChanged, this, [this](int index) {
        if (auto *page = m_bar->tabData(index).value<QWidget *>())
            m_pages->setCurrentWidget(page);
        updateButtons();
    });
    connect(GalleryApplication::get()->textSettings(), &TextSettings::sizesChanged, this,
            &TabbedPages::fitTabs);
    for (int i = 0; i < firstTabs; ++i)
        addTab();
    m_bar->setCurrentIndex(0);
    m_bar->setTabProperty(unreadTab, "showUnreadIndicator", true);
}

QLayout *TabbedPages::makeButtons()
{
    auto *restore = Buttons::make(tr("Show and enable all"), this);
    connect(m_add, &OxaPushButton::clicked, this, &TabbedPages::addTab);
    connect(m_remove, &OxaPushButton::clicked, this, [this] { removeTab(m_bar->currentIndex()); });
    connect(m_removeAll, &OxaPushButton::clicked, this, &TabbedPages::removeAllTabs);
    connect(restore, &OxaPushButton::clicked, this, &TabbedPages::restoreTabs);
    auto *row = new WrapLayout(Metrics::small);
    for (OxaPushButton *button : { m_add, m_remove, m_removeAll, restore })
        row->addWidget(button);
    return row;
}

void TabbedPages::addTab()
{
    const QString text = title(m_added++);
    const int index = m_bar->addTab(text, text);
    QWidget *page = makePage(text);
    m_pages->addWidget(page);
    m_bar->setTabData(index, QVariant::fromValue(page));
    OxaPushButton *tab = m_bar->getTab(index);
    // As wide as the bar allows: a button asks for less than its text and the padding.
    tab->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    tab->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(tab, &QWidget::customContextMenuRequested, this,
            [this, tab](const QPoint &position) { openMenu(tab, tab->mapToGlobal(position)); });
    updateButtons();
}

void TabbedPages::removeTab(int index)
{
    const auto *page = m_bar->tabData(index).value<QWidget *>();
    m_bar->removeTab(index);
    delete page;
}

void TabbedPages::removeAllTabs()
{
    m_bar->removeAllTabs();
    while (m_pages->count() > 0)
        delete m_pages->widget(0);
}

void TabbedPages::restoreTabs()
{
    for (int i = 0; i < m_bar->count(); ++i) {
        m_bar->setTabVisible(i, true);
        m_bar->setTabEnabled(i, true);
    }
}

void TabbedPages::openMenu(OxaPushButton *tab, const QPoint &position)
{
    const int index = m_bar->layout()->indexOf(tab);
    m_bar->createAndShowTabMenu(index, [this, index, position](QPushButton *) {
        OxaMenu *menu = Menus::make(this);
        menu->setAccessibleName(m_bar->tabText(index));
        menu->setAttribute(Qt::WA_DeleteOnClose);
        connect(menu->addAction(tr("Hide")), &QAction::triggered, this,
                [this, index] { m_bar->setTabVisible(index, false); });
        connect(menu->addAction(tr("Disable")), &QAction::triggered, this,
                [this, index] { m_bar->setTabEnabled(index, false); });
        menu->addSeparator();
        connect(menu->addAction(tr("Remove")), &QAction::triggered, this,
                [this, index] { removeTab(index); });
        menu->popupAt(position);
    });
}

/// Makes room for texts of another size: the bar measures a text when its tab is added.
void TabbedPages::fitTabs()
{
    for (int i = 0; i < m_bar->count(); ++i) {
        const int text = m_bar->fontMetrics().horizontalAdvance(m_bar->tabText(i));
        m_bar->getTab(i)->setMaximumWidth(text + 2 * m_bar->getHorizontalPadding());
    }
}

void TabbedPages::updateButtons()
{
    m_add->setEnabled(m_bar->count() < mostTabs);
    m_remove->setEnabled(m_bar->currentIndex() >= 0);
    m_removeAll->setEnabled(m_bar->count() > 0);
}
