// SPDX-License-Identifier: Apache-2.0
#include "NavigationList.h"

#include "PageRegistry.h"
#include "looks/Metrics.h"
#include "widgets/Buttons.h"
#include "widgets/Labels.h"
#include "widgets/ScrollArea.h"

#include <UiElements/widgets/OxaLabel.h>

#include <QKeyEvent>
#include <QVBoxLayout>

namespace {

QString look(const char *background, const char *text, const char *focus)
{
    return QStringLiteral("$backgroundColors: %1; $textColors: %2; $borderRadius: 6;"
                          "OxaToggleButton { padding: 5px 10px; text-align: left;"
                          " border: 2px solid transparent; }"
                          "OxaToggleButton:focus { border-color: $(%3); }")
            .arg(QLatin1String(background), QLatin1String(text), QLatin1String(focus));
}

OxaLabel *makeGroupHeading(const QString &text, QWidget *parent)
{
    OxaLabel *heading = Labels::caption(text, parent);
    heading->setFontToken(OxaFont::Token::TagLabelSecondary);
    heading->setMargin(Metrics::small + Metrics::tight);
    return heading;
}

} // namespace

NavigationList::NavigationList(QWidget *parent) : OxaWidget(parent), m_area(new ScrollArea(this))
{
    setCSS(QStringLiteral("$backgroundColors: gallery-sidebar-background;"));
    setMinimumWidth(Metrics::sidebarWidth);
    auto *items = new OxaWidget;
    auto *column = new QVBoxLayout(items);
    column->setContentsMargins(Metrics::small, Metrics::small, Metrics::small, Metrics::small);
    column->setSpacing(2);
    addEntries(column);
    column->addStretch(1);

    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_area->setFocusPolicy(Qt::NoFocus);
    m_area->setContents(items);
    auto *frame = new QVBoxLayout(this);
    frame->setContentsMargins(0, 0, 0, 0);
    frame->addWidget(m_area);
}

void NavigationList::setCurrentPage(const QString &name)
{
    const auto found = m_items.find(name);
    if (found == m_items.end())
        return;
    found->second->setChecked(true);
    m_area->ensureWidgetVisible(found->second);
}

void NavigationList::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Home && event->key() != Qt::Key_End) {
        OxaWidget::keyPressEvent(event);
        return;
    }
    const QStringList names = pageNames();
    OxaToggleButton *item = m_items.at(event->key() == Qt::Key_Home ? names.first() : names.last());
    item->click();
    item->setFocus(Qt::TabFocusReason);
}

void NavigationList::addEntries(QVBoxLayout *column)
{
    QString group;
    for (const PageEntry &entry : pageEntries()) {
        if (entry.group != group)
            column->addWidget(makeGroupHeading(entry.group, this));
        group = entry.group;
        column->addWidget(addItem(entry));
    }
}

OxaToggleButton *NavigationList::addItem(const PageEntry &entry)
{
    auto *item = Buttons::makeChoice(entry.title,
                                     look("gallery-sidebar-item", "gallery-sidebar-item-text",
                                          "gallery-focus-border.normal"),
                                     look("gallery-sidebar-current-item",
                                          "gallery-sidebar-current-item-text",
                                          "gallery-focus-border.checked"),
                                     this);
    item->setFontToken(OxaFont::Token::TagLabelPrimary);
    connect(item, &OxaToggleButton::clicked, this, [this, item, name = entry.name] {
        m_area->ensureWidgetVisible(item);
        Q_EMIT pageChosen(name);
    });
    m_items[entry.name] = item;
    return item;
}
