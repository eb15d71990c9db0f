// SPDX-License-Identifier: Apache-2.0
#include "QuickViews.h"
#include "support/TestApplication.h"

#include <UiElements/qml/OxaQuickWidget.h>

#include <QSignalSpy>
#include <QThread>

#include <functional>

using namespace QuickViews;

namespace {

constexpr char square[] = "import QtQuick 2.15\n"
                          "Rectangle { width: 100; height: 50; color: 'red' }";

/// Makes \a root be rendered again.
void change(QQuickItem *root)
{
    const QColor before = root->property("color").value<QColor>();
    root->setProperty("color", QColor(before == Qt::red ? Qt::green : Qt::red));
}

QQuickWindow *windowOf(OxaQuickView &view) { return &view; }
QQuickWindow *windowOf(OxaQuickWidget &widget) { return widget.quickWindow(); }

/// Runs \a code in another thread while this one waits.
void runElsewhere(const std::function<void()> &code)
{
    const std::unique_ptr<QThread> thread(QThread::create(code));
    thread->start();
    thread->wait();
}

bool isExposed(OxaQuickView &view) { return QTest::qWaitForWindowExposed(&view); }
bool isExposed(OxaQuickWidget &widget) { return QTest::qWaitForWindowExposed(&widget); }

} // namespace

/// The measuring of how long a view renders. It runs on the software scene graph, and on OpenGL in
/// a thread of its own.
class tst_OxaQuickView_rendering : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_engine = std::make_unique<OxaQmlEngine>(nullptr); }

    void measuresTheRenderingOfAView();
    void measuresTheRenderingOfAWidget();
    void stopsMeasuringAView();
    void stopsMeasuringAWidget();
    void endsOnlyConnectionsOfTheWindowToItself();
    void tellsInTheThreadOfTheView();
    void leavesTheTimerOfAViewToItsThread();
    void leavesTheTimerOfAWidgetToItsThread();
    void survivesTheEndOfAViewThatRenders();
    void measuresTheLatestRendering();

private:
    template <typename View>
    void measuresTheRendering(View &view);
    template <typename View>
    void stopsMeasuring(View &view);
    template <typename View>
    void leavesTheTimerToItsThread(View &view);

    std::unique_ptr<OxaQmlEngine> m_engine;
};

template <typename View>
void tst_OxaQuickView_rendering::measuresTheRendering(View &view)
{
    view.setObjectName(QStringLiteral("Source"));
    QSignalSpy measured(&view, &View::finishedRendering);
    QQuickItem *root = load(view, square);
    view.show();
    QVERIFY(isExposed(view));
    QVERIFY(!view.getPerformanceWatcherEnabled());
    QCOMPARE(measured.size(), 0);
    view.setPerformanceWatcherEnabled(true);
    view.setPerformanceWatcherEnabled(true);
    QVERIFY(view.getPerformanceWatcherEnabled());
    QSignalSpy rendered(windowOf(view), &QQuickWindow::afterRendering);
    change(root);
    QTRY_VERIFY(!measured.isEmpty());
    QCOMPARE(measured.at(0).at(0).toString(), QStringLiteral("Source"));
    QVERIFY(measured.at(0).at(1).toLongLong() >= 0);
    QVERIFY(measured.at(0).at(1).toLongLong() < 10000);
    QTRY_COMPARE(measured.size(), rendered.size()); // Once each time.
}

void tst_OxaQuickView_rendering::measuresTheRenderingOfAView()
{
    OxaQuickView view(m_engine.get(), nullptr, {});
    measuresTheRendering(view);
}

void tst_OxaQuickView_rendering::measuresTheRenderingOfAWidget()
{
    OxaQuickWidget widget(m_engine.get(), nullptr);
    measuresTheRendering(widget);
}

