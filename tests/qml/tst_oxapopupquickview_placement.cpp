// SPDX-License-Identifier: Apache-2.0
#include "QuickViews.h"
#include "support/Screens.h"
#include "support/SignalLog.h"
#include "support/TestApplication.h"

#include <UiElements/qml/OxaPopupQuickView.h>

#include <cmath>

using namespace QuickViews;

namespace {

/// One screen to the left of and above the first one, with panels at its left, top and right, and a
/// small one below it without any.
const QRect sideScreen(-1000, -700, 1000, 600);
const QRect sideArea(-990, -670, 970, 570);
const QRect smallScreen(0, 800, 320, 240);

/// The first screen: that of the platform.
const QRect firstScreen(0, 0, 800, 600);

struct Named
{
    const char *name;
    Qt::ArrowType arrow;
    Qt::ArrowType opposite;
};

constexpr Named arrows[] = {
    { "up", Qt::UpArrow, Qt::DownArrow },      { "down", Qt::DownArrow, Qt::UpArrow },
    { "left", Qt::LeftArrow, Qt::RightArrow }, { "right", Qt::RightArrow, Qt::LeftArrow },
    { "none", Qt::NoArrow, Qt::NoArrow },
};

struct Area
{
    const char *name;
    QRect screen;
    QRect available;
};

const Area areas[] = {
    { "first screen", firstScreen, firstScreen },
    { "screen with panels, at negative coordinates", sideScreen, sideArea },
    { "small screen", smallScreen, smallScreen },
};

struct NamedSize
{
    const char *name;
    QSize size;
};

const NamedSize sizes[] = {
    { "a small popup", { 60, 40 } },
    { "a popup of odd size", { 61, 41 } },
    { "a large popup", { 300, 200 } },
    { "a popup as wide as no screen", { 1100, 40 } },
    { "a popup as high as no screen", { 60, 900 } },
};

/// Rectangles of 20 by 10 on a screen: in its middle, inside each edge, and across each edge and
/// each corner, by a fraction.
std::vector<std::pair<QByteArray, QRectF>> rectsOn(const QRect &screen)
{
    const double left = screen.x() + 0.5;
    const double right = screen.x() + screen.width() - 20.5;
    const double top = screen.y() + 0.5;
    const double bottom = screen.y() + screen.height() - 10.5;
    const double centreX = screen.x() + screen.width() / 2 - 10;
    const double centreY = screen.y() + screen.height() / 2 - 5;
    const auto rect = [](double x, double y) { return QRectF(x, y, 20, 10); };
    return { { "in the middle", rect(centreX, centreY) },
             { "at the left edge", rect(left, centreY) },
             { "at the right edge", rect(right, centreY) },
             { "at the top", rect(centreX, top) },
             { "at the bottom", rect(centreX, bottom) },
             { "in the top left corner", rect(left, top) },
             { "in the top right corner", rect(right, top) },
             { "in the bottom left corner", rect(left, bottom) },
             { "in the bottom right corner", rect(right, bottom) },
             { "across the left edge", rect(screen.x() - 9, centreY) },
             { "across the top", rect(centreX, screen.y() - 4) } };
}

/// A popup's place, by the rules in words: a length and a place along one axis.
struct Span
{
    double start;
    double length;

