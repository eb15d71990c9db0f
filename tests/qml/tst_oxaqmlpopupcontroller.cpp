// SPDX-License-Identifier: Apache-2.0
#include "support/SignalLog.h"
#include "support/TestApplication.h"

#include <UiElements/qml/OxaPopupQuickView.h>
#include <UiElements/qml/OxaQmlPopupController.h>

#include <QGuiApplication>
#include <QMetaMethod>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <memory>

namespace {

using Balloon = OxaQmlBalloon;

/// A popup of 100 by 50 pixels that tells how many slots listen to it.
class View : public OxaPopupQuickView
{
public:
    View() { resize(100, 50); }
    ~View() override { hide(); }

    int listeners() const
    {
        return receivers(SIGNAL(arrowFlipped(Qt::ArrowType)))
                + receivers(SIGNAL(arrowOrthogonalChanged()));
    }
};

/// What is beside the rectangle that a popup points at: how many pixels of the popup the edge of
/// the screen takes.
struct Place
{
    const char *name;
    Qt::ArrowType arrow;
    double x; ///< Of a rectangle of 10 by 10, from the left edge; if negative, from the right one.
    double y; ///< The same from the top.
    Balloon::ArrowAnchor anchor;
    int offset;
};

// The popup's middle is beside the rectangle's: 5 pixels from it, with half of 100 or 50 around.
const Place places[] = {
    { "below", Qt::UpArrow, 300, 300, Balloon::Top, 0 },
    { "above", Qt::DownArrow, 300, 300, Balloon::Bottom, 0 },
    { "at the right", Qt::LeftArrow, 300, 300, Balloon::Left, 0 },
    { "at the left", Qt::RightArrow, 300, 300, Balloon::Right, 0 },
    { "below, at the right edge", Qt::UpArrow, -10, 300, Balloon::Top, 45 },
    { "below, at the left edge", Qt::UpArrow, 0, 300, Balloon::Top, -45 },
    { "above, at the right edge", Qt::DownArrow, -10, 300, Balloon::Bottom, 45 },
    { "above, at the left edge", Qt::DownArrow, 0, 300, Balloon::Bottom, -45 },
    { "at the right, at the bottom", Qt::LeftArrow, 300, -10, Balloon::Left, 20 },
    { "at the right, at the top", Qt::LeftArrow, 300, 0, Balloon::Left, -20 },
    { "at the left, at the bottom", Qt::RightArrow, 300, -10, Balloon::Right, 20 },
    { "at the left, at the top", Qt::RightArrow, 300, 0, Balloon::Right, -20 },
    { "below, without room", Qt::UpArrow, 300, -20, Balloon::Bottom, 0 },
    { "above, without room", Qt::DownArrow, 300, 20, Balloon::Top, 0 },
    { "at the right, without room", Qt::LeftArrow, -20, 300, Balloon::Right, 0 },
    { "at the left, without room", Qt::RightArrow, 20, 300, Balloon::Left, 0 },
};

QRectF rectangleOf(const Place &place)
{
    const QRectF screen = QGuiApplication::primaryScreen()->availableGeometry();
    const double x = place.x < 0 ? screen.right() + place.x : screen.left() + place.x;
    const double y = place.y < 0 ? screen.bottom() + place.y : screen.top() + place.y;
    return { x, y, 10, 10 };
}

} // namespace

/// The controller of a popup and the view that it follows.
class tst_OxaQmlPopupController : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void followsTheArrowOfItsView_data();
    void followsTheArrowOfItsView();
    void takesTheAnchorOfAFlip_data();
    void takesTheAnchorOfAFlip();
    void tellsNothingWhenTheAnchorStays();
    void asksNothingOfAViewAtFirst();
    void staysWithItsViewWhenItIsSetAgain();
    void leavesTheViewBefore();
    void leavesTheViewForNone();
    void keepsItsSlotsToItself();
    void outlivesItsView();
    void mayBeDeletedWhenTheArrowFlips();
    void mayBeDeletedWhenTheArrowMoves();
    void diesInAnyOrder_data();
    void diesInAnyOrder();
};

