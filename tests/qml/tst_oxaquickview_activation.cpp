// SPDX-License-Identifier: Apache-2.0
#include "QuickViews.h"
#include "support/Guards.h"
#include "support/SignalLog.h"
#include "support/TestApplication.h"

#include <UiElements/widgets/PopupWidget.h>

#include <QDialog>
#include <QQuickWidget>
#include <QSignalSpy>
#include <qpa/qwindowsysteminterface.h>

using namespace QuickViews;

namespace {

const QRect place(200, 200, 100, 80);

OxaColorSetMap popupColors()
{
    OxaColorSetMap store;
    for (const char *name : { "background-primary", "oxa-default-border", "oxa-popupDropShadow" })
        store.emplace(name, OxaColorSet(QString::fromLatin1(name), Qt::gray));
    return store;
}

/// A popup of widgets at \a geometry, which stays by itself.
std::unique_ptr<PopupWidget> makePopup(const QRect &geometry)
{
    WidgetData data(OxaThemeUtils::AppThemeType::Global);
    auto popup = std::make_unique<PopupWidget>(nullptr, data.autoDismiss(false));
    popup->setFixedSize(geometry.size());
    popup->show();
    popup->move(geometry.topLeft());
    const auto isInPlace = [&] { return popup->frameGeometry() == geometry; };
    if (!QTest::qWaitForWindowExposed(popup.get()) || !QTest::qWaitFor(isInPlace))
        qFatal("The popup is not in its place.");
    return popup;
}

/// Makes \a window active, and waits until Qt has told everybody.
bool activate(QWidget &window)
{
    window.show();
    window.activateWindow();
    return QTest::qWaitForWindowActive(&window);
}

} // namespace

/// When a view hides because another window is active.
class tst_OxaQuickView_activation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_engine = std::make_unique<OxaQmlEngine>(nullptr); }

    void givesItsContentTheFocusWhereAsked_data();
    void givesItsContentTheFocusWhereAsked();
    void hidesOrClosesOrStays_data();
    void hidesOrClosesOrStays();
    void hidesWhenTheApplicationIsLeft();
    void staysWhenTheFlagIsTakenBack();
    void staysHiddenAndUnknownWindowsDoNotMatter();
    void hidesWhenTheWatchedWindowMoves_data();
    void hidesWhenTheWatchedWindowMoves();
    void forgetsAWatchedWindowThatDies();
    void staysForAPopupThatOverlapsIt_data();
    void staysForAPopupThatOverlapsIt();
    void staysForADialogOfAPopupThatOverlapsIt();
    void hidesForAnyOtherWindowThatOverlapsIt();
    void hidesOnceThePopupIsGone();

private:
    OxaQuickView *makeView(bool hides, bool closes) const;

    std::unique_ptr<OxaQmlEngine> m_engine;
};

OxaQuickView *tst_OxaQuickView_activation::makeView(bool hides, bool closes) const
{
    ViewOptions options;
    options.hideOnDeactivate = hides;
    options.deleteOnClose = closes;
    auto *view = new OxaQuickView(m_engine.get(), nullptr, options);
    view->setFlag(Qt::FramelessWindowHint);
    view->setGeometry(place);
    return view;
}

void tst_OxaQuickView_activation::givesItsContentTheFocusWhereAsked_data()
{
    QTest::addColumn<bool>("isLoaded");
    QTest::addColumn<bool>("isAsked");
    QTest::newRow("asked, ready") << true << true;
    QTest::newRow("asked, without QML") << false << true;
    QTest::newRow("not asked") << true << false;
}

