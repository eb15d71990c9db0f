// SPDX-License-Identifier: Apache-2.0
#include "support/TestApplication.h"

#include <UiElements/fonts/OxaFontManager.h>
#include <UiElements/fonts/OxaScaledFonts.h>

#include <QMetaEnum>
#include <QSignalSpy>

using FontType = FontManagerEnum::FontType;
using Factor = FontManagerEnum::FontScalingFactor;

Q_DECLARE_METATYPE(QMetaEnum)

class tst_OxaFontManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isFoundThroughTheApplication();
    void startsWithoutTables();
    void makesEachTableAtItsFirstRequest();
    void ownsItsTables();
    void makesADeletedTableAgain();
    void survivesASlotThatDeletesATable();
    void scalesOnlyTheTableOfTheType();
    void scalesATableThatNobodyHasAskedForYet();
    void namesItsTypesAndFactorsInTheMetaObject_data();
    void namesItsTypesAndFactorsInTheMetaObject();
};

void tst_OxaFontManager::isFoundThroughTheApplication()
{
    const auto *application = qobject_cast<OxaApplication *>(qApp);
    QVERIFY(OxaFontManager::get());
    QCOMPARE(OxaFontManager::get(), application->getOxaFontManager());
}

void tst_OxaFontManager::startsWithoutTables()
{
    const OxaFontManager manager;
    QVERIFY(manager.children().isEmpty());
}

void tst_OxaFontManager::makesEachTableAtItsFirstRequest()
{
    OxaFontManager manager;
    QList<QObject *> tables;
    for (const FontType type :
         { FontType::MessagingView, FontType::MeetingView, FontType::Default }) {
        OxaScaledFonts *table = manager.getFont(type);
        QVERIFY(!tables.contains(table));
        QCOMPARE(manager.getFont(type), table);
        tables += table;
    }
    QCOMPARE(manager.children(), tables);
}

void tst_OxaFontManager::ownsItsTables()
{
    auto manager = std::make_unique<OxaFontManager>();
    const QPointer<OxaScaledFonts> table = manager->getFont(FontType::MeetingView);
    QCOMPARE(table->parent(), manager.get());
    manager.reset();
    QVERIFY(!table);
}

void tst_OxaFontManager::makesADeletedTableAgain()
{
    OxaFontManager manager;
    delete manager.getFont(FontType::MeetingView);
    manager.setScalingFactor(FontType::MeetingView, Factor::Large);
    QCOMPARE(manager.children().size(), 1);
    QCOMPARE(manager.getFont(FontType::MeetingView), manager.children().constFirst());
}

void tst_OxaFontManager::survivesASlotThatDeletesATable()
{
    OxaFontManager manager;
    const QPointer<OxaScaledFonts> table = manager.getFont(FontType::MeetingView);
    connect(table, &OxaScaledFonts::fontTokenChanged, this, [table] { delete table; });
    manager.setScalingFactor(FontType::MeetingView, Factor::Large);
    QVERIFY(!table);
    QVERIFY(manager.getFont(FontType::MeetingView));
}

void tst_OxaFontManager::scalesOnlyTheTableOfTheType()
{
    OxaFontManager manager;
    const OxaScaledFonts *messaging = manager.getFont(FontType::MessagingView);
    const OxaScaledFonts *meeting = manager.getFont(FontType::MeetingView);
    const QSignalSpy messagingChanges(messaging, &OxaScaledFonts::fontTokenChanged);
    const QSignalSpy meetingChanges(meeting, &OxaScaledFonts::fontTokenChanged);
    manager.setScalingFactor(FontType::MeetingView, Factor::Large);
    QCOMPARE(meeting->getFont(OxaFont::Token::BodyPrimary).pixelSize(), 26);
    QCOMPARE(messaging->getFont(OxaFont::Token::BodyPrimary).pixelSize(), 16);
    QCOMPARE(meetingChanges.size(), 1);
    QCOMPARE(messagingChanges.size(), 0);
}

void tst_OxaFontManager::scalesATableThatNobodyHasAskedForYet()
{
    OxaFontManager manager;
    manager.setScalingFactor(FontType::MessagingView, Factor::Small);
    QCOMPARE(manager.getFont(FontType::MessagingView)
                     ->getFont(OxaFont::Token::BodyPrimary)
                     .pixelSize(),
             14);
}

void tst_OxaFontManager::namesItsTypesAndFactorsInTheMetaObject_data()
{
    QTest::addColumn<QMetaEnum>("names");
    QTest::addColumn<QString>("expected");
    QTest::newRow("types") << QMetaEnum::fromType<FontType>()
                           << QStringLiteral("Default 0, MessagingView 1, MeetingView 2");
    QTest::newRow("factors") << QMetaEnum::fromType<Factor>()
                             << QStringLiteral("Small -1, Regular 0, Medium 1, Large 2");
}

void tst_OxaFontManager::namesItsTypesAndFactorsInTheMetaObject()
{
    QFETCH(const QMetaEnum, names);
    QCOMPARE(names.scope(), "FontManagerEnum");
    QStringList found;
    for (int i = 0; i < names.keyCount(); ++i)
        found += QStringLiteral("%1 %2").arg(QLatin1String(names.key(i))).arg(names.value(i));
    QTEST(found.join(QLatin1String(", ")), "expected");
}

UIELEMENTS_TEST_MAIN(tst_OxaFontManager)
#include "tst_oxafontmanager.moc"
