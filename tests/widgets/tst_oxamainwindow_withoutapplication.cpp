// SPDX-License-Identifier: Apache-2.0
#include "support/TestMain.h"

#include <UiElements/widgets/OxaMainWindow.h>

#include <QTest>

/// OxaMainWindow under a plain QApplication.
class tst_OxaMainWindowWithoutApplication : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void warnsAndWorksOn();
};

void tst_OxaMainWindowWithoutApplication::warnsAndWorksOn()
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

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_OxaMainWindowWithoutApplication)
#include "tst_oxamainwindow_withoutapplication.moc"