void tst_OxaQuickView_activation::givesItsContentTheFocusWhereAsked()
{
    QFETCH(const bool, isLoaded);
    QFETCH(const bool, isAsked);
    ViewOptions options;
    options.focusContentOnActivate = isAsked;
    OxaQuickView view(m_engine.get(), nullptr, options);
    if (isLoaded)
        loadItem(view);
    view.contentItem()->setFocus(false);
    view.onActiveChanged(); // It is not visible.
    QVERIFY(!view.contentItem()->hasFocus());
    QVERIFY(showActive(view));
    view.contentItem()->setFocus(false);
    view.onActiveChanged();
    QCOMPARE(view.contentItem()->hasFocus(), isLoaded && isAsked);
}

void tst_OxaQuickView_activation::hidesOrClosesOrStays_data()
{
    QTest::addColumn<bool>("hides");
    QTest::addColumn<bool>("closes");
    QTest::addColumn<QString>("expected");
    QTest::newRow("hides") << true << false << "hidden";
    QTest::newRow("closes") << true << true << "hidden | aboutToClose | destroyed";
    QTest::newRow("stays") << false << false << QString();
    QTest::newRow("stays, to be deleted once it is closed") << false << true << QString();
}

void tst_OxaQuickView_activation::hidesOrClosesOrStays()
{
    QFETCH(const bool, hides);
    QFETCH(const bool, closes);
    QFETCH(const QString, expected);
    const QPointer<OxaQuickView> view = makeView(hides, closes);
    QVERIFY(showActive(*view));
    SignalLog log;
    log.record(view.data(), &QWindow::visibleChanged, QStringLiteral("hidden"));
    log.record(view.data(), &OxaQuickView::aboutToClose, QStringLiteral("aboutToClose"));
    log.record(view.data(), &QObject::destroyed, QStringLiteral("destroyed"));
    QWindow other;
    QVERIFY(showActive(other));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(log.take(), expected);
    delete view;
}

void tst_OxaQuickView_activation::hidesWhenTheApplicationIsLeft()
{
    const QPointer<OxaQuickView> view = makeView(true, false);
    const Owned<QWindow> other;
    QVERIFY(showActive(*other));
    QVERIFY(showActive(*view));
    // No window of the application is active any more.
    QWindowSystemInterface::handleWindowActivated(nullptr);
    QTRY_VERIFY(!view->isVisible());
    delete view;
}

void tst_OxaQuickView_activation::staysWhenTheFlagIsTakenBack()
{
    const QPointer<OxaQuickView> view = makeView(true, true);
    QVERIFY(showActive(*view));
    view->setViewOptions({});
    QWindow other;
    QVERIFY(showActive(other));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(view);
    QVERIFY(view->isVisible());
    delete view;
}

void tst_OxaQuickView_activation::staysHiddenAndUnknownWindowsDoNotMatter()
{
    const QPointer<OxaQuickView> view = makeView(true, true);
    QSignalSpy closes(view.data(), &OxaQuickView::aboutToClose);
    QWindow other;
    QVERIFY(showActive(other)); // Another window than before, while the view is not visible.
    view->onActiveChanged();
    QCOMPARE(closes.size(), 0);
    QVERIFY(showActive(*view));
    QVERIFY(view->isVisible());
    delete view;
}

void tst_OxaQuickView_activation::hidesWhenTheWatchedWindowMoves_data()
{
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<bool>("isWatched");
    QTest::addColumn<bool>("isHidden");
    QTest::newRow("sideways") << QPoint(150, 100) << true << true;
    QTest::newRow("downwards") << QPoint(100, 150) << true << true;
    QTest::newRow("not watched") << QPoint(150, 150) << false << false;
}

void tst_OxaQuickView_activation::hidesWhenTheWatchedWindowMoves()
{
    QFETCH(const QPoint, position);
    QFETCH(const bool, isWatched);
    QFETCH(const bool, isHidden);
    const QPointer<OxaQuickView> view = makeView(false, false);
    QWindow other;
    other.setGeometry(100, 100, 300, 300);
    QVERIFY(showActive(*view));
    QVERIFY(showActive(other));
    QVERIFY(view->isVisible());
    ViewOptions options;
    options.hideOnDeactivate = true;
    options.deleteOnClose = false;
    if (isWatched)
        options.watchedWindow = &other;
    view->setViewOptions(options);
    QSignalSpy xMoves(&other, &QWindow::xChanged);
    QSignalSpy yMoves(&other, &QWindow::yChanged);
    other.setPosition(position);
    QTRY_VERIFY(xMoves.size() + yMoves.size() > 0);
    QCOMPARE(!view->isVisible(), isHidden);
    delete view;
}

