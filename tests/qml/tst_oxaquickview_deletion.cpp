// SPDX-License-Identifier: Apache-2.0
#include "QuickViews.h"
#include "support/Screens.h"
#include "support/TestApplication.h"

#include <UiElements/qml/OxaPopupQuickView.h>
#include <UiElements/qml/OxaQmlController.h>
#include <UiElements/qml/OxaQmlTypes.h>
#include <UiElements/qml/OxaQuickWidget.h>

#include <QSignalSpy>

#include <functional>

using namespace QuickViews;

namespace {

using Popup = OxaPopupQuickView;

const QRectF below(300, 590, 20, 10); ///< A popup below it would be outside.

constexpr char controllerInside[] = R"(
    import QtQuick 2.15
    import UiElements 1.0
    Item {
        width: 100; height: 40
        OxaQmlPopupController { }
    })";

constexpr char keyItem[] = R"(
    import QtQuick 2.15
    Item {
        width: 100; height: 40
        focus: true
        Keys.onPressed: event.accepted = true
    })";

/// What makes a popup emit a signal, and how a slot of it may end the popup.
struct Case
{
    const char *name;
    QMetaMethod signal;
    bool isDeletedAtOnce; ///< Otherwise by deleteLater(): Qt still uses the window.
    std::function<void(Popup &)> run;
};

void resizeAfterShowing(Popup &popup)
{
    popup.showAtRect(QRectF(300, 400, 20, 10), Qt::UpArrow);
    popup.resize(120, 300);
    QCoreApplication::processEvents();
}

const std::vector<Case> &cases()
{
    const auto show = [](Popup &popup) { popup.show(); };
    const auto open = [](Popup &popup) { popup.showAtRect(below, Qt::UpArrow); };
    const auto showAndClose = [](Popup &popup) {
        popup.show();
        popup.close();
    };
    const auto escape = [](Popup &popup) {
        popup.show();
        QTest::keyPress(&popup, Qt::Key_Escape);
    };
    const auto lose = [](Popup &popup) {
        ViewOptions options = popup.getViewOptions();
        options.hideOnDeactivate = true;
        popup.setViewOptions(options);
        QVERIFY(showActive(popup));
        QWindow other;
        QVERIFY(showActive(other));
    };
    const auto openLater = [](Popup &popup) {
        ViewOptions options = popup.getViewOptions();
        options.deferShow = true;
        popup.setViewOptions(options);
        popup.showAtRect(below, Qt::UpArrow);
        QCoreApplication::processEvents();
    };
    const auto close = QMetaMethod::fromSignal(&Popup::aboutToClose);
    const auto opens = QMetaMethod::fromSignal(&Popup::aboutToShow);
    const auto flipped = QMetaMethod::fromSignal(&Popup::arrowFlipped);
    const auto orthogonal = QMetaMethod::fromSignal(&Popup::arrowOrthogonalChanged);
    const auto dispatch = QMetaMethod::fromSignal(&Popup::_dispatchShow);
    static const std::vector<Case> rows = {
        { "aboutToShow() by show()", opens, false, show },
        { "aboutToShow() by showAtRect()", opens, false, open },
        { "aboutToShow() by the event loop", opens, false, openLater },
        { "aboutToClose() by close()", close, true, showAndClose },
        { "aboutToClose() by Escape", close, true, escape },
        { "aboutToClose() by the loss of activation", close, false, lose },
        { "_dispatchShow() by showAtRect()", dispatch, true, openLater },
        { "arrowFlipped() by showAtRect()", flipped, true, open },
        { "arrowFlipped() by another size", flipped, false, resizeAfterShowing },
        { "arrowOrthogonalChanged() by another size", orthogonal, false, resizeAfterShowing },
    };
    return rows;
}

/// Ends a popup in a slot.
class Ender : public QObject
{
    Q_OBJECT

public:
    Ender(Popup &popup, const Case &row) : m_popup(&popup), m_atOnce(row.isDeletedAtOnce)
    {
        connect(&popup, row.signal, this, metaObject()->method(metaObject()->indexOfSlot("end()")));
    }

    bool isRun = false;

public Q_SLOTS:
    void end()
    {
        isRun = true;
        if (!m_popup)
            return;
        if (m_atOnce)
            delete m_popup;
        else
            m_popup->deleteLater();
    }

private:
    const QPointer<Popup> m_popup;
    const bool m_atOnce;
};

} // namespace

