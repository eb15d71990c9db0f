// SPDX-License-Identifier: Apache-2.0
#include "PlainFlow.h"

#include <QTest>

Q_DECLARE_METATYPE(std::vector<QPoint>)

namespace {

/// A widget whose layout has letters at given places. Each is 20 pixels wide and 11 high.
class Placed : public Letters
{
public:
    explicit Placed(const std::vector<QPoint> &centres) : Letters(names(int(centres.size())))
    {
        for (std::size_t i = 0; i < centres.size(); ++i)
            widget(int(i))->setGeometry(QRect(centres[i] - QPoint(9, 5), QSize(20, 11)));
    }

    QWidget *widget(int index) const { return layout.widgetAt(index); }

    /// Returns the letter that \a key leads to from \a letter; empty when it leads nowhere.
    QString next(char letter, Qt::Key key) const
    {
        const auto *label = qobject_cast<QLabel *>(layout.nextWidget(widget(letter - 'A'), key));
        return label ? label->text() : QString();
    }

private:
    static QString names(int count)
    {
        return QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ").mid(0, count);
    }
};

/// A grid of \a rows rows of three, 30 pixels apart.
std::vector<QPoint> grid(int rows)
{
    std::vector<QPoint> centres;
    for (int i = 0; i < 3 * rows; ++i)
        centres.emplace_back(100 + 30 * (i % 3), 100 + 30 * (i / 3));
    return centres;
}

} // namespace

/// The neighbour that a key leads to.
class tst_FlowLayoutNextWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void goesToTheNeighbour_data();
    void goesToTheNeighbour();
    void takesTheNearestCentre_data();
    void takesTheNearestCentre();
    void takesHalfOfAnOddHeightCutOff_data();
    void takesHalfOfAnOddHeightCutOff();
    void goesFourStepsAtMostByAPage();
    void measuresEachStepOfAPageAnew();
    void leadsNowhereFromAStranger();
    void leadsNowhereFromNothing();
    void passesOverWhatIsNoWidget();
    void countsHiddenWidgets();
    void leadsNowhereAcrossADistanceThatNoIntHolds();
};

void tst_FlowLayoutNextWidget::goesToTheNeighbour_data()
{
    QTest::addColumn<char>("letter");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QString>("next");
    QTest::newRow("left") << 'B' << Qt::Key_Left << QStringLiteral("A");
    QTest::newRow("left of the first") << 'A' << Qt::Key_Left << QString();
    QTest::newRow("left, into the row above") << 'D' << Qt::Key_Left << QStringLiteral("C");
    QTest::newRow("right") << 'B' << Qt::Key_Right << QStringLiteral("C");
    QTest::newRow("right of the last") << 'I' << Qt::Key_Right << QString();
    QTest::newRow("right, into the row below") << 'C' << Qt::Key_Right << QStringLiteral("D");
    QTest::newRow("up") << 'E' << Qt::Key_Up << QStringLiteral("B");
    QTest::newRow("up from the top") << 'B' << Qt::Key_Up << QString();
    QTest::newRow("down") << 'E' << Qt::Key_Down << QStringLiteral("H");
    QTest::newRow("down from the bottom") << 'H' << Qt::Key_Down << QString();
    QTest::newRow("page down stops in the last row")
            << 'B' << Qt::Key_PageDown << QStringLiteral("H");
    QTest::newRow("page down from the middle") << 'F' << Qt::Key_PageDown << QStringLiteral("I");
    QTest::newRow("page down from the bottom") << 'G' << Qt::Key_PageDown << QString();
    QTest::newRow("page up stops in the first row") << 'I' << Qt::Key_PageUp << QStringLiteral("C");
    QTest::newRow("page up from the top") << 'C' << Qt::Key_PageUp << QString();
    QTest::newRow("home") << 'E' << Qt::Key_Home << QString();
    QTest::newRow("tab") << 'E' << Qt::Key_Tab << QString();
    QTest::newRow("a letter") << 'E' << Qt::Key_A << QString();
}

void tst_FlowLayoutNextWidget::goesToTheNeighbour()
{
    QFETCH(const char, letter);
    QFETCH(const Qt::Key, key);
    const Placed placed(grid(3));
    QTEST(placed.next(letter, key), "next");
}

void tst_FlowLayoutNextWidget::takesTheNearestCentre_data()
{
    QTest::addColumn<std::vector<QPoint>>("centres");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QString>("next");
    const std::vector<QPoint> near { { 100, 100 }, { 100, 160 }, { 110, 120 } };
    QTest::newRow("down, later in the list") << near << Qt::Key_Down << QStringLiteral("C");
    const std::vector<QPoint> across { { 100, 100 }, { 180, 120 }, { 100, 170 } };
    QTest::newRow("down, a little further down but less far away")
            << across << Qt::Key_Down << QStringLiteral("C");
    const std::vector<QPoint> below { { 100, 100 }, { 90, 130 }, { 110, 130 }, { 100, 200 } };
    QTest::newRow("down, of equally near ones the last")
            << below << Qt::Key_Down << QStringLiteral("C");
    const std::vector<QPoint> above { { 100, 100 }, { 90, 70 }, { 110, 70 }, { 100, 0 } };
    QTest::newRow("up, of equally near ones the first")
            << above << Qt::Key_Up << QStringLiteral("B");
}

