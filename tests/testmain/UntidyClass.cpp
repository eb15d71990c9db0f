// SPDX-License-Identifier: Apache-2.0
#include "support/TestApplication.h"

#include <QWidget>
#include <QWindow>

/// A test class whose functions each leave something behind.
class UntidyClass : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void passesToo() { }
    void failsToo() { QFAIL("on purpose"); }
    void hasRows_data()
    {
        QTest::addColumn<int>("number");
        QTest::newRow("first row") << 1;
        QTest::newRow("second row") << 2;
    }
    void hasRows() { }

    void leavesAWidget() { new QWidget; }
    void leavesAWindow() { new QWindow; }
    void leavesTheLayoutDirection() { QGuiApplication::setLayoutDirection(Qt::RightToLeft); }
    void leavesTheFont() { QGuiApplication::setFont(QFont(QStringLiteral("Other"))); }
    void leavesThePalette() { QGuiApplication::setPalette(Qt::red); }
    void leavesTheStyleSheet() { qApp->setStyleSheet(QStringLiteral("* {}")); }
    void leavesAThemeFlag() { qApp->setProperty("isDarkTheme", true); }
    void leavesADynamicProperty() { qApp->setProperty("ofTheTest", 1); }
    void leavesAStore()
    {
        const OxaColorSet set(QStringLiteral("banner"), Qt::red);
        qobject_cast<IOxaApplication *>(qApp)->setColorSets({ { "banner", set } });
    }
    void leavesAnInvertedStore()
    {
        const OxaColorSet set(QStringLiteral("banner"), Qt::red);
        qobject_cast<IOxaApplication *>(qApp)->setInvertedColorSets({ { "banner", set } });
    }
};

UIELEMENTS_TEST_MAIN(UntidyClass)
#include "UntidyClass.moc"
