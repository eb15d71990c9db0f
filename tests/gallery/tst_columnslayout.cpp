// SPDX-License-Identifier: Apache-2.0
#include "support/TestMain.h"

#include <QApplication>
#include <QWidget>

#include <widgets/ColumnsLayout.h>

namespace {

/// A panel whose layout holds two cards, a wide one below them, and another one.
struct Panel
{
    Panel()
    {
        layout->addWidget(makeCard(QSize(100, 40)));
        layout->addWidget(makeCard(QSize(80, 60)));
        layout->addWideWidget(makeCard(QSize(150, 30)));
        layout->addWidget(makeCard(QSize(90, 50)));
    }

    QWidget *makeCard(const QSize &leastSize)
    {
        auto *card = new QWidget(&widget);
        card->setMinimumSize(leastSize);
        return card;
    }

    /// Lays the cards out in \a size and returns where they are.
    QVector<QRect> rectsIn(const QSize &size) const
    {
        layout->setGeometry(QRect(QPoint(), size));
        QVector<QRect> rects;
        for (int i = 0; i < layout->count(); ++i)
            rects += layout->widgetAt(i)->geometry();
        return rects;
    }

    QWidget widget;
    ColumnsLayout *layout = new ColumnsLayout(10, 20, &widget);
};

} // namespace

/// ColumnsLayout: the positions of cards, and its height.
class tst_ColumnsLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void placesCardsInColumns_data();
    void placesCardsInColumns();
    void needsTheHeightOfItsRows();
    void asksForTheRoomOfOneColumn();
    void passesOverHiddenCards();
};

void tst_ColumnsLayout::placesCardsInColumns_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QVector<QRect>>("rects");
    QTest::newRow("two columns, in just enough room for the wider card twice")
            << Qt::LeftToRight << QSize(210, 180)
            << QVector<QRect> {
                   { 0, 0, 100, 60 }, { 110, 0, 100, 60 }, { 0, 80, 210, 30 }, { 0, 130, 100, 50 }
               };
    QTest::newRow("one column, in a pixel less")
            << Qt::LeftToRight << QSize(209, 240)
            << QVector<QRect> {
                   { 0, 0, 209, 40 }, { 0, 60, 209, 60 }, { 0, 140, 209, 30 }, { 0, 190, 209, 50 }
               };
    QTest::newRow("two columns from the right")
            << Qt::RightToLeft << QSize(310, 180)
            << QVector<QRect> {
                   { 160, 0, 150, 60 }, { 0, 0, 150, 60 }, { 0, 80, 310, 30 }, { 160, 130, 150, 50 }
               };
    QTest::newRow("two columns, where the last row takes the remaining height")
            << Qt::LeftToRight << QSize(210, 200)
            << QVector<QRect> {
                   { 0, 0, 100, 60 }, { 110, 0, 100, 60 }, { 0, 80, 210, 30 }, { 0, 130, 100, 70 }
               };
}

void tst_ColumnsLayout::placesCardsInColumns()
{
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const QSize, size);
    Panel panel;
    panel.widget.setLayoutDirection(direction);
    QTEST(panel.rectsIn(size), "rects");
}

void tst_ColumnsLayout::needsTheHeightOfItsRows()
{
    const Panel panel;
    QCOMPARE(panel.layout->heightForWidth(210), 60 + 20 + 30 + 20 + 50);
    QCOMPARE(panel.layout->heightForWidth(209), 40 + 20 + 60 + 20 + 30 + 20 + 50);
}

void tst_ColumnsLayout::asksForTheRoomOfOneColumn()
{
    const Panel panel;
    QCOMPARE(panel.layout->minimumSize().width(), 150);
}

void tst_ColumnsLayout::passesOverHiddenCards()
{
    const Panel panel;
    panel.layout->widgetAt(0)->hide();
    const QVector<QRect> rects = panel.rectsIn(QSize(210, 180));
    QCOMPARE(rects[1], QRect(0, 0, 100, 60));
    QCOMPARE(rects[2], QRect(0, 80, 210, 30));
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_ColumnsLayout)
#include "tst_columnslayout.moc"
