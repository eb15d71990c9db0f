// SPDX-License-Identifier: Apache-2.0
#include "Controls.h"
#include "GalleryTest.h"

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QLayout>
#include <QScrollBar>

#include <looks/Metrics.h>
#include <looks/TextSettings.h>
#include <looks/ThemeSwitcher.h>
#include <shell/GalleryWindow.h>
#include <shell/HeaderBar.h>
#include <shell/NavigationList.h>
#include <shell/PageRegistry.h>
#include <shell/PageStack.h>
#include <shell/TabOrder.h>
#include <widgets/Buttons.h>
#include <widgets/ListView.h>
#include <widgets/ScrollArea.h>
#include <widgets/SegmentedControl.h>

namespace {

/// Makes a window that has made all its pages and shows the last one.
std::unique_ptr<GalleryWindow> makeWindow()
{
    auto window = std::make_unique<GalleryWindow>();
    for (const QString &name : pageNames())
        window->showPage(name);
    return window;
}

/// A window that is shown off screen at its smallest size.
struct ShownWindow : GalleryWindow
{
    ShownWindow()
    {
        setAttribute(Qt::WA_DontShowOnScreen);
        resize(minimumSize());
        show();
        QCoreApplication::processEvents();
    }
};

QStringList themedWidgetsOfAnotherType(const QWidget &window, const QString &type)
{
    QStringList others;
    const auto widgets = window.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        const QVariant own = widget->property("themeType");
        if (own.isValid() && own.toString() != type)
            others += QString::fromLatin1(widget->metaObject()->className());
    }
    return others;
}

QStringList sheetsWithLeftovers(const QWidget &window)
{
    QStringList sheets;
    const auto widgets = window.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (widget->styleSheet().contains(QLatin1Char('$')))
            sheets += widget->styleSheet();
    }
    return sheets;
}

} // namespace

/// GalleryWindow with all its pages.
class tst_GalleryWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void handsTheThemeTypeToEveryWidget();
    void leavesNoStyleTextUnexpanded();
    void marksTheCurrentPage();
    void makesAPageOnceOnly();
    void keepsTheControlsOfItsHeaderInSight_data();
    void keepsTheControlsOfItsHeaderInSight();
    void fitsEachPageAtItsSmallestSize_data();
    void fitsEachPageAtItsSmallestSize();
    void stopsAtAPageOnlyWhereItScrolls();
    void keepsCardsAsWideBesideAScrollBar();
    void stylesEveryScrollBar();
    void usesTheLibrarysWidgets();
    void bringsTheCurrentPageIntoSight();
    void keepsTheTitlesOfPagesInSight();
    void ignoresAnUnknownPage();
    void stopsInTheOrderOnScreen_data();
    void stopsInTheOrderOnScreen();
    void namesWhateverTakesTheFocus_data();
    void namesWhateverTakesTheFocus();

private:
    static void expectToFit(GalleryWindow &window, const QString &page);
};

void tst_GalleryWindow::cleanup()
{
    GalleryApplication::get()->themeSwitcher()->setThemeType(QStringLiteral("global"));
    GalleryApplication::get()->textSettings()->setFontScale(1.0F);
    GalleryApplication::get()->textSettings()->setDirection(Qt::LeftToRight);
}

void tst_GalleryWindow::handsTheThemeTypeToEveryWidget()
{
    const auto window = makeWindow();
    for (const char *type : { "dark", "inverted", "light", "global" }) {
        const QString word = QString::fromLatin1(type);
        GalleryApplication::get()->themeSwitcher()->setThemeType(word);
        QCOMPARE(themedWidgetsOfAnotherType(*window, word).join(QLatin1Char(' ')), QString());
    }
}

void tst_GalleryWindow::leavesNoStyleTextUnexpanded()
{
    const auto window = makeWindow();
    QCOMPARE(sheetsWithLeftovers(*window), QStringList());
}

void tst_GalleryWindow::marksTheCurrentPage()
{
    GalleryWindow window;
    window.showPage(QStringLiteral("labels"));
    QCOMPARE(Controls::called<ListView>(window, "Pages")->currentIndex().data().toString(),
             QStringLiteral("Labels"));
}

void tst_GalleryWindow::makesAPageOnceOnly()
{
    GalleryWindow window;
    const auto *stack = window.findChild<PageStack *>();
    QCOMPARE(stack->count(), 0);
    window.showPage(QStringLiteral("labels"));
    const QWidget *page = stack->currentWidget();
    window.showPage(QStringLiteral("colours"));
    window.showPage(QStringLiteral("labels"));
    QCOMPARE(stack->currentWidget(), page);
    QCOMPARE(stack->count(), 2);
}

