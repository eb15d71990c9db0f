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

const QPoint place(200, 200);

OxaColorSetMap popupColors()
{
    OxaColorSetMap store;
    for (const char *name : { "background-primary", "oxa-default-border", "oxa-popupDropShadow" })
        store.emplace(name, OxaColorSet(QString::fromLatin1(name), Qt::gray));
    return store;
}

/// A popup of widgets that stays by itself.
std::unique_ptr<PopupWidget> showPopup()
{
    WidgetData data(OxaThemeUtils::AppThemeType::Global);
    auto popup = std::make_unique<PopupWidget>(nullptr, data.autoDismiss(false));
    popup->showSmooth(QRect(500, 400, 40, 40));
    if (!showActive(*popup))
        qFatal("The popup is not active.");
    return popup;
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
    void doesNothingWhileItIsHidden();
    void hidesWhenTheWatchedWindowMoves_data();
    void hidesWhenTheWatchedWindowMoves();
    void forgetsAWatchedWindowThatDies();
    void staysForAPopupThatOverlapsIt_data();
    void staysForAPopupThatOverlapsIt();
    void staysForADialogOfAPopupThatOverlapsIt_data();
    void staysForADialogOfAPopupThatOverlapsIt();
    void hidesForAnyOtherWindowThatOverlapsIt();
    void hidesOnceThePopupIsGone();
    void hidesOnceThePopupIsLeft();

private:
    OxaQuickView *showView(bool hides, bool closes, const QPoint &position = place) const;

    std::unique_ptr<OxaQmlEngine> m_engine;
};

/// Makes a view at \a position and shows it. Only then may it hide: the window manager may still be
/// activating another window.
OxaQuickView *tst_OxaQuickView_activation::showView(bool hides, bool closes,
                                                    const QPoint &position) const
{
    ViewOptions options;
    options.deleteOnClose = closes;
    auto *view = new OxaQuickView(m_engine.get(), nullptr, options);
    view->setFlag(Qt::FramelessWindowHint);
    view->setGeometry(QRect(position, QSize(100, 80)));
    if (!showActive(*view))
        qFatal("The view is not active.");
    options.hideOnDeactivate = hides;
    view->setViewOptions(options);
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
    FocusReasons log;
    view.contentItem()->installEventFilter(&log);
    view.onActiveChanged();
    const QVector<Qt::FocusReason> given { Qt::ActiveWindowFocusReason };
    QCOMPARE(view.contentItem()->hasFocus(), isLoaded && isAsked);
    QCOMPARE(log.reasons, isLoaded && isAsked ? given : QVector<Qt::FocusReason>());
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
    const QPointer<OxaQuickView> view = showView(hides, closes);
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
    QWindow other;
    QVERIFY(showActive(other));
    const QPointer<OxaQuickView> view = showView(true, false);
    // No window of the application is active any more.
    QWindowSystemInterface::handleWindowActivated(nullptr);
    QTRY_VERIFY(!view->isVisible());
    delete view;
}

void tst_OxaQuickView_activation::staysWhenTheFlagIsTakenBack()
{
    const QPointer<OxaQuickView> view = showView(true, true);
    view->setViewOptions({});
    QWindow other;
    QVERIFY(showActive(other));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(view);
    QVERIFY(view->isVisible());
    delete view;
}

void tst_OxaQuickView_activation::doesNothingWhileItIsHidden()
{
    const Owned<OxaQuickView> view(m_engine.get(), nullptr,
                                   ViewOptions { false, true, true, true, nullptr });
    loadItem(*view);
    view->create(); // Only then could close() send an event.
    QSignalSpy closes(view.get(), &OxaQuickView::aboutToClose);
    QWindow other;
    QVERIFY(showActive(other));
    view->onActiveChanged();
    QCOMPARE(closes.size(), 0);
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
    const QPointer<OxaQuickView> view = showView(false, false);
    QWindow other;
    other.setGeometry(100, 100, 300, 300);
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
    const QPointer<OxaQuickView> view = showView(false, false);
    auto watched = std::make_unique<QWindow>();
    ViewOptions options;
    options.watchedWindow = watched.get();
    options.hideOnDeactivate = true;
    view->setViewOptions(options);
    watched.reset();
    QVERIFY(!view->getViewOptions().watchedWindow);
    view->setViewOptions(view->getViewOptions());
    QVERIFY(view->isVisible());
    delete view;
}

