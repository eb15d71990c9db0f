// SPDX-License-Identifier: Apache-2.0
#include "PopupParts.h"
#include "PopupRules.h"
#include "support/Screens.h"
#include "support/TestApplication.h"

#include <QProcess>
#include <QRegularExpression>

using PopupParts::data;
using PopupParts::FilledPopup;
using PopupParts::SourceWindow;
using PopupRules::Alignment;
using PopupRules::Answer;
using PopupRules::Case;
using PopupRules::Side;

namespace {

/// Returns the data of a popup for \a c that stays whatever is activated.
WidgetData dataOf(const Case &c)
{
    return data().alignment(c.alignment).arrowPostion(c.side).offset(c.offset).autoDismiss(false);
}

/// Shows \a popup beside the source of \a c, and returns where it is and its arrow.
QString shownAt(PopupWidget &popup, const Case &c)
{
    popup.hide();
    popup.setDesiredSize(c.size);
    popup.showSmooth(c.source);
    const Side none = c.side == Side::NoArrowBelow ? Side::NoArrowBelow : Side::NoArrowAbove;
    return Answer { popup.geometry(), PopupRules::sideOf(popup, none) }.text();
}

/// Returns \a answer with the side that a popup shows: without an arrow, the wished one.
QString shown(Answer answer, Side wished)
{
    if (wished == Side::NoArrowAbove || wished == Side::NoArrowBelow)
        answer.side = wished;
    return answer.text();
}

/// Returns the place of \a window as the X server knows it.
QRect placeOnServer(const QWidget &window)
{
    QProcess process;
    process.start(QStringLiteral("xwininfo"),
                  { QStringLiteral("-id"), QString::number(window.winId()) });
    process.waitForFinished();
    const QString report = QString::fromLocal8Bit(process.readAllStandardOutput());
    const auto number = [&report](const char *name) {
        const QRegularExpression line(QLatin1String(name) + QStringLiteral(":\\s+(-?\\d+)"));
        return line.match(report).captured(1).toInt();
    };
    return { number("Absolute upper-left X"), number("Absolute upper-left Y"), number("Width"),
             number("Height") };
}

} // namespace

/// Popups as real windows: the program runs on one screen or on two.
class tst_PopupWidgetScreens : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_stores = std::make_unique<StoreGuard>(PopupParts::store()); }
    void cleanup() { m_stores.reset(); }

    void staysOnTheScreen_data();
    void staysOnTheScreen();
    void staysOnAScreenAtNegativeCoordinates_data() { staysOnTheScreen_data(); }
    void staysOnAScreenAtNegativeCoordinates();
    void staysInItsParentsWindow_data() { staysOnTheScreen_data(); }
    void staysInItsParentsWindow();
    void isWhereItSaysOnTheScreen_data();
    void isWhereItSaysOnTheScreen();
    void staysOnTheScreenOfItsSource();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_PopupWidgetScreens::staysOnTheScreen_data()
{
    QTest::addColumn<int>("alignment");
    QTest::addColumn<int>("side");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    for (const Side side : PopupRules::sides) {
        for (const Alignment alignment : PopupRules::alignments) {
            const char *sideName = PopupRules::sideNames[int(side)];
            const char *alignmentName = PopupRules::alignmentNames[int(alignment)];
            QTest::addRow("%s, aligned %s", sideName, alignmentName)
                    << int(alignment) << int(side) << Qt::LeftToRight;
            QTest::addRow("%s, aligned %s, right to left", sideName, alignmentName)
                    << int(alignment) << int(side) << Qt::RightToLeft;
        }
    }
}

void tst_PopupWidgetScreens::staysOnTheScreen()
{
    QFETCH(const int, alignment);
    QFETCH(const int, side);
    QFETCH(const Qt::LayoutDirection, direction);
    const LayoutDirectionGuard guard(direction);
    const auto screens = PopupRules::currentScreens();
    Case c { QRect(), QPoint(3, -2), QSize(), Alignment(alignment), Side(side) };
    FilledPopup popup(dataOf(c));
    for (const PopupRules::Screen &screen : screens) {
        for (const QSize &size : PopupRules::sizes(screen.available)) {
            for (const QRect &source : PopupRules::sources(screen.available)) {
                c.source = source;
                c.size = size;
                QCOMPARE(shownAt(popup, c), shown(PopupRules::onScreens(c, screens), c.side));
            }
        }
    }
}

void tst_PopupWidgetScreens::staysOnAScreenAtNegativeCoordinates()
{
    const ScreenGuard guard(QRect(-800, -700, 800, 600), QRect(-790, -670, 770, 570));
    staysOnTheScreen();
}

void tst_PopupWidgetScreens::staysInItsParentsWindow()
{
    QFETCH(const int, alignment);
    QFETCH(const int, side);
    QFETCH(const Qt::LayoutDirection, direction);
    const LayoutDirectionGuard guard(direction);
    Case c { QRect(), QPoint(3, -2), QSize(), Alignment(alignment), Side(side) };
    SourceWindow window(QRect(150, 120, 500, 400));
    window.show();
    QTRY_VERIFY(window.frameGeometry() != window.geometry()); // The frame is no part of it.
    FilledPopup popup(dataOf(c).fitInMainWindowGeometry(true), &window.button);
    for (const QSize &size : PopupRules::sizes(window.geometry())) {
        for (const QRect &source : PopupRules::sources(window.geometry())) {
            c.source = source;
            c.size = size;
            QCOMPARE(shownAt(popup, c), shown(PopupRules::inWindow(c, window.geometry()), c.side));
        }
    }
}

void tst_PopupWidgetScreens::isWhereItSaysOnTheScreen_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<QRect>("source");
    const auto screens = PopupRules::currentScreens();
    for (const Side side : PopupRules::sides) {
        int row = 0;
        for (const QRect &source : PopupRules::sources(screens.back().available))
            QTest::addRow("%s, source %d", PopupRules::sideNames[int(side)], ++row)
                    << int(side) << source;
    }
}

/// The window manager leaves it there.
void tst_PopupWidgetScreens::isWhereItSaysOnTheScreen()
{
    QFETCH(const int, side);
    QFETCH(const QRect, source);
    const Case c { source, QPoint(), QSize(120, 90), Alignment::Center, Side(side) };
    const QRect place = PopupRules::onScreens(c, PopupRules::currentScreens()).place;
    PopupWidget popup(nullptr, dataOf(c));
    shownAt(popup, c);
    QVERIFY(QTest::qWaitForWindowActive(&popup));
    // Qt itself may be told of another place while the window manager takes the window over.
    QTRY_COMPARE(placeOnServer(popup), place);
}

void tst_PopupWidgetScreens::staysOnTheScreenOfItsSource()
{
    const auto screens = PopupRules::currentScreens();
    const QRect first = screens.front().all;
    // Mostly beyond the first screen's right edge.
    const Case c { QRect(first.right() - 30, 300, 31, 20), QPoint(), QSize(200, 90),
                   Alignment::Left, Side::Top };
    FilledPopup popup(dataOf(c).showOnSourceScreen(true));
    QCOMPARE(shownAt(popup, c), PopupRules::onScreens(c, screens, true).text());
    QVERIFY(popup.geometry().right() <= first.right() + 100);
}

UIELEMENTS_TEST_MAIN(tst_PopupWidgetScreens)
#include "tst_popupwidget_screens.moc"
