// SPDX-License-Identifier: Apache-2.0
#include "TableView.h"

#include "ItemDelegate.h"
#include "looks/TextSettings.h"
#include "shell/GalleryApplication.h"

#include <UiElements/fonts/OxaFont.h>

#include <QHeaderView>

namespace {

/// The minimum width of the first column, in widest letters.
constexpr int leastNameLength = 12;

} // namespace

TableView::TableView(QAbstractItemModel *model, ItemDelegate *delegate, QWidget *parent)
    : QTableView(parent), m_delegate(delegate)
{
    delegate->setParent(this);
    // Qt has cached the style's answers about the header before there were rules for it. A polished
    // widget drops them when it gets a sheet.
    ensurePolished();
    applyLook();

    setModel(model);
    setItemDelegate(delegate);
    setMouseTracking(true);
    setShowGrid(false);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setUpHeaders();
    m_themeBlock.followTheme();

    connect(qGuiApp, &QGuiApplication::layoutDirectionChanged, this, &TableView::applyLook);
    connect(GalleryApplication::get()->textSettings(), &TextSettings::sizesChanged, this,
            &TableView::refresh);
}

void TableView::refresh()
{
    m_delegate->refresh(getThemeType());
    // The header measures with its own font and paints with its viewport's. With a style sheet the
    // viewport does not inherit the font.
    const OxaFont headerFont(OxaFont::Token::RadioButtonLabelSecondary);
    horizontalHeader()->setFont(headerFont);
    horizontalHeader()->viewport()->setFont(headerFont);
    fitFirstColumn();
    viewport()->update();
}

void TableView::onThemeChanged() { refresh(); }

void TableView::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    fitFirstColumn();
}

void TableView::fitFirstColumn()
{
    QHeaderView *header = horizontalHeader();
    const int others = header->length() - header->sectionSize(0);
    const int nameWidth = header->fontMetrics().horizontalAdvance(QLatin1Char('m'))
            * leastNameLength;
    header->resizeSection(0, qMax(nameWidth, viewport()->width() - others));
}

void TableView::applyLook()
{
    // In a style sheet, the first section is the leftmost one in both directions.
    const QString firstSection = QGuiApplication::isRightToLeft() ? QStringLiteral("last")
                                                                  : QStringLiteral("first");
    setCSS(QStringLiteral("$backgroundColors: gallery-card-background;"
                          "$borderColors: gallery-card-border;"
                          "$borderRadius: 8;"
                          // The delegate paints the background of a chosen row.
                          "TableView { padding: 1px; selection-background-color: transparent; }"
                          "TableView:focus { padding: 0;"
                          " border: 2px solid $(gallery-focus-border); }"
                          "QHeaderView, QHeaderView::section {"
                          " background: $(gallery-card-background); border: none;"
                          " color: $(gallery-caption-text); }"
                          "QHeaderView::section { padding: 8px 0; }"
                          "QHeaderView::section:%1 { padding: 8px 16px; }")
                   .arg(firstSection));
}

void TableView::setUpHeaders()
{
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(1);
    QHeaderView *header = horizontalHeader();
    header->setHighlightSections(false);
    header->setSectionsClickable(false);
    header->setMinimumSectionSize(1);
    header->setSectionResizeMode(QHeaderView::Fixed);
}

void TableView::focusInEvent(QFocusEvent *event)
{
    ItemDelegate::ensureCurrent(*this);
    QTableView::focusInEvent(event);
}
