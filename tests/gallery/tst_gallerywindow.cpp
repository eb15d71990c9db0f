// SPDX-License-Identifier: Apache-2.0
#include "GalleryTest.h"

#include <GalleryWindow.h>
#include <PageRegistry.h>
#include <TextSettings.h>
#include <ThemeSwitcher.h>
#include <widgets/PageStack.h>
#include <widgets/ToggleButton.h>

namespace {

/// Makes a window that has made all its pages and shows the last one.
std::unique_ptr<GalleryWindow> makeWindow()
{
    auto window = std::make_unique<GalleryWindow>();
    for (const QString &name : pageNames())
        window->showPage(name);
    return window;
}

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
    void growsWithItsHeader();
    void ignoresAnUnknownPage();
};

void tst_GalleryWindow::cleanup()
{
    GalleryApplication::get()->themeSwitcher()->setThemeType(QStringLiteral("global"));
    GalleryApplication::get()->textSettings()->setFontScale(1.0F);
}

void tst_GalleryWindow::handsTheThemeTypeToEveryWidget()
{
    const auto window = makeWindow();
    for (const char *type : { "dark", "inverted", "light", "global" }) {
        const QString word = QString::fromLatin1(type);
        GalleryApplication::get()->themeSwitcher()->setThemeType(word);
        QCOMPARE(themedWidgetsOfAnotherType(*window, word), QStringList());
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
    const auto buttons = window.findChildren<ToggleButton *>();
    const auto isLabels = [](const ToggleButton *button) {
        return button->text() == QLatin1String("Labels");
    };
    const auto labels = std::find_if(buttons.begin(), buttons.end(), isLabels);
    QVERIFY(labels != buttons.end());
    QVERIFY((*labels)->isChecked());
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

void tst_GalleryWindow::growsWithItsHeader()
{
    const GalleryWindow window;
    const int width = window.minimumWidth();
    QVERIFY(width > 0);
    GalleryApplication::get()->textSettings()->setFontScale(1.5F);
    QVERIFY(window.minimumWidth() > width);
}

void tst_GalleryWindow::ignoresAnUnknownPage()
{
    GalleryWindow window;
    window.showPage(QStringLiteral("labels"));
    window.showPage(QStringLiteral("nowhere"));
    QCOMPARE(window.findChild<PageStack *>()->count(), 1);
}

GALLERY_TEST_MAIN(tst_GalleryWindow)
#include "tst_gallerywindow.moc"
