// SPDX-License-Identifier: Apache-2.0
#include "ColorSetTable.h"

#include "ColorSetDelegate.h"
#include "ColorSetModel.h"
#include "widgets/ScrollArea.h"

#include <UiElements/fonts/OxaFont.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>

ColorSetTable::ColorSetTable(ColorSetModel *model, QWidget *parent)
    : QTableView(parent), m_delegate(new ColorSetDelegate(this))
{
    // Qt asked the style about parts of the table before there were rules for them. It forgets the
    // answers when a widget that is polished gets a sheet.
    ensurePolished();
    setCSS(QStringLiteral("$backgroundColors: gallery-card-background;"
                          "$borderColors: gallery-card-border;"
                          "$borderRadius: 8;"
                          "ColorSetTable { padding: 1px; }"
                          "QHeaderView, QHeaderView::section {"
                          " background: $(gallery-card-background); border: none;"
                          " color: $(gallery-caption-text); }"
                          "QHeaderView::section { padding: 8px 16px; }")
           + ScrollArea::scrollBarStyleText());

    setModel(model);
    setItemDelegate(m_delegate);
    setMouseTracking(true);
    setShowGrid(false);
    setSelectionMode(NoSelection);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTabKeyNavigation(false);
    setUpHeaders();
    m_themeBlock.followTheme();

    connect(model, &ColorSetModel::modelReset, this, &ColorSetTable::spanHeadings);
    connect(this, &QTableView::clicked, this, &ColorSetTable::copy);
    connect(this, &QTableView::activated, this, &ColorSetTable::copy);
}

void ColorSetTable::refresh()
{
    m_delegate->refresh(getThemeType());
    setHeaderFont(OxaFont(OxaFont::Token::RadioButtonLabelSecondary));
    verticalHeader()->setDefaultSectionSize(m_delegate->rowHeight());
    for (int column = 1; column < model()->columnCount(); ++column)
        setColumnWidth(column, m_delegate->swatchColumnWidth());
    spanHeadings();
    viewport()->update();
}

void ColorSetTable::onThemeChanged() { refresh(); }

void ColorSetTable::setUpHeaders()
{
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    QHeaderView *header = horizontalHeader();
    header->setHighlightSections(false);
    header->setSectionsClickable(false);
    header->setSectionResizeMode(QHeaderView::Fixed);
    header->setSectionResizeMode(0, QHeaderView::Stretch);
    header->setDefaultAlignment(Qt::AlignCenter);
}

void ColorSetTable::setHeaderFont(const QFont &font)
{
    // The header measures with its own font and paints with its viewport's, and a style sheet keeps
    // the one from handing its font to the other.
    horizontalHeader()->setFont(font);
    horizontalHeader()->viewport()->setFont(font);
}

void ColorSetTable::spanHeadings()
{
    clearSpans();
    for (int row = 0; row < model()->rowCount(); ++row) {
        if (!model()->index(row, 0).data(ColorSetModel::HeadingRole).toBool())
            continue;
        setSpan(row, 0, 1, model()->columnCount());
        setRowHeight(row, m_delegate->headingHeight());
    }
}

void ColorSetTable::copy(const QModelIndex &index)
{
    const QString text = index.data().toString();
    QGuiApplication::clipboard()->setText(text);
    Q_EMIT copied(text);
}
