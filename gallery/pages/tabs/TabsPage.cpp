// SPDX-License-Identifier: Apache-2.0
#include "TabbedPages.h"
#include "looks/Metrics.h"
#include "looks/TextSettings.h"
#include "pages/widgets/Pages.h"
#include "shell/GalleryApplication.h"
#include "shell/Page.h"
#include "specimens/WidgetCard.h"
#include "widgets/Buttons.h"
#include "widgets/Card.h"
#include "widgets/Labels.h"
#include "widgets/Menus.h"

#include <UiElements/svg/OxaPillTabButton.h>
#include <UiElements/svg/OxaSvgAnchorButton.h>
#include <UiElements/svg/OxaSvgLabel.h>
#include <UiElements/widgets/OxaMenu.h>
#include <UiElements/widgets/OxaSeparator.h>
#include <UiElements/widgets/OxaTabBar.h>
#include <UiElements/widgets/OxaVMenu.h>

#include <QActionGroup>
#include <QVBoxLayout>

namespace {

using WidgetCard::icon;

constexpr int pillHeight = 32;
constexpr int iconTabHeight = 36;
constexpr int verticalMenuWidth = 280;
constexpr int itemPadding = 12; // As the items of a vertical menu have.
constexpr QSize iconSize(16, 16);

QString tr(const char *text) { return Page::tr(text); }

void addTabBar(Page &page)
{
    auto *pages = new TabbedPages;
    auto *controls = WidgetCard::addOne(
            page, tr("OxaTabBar"),
            tr("Tab reaches the current tab, the arrow keys go to the others, and Space makes one "
               "current. A removal makes the first one current. The context menu of a tab hides, "
               "disables or removes it."),
            pages->bar(), pages);
    controls->addProperty("horizontalPadding");
    controls->addNumber(tr("setTabsSpacing()"), 0, Metrics::small, 0,
                        [](QWidget *bar, const QVariant &spacing) {
                            qobject_cast<OxaTabBar *>(bar)->setTabsSpacing(spacing.toInt());
                        });
}

struct IconTab
{
    QString text;
    const char *icon;
};

/// Returns a bar with a tab for each of \a tabs, which \a makeTab makes.
template <typename MakeTab>
OxaTabBar *makeIconTabs(const QString &name, const QVector<IconTab> &tabs, MakeTab makeTab,
                        QWidget *parent)
{
    auto *bar = new OxaTabBar(parent);
    bar->setAccessibleName(name);
    bar->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    bar->setNewTabButtonFunc(makeTab);
    bar->setHorizontalPadding(0); // The buttons have their own.
    bar->setTabsSpacing(Metrics::small);
    bar->layout()->setAlignment(Qt::AlignLeft);
    for (const IconTab &tab : tabs)
        bar->setTabProperty(bar->addTab(tab.text, tab.text), "svgIcon", icon(tab.icon));
    bar->setCurrentIndex(0);
    // The bar measures texts alone, and once.
    const auto fit = [bar] {
        for (int i = 0; i < bar->count(); ++i)
            bar->getTab(i)->setMaximumWidth(bar->getTab(i)->sizeHint().width());
    };
    QObject::connect(GalleryApplication::get()->textSettings(), &TextSettings::sizesChanged, bar,
                     fit);
    fit();
    return bar;
}

OxaPushButton *makePill(QWidget *bar)
{
    auto *pill = new OxaPillTabButton(bar);
    pill->setBackgroundColorSet(QStringLiteral("gallery-pill-background"));
    pill->setBackgroundColorSetChecked(QStringLiteral("gallery-pill-checked-background"));
    pill->setFocusRectColorSet(QStringLiteral("gallery-focus-frame-inverse"));
    pill->setFixedHeight(pillHeight);
    return pill;
}

OxaPushButton *makeIconButton(QWidget *bar)
{
    auto *button = new OxaSvgPushButton(bar);
    button->setFontToken(OxaFont::Token::TagLabelPrimary);
    // A look has rules for the name of the widget, so that the one for the focus needs the name
    // too.
    QObject::connect(button, &QObject::objectNameChanged, button, [button](const QString &name) {
        button->setCSS(Buttons::toggle()
                       + QStringLiteral("#%1:focus { border: 2px solid $(gallery-focus-border); }"
                                        "#%1:focus:checked {"
                                        " border-color: $(gallery-focus-border.checked); }")
                                 .arg(name));
    });
    button->setFixedHeight(iconTabHeight);
    button->setSvgIconSize(iconSize);
    button->setSvgIconPadding(QMargins(0, 0, Metrics::small, 0));
    return button;
}

void addIconTabs(Page &page)
{
    auto *card = new Card(tr("Tabs with icons and badges"),
                          tr("A bar takes any button that the application makes for it."));
    card->body()->addWidget(makeIconTabs(tr("Messages"),
                                         { { tr("All"), "folder_16" },
                                           { tr("Mentions"), "mention_16" },
                                           { tr("Flagged"), "flag_16" },
                                           { tr("Pinned"), "pin_16" } },
                                         makePill, card));
    OxaTabBar *views = makeIconTabs(tr("Views"),
                                    { { tr("Chats"), "chat_24" },
                                      { tr("Calls"), "phone_24" },
                                      { tr("People"), "people_24" } },
                                    makeIconButton, card);
    views->setTabProperty(1, "badgeVisible", true);
    card->body()->addWidget(views);
    page.body()->addWidget(card);
}

OxaMenu *makeNotifyMenu(QWidget *parent)
{
    OxaMenu *menu = Menus::make(parent);
    menu->setTitle(tr("Notify me of"));
    menu->setAccessibleName(menu->title());
    auto *group = new QActionGroup(menu);
    for (const QString &text : { tr("All messages"), tr("Mentions"), tr("Nothing") }) {
        QAction *action = group->addAction(text);
        action->setCheckable(true);
        menu->addAction(action);
    }
    group->actions().constFirst()->setChecked(true);
    return menu;
}

OxaMenu *makeMenu(QWidget *parent)
{
    OxaMenu *menu = Menus::make(parent);
    const auto add = [menu](const QString &text, const char *iconName, const QString &key) {
        QAction *action = menu->addAction(text);
        action->setShortcut(QKeySequence(key));
        Menus::setIcon(action, menu, iconName);
        return action;
    };
    const auto addCheckable = [menu](const QString &text) {
        QAction *action = menu->addAction(text);
        action->setCheckable(true);
        return action;
    };
    add(tr("Copy link"), "link_16", QStringLiteral("Ctrl+K"));
    add(tr("Download"), "download_16", QStringLiteral("Ctrl+D"));
    menu->addSeparator();
    addCheckable(tr("Show previews"))->setChecked(true);
    addCheckable(tr("Keep on top"));
    menu->addMenu(makeNotifyMenu(menu));
    menu->addSeparator();
    add(tr("Delete"), "trash_16", QString())->setEnabled(false);
    return menu;
}

/// Opens a copy of \a menu where \a button is asked for a context menu.
void addContextMenu(QWidget *button, OxaMenu *menu)
{
    button->setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(button, &QWidget::customContextMenuRequested, menu,
                     [button, menu](const QPoint &position) {
                         OxaMenu *copy = Menus::makeCopy(menu, button);
                         copy->setAccessibleName(menu->accessibleName());
                         copy->setAttribute(Qt::WA_DeleteOnClose);
                         copy->popupAt(button->mapToGlobal(position));
                     });
}

void addMenu(Page &page)
{
    auto *stage = new OxaWidget;
    auto *button = Buttons::make(tr("Options"), stage);
    OxaMenu *menu = makeMenu(stage);
    menu->setAccessibleName(button->text());
    QObject::connect(button, &OxaPushButton::clicked, menu,
                     [menu, button] { Menus::openBelow(menu, button); });
    addContextMenu(button, menu);
    // Shortcuts of a menu work in the window that its action belongs to.
    stage->addAction(menu->menuAction());
    auto *row = new QHBoxLayout(stage);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(button);
    row->addStretch(1);
    auto *controls = WidgetCard::addOne(
            page, tr("OxaMenu"),
            tr("popupAt() opens it with its first action highlighted. The button's context menu is "
               "a copy with the same actions, in which nothing is."),
            menu, stage);
    const QList<QAction *> actions = menu->actions();
    controls->addChoice(tr("setFirstAction()"), { { tr("Copy link"), 0 }, { tr("Download"), 1 } },
                        [actions](QWidget *widget, const QVariant &index) {
                            qobject_cast<OxaMenu *>(widget)->setFirstAction(actions[index.toInt()]);
                        });
}

void fillVerticalMenu(OxaVMenu *menu, OxaLabel *chosen)
{
    const auto setUp = [](OxaSvgPushButton *button, const QString &text, const char *iconName) {
        button->setText(text);
        button->setSvgIcon(icon(iconName));
        button->setSvgIconSize(iconSize);
        button->setFontToken(OxaFont::Token::BodySecondary);
        button->setFocusRectColorSet(QStringLiteral("gallery-focus-frame-inverse"));
        button->setTextHorAlign(OxaEnum::HorAlign::LeftAlign);
        button->setSvgIconPadding(QMargins(itemPadding, 0, itemPadding, 0));
    };
    const auto addItem = [menu, chosen, setUp](const QString &text, const char *iconName) {
        const auto choose = [chosen, text] { chosen->setText(tr("Chosen: %1").arg(text)); };
        setUp(menu->addMenuItem(choose).get(), text, iconName);
    };
    addItem(tr("Search"), "search_16");
    addItem(tr("Share"), "link_16");
    menu->addSeparator(QStringLiteral("separator-primary"), itemPadding);
    menu->addSpacer(Metrics::small);
    OxaSvgLabel *title = menu->addSectionTitle();
    title->setText(tr("Room"));
    title->setTextHorAlign(OxaEnum::HorAlign::LeftAlign);
    title->setTextLeftPadding(itemPadding);
    title->setCSS(QStringLiteral("$textColors: gallery-caption-text;"));
    addItem(tr("Lock"), "lock_16");
    OxaSvgAnchorButton *more = menu->addAnchorButton();
    setUp(more, tr("More"), "more_16");
    more->setAnchorSvgOn(icon("arrow-up_8"));
    more->setAnchorSvgOff(icon("arrow-down_8"));
    more->setAnchorIconSize(QSize(8, 8));
    more->setAnchorPadding(itemPadding);
    more->setCSS(Buttons::quiet());
    OxaSvgPushButton *leave = menu->addButton();
    setUp(leave, tr("Leave"), "hang-up_24");
    leave->setCSS(Buttons::leave());
}

OxaVMenu *makeVerticalMenu(OxaLabel *chosen)
{
    auto *menu = new OxaVMenu;
    menu->setAccessibleName(tr("Room"));
    menu->setMaximumWidth(verticalMenuWidth);
    menu->setFontToken(OxaFont::Token::BodySecondary);
    menu->setMargin(QMargins(Metrics::tight, Metrics::tight, Metrics::tight, Metrics::tight));
    menu->setCSS(QStringLiteral("$borderColors: gallery-card-border;"));
    menu->setBackgroundColorSet(QStringLiteral("menulistbackground-secondary-background"));
    menu->setBorderRadius(Metrics::small);
    fillVerticalMenu(menu, chosen);
    return menu;
}

void addVerticalMenu(Page &page)
{
    auto *card = new Card(tr("OxaVMenu"),
                          tr("A menu that stays open. Tab goes from item to item, and Space "
                             "chooses one."));
    OxaLabel *chosen = Labels::line(tr("Chosen: nothing yet"));
    OxaVMenu *menu = makeVerticalMenu(chosen);
    auto *row = new QHBoxLayout;
    row->setSpacing(Metrics::gap);
    row->addWidget(menu);
    row->addWidget(chosen, 1);
    auto *controls = new PropertyControls(menu);
    card->body()->addLayout(row);
    card->body()->addWidget(controls);
    page.body()->addWidget(card);
    using Apply = void (*)(OxaVMenu *, int);
    const auto addNumber = [controls](const QString &name, int value, Apply apply) {
        controls->addNumber(name, 0, Metrics::gap, value,
                            [apply](QWidget *widget, const QVariant &number) {
                                apply(qobject_cast<OxaVMenu *>(widget), number.toInt());
                            });
    };
    addNumber(tr("setSpacing()"), 0, [](OxaVMenu *m, int spacing) { m->setSpacing(spacing); });
    addNumber(tr("setMargin()"), Metrics::tight,
              [](OxaVMenu *m, int side) { m->setMargin(QMargins(side, side, side, side)); });
    addNumber(tr("setBorderRadius()"), Metrics::small,
              [](OxaVMenu *m, int radius) { m->setBorderRadius(radius); });
}

} // namespace

Page *Pages::makeTabs(QWidget *parent)
{
    auto *page = new Page(tr("Tabs and menus"),
                          tr("Rows of tabs that are one stop for Tab, menus that open, and menus "
                             "that stay open."),
                          parent);
    addTabBar(*page);
    addIconTabs(*page);
    addMenu(*page);
    addVerticalMenu(*page);
    page->body()->addStretch(1);
    return page;
}
