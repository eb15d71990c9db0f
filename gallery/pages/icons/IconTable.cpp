// SPDX-License-Identifier: Apache-2.0
#include "IconTable.h"

#include "IconDelegate.h"
#include "IconModel.h"
#include "IconRenderers.h"
#include "widgets/ScrollArea.h"

#include <UiElements/fonts/OxaFont.h>

#include <QGuiApplication>
#include <QHeaderView>

IconTable::IconTable(IconModel *model, IconRenderers *renderers, QWidget *parent)
    : QTableView(parent), m_delegate(new IconDelegate(model, renderers, this))
{
    // Qt asked the style about parts of the table before there were rules for them. It forgets the
    // answers when a widget that is polished gets a sheet.
    ensurePolished();
    applyLook();

    setModel(model);
    setItemDelegate(m_delegate);
    setMouseTracking(true);
    setShowGrid(false);
    setSelectionMode(SingleSelection);
    setSelectionBehavior(SelectRows);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setUpHeaders();
    m_themeBlock.followTheme();

    connect(qGuiApp, &QGuiApplication::layoutDirectionChanged, this, &IconTable::applyLook);
    connect(renderers, &IconRenderers::repaintNeeded, viewport(), qOverload<>(&QWidget::update));
}

void IconTable::setColorSetName(const QString &name)
{
    m_colorSetName = name;
    refresh();
}

void IconTable::setIconPixels(int size)
{
    m_delegate->setIconSize(size);
    refresh();
}

OxaColorSet IconTable::colorSet() const
{
    return OxaThemeUtils::getColorSet(m_colorSetName.toStdString(), getThemeType());
}

void IconTable::refresh()
{
    m_delegate->refresh(getThemeType());
    m_delegate->setColorSet(colorSet());
    // A style sheet keeps the header from handing its font to its viewport, which paints with it.
    const OxaFont headerFont(OxaFont::Token::RadioButtonLabelSecondary);
    horizontalHeader()->setFont(headerFont);
    horizontalHeader()->viewport()->setFont(headerFont);
    verticalHeader()->setDefaultSectionSize(m_delegate->rowHeight());
    for (int column = IconModel::FirstStateColumn; column < IconModel::ColumnCount; ++column)
        setColumnWidth(column, m_delegate->stateColumnWidth());
    viewport()->update();
    Q_EMIT colorsChanged();
}

void IconTable::onThemeChanged() { refresh(); }

void IconTable::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTableView::currentChanged(current, previous);
    Q_EMIT currentIconChanged();
}

void IconTable::applyLook()
{
    // To a style sheet the first section is the one to the left, in any direction.
    const QString nameSection = QGuiApplication::isRightToLeft() ? QStringLiteral("last")
                                                                 : QStringLiteral("first");
    setCSS(QStringLiteral("$backgroundColors: gallery-card-background;"
                          "$borderColors: gallery-card-border;"
                          "$borderRadius: 8;"
                          // The delegate paints the ground of a chosen row.
                          "IconTable { padding: 1px; selection-background-color: transparent; }"
                          "QHeaderView, QHeaderView::section {"
                          " background: $(gallery-card-background); border: none;"
                          " color: $(gallery-caption-text); }"
                          "QHeaderView::section { padding: 8px 0; }"
                          "QHeaderView::section:%1 { padding: 8px 16px; }")
                   .arg(nameSection)
           + ScrollArea::scrollBarStyleText());
}

void IconTable::setUpHeaders()
{
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(1);
    QHeaderView *header = horizontalHeader();
    header->setHighlightSections(false);
    header->setSectionsClickable(false);
    header->setMinimumSectionSize(1);
    header->setSectionResizeMode(QHeaderView::Fixed);
    header->setSectionResizeMode(IconModel::NameColumn, QHeaderView::Stretch);
}
