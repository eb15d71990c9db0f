// SPDX-License-Identifier: Apache-2.0
#include "PopupParts.h"
#include "PopupRules.h"
#include "support/Pixels.h"
#include "support/TestApplication.h"

#include <UiElements/svg/VisualUtils.h>

#include <QGraphicsDropShadowEffect>
#include <QPainter>
#include <QPainterPath>

using PopupParts::data;
using PopupRules::Side;

namespace {

struct Shape
{
    QSize size { 102, 72 };
    Side side = Side::Top;
    int radius = 0;
    QPoint aim; ///< The middle of the source, from the body's top left.
};

/// The body of a shape, and its arrow where that crosses the body's edge, from the left or the top.
struct Parts
{
    QRectF body;
    int radius = 0;
    QVector<QPointF> arrow;
};

/// Returns where the tip of \a shape is along its upper or lower side.
int tipOf(const Shape &shape, int half)
{
    const int base = half == 10 ? 20 : 2 * half + 1;
    return qMax(half, qMin(shape.aim.x(), shape.size.width() - 1 - base));
}

Parts partsOf(const Shape &shape)
{
    const double w = shape.size.width();
    const double h = shape.size.height();
    const int fifth = shape.size.width() / 5;
    const int half = qMin(fifth % 2 == 0 ? fifth + 1 : fifth, 20) / 2;
    const double x = tipOf(shape, half);
    const double y = shape.aim.y();
    // The tips are on the last pixel, so that the right and the lower arrow begin inside the body.
    switch (shape.side) {
    case Side::Top:
        return { { 0, 10, w, h - 10 },
                 int(h - 10) / 2,
                 { { x - half, 10 }, { x, 0 }, { x + half, 10 } } };
    case Side::Bottom:
        return { { 0, 0, w, h - 10 },
                 int(h - 10) / 2,
                 { { x - 0.9 * half, h - 10 }, { x, h - 1 }, { x + 0.9 * half, h - 10 } } };
    case Side::Left:
        return { { 10, 0, w - 10, h },
                 int(w - 10) / 2,
                 { { 10, y - half }, { 0, y }, { 10, y + half } } };
    case Side::Right:
        return { { 0, 0, w - 10, h },
                 int(w - 10) / 2,
                 { { w - 10, y - 0.9 * half }, { w - 1, y }, { w - 10, y + 0.9 * half } } };
    case Side::NoArrowAbove:
        return { { 0, 0, w, h }, int(w) / 2, {} };
    case Side::NoArrowBelow:
        break;
    }
    return { { 0, 0, w, h }, int(h) / 2, {} };
}

void addPoints(QPainterPath &path, const QVector<QPointF> &points, bool isReversed = false)
{
    for (int i = 0; i < points.size(); ++i)
        path.lineTo(points.at(isReversed ? points.size() - 1 - i : i));
}

/// Returns the outline of \a parts, drawn in one line from the upper left corner on.
QPainterPath outlineOf(const Parts &parts, Side side)
{
    const QRectF &body = parts.body;
    const double r = parts.radius;
    const QVector<QPointF> none;
    QPainterPath path;
    path.moveTo(body.left() + r, body.top());
    addPoints(path, side == Side::Top ? parts.arrow : none);
    path.lineTo(body.right() - r, body.top());
    path.arcTo(QRectF(body.right() - 2 * r, body.top(), 2 * r, 2 * r), 90, -90);
    addPoints(path, side == Side::Right ? parts.arrow : none);
    path.lineTo(body.right(), body.bottom() - r);
    path.arcTo(QRectF(body.right() - 2 * r, body.bottom() - 2 * r, 2 * r, 2 * r), 0, -90);
    addPoints(path, side == Side::Bottom ? parts.arrow : none, true);
    path.lineTo(body.left() + r, body.bottom());
    path.arcTo(QRectF(body.left(), body.bottom() - 2 * r, 2 * r, 2 * r), 270, -90);
    addPoints(path, side == Side::Left ? parts.arrow : none, true);
    path.lineTo(body.left(), body.top() + r);
    path.arcTo(QRectF(body.left(), body.top(), 2 * r, 2 * r), 180, -90);
    path.closeSubpath();
    return path;
}

QPainterPath outlineOf(const Shape &shape)
{
    Parts parts = partsOf(shape);
    parts.radius = qMin(parts.radius, shape.radius);
    return outlineOf(parts, shape.side);
}

/// A window that is painted as a popup: a shape with a shadow.
class PaintedPopup : public QWidget
{
public:
    PaintedPopup(const QPainterPath &outline, const QSize &size) : m_body(outline)
    {
        resize(size + QSize(8, 8));
        m_body.setParent(this);
        m_body.setGeometry(QRect(QPoint(4, 4), size));
        auto *shadow = new QGraphicsDropShadowEffect(&m_body);
        shadow->setColor(QColor(PopupParts::shadowColor));
        shadow->setOffset(0, 0);
        shadow->setBlurRadius(4);
        m_body.setGraphicsEffect(shadow);
    }

private:
    struct Body : QWidget
    {
        explicit Body(const QPainterPath &path) : outline(path) { }
        void paintEvent(QPaintEvent *) override
        {
            QPainter painter(this);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(QColor(PopupParts::borderColor));
            painter.setBrush(QColor(PopupParts::bodyColor));
            painter.drawPath(outline);
        }
        const QPainterPath outline;
    };
    Body m_body;
};

/// A popup with \a shape that is placed nowhere, since it has no window to fit in.
class ShapedPopup : public PopupWidget
{
public:
    explicit ShapedPopup(const Shape &shape)
        : PopupWidget(nullptr,
                      PopupParts::data()
                              .arrowPostion(shape.side)
                              .cornerRadius(shape.radius)
                              .fitInMainWindowGeometry(true))
    {
        getMainWidget()->setFixedSize(shape.size);
        setGeometry(QRect(QPoint(300, 300), shape.size + QSize(8, 8)));
        layout()->activate();
        repositionWindow(QRect(getMainWidget()->mapToGlobal(shape.aim), QSize(1, 1)), true);
    }
};

/// Returns how many pixels differ by more than \a tolerance in a channel.
int differences(const QImage &a, const QImage &b, int tolerance)
{
    if (a.size() != b.size())
        return -1;
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QColor one = a.pixelColor(x, y);
            const QColor other = b.pixelColor(x, y);
            count += qAbs(one.red() - other.red()) > tolerance
                    || qAbs(one.green() - other.green()) > tolerance
                    || qAbs(one.blue() - other.blue()) > tolerance;
        }
    }
    return count;
}

} // namespace

