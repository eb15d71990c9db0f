// SPDX-License-Identifier: Apache-2.0
#include "NavigationList.h"

#include "Metrics.h"
#include "PageRegistry.h"
#include "widgets/Labels.h"
#include "widgets/ScrollArea.h"
#include "widgets/ToggleButton.h"

#include <UiElements/widgets/OxaLabel.h>

#include <QVBoxLayout>

namespace {

ToggleButton::Look itemLook()
{
    const QString shape = QStringLiteral("$borderColors: gallery-quiet-button-border;"
                                         "$borderWidth: 2; $borderRadius: 6;"
                                         "ToggleButton { padding: 5px 10px; text-align: left; }");
    return { QStringLiteral("$backgroundColors: gallery-sidebar-item;"
                            "$textColors: gallery-sidebar-item-text;")
                     + shape,
             QStringLiteral("$backgroundColors: gallery-sidebar-current-item;"
                            "$textColors: gallery-sidebar-current-item-text;")
                     + shape };
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

ToggleButton *NavigationList::addItem(const PageEntry &entry)
{
    auto *item = new ToggleButton(entry.title, itemLook(), this);
    item->setFontToken(OxaFont::Token::TagLabelPrimary);
    item->setAutoExclusive(true);
    connect(item, &ToggleButton::clicked, this,
            [this, name = entry.name] { Q_EMIT pageChosen(name); });
    m_items[entry.name] = item;
    return item;
}