void tst_OxaQmlPopupController::followsTheArrowOfItsView_data()
{
    QTest::addColumn<int>("row");
    int row = 0;
    for (const Place &place : places)
        QTest::newRow(place.name) << row++;
}

void tst_OxaQmlPopupController::followsTheArrowOfItsView()
{
    QFETCH(const int, row);
    const Place &place = places[row];
    View view;
    OxaQmlPopupController controller;
    controller.setArrowAnchor(Balloon::arrowAnchorFromArrowType(place.arrow));
    controller.setPopupQuickView(&view);
    view.showAtRect(rectangleOf(place), place.arrow);
    QCOMPARE(controller.arrowAnchor(), place.anchor);
    QCOMPARE(controller.arrowOffset(), place.offset);
}

void tst_OxaQmlPopupController::takesTheAnchorOfAFlip_data()
{
    QTest::addColumn<Qt::ArrowType>("arrow");
    QTest::addColumn<int>("anchor");
    QTest::newRow("none") << Qt::NoArrow << int(Balloon::None);
    QTest::newRow("down") << Qt::DownArrow << int(Balloon::Bottom);
    QTest::newRow("left") << Qt::LeftArrow << int(Balloon::Left);
    QTest::newRow("right") << Qt::RightArrow << int(Balloon::Right);
}

void tst_OxaQmlPopupController::takesTheAnchorOfAFlip()
{
    QFETCH(const Qt::ArrowType, arrow);
    QFETCH(const int, anchor);
    View view;
    OxaQmlPopupController controller;
    controller.setPopupQuickView(&view);
    const QSignalSpy spy(&controller, &OxaQmlPopupController::arrowAnchorChanged);
    Q_EMIT view.arrowFlipped(arrow);
    QCOMPARE(int(controller.arrowAnchor()), anchor);
    QCOMPARE(spy.count(), 1);
}

void tst_OxaQmlPopupController::tellsNothingWhenTheAnchorStays()
{
    View view;
    OxaQmlPopupController controller;
    controller.setPopupQuickView(&view);
    const QSignalSpy anchor(&controller, &OxaQmlPopupController::arrowAnchorChanged);
    const QSignalSpy offset(&controller, &OxaQmlPopupController::arrowOffsetChanged);
    Q_EMIT view.arrowFlipped(Qt::UpArrow);
    view.showAtRect(QRectF(300, 300, 10, 10), Qt::UpArrow);
    QCOMPARE(anchor.count(), 0);
    QCOMPARE(offset.count(), 0);
}

void tst_OxaQmlPopupController::asksNothingOfAViewAtFirst()
{
    View view;
    view.showAtRect(QRectF(0, 300, 10, 10), Qt::UpArrow);
    OxaQmlPopupController controller;
    controller.setPopupQuickView(&view);
    QCOMPARE(controller.arrowOffset(), 0);
    Q_EMIT view.arrowOrthogonalChanged();
    QCOMPARE(controller.arrowOffset(), -45);
}

void tst_OxaQmlPopupController::staysWithItsViewWhenItIsSetAgain()
{
    View view;
    OxaQmlPopupController controller;
    controller.setPopupQuickView(&view);
    connect(&view, &View::widthChanged, &controller, &OxaQmlPopupController::setArrowSize);
    controller.setPopupQuickView(&view);
    QCOMPARE(view.listeners(), 2);
    view.resize(200, 50);
    QCOMPARE(controller.arrowSize(), 200);
}

void tst_OxaQmlPopupController::leavesTheViewBefore()
{
    View first;
    View second;
    OxaQmlPopupController controller;
    controller.setPopupQuickView(&first);
    controller.setPopupQuickView(&second);
    QCOMPARE(first.listeners(), 0);
    QCOMPARE(second.listeners(), 2);
    Q_EMIT first.arrowFlipped(Qt::LeftArrow);
    QCOMPARE(controller.arrowAnchor(), Balloon::Top);
    Q_EMIT second.arrowFlipped(Qt::LeftArrow);
    QCOMPARE(controller.arrowAnchor(), Balloon::Left);
}

