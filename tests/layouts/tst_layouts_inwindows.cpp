// SPDX-License-Identifier: Apache-2.0
#include "Blocks.h"
#include "support/Guards.h"
#include "support/TestMain.h"

#include <UiElements/layouts/AutoGridLayout.h>
#include <UiElements/layouts/FixedItemRatioLayoutNotSupportScroll.h>
#include <UiElements/layouts/SmartLayout.h>

#include <QScrollArea>
#include <QTest>
#include <QVBoxLayout>

#include <functional>
#include <limits>
#include <utility>

using Blocks::Block;

namespace {

/// A shown window of 100 by 100 pixels with a layout of blocks.
template <typename LayoutClass, typename... Arguments>
struct Window : QWidget
{
    explicit Window(Arguments... arguments) : layout(this, QMargins(), 5, 3, arguments...)
    {
        for (int i = 0; i < 3; ++i)
            layout.addWidget(new Block(QSize(40, 10)));
        resize(100, 100);
        show();
    }

    LayoutClass layout;
};

using GridWindow = Window<AutoGridLayout>;
using MakeLayout = std::function<FlowLayout *()>;

/// A block that calls a function when it is moved.
class BusyBlock : public Block
{
public:
    explicit BusyBlock(std::function<void()> onMove)
        : Block(QSize(40, 10)), m_onMove(std::move(onMove))
    {
    }

protected:
    void moveEvent(QMoveEvent *) override { m_onMove(); }

private:
    const std::function<void()> m_onMove;
};

/// An item that calls a function when it is placed.
class BusyItem : public Blocks::Item
{
public:
    explicit BusyItem(std::function<void()> onMove)
        : Item(QSize(40, 10)), m_onMove(std::move(onMove))
    {
    }

    void setGeometry(const QRect &) override
    {
        // Deleting the layout deletes this item.
        const auto onMove = m_onMove;
        onMove();
    }

private:
    const std::function<void()> m_onMove;
};

const QString inTwoRows = QStringLiteral("0,0 40x10 | 45,0 40x10 | 0,13 40x10");
const QString inOneRow = QStringLiteral("0,0 40x10 | 45,0 40x10 | 90,0 40x10");

} // namespace

Q_DECLARE_METATYPE(MakeLayout)

/// The layouts in windows, driven by Qt.
class tst_LayoutsInWindows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void laysOutWhatIsShown();
    void laysOutAgainWhenTheWindowChanges();
    void laysOutAgainWhenAWidgetIsAdded();
    void laysOutAgainWhenAWidgetIsRemoved();
    void keepsTheSpacingAfterAHiddenWidget();
    void growsInAColumnWithItsRows();
    void scrollsByItsHeightForWidth();
    void exchangesMarginsOnTheScreen();
    void fillsTheWindowWithTiles();
    void setsTheGeometryOfItemsEvenWhereItIsTheSame();
    void survivesAWidgetThatDeletesOthersWhenItMoves_data() { addLayouts(); }
    void survivesAWidgetThatDeletesOthersWhenItMoves();
    void survivesAnItemThatDeletesTheLayout_data() { addLayouts(); }
    void survivesAnItemThatDeletesTheLayout();
    void survivesLengthsWhoseSumOverflowsInt_data() { addLayouts(); }
    void survivesLengthsWhoseSumOverflowsInt();

private:
    static void addLayouts();
};

void tst_LayoutsInWindows::addLayouts()
{
    QTest::addColumn<MakeLayout>("makeLayout");
    const QMargins none;
    QTest::newRow("grid") << MakeLayout(
            [none]() -> FlowLayout * { return new AutoGridLayout(none, 5, 3); });
    QTest::newRow("smart") << MakeLayout([none]() -> FlowLayout * {
        return new SmartLayout(nullptr, none, 5, 3, Qt::AlignCenter, -1, false);
    });
    QTest::newRow("smart, by widgets' sizes") << MakeLayout([none]() -> FlowLayout * {
        return new SmartLayout(nullptr, none, 5, 3, Qt::AlignCenter, -1, true);
    });
    QTest::newRow("tiles") << MakeLayout([none]() -> FlowLayout * {
        return new FixedItemRatioLayoutNotSupportScroll(none, 5, 3);
    });
}

