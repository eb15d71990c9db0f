// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaListWidget.h>

#include <QLabel>
#include <QScrollBar>
#include <QStringList>

#include <functional>
#include <set>
#include <utility>

/// A list of 100 by 100 pixels without a frame whose rows are 20 pixels high, so that five are on
/// screen. It makes a label for each row that is asked for, and records the signals and rows.
class LoadedList : public OxaListWidget
{
public:
    explicit LoadedList(int rows = 0, bool isDynamic = true) : OxaListWidget(nullptr, false)
    {
        setFrameShape(QFrame::NoFrame);
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
        setAttribute(Qt::WA_DontShowOnScreen);
        resize(100, 100);
        connect(this, &OxaListWidget::updateItemWidget, this, [this](QListWidgetItem *item) {
            log += item->text();
            makeWidget(item);
        });
        connect(this, &OxaListWidget::updateItemSize, this,
                [this](QListWidgetItem *item) { sizes.insert(item->text()); });
        connect(this, &OxaListWidget::visibleUpdated, this,
                [this] { log += QStringLiteral("visible"); });
        setItemWidgetsDynamicLoadingEnabled(isDynamic);
        fill(rows);
    }

    /// Adds \a rows rows, which are named by their number, in one pass.
    void fill(int rows)
    {
        beginInsert();
        for (int row = 0; row < rows; ++row)
            insertItem(count(), makeItem(QString::number(count())));
        endInsert();
    }

    static QListWidgetItem *makeItem(const QString &text, int height = 20)
    {
        auto *item = new QListWidgetItem(text);
        item->setSizeHint(QSize(10, height));
        return item;
    }

    /// Returns the signals since the last call, and last the rows whose sizes were asked for in the
    /// order of their texts: "5 visible | 0 1 2".
    QString takeLog()
    {
        QString text = std::exchange(log, {}).join(QLatin1Char(' '));
        if (!sizes.empty())
            text += QLatin1String(" | ")
                    + QStringList(sizes.cbegin(), sizes.cend()).join(QLatin1Char(' '));
        sizes.clear();
        return text;
    }

    /// Returns the rows that hold a widget by their texts: "0 1".
    QString rowsWithWidgets() const
    {
        QStringList rows;
        for (int row = 0; row < count(); ++row) {
            if (itemWidget(item(row)))
                rows += item(row)->text();
        }
        return rows.join(QLatin1Char(' '));
    }

    void scrollToValue(int value) { verticalScrollBar()->setValue(value); }

    void executeLayout() { executeDelayedItemsLayout(); }

    using OxaListWidget::updateCurrentVisibleListItems;

    QStringList log;
    std::multiset<QString> sizes;
    std::function<void(QListWidgetItem *)> makeWidget = [this](QListWidgetItem *item) {
        setItemWidget(item, new QLabel(item->text()));
    };
};