void tst_OxaQmlPopupController::leavesTheViewForNone()
{
    View view;
    OxaQmlPopupController controller;
    controller.setPopupQuickView(&view);
    SignalLog log;
    log.record(&view, &View::arrowOrthogonalChanged, QStringLiteral("another listener"));
    connect(&view, &View::widthChanged, &controller, &OxaQmlPopupController::setArrowSize);
    controller.setPopupQuickView(nullptr);
    QCOMPARE(view.listeners(), 1);
    view.resize(200, 50);
    QCOMPARE(controller.arrowSize(), 0);
    Q_EMIT view.arrowOrthogonalChanged();
    QCOMPARE(log.take(), QStringLiteral("another listener"));
    controller.setPopupQuickView(nullptr);
    controller.setPopupQuickView(&view);
    QCOMPARE(view.listeners(), 3);
}

void tst_OxaQmlPopupController::keepsItsSlotsToItself()
{
    const QMetaObject &type = OxaQmlPopupController::staticMetaObject;
    for (const char *slot : { "adjustArrowOffset()", "flipArrow(Qt::ArrowType)" })
        QCOMPARE(type.method(type.indexOfSlot(slot)).access(), QMetaMethod::Private);
}

void tst_OxaQmlPopupController::outlivesItsView()
{
    OxaQmlPopupController controller;
    auto view = std::make_unique<View>();
    controller.setPopupQuickView(view.get());
    view.reset();
    QVERIFY(QMetaObject::invokeMethod(&controller, "adjustArrowOffset"));
    QVERIFY(QMetaObject::invokeMethod(&controller, "flipArrow",
                                      Q_ARG(Qt::ArrowType, Qt::LeftArrow)));
    QCOMPARE(controller.arrowOffset(), 0);
    QCOMPARE(controller.arrowAnchor(), Balloon::Left);
    View next;
    controller.setPopupQuickView(&next);
    QCOMPARE(next.listeners(), 2);
}

void tst_OxaQmlPopupController::mayBeDeletedWhenTheArrowFlips()
{
    View view;
    const QPointer<OxaQmlPopupController> controller = new OxaQmlPopupController;
    controller->setPopupQuickView(&view);
    connect(controller, &OxaQmlPopupController::arrowAnchorChanged, this,
            [&controller] { delete controller.data(); });
    view.showAtRect(rectangleOf(places[12]), Qt::UpArrow);
    QVERIFY(!controller);
}

void tst_OxaQmlPopupController::mayBeDeletedWhenTheArrowMoves()
{
    View view;
    const QPointer<OxaQmlPopupController> controller = new OxaQmlPopupController;
    controller->setPopupQuickView(&view);
    connect(controller, &OxaQmlPopupController::arrowOffsetChanged, this,
            [&controller] { delete controller.data(); });
    view.showAtRect(rectangleOf(places[4]), Qt::UpArrow);
    QVERIFY(!controller);
}

void tst_OxaQmlPopupController::diesInAnyOrder_data()
{
    QTest::addColumn<QByteArray>("order");
    QByteArray order = "cmv";
    do {
        QTest::newRow(order.constData()) << order;
    } while (std::next_permutation(order.begin(), order.end()));
}

void tst_OxaQmlPopupController::diesInAnyOrder()
{
    QFETCH(const QByteArray, order);
    const QPointer<QObject> model = new QObject;
    auto view = std::make_unique<View>();
    auto controller = std::make_unique<OxaQmlPopupController>();
    controller->setModel(QVariant::fromValue(model.data()));
    controller->setProperty("takesModelOwnership", true);
    controller->setPopupQuickView(view.get());
    for (const char part : order) {
        if (part == 'c')
            controller.reset();
        else if (part == 'v')
            view.reset();
        else
            delete model.data();
        if (view)
            view->showAtRect(rectangleOf(places[12]), Qt::UpArrow);
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!model);
}

UIELEMENTS_TEST_MAIN(tst_OxaQmlPopupController)
#include "tst_oxaqmlpopupcontroller.moc"