void tst_LayoutsInWindows::laysOutWhatIsShown()
{
    const GridWindow grid;
    QTRY_COMPARE(Blocks::text(grid.layout), inTwoRows);
    const Window<SmartLayout, Qt::AlignmentFlag, int, bool> smart(Qt::AlignLeft, -1, true);
    QTRY_COMPARE(Blocks::text(smart.layout), inTwoRows);
    QVERIFY(smart.layout.widgetAt(2)->isVisible());
}

void tst_LayoutsInWindows::laysOutAgainWhenTheWindowChanges()
{
    GridWindow window;
    window.resize(200, 100);
    QTRY_COMPARE(Blocks::text(window.layout), inOneRow);
    window.resize(100, 100);
    QTRY_COMPARE(Blocks::text(window.layout), inTwoRows);
}

void tst_LayoutsInWindows::laysOutAgainWhenAWidgetIsAdded()
{
    GridWindow window;
    QTRY_COMPARE(Blocks::text(window.layout), inTwoRows);
    window.layout.addWidget(new Block(QSize(20, 20)));
    QTRY_COMPARE(Blocks::text(window.layout), inTwoRows + QStringLiteral(" | 45,13 20x20"));
    window.layout.prependWidget(new Block(QSize(30, 10)));
    QTRY_COMPARE(Blocks::text(window.layout),
                 QStringLiteral("0,0 30x10 | 35,0 40x10 | 0,13 40x10 | 45,13 20x20 | 0,26 40x10"));
}

void tst_LayoutsInWindows::laysOutAgainWhenAWidgetIsRemoved()
{
    GridWindow window;
    QTRY_COMPARE(Blocks::text(window.layout), inTwoRows);
    delete window.layout.widgetAt(0);
    QTRY_COMPARE(Blocks::text(window.layout), QStringLiteral("0,0 40x10 | 45,0 40x10"));
}

void tst_LayoutsInWindows::keepsTheSpacingAfterAHiddenWidget()
{
    GridWindow window;
    QTRY_COMPARE(Blocks::text(window.layout), inTwoRows);
    window.layout.widgetAt(0)->hide();
    // A hidden widget is an item without a size, and the spacing after it stays.
    QTRY_COMPARE(window.layout.widgetAt(1)->geometry(), QRect(5, 0, 40, 10));
    QCOMPARE(window.layout.widgetAt(2)->geometry(), QRect(50, 0, 40, 10));
}

void tst_LayoutsInWindows::growsInAColumnWithItsRows()
{
    QWidget window;
    QVBoxLayout column(&window);
    column.setContentsMargins(0, 0, 0, 0);
    column.setSpacing(0);
    auto *layout = new AutoGridLayout(QMargins(), 5, 3);
    column.addLayout(layout);
    auto *below = new Block(QSize(40, 10));
    column.addWidget(below, 1);
    for (int i = 0; i < 3; ++i)
        layout->addWidget(new Block(QSize(40, 10)));
    window.resize(100, 100);
    window.show();
    QTRY_COMPARE(below->y(), 23);
    window.resize(200, 100);
    QTRY_COMPARE(below->y(), 10);
}

void tst_LayoutsInWindows::scrollsByItsHeightForWidth()
{
    QScrollArea area;
    area.setFrameShape(QFrame::NoFrame);
    area.setWidgetResizable(true);
    area.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto *contents = new QWidget;
    auto *layout = new SmartLayout(contents, QMargins(), 5, 3, Qt::AlignLeft, -1, false);
    for (int i = 0; i < 20; ++i)
        layout->addWidget(new Block(QSize(40, 10)));
    area.setWidget(contents);
    area.resize(100, 50);
    area.show();
    QTRY_COMPARE(contents->height(), 10 * 10 + 9 * 3);
    area.resize(2000, 50);
    QTRY_COMPARE(contents->height(), 50);
}

void tst_LayoutsInWindows::exchangesMarginsOnTheScreen()
{
    GridWindow window;
    window.layout.setContentsMargins(7, 0, 0, 0);
    QTRY_COMPARE(window.layout.widgetAt(0)->x(), 7);
    const LayoutDirectionGuard direction(Qt::RightToLeft);
    QTRY_COMPARE(window.layout.widgetAt(0)->x(), 0);
}

