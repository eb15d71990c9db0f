// SPDX-License-Identifier: Apache-2.0
#include "Controls.h"
#include "GalleryTest.h"

#include <UiElements/qml/OxaPopupQuickView.h>
#include <UiElements/qml/OxaQmlEngine.h>
#include <UiElements/qml/OxaQuickWidget.h>
#include <UiElements/widgets/OxaCheckBox.h>
#include <UiElements/widgets/OxaLabel.h>

#include <QQuickItem>
#include <QRegularExpression>
#include <QTest>

#include <looks/ThemeSwitcher.h>
#include <pages/qmlviews/PeopleRow.h>
#include <pages/widgets/Pages.h>
#include <shell/Page.h>
#include <widgets/CodeEdit.h>

namespace {

/// A page in a window that is active.
class Sample
{
public:
    explicit Sample(Page *(*makePage)(QWidget *)) : m_page(makePage(&m_window))
    {
        m_window.resize(700, 700);
        m_page->resize(m_window.size());
        m_window.show();
        m_window.activateWindow();
        m_isActive = QTest::qWaitForWindowActive(&m_window);
    }
    ~Sample()
    {
        QVector<QPointer<QWindow>> views;
        for (QWindow *const window : QGuiApplication::topLevelWindows()) {
            if (qobject_cast<OxaQuickView *>(window))
                views.append(window);
        }
        for (const QPointer<QWindow> &view : qAsConst(views))
            delete view;
    }

    bool isActive() const { return m_isActive; }
    Page &page() const { return *m_page; }
    QString log() const { return m_page->findChild<CodeEdit *>()->toPlainText(); }
    void click(const char *button) const { Controls::withText(*m_page, button)->click(); }

    /// Returns the texts of the windows that show QML, in any order.
    static QStringList shownTexts()
    {
        QStringList texts;
        for (QWindow *const window : QGuiApplication::topLevelWindows()) {
            const auto *const view = qobject_cast<OxaQuickView *>(window);
            if (view && view->isVisible())
                texts += textOf(view->rootObject());
        }
        return texts;
    }

    static QString textOf(const QQuickItem *root)
    {
        return root->property("looks").toMap().value(QStringLiteral("text")).toString();
    }

private:
    QWidget m_window;
    Page *const m_page;
    bool m_isActive = false;
};

} // namespace

/// The pages of views with QML, and of cards that open under the pointer.
class tst_QmlViewsPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void openEachKindOfView();
    void openAPopup();
    void openOneDialogAndOnePopup();
    void tellOfAFileWithAnError();
    void paintInTheThemesColors();
    void readFromTheSourceTreeAndReload();
    void openACardUnderThePointer();
};

void tst_QmlViewsPages::cleanup()
{
    GalleryApplication::get()->themeSwitcher()->setAppearance(ThemeSwitcher::Appearance::Light);
}

void tst_QmlViewsPages::openEachKindOfView()
{
    const Sample sample(Pages::makeQmlViews);
    QVERIFY(sample.isActive());
    sample.click("Open window");
    sample.click("Open dialog");
    QTRY_COMPARE(Sample::shownTexts().size(), 2);
    QVERIFY(sample.log().contains(QStringLiteral("Ready views/View.qml")));
}

void tst_QmlViewsPages::openAPopup()
{
    const Sample sample(Pages::makeQmlViews);
    QVERIFY(sample.isActive());
    sample.click("Open popup");
    QTRY_COMPARE(Sample::shownTexts().size(), 1);
    QVERIFY(sample.log().contains(QStringLiteral("Ready views/Card.qml")));
}

void tst_QmlViewsPages::openOneDialogAndOnePopup()
{
    const Sample sample(Pages::makeQmlViews);
    for (int i = 0; i < 2; ++i) {
        sample.click("Open dialog");
        sample.click("Open window");
    }
    QTRY_COMPARE(Sample::shownTexts().filter(QStringLiteral("A dialog")).size(), 1);
    QCOMPARE(Sample::shownTexts().filter(QStringLiteral("A window")).size(), 2);
}

void tst_QmlViewsPages::tellOfAFileWithAnError()
{
    const Sample sample(Pages::makeQmlViews);
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("MissingType is not a type")));
    sample.click("Open file with an error");
    QVERIFY(sample.log().contains(
            QStringLiteral("Error views/WithError.qml Unable to load the qml view!")));
    QVERIFY(sample.log().endsWith(QStringLiteral("DestroyedView views/WithError.qml")));
}

void tst_QmlViewsPages::paintInTheThemesColors()
{
    const Sample sample(Pages::makeQmlViews);
    const auto color = [&sample] {
        const auto *const widget = sample.page().findChild<OxaQuickWidget *>();
        return widget->rootObject()->property("color").value<QColor>();
    };
    const QColor light = color();
    GalleryApplication::get()->themeSwitcher()->setAppearance(ThemeSwitcher::Appearance::Dark);
    QVERIFY(light.isValid());
    QVERIFY(color() != light);
}

void tst_QmlViewsPages::readFromTheSourceTreeAndReload()
{
    const Sample sample(Pages::makeQmlViews);
    auto *const fromDisk = sample.page().findChild<OxaCheckBox *>();
    fromDisk->click();
    QVERIFY(GalleryApplication::get()->getQmlEngine()->isReadingQmlFromDisk());
    sample.click("Open window");
    QTRY_COMPARE(Sample::shownTexts().size(), 1);
    const QString before = sample.log();
    // The widget on the page is from resources, which the engine says.
    QTest::ignoreMessage(QtWarningMsg,
                         "Reloading views from QRC is not supported. "
                         "QUrl(\"qrc:/Qml/views/View.qml\")");
    sample.click("Reload all views (F5)");
    QCOMPARE(sample.log().mid(before.size()),
             QStringLiteral("\nDestroyedController views/View.qml\nInitializing views/View.qml\n"
                            "Ready views/View.qml"));
    QCOMPARE(Sample::shownTexts().size(), 1);
    QVERIFY(Sample::shownTexts().constFirst().startsWith(QStringLiteral("A window")));
    fromDisk->click();
    QVERIFY(!GalleryApplication::get()->getQmlEngine()->isReadingQmlFromDisk());
}

void tst_QmlViewsPages::openACardUnderThePointer()
{
    const Sample sample(Pages::makeHoverCards);
    QVERIFY(sample.isActive());
    const auto *const people = sample.page().findChild<PeopleRow *>();
    auto *const grace = Controls::withText<OxaLabel>(*people, "Grace");
    QCOMPARE(people->state(), PeopleRow::State::Hidden);
    QCursor::setPos(grace->mapToGlobal(grace->rect().center()));
    QTRY_COMPARE(people->state(), PeopleRow::State::Waiting);
    QTRY_COMPARE(people->state(), PeopleRow::State::Shown);
    QCOMPARE(Sample::shownTexts(), QStringList(QStringLiteral("This is the card of Grace.")));
    QCursor::setPos(sample.page().mapToGlobal(QPoint(690, 690)));
    QTRY_COMPARE(people->state(), PeopleRow::State::Closing);
    QTRY_COMPARE(people->state(), PeopleRow::State::Hidden);
}

GALLERY_TEST_MAIN(tst_QmlViewsPages)
#include "tst_qmlviewspages.moc"