Q_DECLARE_METATYPE(Shape)

/// Bodies, arrows and shadows of popups.
class tst_PopupWidgetPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_stores = std::make_unique<StoreGuard>(PopupParts::store()); }
    void cleanup() { m_stores.reset(); }

    void paintsBodyArrowAndShadow_data();
    void paintsBodyArrowAndShadow();
    void pointsPastItsBodyToASourceThere_data();
    void pointsPastItsBodyToASourceThere();
    void narrowsTheArrowOfANarrowBody();
    void keepsTheShadowInItsMargin();
    void paintsItsContentInsideItsBorder();
    void paintsNothingInColoursThatDoNotExist();
    void pointsToItsNewSource();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_PopupWidgetPainting::paintsBodyArrowAndShadow_data()
{
    QTest::addColumn<Shape>("shape");
    const QSize size(102, 72);
    for (const Side side : PopupRules::sides) {
        for (const int radius : { 0, 8, 12, 25 })
            QTest::addRow("%s, radius %d", PopupRules::sideNames[int(side)], radius)
                    << Shape { size, side, radius, QPoint(51, 36) };
    }
    for (const Side side : { Side::Top, Side::Bottom }) {
        QTest::addRow("%s, to the far left", PopupRules::sideNames[int(side)])
                << Shape { size, side, 0, QPoint(-500, 36) };
        QTest::addRow("%s, to the far right", PopupRules::sideNames[int(side)])
                << Shape { size, side, 0, QPoint(500, 36) };
        QTest::addRow("%s, to the last pixel but 20", PopupRules::sideNames[int(side)])
                << Shape { size, side, 0, QPoint(81, 36) };
    }
    for (const Side side : { Side::Left, Side::Right })
        QTest::addRow("%s, to its lower end", PopupRules::sideNames[int(side)])
                << Shape { size, side, 0, QPoint(51, 60) };
    for (const Side side : { Side::NoArrowAbove, Side::NoArrowBelow })
        QTest::addRow("%s, rounder than it can be", PopupRules::sideNames[int(side)])
                << Shape { QSize(72, 72), side, 200, QPoint(51, 60) };
    QTest::newRow("narrow") << Shape { QSize(40, 60), Side::Top, 4, QPoint(20, 0) };
    QTest::newRow("narrow, at its right edge")
            << Shape { QSize(40, 60), Side::Bottom, 4, QPoint(39, 0) };
    QTest::newRow("lower than its corners")
            << Shape { QSize(102, 30), Side::Top, 12, QPoint(51, 0) };
}

void tst_PopupWidgetPainting::paintsBodyArrowAndShadow()
{
    QFETCH(const Shape, shape);
    PaintedPopup expected(outlineOf(shape), shape.size);
    // Qt unites paths as polygons: a smoothed pixel of a corner may differ, but no whole one.
    const int tolerance = shape.radius == 0 ? 8 : 100;
    for (const Qt::LayoutDirection direction : { Qt::LeftToRight, Qt::RightToLeft }) {
        const LayoutDirectionGuard guard(direction);
        ShapedPopup popup(shape);
        for (const double ratio : { 1.0, 2.0 })
            QCOMPARE(differences(Pixels::render(popup, Qt::white, ratio),
                                 Pixels::render(expected, Qt::white, ratio), tolerance),
                     0);
    }
}