void tst_LayoutsInWindows::fillsTheWindowWithTiles()
{
    Window<FixedItemRatioLayoutNotSupportScroll> window;
    window.layout.setItemData({ 1.0F, 0, 0, 0 });
    window.resize(300, 100);
    QTRY_COMPARE(Blocks::text(window.layout),
                 QStringLiteral("0,0 100x100 | 100,0 100x100 | 200,0 100x100"));
    window.layout.widgetAt(1)->hide();
    QTRY_COMPARE(window.layout.widgetAt(2)->geometry(), QRect(150, 0, 100, 100));
    QCOMPARE(window.layout.getCalculatedItemData().columns, 2);
}

void tst_LayoutsInWindows::setsTheGeometryOfItemsEvenWhereItIsTheSame()
{
    Window<FixedItemRatioLayoutNotSupportScroll> window;
    window.layout.setItemData({ 1.0F, 0, 0, 0 });
    window.resize(300, 100);
    QTRY_COMPARE(window.layout.widgetAt(1)->geometry(), QRect(100, 0, 100, 100));
    // The item keeps its geometry, but its widget needs less of it now.
    window.layout.setAlignment(window.layout.widgetAt(1), Qt::AlignCenter);
    QTRY_COMPARE(window.layout.widgetAt(1)->geometry(), QRect(130, 45, 40, 10));
}

void tst_LayoutsInWindows::survivesAWidgetThatDeletesOthersWhenItMoves()
{
    QFETCH(const MakeLayout, makeLayout);
    QWidget window;
    FlowLayout *layout = makeLayout();
    window.setLayout(layout);
    std::vector<QPointer<QWidget>> doomed;
    layout->addWidget(new Block(QSize(40, 10)));
    layout->addWidget(new BusyBlock([&doomed] { qDeleteAll(std::exchange(doomed, {})); }));
    for (int i = 0; i < 3; ++i)
        layout->addWidget(new Block(QSize(40, 10)));
    window.resize(200, 100);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    doomed = { layout->widgetAt(0), layout->widgetAt(2), layout->widgetAt(3) };
    const QPointer<QWidget> last = layout->widgetAt(4);
    last->move(500, 500);
    layout->setGeometry(QRect(0, 0, 50, 100));
    QCOMPARE(layout->count(), 2);
    QCOMPARE(layout->widgetAt(1), last.data());
    QVERIFY(last->x() < 100);
}

void tst_LayoutsInWindows::survivesAnItemThatDeletesTheLayout()
{
    QFETCH(const MakeLayout, makeLayout);
    const QPointer<FlowLayout> layout = makeLayout();
    layout->addItem(new BusyItem([layout] { delete layout; }));
    layout->addItem(new Blocks::Item(QSize(40, 10)));
    layout->setGeometry(QRect(0, 0, 100, 100));
    QVERIFY(!layout);
}

void tst_LayoutsInWindows::survivesLengthsWhoseSumOverflowsInt()
{
    QFETCH(const MakeLayout, makeLayout);
    constexpr int highest = std::numeric_limits<int>::max();
    for (const int length : { highest, -highest, QWIDGETSIZE_MAX }) {
        const std::unique_ptr<FlowLayout> layout(makeLayout());
        Blocks::fill(*layout, std::vector<QSize>(300, QSize(length, length)));
        if (auto *tiles = qobject_cast<FixedItemRatioLayoutNotSupportScroll *>(layout.get()))
            tiles->setItemData({ std::numeric_limits<float>::max(), -length, length, length });
        // The result for negative lengths is undefined, but must not overflow either.
        for (const int width : { 100, highest, -highest })
            QVERIFY(layout->heightForWidth(width) >= 0 || length < 0 || width < 0);
        QVERIFY(layout->minimumSize().isValid() || length < 0);
        layout->setGeometry(QRect(0, 0, QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
        QCOMPARE(static_cast<Blocks::Item *>(layout->itemAt(299))->moves, 1);
    }
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_LayoutsInWindows)
#include "tst_layouts_inwindows.moc"
