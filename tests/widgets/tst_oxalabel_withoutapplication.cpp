// SPDX-License-Identifier: Apache-2.0
#include "support/Guards.h"
#include "support/Pixels.h"
#include "support/TestMain.h"

#include <UiElements/widgets/OxaLabel.h>

#include <QSignalSpy>
#include <QTest>

namespace {

constexpr char missingSetWarning[] = "ColorSet name does not exist!  \"button-hyperlink-text\"";

} // namespace

/// OxaLabel under a plain QApplication.
class tst_OxaLabelWithoutApplication : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::ignoreMessage(QtWarningMsg, missingSetWarning); }

    void takesAndPaintsATextWithoutEllipsis_data();
    void takesAndPaintsATextWithoutEllipsis();
    void colorsLinksBlackWithoutAColorSet();
    void warnsOfTheMissingSetAtEachChangeOfTheThemeType();
    void takesAStyleTextAsItIs();
    void isClicked();
    void followsQtsLayoutDirection();
    void hasTheFontOfItsTokenUnscaled();
};

void tst_OxaLabelWithoutApplication::takesAndPaintsATextWithoutEllipsis_data()
{
    QTest::addColumn<Qt::TextElideMode>("elideMode");
    QTest::addColumn<bool>("wordWrap");
    QTest::newRow("as QLabel does") << Qt::ElideNone << true;
    QTest::newRow("in one line") << Qt::ElideRight << false;
    QTest::newRow("in wrapped lines") << Qt::ElideRight << true;
}

void tst_OxaLabelWithoutApplication::takesAndPaintsATextWithoutEllipsis()
{
    QFETCH(const Qt::TextElideMode, elideMode);
    QFETCH(const bool, wordWrap);
    OxaLabel label(QStringLiteral("text"));
    QCOMPARE(label.text(), QStringLiteral("text"));
    label.resize(100, 60);
    label.setElideMode(elideMode);
    label.setWordWrap(wordWrap);
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, Qt::magenta);
    label.setPalette(palette);
    QVERIFY(Pixels::countNear(Pixels::render(label), Qt::magenta) > 0);
}

void tst_OxaLabelWithoutApplication::colorsLinksBlackWithoutAColorSet()
{
    OxaLabel label;
    label.setTextFormat(Qt::RichText);
    label.setText(QStringLiteral("<a>it</a>"));
    QCOMPARE(label.text(),
             QStringLiteral("<style type = \"text/css\">a:link{text-decoration: underline; "
                            "color:#000000;} a:visited{color:#000000;} a:hover{color:#000000;}"
                            "</style><a>it</a>"));
}

void tst_OxaLabelWithoutApplication::warnsOfTheMissingSetAtEachChangeOfTheThemeType()
{
    OxaLabel label;
    QTest::ignoreMessage(QtWarningMsg, missingSetWarning);
    label.setThemeType(QStringLiteral("dark"));
    QCOMPARE(label.getThemeType(), OxaThemeUtils::AppThemeType::Dark);
}

void tst_OxaLabelWithoutApplication::takesAStyleTextAsItIs()
{
    OxaLabel label;
    label.setCSS(QStringLiteral("OxaLabel { color: red; }"));
    QCOMPARE(label.styleSheet(), QStringLiteral("OxaLabel { color: red; }"));
}

void tst_OxaLabelWithoutApplication::isClicked()
{
    OxaLabel label(QStringLiteral("text"));
    const QSignalSpy clicks(&label, &OxaLabel::clicked);
    QTest::mouseClick(&label, Qt::LeftButton);
    QCOMPARE(clicks.size(), 1);
}

void tst_OxaLabelWithoutApplication::followsQtsLayoutDirection()
{
    OxaLabel label;
    QCOMPARE(label.alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    const LayoutDirectionGuard guard(Qt::RightToLeft);
    QCOMPARE(label.alignment(), Qt::AlignRight | Qt::AlignVCenter);
}

void tst_OxaLabelWithoutApplication::hasTheFontOfItsTokenUnscaled()
{
    OxaLabel label;
    label.setFontToken(OxaFont::Token::Display);
    QCOMPARE(label.font().pixelSize(), 40);
    QCOMPARE(label.font().families(),
             QStringList({ QStringLiteral("Segoe UI"), QStringLiteral("Segoe UI Emoji") }));
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_OxaLabelWithoutApplication)
#include "tst_oxalabel_withoutapplication.moc"