void tst_PopupWidgetPainting::pointsPastItsBodyToASourceThere_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<QRect>("arrow");
    QTest::newRow("left") << int(Side::Left) << QRect(4, 4, 10, 6);
    QTest::newRow("right") << int(Side::Right) << QRect(4 + 92, 4, 10, 6);
}

/// The tip has no limit down a side, so that the body's corner may cut the arrow off.
void tst_PopupWidgetPainting::pointsPastItsBodyToASourceThere()
{
    QFETCH(const int, side);
    QFETCH(const QRect, arrow);
    const auto isArrowIn = [&arrow](ShapedPopup &&popup) {
        return Pixels::countNear(Pixels::render(popup), QColor(PopupParts::bodyColor), arrow) > 5;
    };
    QVERIFY(isArrowIn(ShapedPopup(Shape { QSize(102, 72), Side(side), 0, QPoint(51, 0) })));
    QVERIFY(!isArrowIn(ShapedPopup(Shape { QSize(102, 72), Side(side), 0, QPoint(51, -500) })));
}

void tst_PopupWidgetPainting::narrowsTheArrowOfANarrowBody()
{
    // A fifth of 40 is 8, made 9: the arrow reaches 4 to each side of its tip.
    ShapedPopup popup(Shape { QSize(40, 60), Side::Top, 0, QPoint(20, 0) });
    const QImage image = Pixels::render(popup);
    const QRect base(0, 4 + 9, 48, 1); // The line above the body.
    QRect arrow;
    for (int x = base.left(); x <= base.right(); ++x) {
        if (image.pixelColor(x, base.top()).red() > 100
            && image.pixelColor(x, base.top()).green() < 60)
            arrow |= QRect(x, base.top(), 1, 1);
    }
    QVERIFY2(arrow.width() >= 6 && arrow.width() <= 9, qPrintable(QString::number(arrow.width())));
    QVERIFY(qAbs(arrow.center().x() - (4 + 20)) <= 1);
}

void tst_PopupWidgetPainting::keepsTheShadowInItsMargin()
{
    ShapedPopup popup(Shape { QSize(102, 72), Side::NoArrowBelow, 0, QPoint() });
    const QImage image = Pixels::render(popup);
    const auto strength = [&image](int x) { return 255 - image.pixelColor(x, 40).red(); };
    QVERIFY(strength(3) > 20);
    QVERIFY(strength(3) > strength(2) && strength(2) > strength(1));
    QVERIFY(strength(0) < 30);
    QVERIFY(qAbs(strength(3) - strength(106)) < 20); // The same on both sides, but for rounding.
}

void tst_PopupWidgetPainting::paintsItsContentInsideItsBorder()
{
    PopupParts::FilledPopup popup;
    popup.content->setAutoFillBackground(true);
    popup.content->setPalette(QColor(255, 255, 0));
    popup.showSmooth(PopupParts::nearMiddle);
    QCOMPARE(Pixels::boundsNear(Pixels::render(popup), QColor(255, 255, 0)),
             QRect(4 + 1, 4 + 11, 100, 60));
}

void tst_PopupWidgetPainting::paintsNothingInColoursThatDoNotExist()
{
    const QColor none;
    PopupWidget popup(nullptr,
                      data().widgetColour(none).widgetBorderColour(none).widgetBorderBlurColour(
                              none));
    popup.resize(100, 80);
    popup.layout()->activate();
    const QImage image = Pixels::render(popup);
    QCOMPARE(Pixels::countNear(image, Qt::white), image.width() * image.height());
}

void tst_PopupWidgetPainting::pointsToItsNewSource()
{
    // At the edge of the screen: the place stays, and the arrow moves.
    PopupParts::FilledPopup popup;
    popup.showSmooth(QRect(0, 300, 20, 20));
    const QRect before = popup.geometry();
    QVERIFY(QTest::qWaitForWindowExposed(&popup));
    QCoreApplication::processEvents();
    int paints = 0;
    const VisualUtils::EventFilter counter(popup.getMainWidget(), { QEvent::Paint },
                                           [&paints](QEvent *) {
                                               ++paints;
                                               return false;
                                           });
    popup.repositionWindow(QRect(10, 300, 40, 20), false);
    QCOMPARE(popup.geometry(), before);
    QTRY_VERIFY(paints > 0);
}

UIELEMENTS_TEST_MAIN(tst_PopupWidgetPainting)
#include "tst_popupwidget_painting.moc"