void tst_GalleryWindow::keepsTheControlsOfItsHeaderInSight_data()
{
    QTest::addColumn<float>("scale");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("at the usual size") << 1.0F << Qt::LeftToRight;
    QTest::newRow("with large text") << 1.5F << Qt::LeftToRight;
    QTest::newRow("with large text, from right to left") << 1.5F << Qt::RightToLeft;
}

void tst_GalleryWindow::keepsTheControlsOfItsHeaderInSight()
{
    QFETCH(const float, scale);
    QFETCH(const Qt::LayoutDirection, direction);
    GalleryApplication::get()->textSettings()->setFontScale(scale);
    GalleryApplication::get()->textSettings()->setDirection(direction);
    ShownWindow window;
    const auto *header = window.findChild<HeaderBar *>();
    QCOMPARE(header->findChildren<SegmentedControl *>().size(), 4);
    const auto buttons = header->findChildren<OxaToggleButton *>();
    for (const OxaToggleButton *button : buttons) {
        const QRect rect(button->mapTo(header, QPoint()), button->size());
        QVERIFY2(header->rect().contains(rect), qPrintable(button->text()));
        QVERIFY2(button->width() >= button->sizeHint().width(), qPrintable(button->text()));
    }
    QVERIFY(header->height() >= header->heightForWidth(header->width()));
}

void tst_GalleryWindow::fitsEachPageAtItsSmallestSize_data()
{
    QTest::addColumn<QString>("page");
    for (const QString &name : pageNames())
        QTest::newRow(qPrintable(name)) << name;
}

void tst_GalleryWindow::fitsEachPageAtItsSmallestSize()
{
    QFETCH(const QString, page);
    for (const float scale : { 1.0F, 1.5F }) {
        GalleryApplication::get()->textSettings()->setFontScale(scale);
        ShownWindow window;
        // Larger text asks for a window of the usual size.
        if (scale > 1)
            window.resize(Metrics::windowWidth, Metrics::windowHeight);
        expectToFit(window, page);
    }
}

/// Shows \a page in \a window and checks that nothing of it is cut off at its sides.
void tst_GalleryWindow::expectToFit(GalleryWindow &window, const QString &page)
{
    window.showPage(page);
    QCoreApplication::processEvents();
    const auto areas = window.findChild<PageStack *>()
                               ->currentWidget()
                               ->findChildren<ScrollArea *>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(areas.size(), 1);
    QCOMPARE(areas.front()->horizontalScrollBar()->maximum(), 0);
    const auto buttons = areas.front()->findChildren<OxaToggleButton *>();
    for (const OxaToggleButton *button : buttons)
        QVERIFY2(button->width() >= button->sizeHint().width(), qPrintable(button->text()));
}

void tst_GalleryWindow::stopsAtAPageOnlyWhereItScrolls()
{
    ShownWindow window;
    window.resize(Metrics::windowWidth, Metrics::windowHeight);
    const auto policyOf = [&window](const char *page) {
        window.showPage(QString::fromLatin1(page));
        QCoreApplication::processEvents();
        const QWidget *shown = window.findChild<PageStack *>()->currentWidget();
        return shown->findChild<ScrollArea *>(QString(), Qt::FindDirectChildrenOnly)->focusPolicy();
    };
    QCOMPARE(policyOf("buttons"), Qt::TabFocus);
    QCOMPARE(policyOf("signals"), Qt::NoFocus);
}

void tst_GalleryWindow::keepsCardsAsWideBesideAScrollBar()
{
    ShownWindow window;
    window.resize(Metrics::windowWidth, Metrics::windowHeight);
    const auto widthOfBody = [&window](const char *page) {
        window.showPage(QString::fromLatin1(page));
        QCoreApplication::processEvents();
        const QWidget *shown = window.findChild<PageStack *>()->currentWidget();
        const auto *area = shown->findChild<ScrollArea *>(QString(), Qt::FindDirectChildrenOnly);
        return area->widget()->layout()->itemAt(0)->geometry().width();
    };
    QCOMPARE(widthOfBody("buttons"), widthOfBody("signals"));
}

void tst_GalleryWindow::stylesEveryScrollBar()
{
    const auto window = makeWindow();
    const auto scrollBars = window->findChildren<QScrollBar *>();
    QVERIFY(scrollBars.size() > int(pageNames().size()));
    for (const QScrollBar *bar : scrollBars) {
        const QSize size = bar->sizeHint();
        const int thickness = bar->orientation() == Qt::Vertical ? size.width() : size.height();
        QVERIFY2(thickness == Metrics::scrollBar, bar->parentWidget()->metaObject()->className());
    }
}

