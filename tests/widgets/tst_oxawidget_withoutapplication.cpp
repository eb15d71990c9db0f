// SPDX-License-Identifier: Apache-2.0
#include "support/Guards.h"
#include "support/TestMain.h"

#include <UiElements/widgets/OxaWidget.h>

#include <QTest>

/// OxaWidget under a plain QApplication.
class tst_OxaWidgetWithoutApplication : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesMarginsAsOnScreenAndSwapsThemAllTheSame();
    void takesAStyleTextAsItIs();
};

void tst_OxaWidgetWithoutApplication::takesMarginsAsOnScreenAndSwapsThemAllTheSame()
{
    OxaWidget widget;
    const LayoutDirectionGuard guard(Qt::RightToLeft);
    widget.setContentsMargins(1, 2, 3, 4);
    QCOMPARE(widget.contentsMargins(), QMargins(1, 2, 3, 4));
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(widget.contentsMargins(), QMargins(3, 2, 1, 4));
}

void tst_OxaWidgetWithoutApplication::takesAStyleTextAsItIs()
{
    OxaWidget widget;
    widget.setCSS(QStringLiteral("OxaWidget { color: red; }"));
    QCOMPARE(widget.styleSheet(), QStringLiteral("OxaWidget { color: red; }"));
    QCOMPARE(widget.getOxaCSS().plainStyleSheet, QString());
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_OxaWidgetWithoutApplication)
#include "tst_oxawidget_withoutapplication.moc"
