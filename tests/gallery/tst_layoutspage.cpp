// SPDX-License-Identifier: Apache-2.0
#include "Controls.h"
#include "GalleryTest.h"
#include "support/Guards.h"

#include <UiElements/layouts/AutoGridLayout.h>
#include <UiElements/layouts/SmartLayout.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaSlider.h>

#include <QMouseEvent>

#include <pages/layouts/LayoutFigures.h>
#include <pages/layouts/LayoutsPage.h>
#include <pages/layouts/ResizeFrame.h>
#include <pages/layouts/ResizeHandle.h>
#include <pages/layouts/TileBoard.h>
#include <widgets/Buttons.h>

namespace {

using Ratio = FixedItemRatioLayoutNotSupportScroll;

/// The page in a window without a minimum size, which the platform does not enforce.
struct Shown
{
    Shown()
    {
        window.resize(1000, 720);
        page.resize(window.size());
        window.show();
    }

    /// Clicks the button called \a text, of whatever kind.
    void click(const char *text) const
    {
        const auto buttons = page.findChildren<QAbstractButton *>();
        for (QAbstractButton *button : buttons) {
            if (button->text() == QLatin1String(text))
                button->click();
        }
        settle();
    }

    static void settle() { QCoreApplication::processEvents(); }

    QWidget window;
    LayoutsPage &page = *new LayoutsPage(&window);
    TileBoard &board = *page.findChild<TileBoard *>();
};

/// Returns the numbers of the first tiles of \a board.
QString firstTiles(const TileBoard &board, int count = 4)
{
    QStringList numbers;
    for (int i = 0; i < qMin(count, board.flow().count()); ++i)
        numbers += QString::number(static_cast<Tile *>(board.flow().widgetAt(i))->number());
    return numbers.join(QLatin1Char(' '));
}

/// Returns the figures as "caption value, caption value".
QString figures(const LayoutsPage &page)
{
    QStringList texts;
    const auto labels = page.findChild<LayoutFigures *>()->findChildren<OxaLabel *>();
    for (int i = 0; i < labels.size(); i += 2)
        texts += labels[i]->text() + QLatin1Char(' ') + labels[i + 1]->text();
    return texts.join(QStringLiteral(", "));
}

LayoutSettings ratioSettings(int count)
{
    LayoutSettings settings;
    settings.kind = LayoutSettings::Kind::FixedRatio;
    settings.tileCount = count;
    return settings;
}

} // namespace

/// The page "Layouts": its playground, and its numbers.
class tst_LayoutsPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choosesEachLayout();
    void hasAsManyTilesAsTheSliderSays();
    void changesTheOrderOfItsTiles();
    void keepsTheOrderWithOtherSettings();
    void showsTheNumbersOfAFlow();
    void showsTheNumbersOfARatio();
    void movesTheFocusFromTileToTile();
    void isOneStopForTab();
    void resizesByItsHandle_data();
    void resizesByItsHandle();
    void resizesByArrowKeys();
    void staysWithinItsRoom();
    void mirrorsTheMarginsOfALayoutMadeRightToLeft();
};

void tst_LayoutsPage::choosesEachLayout()
{
    const Shown shown;
    QVERIFY(qobject_cast<const AutoGridLayout *>(&shown.board.flow()));
    shown.click("Smart");
    QVERIFY(qobject_cast<const SmartLayout *>(&shown.board.flow()));
    shown.click("Fixed ratio");
    QVERIFY(qobject_cast<const Ratio *>(&shown.board.flow()));
    shown.click("Auto grid");
    QVERIFY(qobject_cast<const AutoGridLayout *>(&shown.board.flow()));
    QCOMPARE(shown.board.flow().count(), 240);
}

void tst_LayoutsPage::hasAsManyTilesAsTheSliderSays()
{
    const Shown shown;
    auto *tiles = Controls::called<OxaSlider>(shown.page, "Tiles");
    for (const int count : { 400, 7, 0, 12 }) {
        tiles->setValue(count);
        QCOMPARE(shown.board.flow().count(), count);
        QCOMPARE(shown.board.findChildren<Tile *>().size(), count);
    }
    QCOMPARE(firstTiles(shown.board), QStringLiteral("1 2 3 4"));
}

void tst_LayoutsPage::changesTheOrderOfItsTiles()
{
    const Shown shown;
    QCOMPARE(firstTiles(shown.board), QStringLiteral("1 2 3 4"));
    shown.click("Shuffle");
    QVERIFY(firstTiles(shown.board) != QLatin1String("1 2 3 4"));
    shown.click("Sort");
    QCOMPARE(firstTiles(shown.board), QStringLiteral("1 2 3 4"));
    shown.click("Prepend");
    QCOMPARE(firstTiles(shown.board), QStringLiteral("241 2 3 4"));
    QCOMPARE(static_cast<Tile *>(shown.board.flow().widgetAt(240))->number(), 1);
}

void tst_LayoutsPage::keepsTheOrderWithOtherSettings()
{
    const Shown shown;
    shown.click("Shuffle");
    const QString order = firstTiles(shown.board, 240);
    shown.click("Smart");
    shown.click("Both");
    QCOMPARE(firstTiles(shown.board, 240), order);
}

