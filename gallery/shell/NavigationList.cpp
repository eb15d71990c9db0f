// SPDX-License-Identifier: Apache-2.0
#include "NavigationList.h"

#include "GalleryApplication.h"
#include "NavigationDelegate.h"
#include "PageRegistry.h"
#include "looks/Metrics.h"
#include "looks/TextSettings.h"
#include "widgets/ListView.h"

#include <QStandardItemModel>
#include <QVBoxLayout>

namespace {

constexpr int nameRole = Qt::UserRole;

} // namespace

NavigationList::NavigationList(QWidget *parent)
    : OxaWidget(parent),
      m_model(new QStandardItemModel(this)),
      m_list(new ListView(m_model, new NavigationDelegate, this))
{
    addPages();
    m_list->setCSS(QStringLiteral("$backgroundColors: gallery-sidebar-background;"
                                  "ListView { border: none; }"));
    m_list->setAccessibleName(tr("Pages"));
    // A click leaves the focus in the page.
    m_list->setFocusPolicy(Qt::TabFocus);
    auto *frame = new QVBoxLayout(this);
    frame->setContentsMargins(0, 0, 0, 0);
    frame->addWidget(m_list);

    connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &index) {
                Q_EMIT pageChosen(index.data(nameRole).toString());
            });
    connect(GalleryApplication::get()->textSettings(), &TextSettings::sizesChanged, this,
            [this] { updateGeometry(); });
}

void NavigationList::setCurrentPage(const QString &name)
{
    const QModelIndexList found = m_model->match(m_model->index(0, 0), nameRole, name, 1,
                                                 Qt::MatchExactly);
    if (!found.isEmpty())
        m_list->setCurrentIndex(found.first());
}

QSize NavigationList::sizeHint() const
{
    const int titles = m_list->sizeHintForColumn(0) + Metrics::scrollBar;
    return { qMax(Metrics::sidebarWidth, titles), 0 };
}

void NavigationList::addPages()
{
    QString group;
    for (const PageEntry &entry : pageEntries()) {
        if (entry.group != group) {
            group = entry.group;
            auto *heading = new QStandardItem(group);
            heading->setFlags(Qt::NoItemFlags);
            m_model->appendRow(heading);
        }
        auto *page = new QStandardItem(entry.title);
        page->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        page->setData(entry.name, nameRole);
        m_model->appendRow(page);
    }
}