void tst_OxaQuickView_activation::forgetsAWatchedWindowThatDies()
{
    const QPointer<OxaQuickView> view = makeView(true, false);
    auto watched = std::make_unique<QWindow>();
    ViewOptions options;
    options.watchedWindow = watched.get();
    options.hideOnDeactivate = true;
    view->setViewOptions(options);
    watched.reset();
    QVERIFY(!view->getViewOptions().watchedWindow);
    view->setViewOptions(view->getViewOptions());
    QVERIFY(showActive(*view));
    delete view;
}

void tst_OxaQuickView_activation::staysForAPopupThatOverlapsIt_data()
{
    QTest::addColumn<QRect>("geometry");
    QTest::addColumn<bool>("stays");
    QTest::newRow("over it") << QRect(220, 220, 40, 40) << true;
    QTest::newRow("over its last pixel") << QRect(299, 279, 40, 40) << true;
    QTest::newRow("beside it") << QRect(300, 200, 40, 40) << false;
    QTest::newRow("below it") << QRect(200, 280, 40, 40) << false;
}

void tst_OxaQuickView_activation::staysForAPopupThatOverlapsIt()
{
    QFETCH(const QRect, geometry);
    QFETCH(const bool, stays);
    const StoreGuard stores(popupColors());
    const QPointer<OxaQuickView> view = makeView(true, false);
    QVERIFY(showActive(*view));
    const auto popup = makePopup(geometry);
    QVERIFY(showActive(*view));
    QVERIFY(activate(*popup));
    QCOMPARE(view->isVisible(), stays);
    delete view;
}

void tst_OxaQuickView_activation::staysForADialogOfAPopupThatOverlapsIt()
{
    const StoreGuard stores(popupColors());
    const QPointer<OxaQuickView> view = makeView(true, false);
    const auto popup = makePopup(QRect(220, 220, 40, 40));
    QDialog dialog(popup.get(), Qt::FramelessWindowHint);
    dialog.setGeometry(600, 400, 100, 100);
    QVERIFY(showActive(*view));
    QVERIFY(activate(dialog));
    QVERIFY(view->isVisible());
    // The popup's window is then elsewhere.
    popup->move(500, 500);
    QVERIFY(showActive(*view));
    QVERIFY(activate(*popup));
    QVERIFY(!view->isVisible());
    delete view;
}

void tst_OxaQuickView_activation::hidesForAnyOtherWindowThatOverlapsIt()
{
    const QPointer<OxaQuickView> view = makeView(true, false);
    QWidget widget(nullptr, Qt::FramelessWindowHint);
    QQuickWidget quickWidget;
    for (QWidget *window : { &widget, static_cast<QWidget *>(&quickWidget) }) {
        window->setGeometry(place);
        QVERIFY(showActive(*view));
        QVERIFY(activate(*window));
        QVERIFY(!view->isVisible());
    }
    delete view;
}

void tst_OxaQuickView_activation::hidesOnceThePopupIsGone()
{
    const StoreGuard stores(popupColors());
    const QPointer<OxaQuickView> view = makeView(true, false);
    auto popup = makePopup(place);
    QVERIFY(showActive(*view));
    QVERIFY(activate(*popup));
    QVERIFY(view->isVisible());
    popup.reset();
    QWindow other;
    QVERIFY(showActive(other));
    QVERIFY(!view->isVisible());
    delete view;
}

UIELEMENTS_TEST_MAIN(tst_OxaQuickView_activation)
#include "tst_oxaquickview_activation.moc"