void tst_GalleryWindow::usesTheLibrarysWidgets()
{
    const auto window = makeWindow();
    const QByteArrayList classes = { "QCheckBox", "QComboBox", "QLineEdit",      "QRadioButton",
                                     "QTextEdit", "QSlider",   "QStackedWidget", "QSplitter" };
    QSet<QByteArray> found;
    const auto widgets = window->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        bool isOfTheLibrary = false;
        const QMetaObject *type = widget->metaObject();
        for (; type && !classes.contains(type->className()); type = type->superClass())
            isOfTheLibrary |= QByteArray(type->className()).startsWith("Oxa");
        // A field for a time has a line of Qt's in it.
        if (!type || qobject_cast<QAbstractSpinBox *>(widget->parentWidget()))
            continue;
        found.insert(type->className());
        QVERIFY2(isOfTheLibrary, widget->metaObject()->className());
    }
    QCOMPARE(found.size(), classes.size());
}

void tst_GalleryWindow::bringsTheCurrentPageIntoSight()
{
    GalleryApplication::get()->textSettings()->setFontScale(1.5F);
    ShownWindow window;
    window.showPage(pageNames().last());
    const QScrollBar *bar = Controls::called<ListView>(window, "Pages")->verticalScrollBar();
    QVERIFY(bar->maximum() > 0);
    QCOMPARE(bar->value(), bar->maximum());
}

void tst_GalleryWindow::keepsTheTitlesOfPagesInSight()
{
    const ShownWindow window;
    const auto *navigation = window.findChild<NavigationList *>();
    QCOMPARE(navigation->width(), Metrics::sidebarWidth);
    for (const float scale : { 1.5F, 1.0F }) {
        GalleryApplication::get()->textSettings()->setFontScale(scale);
        QCoreApplication::processEvents();
        const auto *list = Controls::called<ListView>(window, "Pages");
        QVERIFY(list->viewport()->width() >= list->sizeHintForColumn(0));
    }
}

void tst_GalleryWindow::ignoresAnUnknownPage()
{
    GalleryWindow window;
    window.showPage(QStringLiteral("labels"));
    window.showPage(QStringLiteral("nowhere"));
    QCOMPARE(window.findChild<PageStack *>()->count(), 1);
}

void tst_GalleryWindow::stopsInTheOrderOnScreen_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("names");
    QTest::newRow("colours") << QStringLiteral("colours") << QStringLiteral("Search, Colour sets");
    QTest::newRow("signals") << QStringLiteral("signals")
                             << QStringLiteral("Search, Emit, Add a receiver, Remove receivers, "
                                               "Signals, What is emitted, Clear the log");
    QTest::newRow("icons") << QStringLiteral("icons")
                           << QStringLiteral("Gallery, All, Search, Icon, 24, Icons");
}

void tst_GalleryWindow::stopsInTheOrderOnScreen()
{
    QFETCH(const QString, page);
    ShownWindow window;
    window.resize(Metrics::windowWidth, Metrics::windowHeight);
    window.showPage(page);
    QCoreApplication::processEvents();
    const QWidget *shown = window.findChild<PageStack *>()->currentWidget();
    QStringList names;
    for (QWidget *stop : TabOrder::of(&window)) {
        if (shown->isAncestorOf(stop))
            names += QAccessible::queryAccessibleInterface(stop)->text(QAccessible::Name);
    }
    QTEST(names.join(QStringLiteral(", ")), "names");
}

void tst_GalleryWindow::namesWhateverTakesTheFocus_data() { fitsEachPageAtItsSmallestSize_data(); }

void tst_GalleryWindow::namesWhateverTakesTheFocus()
{
    QFETCH(const QString, page);
    ShownWindow window;
    window.showPage(page);
    QCoreApplication::processEvents();
    QStringList nameless;
    const auto widgets = window.findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (widget->focusPolicy() == Qt::NoFocus)
            continue;
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(widget);
        if (!interface || interface->text(QAccessible::Name).isEmpty())
            nameless += QStringLiteral("%1 in %2")
                                .arg(QLatin1String(widget->metaObject()->className()),
                                     QLatin1String(
                                             widget->parentWidget()->metaObject()->className()));
    }
    QCOMPARE(nameless.join(QLatin1Char('\n')), QString());
}

GALLERY_TEST_MAIN(tst_GalleryWindow)
#include "tst_gallerywindow.moc"
