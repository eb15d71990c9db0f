// SPDX-License-Identifier: Apache-2.0
#include "GalleryTest.h"

#include <UiElements/fonts/OxaFontManager.h>
#include <UiElements/fonts/OxaScaledFonts.h>
#include <UiElements/widgets/OxaLabel.h>

#include <looks/TextSettings.h>
#include <widgets/AlignedLabel.h>

using View = TextSettings::FontType;
using Factor = TextSettings::ScalingFactor;

namespace {

TextSettings *settings() { return GalleryApplication::get()->textSettings(); }

int bodySize(View view)
{
    return OxaFontManager::get()->getFont(view)->getFont(OxaFont::Token::BodyPrimary).pixelSize();
}

} // namespace

/// TextSettings: the direction and size of text of all widgets.
class tst_TextSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void scalesTheFontsOfWidgetsThatAreThere();
    void scalesTheTablesOfTheViews();
    void scalesAView();
    void keepsTheScalingOfAViewAtANewFontScale();
    void setsTheTextDirectionWithTheLayout();
    void keepsLabelsInTheirPlace_data();
    void keepsLabelsInTheirPlace();
};

void tst_TextSettings::cleanup()
{
    settings()->setScaling(View::MessagingView, Factor::Regular);
    settings()->setFontScale(1.0F);
    settings()->setDirection(Qt::LeftToRight);
}

void tst_TextSettings::scalesTheFontsOfWidgetsThatAreThere()
{
    OxaLabel label;
    label.setFontToken(OxaFont::Token::Title);
    settings()->setFontScale(1.5F);
    QCOMPARE(label.font().pixelSize(), 30);
}

void tst_TextSettings::scalesTheTablesOfTheViews()
{
    QCOMPARE(bodySize(View::MessagingView), 16);
    settings()->setFontScale(1.25F);
    QCOMPARE(bodySize(View::MessagingView), 20);
    QCOMPARE(bodySize(View::MeetingView), 20);
}

void tst_TextSettings::scalesAView()
{
    settings()->setScaling(View::MessagingView, Factor::Large);
    QCOMPARE(settings()->scaling(View::MessagingView), Factor::Large);
    QCOMPARE(bodySize(View::MessagingView), 26);
    QCOMPARE(bodySize(View::MeetingView), 16);
}

void tst_TextSettings::keepsTheScalingOfAViewAtANewFontScale()
{
    settings()->setScaling(View::MessagingView, Factor::Small);
    settings()->setFontScale(1.5F);
    QCOMPARE(bodySize(View::MessagingView), 14);
    QCOMPARE(bodySize(View::MeetingView), 24);
}

void tst_TextSettings::setsTheTextDirectionWithTheLayout()
{
    settings()->setDirection(Qt::RightToLeft);
    QVERIFY(QGuiApplication::isRightToLeft());
    QCOMPARE(qApp->property("TextDirection").toInt(), int(Qt::RightToLeft));
    OxaLabel label;
    QVERIFY(label.alignment().testFlag(Qt::AlignLeft));
}

void tst_TextSettings::keepsLabelsInTheirPlace_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<int>("leftToRight");
    QTest::addColumn<int>("rightToLeft");
    QTest::newRow("at the start") << int(AlignedLabel::Place::Start)
                                  << int(Qt::AlignLeft | Qt::AlignAbsolute)
                                  << int(Qt::AlignRight | Qt::AlignAbsolute);
    QTest::newRow("in the middle")
            << int(AlignedLabel::Place::Centre) << int(Qt::AlignHCenter) << int(Qt::AlignHCenter);
}

void tst_TextSettings::keepsLabelsInTheirPlace()
{
    QFETCH(const int, place);
    QFETCH(const int, leftToRight);
    QFETCH(const int, rightToLeft);
    const AlignedLabel label(QStringLiteral("text"), nullptr,
                             static_cast<AlignedLabel::Place>(place));
    QCOMPARE(int(label.alignment()), leftToRight | int(Qt::AlignVCenter));
    settings()->setDirection(Qt::RightToLeft);
    QCOMPARE(int(label.alignment()), rightToLeft | int(Qt::AlignVCenter));
    settings()->setDirection(Qt::LeftToRight);
    QCOMPARE(int(label.alignment()), leftToRight | int(Qt::AlignVCenter));
}

GALLERY_TEST_MAIN(tst_TextSettings)
#include "tst_textsettings.moc"
