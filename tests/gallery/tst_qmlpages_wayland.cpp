// SPDX-License-Identifier: Apache-2.0
#include "Controls.h"
#include "GalleryTest.h"

#include <UiElements/qml/OxaQuickView.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/PopupWidget.h>

#include <QTest>

#include <pages/popups/DragSource.h>
#include <pages/qmlviews/PeopleRow.h>
#include <shell/GalleryWindow.h>
#include <shell/PageStack.h>
#include <support/PaintCounter.h>
#include <support/RealInput.h>

#include <algorithm>

namespace {

QVector<OxaQuickView *> views()
{
    QVector<OxaQuickView *> found;
    const auto windows = QGuiApplication::topLevelWindows();
    for (QWindow *const window : windows) {
        if (auto *const view = qobject_cast<OxaQuickView *>(window))
            found.append(view);
    }
    return found;
}

/// Returns how many windows called \a name the compositor shows.
int shownCount(const char *name)
{
    const auto all = views();
    return int(std::count_if(all.begin(), all.end(), [name](const OxaQuickView *view) {
        return view->objectName() == QLatin1String(name) && view->isExposed();
    }));
}

/// Announces the warning of Qt that comes each time that a window asks to be active.
void ignoreActivationWarning()
{
    QTest::ignoreMessage(QtWarningMsg, "Wayland does not support QWindow::requestActivate()");
}

} // namespace

/// Popups and views with QML under a Wayland compositor, which places windows where it likes.
class tst_QmlPagesOnWayland : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void showEachPage_data();
    void showEachPage();
    void openAPopupOfWidgets();
    void openAWindowAndADialog();
    void openAPopupAtAButton();
    void openACardUnderThePointer();

private:
    QWidget &show(const char *page);

    std::unique_ptr<GalleryWindow> m_window;
};

void tst_QmlPagesOnWayland::init()
{
    QCOMPARE(QGuiApplication::platformName(), QStringLiteral("wayland"));
    m_window = std::make_unique<GalleryWindow>();
    ignoreActivationWarning();
    m_window->showFullScreen(); // Elsewhere nobody knows where real input would meet it.
    QTRY_VERIFY(m_window->isActiveWindow());
    QVERIFY(RealInput::parkPointer());
}

void tst_QmlPagesOnWayland::cleanup()
{
    qDeleteAll(views());
    m_window.reset();
}

QWidget &tst_QmlPagesOnWayland::show(const char *page)
{
    m_window->showPage(QLatin1String(page));
    return *m_window->findChild<PageStack *>()->currentWidget();
}

void tst_QmlPagesOnWayland::showEachPage_data()
{
    QTest::addColumn<QByteArray>("page");
    for (const char *page : { "popups", "painted-items", "qml-views", "hover-cards" })
        QTest::newRow(page) << QByteArray(page);
}

void tst_QmlPagesOnWayland::showEachPage()
{
    QFETCH(const QByteArray, page);
    QWidget &shown = show(page.constData());
    const PaintCounter paints(shown);
    shown.update();
    QTRY_VERIFY(paints.count() > 0);
}

void tst_QmlPagesOnWayland::openAPopupOfWidgets()
{
    const auto *const source = show("popups").findChild<DragSource *>();
    QVERIFY(RealInput::click(*source, source->rect().center()));
    const auto popup = [this] { return m_window->findChild<PopupWidget *>(); };
    QTRY_VERIFY(popup() && popup()->windowHandle()->isExposed());
}

void tst_QmlPagesOnWayland::openAWindowAndADialog()
{
    const QWidget &page = show("qml-views");
    Controls::withText(page, "Open window")->click();
    ignoreActivationWarning();
    Controls::withText(page, "Open dialog")->click();
    QTRY_COMPARE(shownCount("View"), 2);
}

void tst_QmlPagesOnWayland::openAPopupAtAButton()
{
    ignoreActivationWarning();
    Controls::withText(show("qml-views"), "Open popup")->click();
    QTRY_COMPARE(shownCount("Card"), 1);
    QTRY_VERIFY(!m_window->isActiveWindow());
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Escape") }));
    QTRY_COMPARE(shownCount("Card"), 0);
}

void tst_QmlPagesOnWayland::openACardUnderThePointer()
{
    const auto *const people = show("hover-cards").findChild<PeopleRow *>();
    const auto *const grace = Controls::withText<OxaLabel>(*people, "Grace");
    ignoreActivationWarning();
    QVERIFY(RealInput::moveTo(*grace, grace->rect().center()));
    QTRY_COMPARE(people->state(), PeopleRow::State::Waiting);
    QTRY_COMPARE(shownCount("Card"), 1);
}

GALLERY_TEST_MAIN(tst_QmlPagesOnWayland)
#include "tst_qmlpages_wayland.moc"