void tst_LayoutsPage::showsTheNumbersOfAFlow()
{
    const Shown shown;
    LayoutSettings settings;
    settings.sizes = LayoutSettings::Sizes::Equal;
    settings.tileCount = 7;
    shown.board.setSettings(settings);
    shown.board.parentWidget()->parentWidget()->setFixedSize(200, 300);
    shown.board.setFixedSize(170, 90);
    // Three tiles of 44 pixels with 6 between them, and 8 around.
    QTRY_COMPARE(figures(shown.page),
                 QStringLiteral("Size 170 × 90, Height for width 100, Rows 3, Longest row 3, "
                                "Overflow 0"));
}

void tst_LayoutsPage::showsTheNumbersOfARatio()
{
    const Shown shown;
    shown.click("Fixed ratio");
    shown.board.setSettings(ratioSettings(12));
    const auto &ratio = static_cast<const Ratio &>(shown.board.flow());
    QTRY_VERIFY(ratio.getCalculatedItemData().columns > 0);
    const auto data = ratio.getCalculatedItemData();
    QTRY_COMPARE(figures(shown.page),
                 QStringLiteral("Size %1 × %2, Item width %3, Item height %4, Rows %5, Columns %6")
                         .arg(shown.board.width())
                         .arg(shown.board.height())
                         .arg(data.itemWidth)
                         .arg(data.itemHeight)
                         .arg(data.rows)
                         .arg(data.columns));
}

void tst_LayoutsPage::movesTheFocusFromTileToTile()
{
    Shown shown;
    shown.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&shown.window));
    const auto focused = [] {
        const auto *tile = qobject_cast<Tile *>(QApplication::focusWidget());
        return tile ? tile->number() : 0;
    };
    QTest::mouseClick(shown.board.flow().widgetAt(1), Qt::LeftButton);
    QCOMPARE(focused(), 2);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
    QCOMPARE(focused(), 3);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
    const FlowLayout &flow = shown.board.flow();
    for (const Qt::Key key : { Qt::Key_Down, Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_Up }) {
        const QWidget *expected = flow.nextWidget(QApplication::focusWidget(), key);
        QTest::keyClick(QApplication::focusWidget(), key);
        QCOMPARE(QApplication::focusWidget(), expected);
    }
}

void tst_LayoutsPage::isOneStopForTab()
{
    Shown shown;
    shown.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&shown.window));
    shown.board.setFocus(Qt::TabFocusReason);
    QCOMPARE(QApplication::focusWidget(), shown.board.flow().widgetAt(0));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    const QWidget *next = QApplication::focusWidget();
    QVERIFY(next && !shown.board.isAncestorOf(next));
    QTest::keyClick(shown.board.flow().widgetAt(0), Qt::Key_Backtab);
    const QWidget *previous = QApplication::focusWidget();
    QVERIFY(previous && previous != next && !shown.board.isAncestorOf(previous));
}

void tst_LayoutsPage::resizesByItsHandle_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QPoint>("by");
    QTest::newRow("left to right") << Qt::LeftToRight << QPoint(-50, -30);
    QTest::newRow("right to left") << Qt::RightToLeft << QPoint(50, -30);
}

void tst_LayoutsPage::resizesByItsHandle()
{
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const QPoint, by);
    const LayoutDirectionGuard guard(direction);
    const Shown shown;
    shown.settle();
    const auto *frame = shown.page.findChild<ResizeFrame *>();
    auto *handle = shown.page.findChild<ResizeHandle *>();
    const QSize before = frame->contentsSize();
    QTest::mousePress(handle, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    QMouseEvent move(QEvent::MouseMove, QPointF(QPoint(5, 5) + by), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(handle, &move);
    QTest::mouseRelease(handle, Qt::LeftButton);
    QCOMPARE(frame->contentsSize(), before - QSize(50, 30));
}

void tst_LayoutsPage::resizesByArrowKeys()
{
    const Shown shown;
    shown.settle();
    const auto *frame = shown.page.findChild<ResizeFrame *>();
    auto *handle = shown.page.findChild<ResizeHandle *>();
    const QSize before = frame->contentsSize();
    QTest::keyClick(handle, Qt::Key_Left);
    QTest::keyClick(handle, Qt::Key_Up);
    QCOMPARE(frame->contentsSize(), before - QSize(16, 16));
    QTest::keyClick(handle, Qt::Key_Right);
    QTest::keyClick(handle, Qt::Key_Down);
    QCOMPARE(frame->contentsSize(), before);
}

void tst_LayoutsPage::staysWithinItsRoom()
{
    const Shown shown;
    shown.settle();
    auto *frame = shown.page.findChild<ResizeFrame *>();
    const QSize whole = frame->contentsSize();
    frame->setContentsSize(whole * 2);
    QCOMPARE(frame->contentsSize(), whole);
    frame->setContentsSize(QSize(0, 0));
    QCOMPARE(frame->contentsSize(), QSize(96, 64));
}

void tst_LayoutsPage::mirrorsTheMarginsOfALayoutMadeRightToLeft()
{
    LayoutSettings settings;
    settings.margins = QMargins(40, 1, 2, 3);
    const QMargins mirrored(2, 1, 40, 3);
    TileBoard board;
    board.setSettings(settings);
    const LayoutDirectionGuard guard(Qt::RightToLeft);
    QCOMPARE(board.flow().contentsMargins(), mirrored);
    board.setSettings(settings);
    QCOMPARE(board.flow().contentsMargins(), mirrored);
}

GALLERY_TEST_MAIN(tst_LayoutsPage)
#include "tst_layoutspage.moc"
