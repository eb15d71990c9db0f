// SPDX-License-Identifier: Apache-2.0
#include "HistoryCard.h"

#include "HeapUse.h"
#include "HistoryModel.h"
#include "HistoryServer.h"
#include "LongListView.h"
#include "looks/Metrics.h"
#include "widgets/Buttons.h"
#include "widgets/CodeEdit.h"
#include "widgets/ControlRow.h"
#include "widgets/Labels.h"
#include "widgets/SegmentedControl.h"
#include "widgets/WrapLayout.h"

#include <UiElements/widgets/OxaLabel.h>

#include <QGridLayout>
#include <QStandardItem>

namespace {

constexpr int viewHeight = 336;
constexpr int middleRow = HistoryModel::messageCount / 2;
constexpr int linesToKeep = 500;

/// Returns the heap use of a loaded row: the mean of many, made for this and deleted again.
std::optional<qint64> measuredBytesPerItem()
{
    constexpr int pages = 20;
    const auto before = HeapUse::bytes();
    QVector<QStandardItem *> items;
    items.reserve(pages * HistoryModel::pageSize);
    for (int page = 0; page < pages; ++page)
        items += HistoryServer::makeItems(page);
    const auto after = HeapUse::bytes();
    const int count = items.size();
    qDeleteAll(items);
    if (!before || !after)
        return std::nullopt;
    return (*after - *before) / count;
}

std::optional<qint64> bytesPerItem()
{
    static const std::optional<qint64> bytes = measuredBytesPerItem();
    return bytes;
}

QString rangeText(int first, int last)
{
    return HistoryCard::tr("%1 – %2").arg(HistoryModel::textOf(first), HistoryModel::textOf(last));
}

} // namespace

HistoryCard::HistoryCard(QWidget *parent)
    : Card(tr("Ten million rows"),
           tr("LazyLoadedListModel has all the rows, and items for the pages around the view only. "
              "The server is slow, and answers out of order."),
           parent),
      m_model(new HistoryModel(this)),
      m_server(new HistoryServer(m_model, this)),
      m_view(new LongListView(m_model, this)),
      m_log(new CodeEdit(this)),
      m_inView(Labels::line(QString(), this)),
      m_window(Labels::line(QString(), this)),
      m_requests(Labels::line(QString(), this)),
      m_memory(Labels::line(QString(), this))
{
    m_view->setMinimumHeight(viewHeight);
    m_view->setAccessibleName(tr("Ten million rows"));
    m_log->setReadOnly(true);
    m_log->setAccessibleName(tr("Requests and answers"));
    m_log->setMaximumBlockCount(linesToKeep);

    auto *side = new QVBoxLayout;
    side->setSpacing(Metrics::spacing);
    side->addLayout(makeFigures());
    side->addWidget(m_log, 1);
    auto *row = new QHBoxLayout;
    row->setSpacing(Metrics::spacing);
    row->addWidget(m_view, 1);
    row->addLayout(side, 1);
    body()->addLayout(row, 1);
    body()->addLayout(makeControls());

    connect(m_server, &HistoryServer::logged, this, &HistoryCard::addLine);
    connect(m_view, &LongListView::moved, m_model, &HistoryModel::setScrolledIndex);
    connect(m_view, &LongListView::moved, this, &HistoryCard::showFigures);
    // The first answers come at once, so that the page does not begin with empty rows.
    m_view->scrollToRow(middleRow);
    m_server->answerAll();
}

QGridLayout *HistoryCard::makeFigures()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(Metrics::spacing);
    grid->setVerticalSpacing(Metrics::tight);
    grid->setColumnStretch(1, 1);
    const std::pair<QString, OxaLabel *> lines[] = { { tr("In view"), m_inView },
                                                     { tr("Window"), m_window },
                                                     { tr("Requests"), m_requests },
                                                     { tr("Loaded"), m_memory } };
    for (const auto &[caption, value] : lines) {
        const int line = grid->rowCount();
        grid->addWidget(Labels::caption(caption, this), line, 0);
        grid->addWidget(value, line, 1);
    }
    return grid;
}

QLayout *HistoryCard::makeControls()
{
    auto *row = new WrapLayout(Metrics::small);
    addJump(row, tr("First row"), 0);
    addJump(row, tr("Middle"), middleRow);
    addJump(row, tr("Last row"), HistoryModel::messageCount - 1);
    const int delays[] = { 150, 600, 2400 };
    auto *speed = new SegmentedControl({ tr("Quick"), tr("Slow"), tr("Very slow") }, this);
    speed->setCurrentIndex(1);
    connect(speed, &SegmentedControl::chosen, m_server,
            [server = m_server, delays](int i) { server->setMeanDelay(delays[i]); });
    row->addWidget(new ControlRow(tr("Server"), speed, this));
    return row;
}

void HistoryCard::addJump(QLayout *row, const QString &text, int listRow)
{
    auto *button = Buttons::make(text, this);
    connect(button, &OxaPushButton::clicked, m_view,
            [view = m_view, listRow] { view->scrollToRow(listRow); });
    row->addWidget(button);
}

void HistoryCard::addLine(const QString &line)
{
    m_log->appendPlainText(line);
    showFigures();
}

void HistoryCard::showFigures()
{
    const HistoryServer::Figures &figures = m_server->figures();
    m_inView->setText(tr("%1 of %2")
                              .arg(rangeText(m_view->firstRow(), m_view->lastRow()),
                                   HistoryModel::textOf(m_model->size() - 1)));
    m_window->setText(rangeText(m_model->getStartIndex(), m_model->endIndex() - 1));
    m_requests->setText(tr("%1 pages asked, %2 pending, %3 late")
                                .arg(figures.asked)
                                .arg(m_server->pendingCount())
                                .arg(figures.late));
    m_memory->setText(memoryText());
}

QString HistoryCard::memoryText() const
{
    const int items = m_model->loadedCount();
    const auto bytes = bytesPerItem();
    return bytes ? tr("%1 items, %2 KB").arg(items).arg(items * *bytes / 1024)
                 : tr("%1 items").arg(items);
}