    double end() const { return start + length; }
};

/// Where a popup of \a length is along the axis of the arrow: after \a rect, or before it.
double beside(const Span &rect, double length, bool isAfter)
{
    return isAfter ? rect.end() : rect.start - length;
}

/// Where a popup is across the arrow: its middle at that of \a rect, half a pixel left of it where
/// the length is odd.
double centred(const Span &rect, int length)
{
    return rect.start + rect.length / 2 - std::floor(length / 2.0);
}

struct Expected
{
    Qt::ArrowType arrow;
    QPoint corner; ///< Before the popup is moved inside.
    QRectF screenRect;
};

Span across(const QRectF &rect) { return { rect.x(), rect.width() }; }
Span down(const QRectF &rect) { return { rect.y(), rect.height() }; }

QPointF cornerBeside(const QRectF &rect, const QSize &size, Qt::ArrowType arrow)
{
    const double middleX = centred(across(rect), size.width());
    const double middleY = centred(down(rect), size.height());
    switch (arrow) {
    case Qt::UpArrow:
    case Qt::DownArrow:
        return { middleX, beside(down(rect), size.height(), arrow == Qt::UpArrow) };
    case Qt::LeftArrow:
    case Qt::RightArrow:
        return { beside(across(rect), size.width(), arrow == Qt::LeftArrow), middleY };
    default:
        return { rect.x() + rect.width() / 2, rect.y() + rect.height() / 2 };
    }
}

/// Returns the area of the screen at \a point, or the one that the view is on.
QRect areaAt(const QPointF &point, const QRect &otherwise)
{
    for (const Area &area : areas) {
        if (area.screen.contains(qRound(point.x()), qRound(point.y())))
            return area.available;
    }
    return otherwise;
}

bool hasRoom(const QPointF &corner, const QSize &size, Qt::ArrowType arrow, const QRect &area)
{
    switch (arrow) {
    case Qt::UpArrow:
        return corner.y() + size.height() <= area.y() + area.height();
    case Qt::DownArrow:
        return corner.y() >= area.y();
    case Qt::LeftArrow:
        return corner.x() + size.width() <= area.x() + area.width();
    case Qt::RightArrow:
        return corner.x() >= area.x();
    default:
        return true;
    }
}

/// One coordinate of a popup that is moved inside a range.
int movedInside(int start, int length, int from, int to)
{
    const int past = qMax(0, start + length - to) + qMax(0, from - start);
    return qMax(from, start - past);
}

QPoint movedInside(const QPoint &corner, const QSize &size, const QRect &area)
{
    const bool isOutside = corner.x() + size.width() <= area.x()
            || corner.x() >= area.x() + area.width() || corner.y() + size.height() <= area.y()
            || corner.y() >= area.y() + area.height();
    if (isOutside)
        return corner;
    return { movedInside(corner.x(), size.width(), area.x(), area.x() + area.width()),
             movedInside(corner.y(), size.height(), area.y(), area.y() + area.height()) };
}

/// By how much a popup leaves the area along one axis, without the fraction.
int overhang(double start, int length, int from, int to)
{
    if (start + length > to)
        return int(start + length - to);
    return start < from ? int(start - from) : 0;
}

} // namespace

/// The place of a popup, computed here by arithmetic on coordinates.
class tst_OxaPopupQuickView_placement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void opensBesideARectangle_data();
    void opensBesideARectangle();
    void putsItselfBelowAWidgetWithoutShowing_data();
    void putsItselfBelowAWidgetWithoutShowing();
    void findsThePointBesideARectangle_data();
    void findsThePointBesideARectangle();
    void opensFarAwayForARectangleFarAway_data();
    void opensFarAwayForARectangleFarAway();
    void takesTheGeometryOfAWidgetAsItIs();

private:
    std::unique_ptr<OxaQmlEngine> m_engine;
    std::unique_ptr<QWindow> m_activeWindow;
};

void tst_OxaPopupQuickView_placement::initTestCase()
{
    QCOMPARE(QGuiApplication::primaryScreen()->availableGeometry(), firstScreen);
    m_engine = std::make_unique<OxaQmlEngine>(nullptr);
    m_activeWindow = std::make_unique<QWindow>();
}

/// Popups open for an active application only.
void tst_OxaPopupQuickView_placement::init() { QVERIFY(showActive(*m_activeWindow)); }

void tst_OxaPopupQuickView_placement::cleanupTestCase() { m_activeWindow.reset(); }

void tst_OxaPopupQuickView_placement::opensBesideARectangle_data()
{
    QTest::addColumn<int>("arrow");
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<QSize>("size");
    for (const Named &arrow : arrows) {
        for (const Area &area : areas) {
            for (const auto &[place, rect] : rectsOn(area.available)) {
                for (const NamedSize &size : sizes)
                    QTest::addRow("arrow %s, %s, %s, %s", arrow.name, area.name, place.constData(),
                                  size.name)
                            << int(&arrow - arrows) << rect << size.size;
            }
        }
    }
}