class tst_OxaQuickView_deletion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { QVERIFY(showActive(*m_activeWindow)); }
    void cleanupTestCase() { m_activeWindow.reset(); }

    void survivesTheEndOfAPopupInASlot_data();
    void survivesTheEndOfAPopupInASlot();
    void survivesTheEndOfAPopupAsItOpens();
    void isShownOnceWhereShowingChangesItsSize();
    void survivesTheEndOfAViewInItsCallback();
    void survivesTheEndOfAnActivePopup();
    void survivesTheEndOfTheItemsWindowAtEscape();
    void survivesAnEndBeforeItIsShownLater();
    void survivesTheEndOfItsParent();
    void survivesTheEndOfItsRootItem();
    void survivesWhatItsQmlDoesAtItsEnd();
    void survivesTheEndOfItsScreen();
    void survivesTheEndOfAWidgetAsItsFocusChanges();
    void survivesTheEndOfAWidgetByItsQml();

private:
    std::unique_ptr<OxaQmlEngine> m_engine;
    std::unique_ptr<QWindow> m_activeWindow;
};

void tst_OxaQuickView_deletion::initTestCase()
{
    OxaQmlTypes::registerQmlTypes();
    m_engine = std::make_unique<OxaQmlEngine>(nullptr);
    m_activeWindow = std::make_unique<QWindow>();
}

void tst_OxaQuickView_deletion::survivesTheEndOfAPopupInASlot_data()
{
    QTest::addColumn<int>("row");
    for (std::size_t i = 0; i < cases().size(); ++i)
        QTest::newRow(cases()[i].name) << int(i);
}

void tst_OxaQuickView_deletion::survivesTheEndOfAPopupInASlot()
{
    QFETCH(const int, row);
    const Case &testCase = cases().at(std::size_t(row));
    const Owned<Popup> popup(m_engine.get(), nullptr, ViewOptions());
    popup->setFlag(Qt::FramelessWindowHint);
    popup->resize(100, 40);
    const Ender ender(*popup, testCase);
    testCase.run(*popup);
    QVERIFY(ender.isRun);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!popup);
}

void tst_OxaQuickView_deletion::survivesTheEndOfAPopupAsItOpens()
{
    // The last signal of showAtRect(), after Qt has moved and shown the window.
    const Owned<Popup> popup(m_engine.get(), nullptr, ViewOptions());
    popup->setFlag(Qt::FramelessWindowHint);
    popup->resize(100, 40);
    popup->showAtRect(QRectF(300, 300, 20, 10), Qt::UpArrow);
    QCoreApplication::processEvents();
    connect(popup.get(), &Popup::arrowOrthogonalChanged, this, [&popup] { delete popup.get(); });
    popup->showAtRect(QRectF(300, 300, 20, 10), Qt::UpArrow);
    QVERIFY(!popup);
}

void tst_OxaQuickView_deletion::isShownOnceWhereShowingChangesItsSize()
{
    ViewOptions options;
    options.deleteOnClose = false;
    const Owned<Popup> popup(m_engine.get(), nullptr, options);
    const QRectF rect(300, 300, 20, 10);
    popup->showAtRect(rect, Qt::UpArrow);
    popup->resize(77, 88);
    popup->close();
    QSignalSpy shown(popup.get(), &Popup::aboutToShow);
    // The platform tells of the size while it makes a window anew, and Qt paints this already.
    const QRegularExpression early(QStringLiteral("^QBackingStore::flush\\(\\) called for .*"));
    for (int i = 0; i < 2; ++i)
        QTest::ignoreMessage(QtWarningMsg, early);
    popup->showAtRect(rect, Qt::UpArrow);
    QCOMPARE(shown.size(), 1);
}

void tst_OxaQuickView_deletion::survivesTheEndOfAViewInItsCallback()
{
    const Owned<OxaQuickView> view(m_engine.get(), nullptr, ViewOptions());
    load(*view, controllerInside);
    view->callControllerCallback([&view](OxaQmlController *) { delete view.get(); });
    QVERIFY(!view);
}

void tst_OxaQuickView_deletion::survivesTheEndOfAnActivePopup()
{
    QWindow watched;
    const ViewOptions options { false, true, true, true, &watched };
    for (int i = 0; i < 2; ++i) {
        const Owned<Popup> popup(m_engine.get(), nullptr, options);
        loadItem(*popup);
        popup->setPerformanceWatcherEnabled(true);
        QVERIFY(showActive(*popup));
        if (i == 1)
            QVERIFY(showActive(watched)); // The popup hides and is going to be deleted.
    }
}

void tst_OxaQuickView_deletion::survivesTheEndOfTheItemsWindowAtEscape()
{
    const Owned<OxaQuickView> source(m_engine.get(), nullptr, ViewOptions());
    const ViewOptions options { false, true, true, false, nullptr };
    const Owned<Popup> popup(m_engine.get(), nullptr, options);
    popup->setupActivationItem(load(*source, keyItem), QStringLiteral("enabled"));
    load(*popup, keyItem);
    QVERIFY(showActive(*source));
    QVERIFY(showActive(*popup));
    connect(popup.get(), &Popup::aboutToClose, this, [&source] { delete source.get(); });
    QTest::keyPress(popup.get(), Qt::Key_Escape);
    QVERIFY(!source);
    QTRY_VERIFY(!popup);
}