void tst_FlowLayoutNextWidget::takesTheNearestCentre()
{
    QFETCH(const std::vector<QPoint>, centres);
    QFETCH(const Qt::Key, key);
    const Placed placed(centres);
    QTEST(placed.next('A', key), "next");
}

void tst_FlowLayoutNextWidget::takesHalfOfAnOddHeightCutOff_data()
{
    QTest::addColumn<int>("distance");
    QTest::addColumn<QString>("next");
    QTest::newRow("in the same row") << 0 << QString();
    QTest::newRow("within half the height, which is 11") << 4 << QString();
    QTest::newRow("at half the height") << 5 << QString();
    QTest::newRow("a pixel beyond") << 6 << QStringLiteral("B");
}

void tst_FlowLayoutNextWidget::takesHalfOfAnOddHeightCutOff()
{
    QFETCH(const int, distance);
    const Placed below({ { 100, 100 }, { 130, 100 + distance } });
    QTEST(below.next('A', Qt::Key_Down), "next");
    const Placed above({ { 100, 100 }, { 130, 100 - distance } });
    QTEST(above.next('A', Qt::Key_Up), "next");
}

void tst_FlowLayoutNextWidget::goesFourStepsAtMostByAPage()
{
    const Placed placed(grid(7));
    QCOMPARE(placed.next('B', Qt::Key_PageDown), QStringLiteral("N"));
    QCOMPARE(placed.next('T', Qt::Key_PageUp), QStringLiteral("H"));
    QCOMPARE(placed.next('N', Qt::Key_PageDown), QStringLiteral("T"));
}

void tst_FlowLayoutNextWidget::measuresEachStepOfAPageAnew()
{
    // A stair: each step is nearest to the one before, and not to the start.
    const Placed placed({ { 100, 100 }, { 150, 130 }, { 200, 160 }, { 100, 400 } });
    QCOMPARE(placed.next('A', Qt::Key_Down), QStringLiteral("B"));
    QCOMPARE(placed.next('B', Qt::Key_Down), QStringLiteral("C"));
    QCOMPARE(placed.next('A', Qt::Key_PageDown), QStringLiteral("D"));
}

void tst_FlowLayoutNextWidget::leadsNowhereFromAStranger()
{
    const Placed placed(grid(3));
    QWidget stranger;
    for (const Qt::Key key : { Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_PageDown })
        QCOMPARE(placed.layout.nextWidget(&stranger, key), nullptr);
}

void tst_FlowLayoutNextWidget::leadsNowhereFromNothing()
{
    Placed placed(grid(1));
    QCOMPARE(placed.layout.nextWidget(nullptr, Qt::Key_Left), nullptr);
    // The first item without a widget is found by none, but is nowhere on the screen.
    placed.layout.addItem(new Blocks::Item(QSize(10, 10)));
    for (const Qt::Key key : { Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown })
        QCOMPARE(placed.layout.nextWidget(nullptr, key), nullptr);
}

void tst_FlowLayoutNextWidget::passesOverWhatIsNoWidget()
{
    Placed placed({ { 100, 100 } });
    placed.layout.addItem(new Blocks::Item(QSize(10, 10)));
    placed.layout.addWidget(new QLabel(QStringLiteral("C")));
    placed.widget(2)->setGeometry(90, 200, 20, 10);
    QCOMPARE(placed.next('A', Qt::Key_Down), QStringLiteral("C"));
    QCOMPARE(placed.next('C', Qt::Key_Up), QStringLiteral("A"));
    // To the side there is an item, but no widget.
    QCOMPARE(placed.next('A', Qt::Key_Right), QString());
}

void tst_FlowLayoutNextWidget::countsHiddenWidgets()
{
    const Placed placed(grid(3));
    placed.widget(4)->hide();
    QCOMPARE(placed.next('B', Qt::Key_Down), QStringLiteral("E"));
    QCOMPARE(placed.next('D', Qt::Key_Right), QStringLiteral("E"));
}

void tst_FlowLayoutNextWidget::leadsNowhereAcrossADistanceThatNoIntHolds()
{
    const Placed near({ { 100, 100 }, { 100, 46440 } });
    QCOMPARE(near.next('A', Qt::Key_Down), QStringLiteral("B"));
    const Placed far({ { 100, 100 }, { 100, 46441 } });
    QCOMPARE(far.next('A', Qt::Key_Down), QString());
    const Placed farther({ { 100, 100 }, { 100, 100000 } });
    QCOMPARE(farther.next('A', Qt::Key_Down), QString());
}

QTEST_MAIN(tst_FlowLayoutNextWidget)
#include "tst_flowlayout_nextwidget.moc"