void tst_OxaPopupQuickView_placement::opensBesideARectangle()
{
    QFETCH(const int, arrow);
    QFETCH(const QRectF, rect);
    QFETCH(const QSize, size);
    const ScreenGuard side(sideScreen, sideArea);
    const ScreenGuard small(smallScreen, smallScreen);
    OxaPopupQuickView popup(m_engine.get(), nullptr, {});
    popup.setFlag(Qt::FramelessWindowHint);
    popup.resize(size);
    SignalLog log;
    log.record(&popup, &OxaPopupQuickView::arrowOrthogonalChanged, QStringLiteral("orthogonal"));
    QVector<Qt::ArrowType> flips;
    connect(&popup, &OxaPopupQuickView::arrowFlipped, &popup, [&](Qt::ArrowType flipped) {
        flips += flipped;
        log.note(QStringLiteral("flipped"));
    });

    Qt::ArrowType expected = arrows[arrow].arrow;
    QPointF corner = cornerBeside(rect, size, expected);
    const bool flips1 = !hasRoom(corner, size, expected, areaAt(corner, firstScreen));
    if (flips1) {
        expected = arrows[arrow].opposite;
        corner = cornerBeside(rect, size, expected);
    }
    popup.showAtRect(rect, arrows[arrow].arrow);

    QCOMPARE(flips, flips1 ? QVector<Qt::ArrowType> { expected } : QVector<Qt::ArrowType>());
    const QString signalNames = log.take();
    QCOMPARE(signalNames.startsWith(QLatin1String("flipped | ")), flips1);
    QVERIFY(signalNames.endsWith(QLatin1String("orthogonal")));
    const QPoint point(qRound(corner.x()), qRound(corner.y()));
    const QRect area = areaAt(point, firstScreen);
    QCOMPARE(popup.position(), movedInside(point, size, area));
    QVERIFY(popup.isVisible());
    QCOMPARE(popup.activationRect(), rect);

    // The arrow's offset is that of the point itself, on its screen or the one of the popup.
    const QRect screenNow = areaAt(corner, popup.screen()->availableGeometry());
    const bool isHorizontal = expected == Qt::UpArrow || expected == Qt::DownArrow;
    const int offset = isHorizontal
            ? overhang(corner.x(), size.width(), screenNow.x(), screenNow.x() + screenNow.width())
            : overhang(corner.y(), size.height(), screenNow.y(),
                       screenNow.y() + screenNow.height());
    QCOMPARE(popup.adjustArrowOffset(expected), expected == Qt::NoArrow ? 0 : offset);
}

void tst_OxaPopupQuickView_placement::putsItselfBelowAWidgetWithoutShowing_data()
{
    QTest::addColumn<QRect>("widget");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPoint>("expected");
    // The first screen ends at 800, its last pixel is 799.
    QTest::newRow("in the middle") << QRect(300, 200, 100, 40) << QSize(60, 30) << QPoint(319, 239);
    QTest::newRow("odd sizes") << QRect(300, 200, 101, 41) << QSize(61, 31) << QPoint(320, 240);
    QTest::newRow("touching the right edge")
            << QRect(700, 200, 101, 40) << QSize(100, 30) << QPoint(700, 239);
    QTest::newRow("past the right edge")
            << QRect(710, 200, 80, 40) << QSize(200, 30) << QPoint(600, 239);
    QTest::newRow("past the left edge")
            << QRect(10, 200, 80, 40) << QSize(200, 30) << QPoint(0, 239);
    QTest::newRow("wider than the screen")
            << QRect(300, 200, 100, 40) << QSize(900, 30) << QPoint(0, 239);
    QTest::newRow("below the screen, and so at its left")
            << QRect(300, 580, 100, 30) << QSize(60, 30) << QPoint(0, 609);
    QTest::newRow("on no screen") << QRect(2000, 200, 100, 40) << QSize(60, 30)
                                  << QPoint(2019, 239);
    // Panels count as part of the screen here.
    QTest::newRow("at a panel") << QRect(-90, -400, 98, 40) << QSize(60, 30) << QPoint(-72, -361);
}

void tst_OxaPopupQuickView_placement::putsItselfBelowAWidgetWithoutShowing()
{
    QFETCH(const QRect, widget);
    QFETCH(const QSize, size);
    QFETCH(const QPoint, expected);
    const ScreenGuard side(sideScreen, sideArea);
    OxaPopupQuickView popup(m_engine.get(), nullptr, {});
    popup.resize(size);
    popup.setPositionFromWidget(nullptr, OxaPopupQuickView::BottomAlignment);
    QCOMPARE(popup.position(), QPoint());
    QWidget source(nullptr, Qt::FramelessWindowHint);
    source.setGeometry(widget);
    popup.setPositionFromWidget(&source, OxaPopupQuickView::BottomAlignment);
    QCOMPARE(popup.position(), expected);
    QVERIFY(!popup.isVisible());
    // Another alignment keeps it from no edge.
    popup.setPositionFromWidget(&source, OxaPopupQuickView::Alignment(1));
    const QPoint centre((widget.width() - 1) / 2, (widget.height() - 1) / 2);
    QCOMPARE(popup.position(),
             widget.topLeft() + centre + QPoint(-(size.width() / 2), widget.height() / 2));
}

