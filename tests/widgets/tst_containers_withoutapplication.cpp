// SPDX-License-Identifier: Apache-2.0
#include "support/Guards.h"
#include "support/Pixels.h"
#include "support/TestMain.h"

#include <UiElements/widgets/OxaDialog.h>
#include <UiElements/widgets/OxaMainWindow.h>
#include <UiElements/widgets/OxaProgressBar.h>
#include <UiElements/widgets/OxaSeparator.h>

#include <QTest>

/// Containers and range controls under a plain QApplication.
class tst_ContainersWithoutApplication : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mainWindowWarnsAndWorksOn();
    void dialogHasNoIcon();
    void rangesPaintNothingWithoutColors();
};

void tst_ContainersWithoutApplication::mainWindowWarnsAndWorksOn()
{
    QTest::ignoreMessage(QtWarningMsg, "Could not register shortcuts for the main window");
    OxaMainWindow window;
    QVERIFY(!window.isAnimated());
    window.setCSS(QStringLiteral("OxaMainWindow { color: red; }"));
    QCOMPARE(window.styleSheet(), QStringLiteral("OxaMainWindow { color: red; }"));
    window.setThemeType(QStringLiteral("dark"));
    QCOMPARE(window.property("themeType").toString(), QStringLiteral("dark"));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
}

void tst_ContainersWithoutApplication::dialogHasNoIcon()
{
    const OxaDialog dialog;
    QVERIFY(dialog.windowIcon().isNull());
}

void tst_ContainersWithoutApplication::rangesPaintNothingWithoutColors()
{
    const LayoutDirectionGuard guard(Qt::RightToLeft);
    for (const char *name :
         { "oxa-percentage-indicator-possessive", "oxa-progressbar", "legacy-separator-primary" }) {
        const QString warning = QStringLiteral("ColorSet name does not exist!  \"%1\"");
        QTest::ignoreMessage(QtWarningMsg, qPrintable(warning.arg(QString::fromLatin1(name))));
    }
    OxaProgressBar bar(nullptr, 5);
    bar.setValue(50);
    OxaSeparator separator;
    for (QWidget *widget : { static_cast<QWidget *>(&bar), static_cast<QWidget *>(&separator) }) {
        widget->resize(100, 20);
        QCOMPARE(Pixels::render(*widget), Pixels::paper(widget->size()));
    }
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_ContainersWithoutApplication)
#include "tst_containers_withoutapplication.moc"