void tst_OxaQuickView_activation::staysForAPopupThatOverlapsIt_data()
{
    QTest::addColumn<QPoint>("offset");
    QTest::addColumn<bool>("stays");
    // From the corner of the popup's last pixel to the view's first one.
    QTest::newRow("over the view") << QPoint(-5, -5) << true;
    QTest::newRow("over its first pixel") << QPoint(0, 0) << true;
    QTest::newRow("beside it") << QPoint(1, 0) << false;
    QTest::newRow("above it") << QPoint(0, 1) << false;
}

void tst_OxaQuickView_activation::staysForAPopupThatOverlapsIt()
{
    QFETCH(const QPoint, offset);
    QFETCH(const bool, stays);
    const StoreGuard stores(popupColors());
    const auto popup = showPopup();
    const QPoint corner = popup->frameGeometry().bottomRight() + offset;
    const QPointer<OxaQuickView> view = showView(true, false, corner);
    QTRY_COMPARE(view->frameGeometry().topLeft(), corner);
    QVERIFY(showActive(*popup));
    QCOMPARE(view->isVisible(), stays);
    delete view;
}

void tst_OxaQuickView_activation::staysForADialogOfAPopupThatOverlapsIt_data()
{
    QTest::addColumn<bool>("overlaps");
    QTest::newRow("that overlaps it") << true;
    QTest::newRow("that is elsewhere") << false;
}

void tst_OxaQuickView_activation::staysForADialogOfAPopupThatOverlapsIt()
{
    QFETCH(const bool, overlaps);
    const StoreGuard stores(popupColors());
    const auto popup = showPopup();
    QDialog dialog(popup.get(), Qt::FramelessWindowHint);
    dialog.setGeometry(800, 800, 100, 100);
    QVERIFY(showActive(dialog));
    const QPointer<OxaQuickView> view = showView(true, false,
                                                 overlaps ? popup->pos() : QPoint(10, 10));
    QVERIFY(showActive(dialog));
    QCOMPARE(view->isVisible(), overlaps);
    delete view;
}

void tst_OxaQuickView_activation::hidesForAnyOtherWindowThatOverlapsIt()
{
    QWidget widget(nullptr, Qt::FramelessWindowHint);
    QQuickWidget quickWidget;
    for (QWidget *window : { &widget, static_cast<QWidget *>(&quickWidget) }) {
        window->setGeometry(QRect(place, QSize(100, 80)));
        const QPointer<OxaQuickView> view = showView(true, false);
        QVERIFY(showActive(*window));
        QVERIFY(!view->isVisible());
        delete view;
    }
}

void tst_OxaQuickView_activation::hidesOnceThePopupIsGone()
{
    const StoreGuard stores(popupColors());
    auto popup = showPopup();
    const QPointer<OxaQuickView> view = showView(true, false, popup->pos());
    QVERIFY(showActive(*popup));
    QVERIFY(view->isVisible());
    popup.reset();
    QWindow other;
    QVERIFY(showActive(other));
    QVERIFY(!view->isVisible());
    delete view;
}

void tst_OxaQuickView_activation::hidesOnceThePopupIsLeft()
{
    const StoreGuard stores(popupColors());
    const auto popup = showPopup();
    const QPointer<OxaQuickView> view = showView(true, false, popup->pos());
    QVERIFY(showActive(*popup));
    QVERIFY(view->isVisible());
    QWindow other; // The view is as inactive as before.
    QVERIFY(showActive(other));
    QVERIFY(!view->isVisible());
    delete view;
}

UIELEMENTS_TEST_MAIN(tst_OxaQuickView_activation)
#include "tst_oxaquickview_activation.moc"