void tst_OxaPopupQuickView_placement::findsThePointBesideARectangle_data()
{
    QTest::addColumn<int>("arrow");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPointF>("expected");
    const QSize even(40, 30);
    const QSize odd(41, 31);
    QTest::newRow("below") << int(Qt::UpArrow) << even << QPointF(90.25, 61);
    QTest::newRow("above") << int(Qt::DownArrow) << even << QPointF(90.25, 20.5);
    QTest::newRow("right") << int(Qt::LeftArrow) << even << QPointF(120.5, 40.75);
    QTest::newRow("left") << int(Qt::RightArrow) << even << QPointF(60, 40.75);
    QTest::newRow("below, odd") << int(Qt::UpArrow) << odd << QPointF(90.25, 61);
    QTest::newRow("above, odd") << int(Qt::DownArrow) << odd << QPointF(90.25, 19.5);
    QTest::newRow("right, odd") << int(Qt::LeftArrow) << odd << QPointF(120.5, 40.75);
    QTest::newRow("left, odd") << int(Qt::RightArrow) << odd << QPointF(59, 40.75);
    QTest::newRow("at the centre") << int(Qt::NoArrow) << even << QPointF(110.25, 55.75);
    QTest::newRow("an arrow that is none") << 9 << even << QPointF(110.25, 55.75);
}

void tst_OxaPopupQuickView_placement::findsThePointBesideARectangle()
{
    QFETCH(const int, arrow);
    QFETCH(const QSize, size);
    QFETCH(const QPointF, expected);
    OxaPopupQuickView popup(m_engine.get(), nullptr, {});
    popup.resize(size);
    const QRectF rect(100, 50.5, 20.5, 10.5);
    QCOMPARE(popup.getPointFromRect(rect, Qt::ArrowType(arrow)), expected);
}

void tst_OxaPopupQuickView_placement::opensFarAwayForARectangleFarAway_data()
{
    QTest::addColumn<double>("place");
    QTest::addColumn<bool>("isAfter");
    QTest::newRow("beyond an int") << 1e300 << true;
    QTest::newRow("below an int") << -1e300 << false;
    QTest::newRow("infinite") << qInf() << true;
    QTest::newRow("not a number") << qQNaN() << false;
}

void tst_OxaPopupQuickView_placement::opensFarAwayForARectangleFarAway()
{
    QFETCH(const double, place);
    QFETCH(const bool, isAfter);
    OxaPopupQuickView popup(m_engine.get(), nullptr, {});
    popup.resize(40, 30);
    popup.showAtRect(QRectF(place, place, 1, 1), Qt::LeftArrow);
    QVERIFY(isAfter ? popup.x() > 1000000 : popup.x() < -1000000);
    QCOMPARE(popup.adjustArrowOffset(Qt::UpArrow) > 1000000, isAfter);
}

void tst_OxaPopupQuickView_placement::takesTheGeometryOfAWidgetAsItIs()
{
    OxaPopupQuickView popup(m_engine.get(), nullptr, {});
    popup.setFlag(Qt::FramelessWindowHint);
    popup.resize(40, 30);
    QWidget window;
    window.setGeometry(300, 300, 200, 200);
    QWidget child(&window);
    child.setGeometry(100, 50, 20, 10);
    QCOMPARE(popup.getPointFromWidget(&child, Qt::UpArrow), QPointF(90, 60));
    QCOMPARE(popup.getPointFromWidget(&window, Qt::LeftArrow), QPointF(500, 385));
    QCOMPARE(popup.getPointFromWidget(nullptr, Qt::UpArrow), QPointF(-20, 0));
    popup.showAtWidget(&child, Qt::UpArrow);
    QCOMPARE(popup.activationRect(), QRectF(100, 50, 20, 10));
    QCOMPARE(popup.position(), QPoint(90, 60));
    popup.showAtWidget(&window, Qt::LeftArrow);
    QCOMPARE(popup.position(), QPoint(500, 385));
    popup.showAtWidget(nullptr, Qt::UpArrow);
    QVERIFY(popup.activationRect().isEmpty());
    QCOMPARE(popup.position(), QPoint(0, 0));
}

UIELEMENTS_TEST_MAIN(tst_OxaPopupQuickView_placement)
#include "tst_oxapopupquickview_placement.moc"