void tst_OxaQuickView_deletion::survivesAnEndBeforeItIsShownLater()
{
    ViewOptions options;
    options.deferShow = true;
    const Owned<OxaQuickView> view(m_engine.get(), nullptr, options);
    view->showAt(QPoint(10, 10), nullptr);
    delete view.get();
    QCoreApplication::processEvents();
    QVERIFY(!view);
}

void tst_OxaQuickView_deletion::survivesTheEndOfItsParent()
{
    auto parent = std::make_unique<QWindow>();
    parent->show();
    const QPointer<Popup> popup = new Popup(m_engine.get(), parent.get(), ViewOptions());
    loadItem(*popup);
    popup->show();
    QVERIFY(popup->isVisible());
    parent.reset();
    QVERIFY(!popup);
}

void tst_OxaQuickView_deletion::survivesTheEndOfItsRootItem()
{
    const Owned<OxaQuickView> view(m_engine.get(), nullptr, ViewOptions());
    delete load(*view, controllerInside);
    QVERIFY(!view->rootObject());
    view->setupFixedSize();
    int calls = 0;
    view->callControllerCallback([&calls](OxaQmlController *) { ++calls; });
    QCOMPARE(calls, 0);
    view->showAt(QPoint(10, 10), nullptr);
    QVERIFY(view->isVisible());
}

void tst_OxaQuickView_deletion::survivesWhatItsQmlDoesAtItsEnd()
{
    const ViewOptions options { false, true, true, false, nullptr };
    const QPointer<Popup> popup = new Popup(m_engine.get(), nullptr, options);
    load(*popup, R"(
        import QtQuick 2.15
        import QtQuick.Window 2.15
        Item {
            id: root
            width: 100; height: 40
            Component.onDestruction: {
                root.Window.window.width = 50
                root.Window.window.visible = false
            }
        })");
    popup->setupFixedSize();
    QVERIFY(showActive(*popup));
    popup->showAtRect(QRectF(300, 300, 20, 10), Qt::UpArrow);
    int changes = 0;
    connect(popup, &QWindow::visibleChanged, this, [&popup, &changes] {
        ++changes;
        QVERIFY(qobject_cast<OxaQuickView *>(popup));
    });
    delete popup;
    QVERIFY(changes > 0);
}

void tst_OxaQuickView_deletion::survivesTheEndOfItsScreen()
{
    const Owned<Popup> popup(m_engine.get(), nullptr, ViewOptions());
    popup->setFlag(Qt::FramelessWindowHint);
    popup->resize(100, 40);
    const QRectF rect(1100, 100, 20, 10);
    {
        const ScreenGuard side(QRect(1000, 0, 400, 300), QRect(1000, 0, 400, 300));
        popup->showAtRect(rect, Qt::UpArrow);
        QCOMPARE(popup->screen(), side.screen());
        QCOMPARE(popup->position(), QPoint(1060, 110));
    }
    QVERIFY(popup->screen() == QGuiApplication::primaryScreen());
    QVERIFY(showActive(*m_activeWindow));
    // There is no screen any more at that place.
    popup->showAtRect(rect, Qt::UpArrow);
    QVERIFY(popup->isVisible());
    QCOMPARE(popup->position(), QPoint(1060, 110));
    popup->showAtRect(QRectF(300, 300, 20, 10), Qt::UpArrow);
    QCOMPARE(popup->position(), QPoint(260, 310));
}

void tst_OxaQuickView_deletion::survivesTheEndOfAWidgetAsItsFocusChanges()
{
    QWidget window;
    const Owned<OxaQuickWidget> widget(m_engine.get(), &window);
    load(*widget, keyItem);
    widget->setCustomAccessibilityEnabled(true);
    // It gets the focus of a window that is not shown yet.
    QFocusEvent in(QEvent::FocusIn, Qt::OtherFocusReason);
    QCoreApplication::sendEvent(widget.get(), &in);
    connect(widget.get(), &OxaQuickWidget::focusAboutToChange, this,
            [&widget] { delete widget.get(); });
    QEvent change(QEvent::FocusAboutToChange);
    QCoreApplication::sendEvent(widget.get(), &change);
    QVERIFY(!widget);
    QCoreApplication::processEvents();
}

void tst_OxaQuickView_deletion::survivesTheEndOfAWidgetByItsQml()
{
    QWidget window;
    const Owned<OxaQuickWidget> widget(m_engine.get(), &window);
    widget->setCustomAccessibilityEnabled(true);
    QQuickItem *root = load(*widget, keyItem);
    connect(root, &QQuickItem::activeFocusChanged, widget.get(), &QObject::deleteLater);
    widget->setFocus();
    QVERIFY(showActive(window));
    QTRY_VERIFY(!widget);
}

UIELEMENTS_TEST_MAIN(tst_OxaQuickView_deletion)
#include "tst_oxaquickview_deletion.moc"
