// SPDX-License-Identifier: Apache-2.0
#include "QmlViewsCard.h"
#include "pages/widgets/Pages.h"
#include "shell/Page.h"

#include <QVBoxLayout>

Page *Pages::makeQmlViews(QWidget *parent)
{
    auto *page =
            new Page(Page::tr("QML views"),
                     Page::tr("Windows, dialogs, popups and widgets that show QML, and what the "
                              "engine reports of them."),
                     parent);
    page->body()->addWidget(new QmlViewsCard);
    page->body()->addStretch(1);
    return page;
}