template <typename View>
void tst_OxaQuickView_rendering::stopsMeasuring(View &view)
{
    QSignalSpy measured(&view, &View::finishedRendering);
    QQuickItem *root = load(view, square);
    view.setPerformanceWatcherEnabled(true);
    view.show();
    QTRY_VERIFY(!measured.isEmpty());
    view.setPerformanceWatcherEnabled(false);
    view.setPerformanceWatcherEnabled(false);
    QVERIFY(!view.getPerformanceWatcherEnabled());
    measured.clear();
    QSignalSpy rendered(windowOf(view), &QQuickWindow::afterRendering);
    change(root);
    QTRY_VERIFY(!rendered.isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(measured.size(), 0);
    view.setPerformanceWatcherEnabled(true);
    change(root);
    QTRY_VERIFY(!measured.isEmpty());
}

void tst_OxaQuickView_rendering::stopsMeasuringAView()
{
    OxaQuickView view(m_engine.get(), nullptr, {});
    stopsMeasuring(view);
}

void tst_OxaQuickView_rendering::stopsMeasuringAWidget()
{
    OxaQuickWidget widget(m_engine.get(), nullptr);
    stopsMeasuring(widget);
}

void tst_OxaQuickView_rendering::endsOnlyConnectionsOfTheWindowToItself()
{
    OxaQuickView view(m_engine.get(), nullptr, {});
    int own = 0;
    int others = 0;
    connect(&view, &QQuickWindow::afterRendering, &view, [&own] { ++own; });
    connect(&view, &QQuickWindow::afterRendering, this, [&others] { ++others; });
    view.setPerformanceWatcherEnabled(false); // It was off.
    Q_EMIT view.afterRendering();
    QCOMPARE(own, 1);
    view.setPerformanceWatcherEnabled(true);
    Q_EMIT view.afterRendering();
    QCOMPARE(own, 2);
    view.setPerformanceWatcherEnabled(false);
    Q_EMIT view.afterRendering();
    QCOMPARE(own, 2);
    QCOMPARE(others, 3);
}

void tst_OxaQuickView_rendering::tellsInTheThreadOfTheView()
{
    const bool isThreaded = qgetenv("QSG_RENDER_LOOP") == "threaded";
    OxaQuickView view(m_engine.get(), nullptr, {});
    QQuickItem *root = load(view, square);
    QAtomicPointer<QThread> renderThread;
    QAtomicPointer<QThread> tellingThread;
    connect(
            &view, &QQuickWindow::afterRendering, this,
            [&renderThread] { renderThread.storeRelease(QThread::currentThread()); },
            Qt::DirectConnection);
    connect(
            &view, &OxaQuickView::finishedRendering, this,
            [&tellingThread] { tellingThread.storeRelease(QThread::currentThread()); },
            Qt::DirectConnection);
    view.setPerformanceWatcherEnabled(true);
    view.show();
    change(root);
    QTRY_VERIFY(tellingThread.loadAcquire());
    QCOMPARE(tellingThread.loadAcquire(), QThread::currentThread());
    QCOMPARE(renderThread.loadAcquire() != QThread::currentThread(), isThreaded);
}

template <typename View>
void tst_OxaQuickView_rendering::leavesTheTimerToItsThread(View &view)
{
    QQuickWindow *const window = windowOf(view);
    QSignalSpy measured(&view, &View::finishedRendering);
    view.setPerformanceWatcherEnabled(true);
    QElapsedTimer longer;
    longer.start();
    QTRY_VERIFY(longer.elapsed() > 200);
    runElsewhere([window] {
        Q_EMIT window->beforeRendering();
        Q_EMIT window->afterRendering();
    });
    QCOMPARE(measured.size(), 0); // Nothing is told there,
    Q_EMIT window->afterRendering();
    QVERIFY(measured.takeFirst().at(1).toLongLong() > 200); // and nothing started again.
    longer.start();
    QCoreApplication::processEvents();
    QCOMPARE(measured.size(), 1);
    QVERIFY(measured.takeFirst().at(1).toLongLong() <= longer.elapsed());
}

void tst_OxaQuickView_rendering::leavesTheTimerOfAViewToItsThread()
{
    OxaQuickView view(m_engine.get(), nullptr, {});
    leavesTheTimerToItsThread(view);
}

void tst_OxaQuickView_rendering::leavesTheTimerOfAWidgetToItsThread()
{
    OxaQuickWidget widget(m_engine.get(), nullptr);
    leavesTheTimerToItsThread(widget);
}

void tst_OxaQuickView_rendering::survivesTheEndOfAViewThatRenders()
{
    for (int i = 0; i < 20; ++i) {
        const Owned<OxaQuickView> view(m_engine.get(), nullptr, ViewOptions());
        QQuickItem *root = load(*view, square);
        view->setPerformanceWatcherEnabled(true);
        QSignalSpy rendered(view.get(), &QQuickWindow::afterRendering);
        connect(view.get(), &OxaQuickView::finishedRendering, view.get(), &QObject::deleteLater);
        view->show();
        change(root);
        if (i % 2 == 0)
            QTRY_VERIFY(!view);
        else
            QTRY_VERIFY(!rendered.isEmpty()); // Then it goes while signals may be on their way.
    }
}

void tst_OxaQuickView_rendering::measuresTheLatestRendering()
{
    OxaQuickView view(m_engine.get(), nullptr, {});
    view.setPerformanceWatcherEnabled(true);
    QSignalSpy measured(&view, &OxaQuickView::finishedRendering);
    QElapsedTimer longer;
    longer.start();
    QTRY_VERIFY(longer.elapsed() > 200);
    Q_EMIT view.afterRendering();
    QVERIFY(measured.takeFirst().at(1).toLongLong() > 200); // Since it was enabled.
    longer.start();
    Q_EMIT view.beforeRendering();
    Q_EMIT view.afterRendering();
    QVERIFY(measured.takeFirst().at(1).toLongLong() <= longer.elapsed());
}

UIELEMENTS_TEST_MAIN(tst_OxaQuickView_rendering)
#include "tst_oxaquickview_rendering.moc"
