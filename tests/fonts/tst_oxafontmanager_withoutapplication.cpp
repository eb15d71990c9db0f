// SPDX-License-Identifier: Apache-2.0
#include <UiElements/fonts/OxaFontManager.h>
#include <UiElements/fonts/OxaScaledFonts.h>
#include <UiElements/widgets/OxaWidget.h>

#include <QTest>

using FontType = FontManagerEnum::FontType;

/// The font manager, and widgets that look for it, under an application that is Qt's own.
class tst_OxaFontManagerWithoutApplication : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void warnsThatThereIsNone();
    void worksWhenMadeByHand();
    void leavesWidgetsWithTheirTokensFont();
};

void tst_OxaFontManagerWithoutApplication::warnsThatThereIsNone()
{
    QTest::ignoreMessage(QtWarningMsg, "Unable to find OxaApplication");
    QVERIFY(!OxaFontManager::get());
}

void tst_OxaFontManagerWithoutApplication::worksWhenMadeByHand()
{
    OxaFontManager manager;
    manager.setScalingFactor(FontType::MeetingView, FontManagerEnum::FontScalingFactor::Large);
    QCOMPARE(manager.getFont(FontType::MeetingView)->getFont(OxaFont::Token::Title).pixelSize(),
             20);
}

void tst_OxaFontManagerWithoutApplication::leavesWidgetsWithTheirTokensFont()
{
    OxaWidget widget;
    widget.setFontToken(OxaFont::Token::Title);
    QTest::ignoreMessage(QtWarningMsg, "Unable to find OxaApplication");
    widget.setFontType(FontType::MessagingView);
    QCOMPARE(widget.getFontType(), FontType::MessagingView);
    QCOMPARE(widget.font().pixelSize(), 20);

    QTest::ignoreMessage(QtWarningMsg, "Unable to find OxaApplication");
    widget.setFontToken(OxaFont::Token::Display);
    QCOMPARE(widget.font().pixelSize(), 40);
}

QTEST_MAIN(tst_OxaFontManagerWithoutApplication)
#include "tst_oxafontmanager_withoutapplication.moc"
