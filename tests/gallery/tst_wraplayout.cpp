// SPDX-License-Identifier: Apache-2.0
#include "support/TestMain.h"

#include <QApplication>
#include <QWidget>

#include <widgets/WrapLayout.h>

namespace {

constexpr int spacing = 10;

/// A panel whose layout holds boxes of the sizes of a header's controls.
struct Panel
{
    Panel()
    {
        for (const QSize &size : { QSize(100, 20), QSize(60, 30), QSize(80, 20) }) {
            auto *box = new QWidget(&widget);
            box->setFixedWidth(size.width());
            box->setMinimumHeight(size.height());
            layout->addWidget(box);
        }
    }

    /// Lays the boxes out in \a width and returns where they are.
    QVector<QRect> rectsIn(int width) const
    {
        layout->setGeometry(QRect(0, 0, width, layout->heightForWidth(width)));
        QVector<QRect> rects;
        for (int i = 0; i < layout->count(); ++i)
            rects += layout->widgetAt(i)->geometry();
        return rects;
    }

    QWidget widget;
    WrapLayout *layout = new WrapLayout(spacing, &widget);
};

} // namespace

/// WrapLayout: the positions of widgets, and its height.
class tst_WrapLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void placesWidgetsInReadingDirection_data();
    void placesWidgetsInReadingDirection();
    void needsTheHeightOfItsRows_data();
    void needsTheHeightOfItsRows();
    void passesOverHiddenWidgets();
    void makesNoWidgetWiderThanItself();
};

void tst_WrapLayout::placesWidgetsInReadingDirection_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<int>("width");
    QTest::addColumn<QVector<QRect>>("rects");
    QTest::newRow("from the left, in one row as high as its highest widget")
            << Qt::LeftToRight << 300
            << QVector<QRect> { { 0, 0, 100, 30 }, { 110, 0, 60, 30 }, { 180, 0, 80, 30 } };
    QTest::newRow("from the left, in just enough room")
            << Qt::LeftToRight << 260
            << QVector<QRect> { { 0, 0, 100, 30 }, { 110, 0, 60, 30 }, { 180, 0, 80, 30 } };
    QTest::newRow("from the left, in a pixel less")
            << Qt::LeftToRight << 259
            << QVector<QRect> { { 0, 0, 100, 30 }, { 110, 0, 60, 30 }, { 0, 40, 80, 20 } };
    QTest::newRow("from the right, in one row")
            << Qt::RightToLeft << 300
            << QVector<QRect> { { 200, 0, 100, 30 }, { 130, 0, 60, 30 }, { 40, 0, 80, 30 } };
    QTest::newRow("from the right, in two rows")
            << Qt::RightToLeft << 200
            << QVector<QRect> { { 100, 0, 100, 30 }, { 30, 0, 60, 30 }, { 120, 40, 80, 20 } };
}

void tst_WrapLayout::placesWidgetsInReadingDirection()
{
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const int, width);
    Panel panel;
    panel.widget.setLayoutDirection(direction);
    QTEST(panel.rectsIn(width), "rects");
}

void tst_WrapLayout::needsTheHeightOfItsRows_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::newRow("one row") << 260 << 30;
    QTest::newRow("two rows") << 259 << 60;
    QTest::newRow("one row for each widget") << 100 << 90;
}

void tst_WrapLayout::needsTheHeightOfItsRows()
{
    QFETCH(const int, width);
    const Panel panel;
    QTEST(panel.layout->heightForWidth(width), "height");
}

void tst_WrapLayout::passesOverHiddenWidgets()
{
    const Panel panel;
    panel.layout->widgetAt(0)->hide();
    QCOMPARE(panel.rectsIn(300).at(1), QRect(0, 0, 60, 30));
    panel.layout->widgetAt(1)->hide();
    panel.layout->widgetAt(2)->hide();
    QCOMPARE(panel.layout->heightForWidth(300), 0);
}

void tst_WrapLayout::makesNoWidgetWiderThanItself()
{
    const Panel panel;
    panel.layout->widgetAt(0)->setMinimumWidth(0);
    panel.layout->widgetAt(0)->setMaximumWidth(QWIDGETSIZE_MAX);
    QWidget *wide = new QWidget(panel.layout->widgetAt(0));
    (new WrapLayout(0, panel.layout->widgetAt(0)))->addWidget(wide);
    wide->setMinimumSize(400, 20);
    QCOMPARE(panel.rectsIn(90).front().width(), 90);
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_WrapLayout)
#include "tst_wraplayout.moc"
