// SPDX-License-Identifier: Apache-2.0
#include "CompoundSample.h"

#include "looks/Metrics.h"
#include "widgets/Buttons.h"

#include <UiElements/keyboard/TabOrderUtils.h>

#include <QGuiApplication>
#include <QVBoxLayout>

#include <map>

namespace {

QString nameOf(QLayoutItem *item)
{
    return static_cast<const OxaPushButton *>(item->widget())->text();
}

} // namespace

CompoundSample::CompoundSample(QWidget *parent)
    : OxaWidget(parent),
      m_first(Buttons::make(tr("First"), this)),
      m_last(Buttons::make(tr("Last"), this)),
      m_items(new SmartLayout(nullptr, QMargins(), Metrics::small, Metrics::small, Qt::AlignLeft,
                              -1, false))
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Metrics::small);
    column->addWidget(m_first, 0, Qt::AlignLeft);
    column->addLayout(m_items);
    column->addWidget(m_last, 0, Qt::AlignLeft);
    const QStringList names { tr("Ada"), tr("Ben"), tr("Cleo"), tr("Dev"), tr("Eva"), tr("Finn") };
    for (const QString &name : names)
        m_items->addWidget(Buttons::make(name));
    chain();
    connect(qGuiApp, &QGuiApplication::layoutDirectionChanged, this, &CompoundSample::alignToStart);
    alignToStart();
}

void CompoundSample::sortForwards()
{
    m_items->sort([](QLayoutItem *a, QLayoutItem *b) { return nameOf(a) < nameOf(b); });
    chain();
}

void CompoundSample::sortBackwards()
{
    m_items->sort([](QLayoutItem *a, QLayoutItem *b) { return nameOf(a) > nameOf(b); });
    chain();
}

void CompoundSample::shuffle()
{
    std::map<QLayoutItem *, std::mt19937::result_type> places;
    for (int i = 0; i < m_items->count(); ++i)
        places[m_items->itemAt(i)] = m_generator();
    m_items->sort([&places](QLayoutItem *a, QLayoutItem *b) { return places[a] < places[b]; });
    chain();
}

/// The layout runs from left to right in both directions: its client decides where lines begin.
void CompoundSample::alignToStart()
{
    m_items->setAlignment(QGuiApplication::isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft);
    m_items->invalidate();
}

void CompoundSample::chain() { TabOrderUtils::setCompoundTabOrder(m_first, m_items, m_last); }
