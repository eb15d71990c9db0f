// SPDX-License-Identifier: Apache-2.0
#include "support/EmojiTestFile.h"
#include "support/TestMain.h"

#include <UiElements/emoji/EmojiTextConverter.h>

#include <QTest>

Q_DECLARE_METATYPE(EmojiCharType)

namespace {

using Type = EmojiCharType;

constexpr uint lastCodePoint = 0x10FFFF;

/// Returns how many code points from \a first to \a last are of \a type.
int count(Type type, uint first = 0, uint last = lastCodePoint)
{
    int found = 0;
    for (uint codePoint = first; codePoint <= last; ++codePoint)
        found += EmojiTextConverter::charType(codePoint) == type ? 1 : 0;
    return found;
}

} // namespace

/// The classes of code points in emoji sequences.
class tst_EmojiCharTypes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void classifiesCodePoints_data();
    void classifiesCodePoints();
    void hasNoOtherCodePointInAClass_data();
    void hasNoOtherCodePointInAClass();
    void knowsTheFirstCodePointOfAllSequences();
};

void tst_EmojiCharTypes::classifiesCodePoints_data()
{
    QTest::addColumn<uint>("codePoint");
    QTest::addColumn<Type>("type");
    const auto add = [](const char *name, uint codePoint, Type type) {
        QTest::newRow(name) << codePoint << type;
    };
    add("a grinning face", 0x1F600, Type::Base);
    add("the first of the plane", 0x1F000, Type::Base);
    add("before the plane", 0x1EFFF, Type::Other);
    add("the last of the plane", 0x1FFFD, Type::Base);
    add("behind the plane", 0x1FFFE, Type::Other);
    add("the copyright sign", 0x00A9, Type::Base);
    add("a letter beside it", 0x00AA, Type::Other);
    add("the first of a range", 0x23E9, Type::Base);
    add("the last of a range", 0x23F3, Type::Base);
    add("behind a range", 0x23F4, Type::Other);
    add("the last of the table", 0x3299, Type::Base);
    add("behind the table", 0x329A, Type::Other);
    add("the female sign, an emoji of its own", 0x2640, Type::Base);
    add("the male sign, an emoji of its own", 0x2642, Type::Base);
    add("the joiner", 0x200D, Type::Joiner);
    add("the first skin tone", 0x1F3FB, Type::SkinTone);
    add("the last skin tone", 0x1F3FF, Type::SkinTone);
    add("before the skin tones", 0x1F3FA, Type::Base);
    add("behind the skin tones", 0x1F400, Type::Base);
    add("the first hair component", 0x1F9B0, Type::HairComponent);
    add("the last hair component", 0x1F9B3, Type::HairComponent);
    add("before the hair components", 0x1F9AF, Type::Base);
    add("behind the hair components", 0x1F9B4, Type::Base);
    add("the variation selector for pictures", 0xFE0F, Type::VariationSelector);
    add("the variation selector for glyphs", 0xFE0E, Type::Other);
    add("the first regional indicator", 0x1F1E6, Type::RegionalIndicator);
    add("the last regional indicator", 0x1F1FF, Type::RegionalIndicator);
    add("before the regional indicators", 0x1F1E5, Type::Base);
    add("behind the regional indicators", 0x1F200, Type::Base);
    add("a number sign", '#', Type::KeycapBase);
    add("an asterisk", '*', Type::KeycapBase);
    add("the first digit", '0', Type::KeycapBase);
    add("the last digit", '9', Type::KeycapBase);
    add("before the digits", '/', Type::Other);
    add("behind the digits", ':', Type::Other);
    add("the keycap", 0x20E3, Type::Keycap);
    add("the black flag", 0x1F3F4, Type::BlackFlag);
    add("a white flag", 0x1F3F3, Type::Base);
    add("the first tag digit", 0xE0030, Type::TagCharacter);
    add("the last tag digit", 0xE0039, Type::TagCharacter);
    add("behind the tag digits", 0xE003A, Type::Other);
    add("the first tag letter", 0xE0061, Type::TagCharacter);
    add("the last tag letter", 0xE007A, Type::TagCharacter);
    add("the cancel tag", 0xE007F, Type::Other);
    add("a letter", 'a', Type::Other);
    add("nothing", 0, Type::Other);
    add("no code point", uint(-1), Type::Other);
}

void tst_EmojiCharTypes::classifiesCodePoints()
{
    QFETCH(const uint, codePoint);
    QFETCH(const Type, type);
    QCOMPARE(EmojiTextConverter::charType(codePoint), type);
}

void tst_EmojiCharTypes::hasNoOtherCodePointInAClass_data()
{
    QTest::addColumn<Type>("type");
    QTest::addColumn<int>("size");
    QTest::newRow("joiner") << Type::Joiner << 1;
    QTest::newRow("gender sign; both are emoji too") << Type::GenderSign << 0;
    QTest::newRow("skin tone") << Type::SkinTone << 5;
    QTest::newRow("hair component") << Type::HairComponent << 4;
    QTest::newRow("variation selector") << Type::VariationSelector << 1;
    QTest::newRow("keycap base") << Type::KeycapBase << 12;
    QTest::newRow("keycap") << Type::Keycap << 1;
    QTest::newRow("regional indicator") << Type::RegionalIndicator << 26;
    QTest::newRow("black flag") << Type::BlackFlag << 1;
    QTest::newRow("tag character") << Type::TagCharacter << 36;
    // The whole plane except for the classes above, and 169 code points below it.
    QTest::newRow("base") << Type::Base << 0xFFE - 5 - 4 - 26 - 1 + 169;
}

void tst_EmojiCharTypes::hasNoOtherCodePointInAClass()
{
    QFETCH(const Type, type);
    QTEST(count(type), "size");
}

void tst_EmojiCharTypes::knowsTheFirstCodePointOfAllSequences()
{
    QStringList unknown;
    const auto entries = EmojiTestFile::entries();
    for (const EmojiTestFile::Entry &entry : entries) {
        if (EmojiTextConverter::charType(entry.codePoints.first()) == Type::Other)
            unknown += entry.stem;
    }
    // The transgender symbol is not in the table.
    QCOMPARE(unknown.join(QLatin1Char(' ')), QStringLiteral("26a7-fe0f 26a7"));
}

UIELEMENTS_TEST_MAIN_WITH(QCoreApplication, tst_EmojiCharTypes)
#include "tst_emojichartypes.moc"
