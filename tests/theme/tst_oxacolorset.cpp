// SPDX-License-Identifier: Apache-2.0
#include "support/ColorSets.h"
#include "support/TestMain.h"

#include <QMetaProperty>
#include <QTest>

namespace {

/// The state words, in the order in which ColorSets::make() takes their colours.
const char *const states[] = { "normal", "hovered", "pressed", "disabled", "focused", "checked" };

OxaColorSet sixColors()
{
    return ColorSets::make(QStringLiteral("six"),
                           { "#000001", "#000002", "#000003", "#000004", "#000005", "#000006" });
}

QMetaProperty propertyOf(const QString &name)
{
    const QMetaObject &type = OxaColorSet::staticMetaObject;
    return type.property(type.indexOfProperty(qUtf8Printable(name)));
}

} // namespace

class tst_OxaColorSet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithoutNameAndColors();
    void takesOneColorForAllStates();
    void isValidWithANameAndSixColors();
    void isNotValidWithoutAName();
    void isNotValidWhenAColorIsInvalid_data() { addStates(); }
    void isNotValidWhenAColorIsInvalid();

    void givesTheColorOfAState_data() { addStates(); }
    void givesTheColorOfAState();
    void warnsOfAnUnknownState_data();
    void warnsOfAnUnknownState();

    void showsItsFieldsAsProperties();
    void readsAndWritesColorsAsProperties_data() { addStates(); }
    void readsAndWritesColorsAsProperties();
    void readsAndWritesItsNameAsAProperty();
    void showsItsValidityAsAProperty();
    void isStoredInAVariant();

    void differsWhenAColorDiffers_data() { addStates(); }
    void differsWhenAColorDiffers();
    void differsWhenTheNameDiffers();

private:
    static void addStates();
};

void tst_OxaColorSet::addStates()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<QColor>("color");
    for (int i = 0; i < 6; ++i)
        QTest::newRow(states[i]) << states[i] << QColor(0, 0, i + 1);
}

void tst_OxaColorSet::startsWithoutNameAndColors()
{
    const OxaColorSet set;
    QCOMPARE(ColorSets::describe(set),
             QLatin1String("\"\" invalid invalid invalid invalid invalid invalid"));
    QVERIFY(!set.isValid());
}

void tst_OxaColorSet::takesOneColorForAllStates()
{
    const OxaColorSet set(QStringLiteral("one"), QColor(0x11, 0x22, 0x33, 0x44));
    QCOMPARE(ColorSets::describe(set),
             QLatin1String("\"one\" #44112233 #44112233 #44112233 #44112233 #44112233 #44112233"));
    QVERIFY(set.isValid());
}

void tst_OxaColorSet::isValidWithANameAndSixColors() { QVERIFY(sixColors().isValid()); }

void tst_OxaColorSet::isNotValidWithoutAName()
{
    OxaColorSet set = sixColors();
    set.name.clear();
    QVERIFY(!set.isValid());
}

void tst_OxaColorSet::isNotValidWhenAColorIsInvalid()
{
    QFETCH(const QString, state);
    OxaColorSet set = sixColors();
    QVERIFY(propertyOf(state).writeOnGadget(&set, QColor()));
    QVERIFY(!set.isValid());
}

void tst_OxaColorSet::givesTheColorOfAState()
{
    QFETCH(const QString, state);
    QFETCH(const QColor, color);
    QCOMPARE(sixColors().colorForState(state), color);
}

void tst_OxaColorSet::warnsOfAnUnknownState_data()
{
    QTest::addColumn<QString>("word");
    QTest::newRow("a capital letter") << "Normal";
    QTest::newRow("all capitals") << "HOVERED";
    QTest::newRow("a style sheet's word") << "hover";
    QTest::newRow("a blank before it") << " normal";
    QTest::newRow("a blank after it") << "normal ";
    QTest::newRow("another field") << "name";
    QTest::newRow("nothing") << "";
}

void tst_OxaColorSet::warnsOfAnUnknownState()
{
    QFETCH(const QString, word);
    const QString warning = QStringLiteral("OxaColorSet: color state is invalid! \"%1\"").arg(word);
    QTest::ignoreMessage(QtWarningMsg, qUtf8Printable(warning));
    QVERIFY(!sixColors().colorForState(word).isValid());
}

void tst_OxaColorSet::showsItsFieldsAsProperties()
{
    const QMetaObject &type = OxaColorSet::staticMetaObject;
    QStringList properties;
    for (int i = type.propertyOffset(); i < type.propertyCount(); ++i) {
        const QMetaProperty property = type.property(i);
        properties += QLatin1String(property.typeName()) + QLatin1Char(' ')
                + QLatin1String(property.name())
                + QLatin1String(property.isWritable() ? "" : " read-only");
    }
    QCOMPARE(properties.join(QLatin1String(", ")),
             QLatin1String("QString name, QColor normal, QColor hovered, QColor pressed, "
                           "QColor disabled, QColor focused, QColor checked, "
                           "bool isValid read-only"));
}

void tst_OxaColorSet::readsAndWritesColorsAsProperties()
{
    QFETCH(const QString, state);
    QFETCH(const QColor, color);
    OxaColorSet set = sixColors();
    const QMetaProperty property = propertyOf(state);
    QCOMPARE(property.readOnGadget(&set).value<QColor>(), color);
    QVERIFY(property.writeOnGadget(&set, QColor(Qt::red)));
    QCOMPARE(set.colorForState(state), QColor(Qt::red));
}

void tst_OxaColorSet::readsAndWritesItsNameAsAProperty()
{
    OxaColorSet set = sixColors();
    QCOMPARE(propertyOf(QStringLiteral("name")).readOnGadget(&set).toString(),
             QStringLiteral("six"));
    QVERIFY(propertyOf(QStringLiteral("name")).writeOnGadget(&set, QStringLiteral("other")));
    QCOMPARE(set.name, QStringLiteral("other"));
}

void tst_OxaColorSet::showsItsValidityAsAProperty()
{
    OxaColorSet set = sixColors();
    QCOMPARE(propertyOf(QStringLiteral("isValid")).readOnGadget(&set), QVariant(true));
    set.checked = QColor();
    QCOMPARE(propertyOf(QStringLiteral("isValid")).readOnGadget(&set), QVariant(false));
}

void tst_OxaColorSet::isStoredInAVariant()
{
    const QVariant variant = QVariant::fromValue(sixColors());
    QCOMPARE(variant.typeName(), "OxaColorSet");
    QCOMPARE(variant.value<OxaColorSet>(), sixColors());
}

void tst_OxaColorSet::differsWhenAColorDiffers()
{
    QFETCH(const QString, state);
    OxaColorSet set = sixColors();
    QVERIFY(set == sixColors());
    QVERIFY(!(set != sixColors()));
    QVERIFY(propertyOf(state).writeOnGadget(&set, QColor(Qt::red)));
    QVERIFY(set != sixColors());
    QVERIFY(!(set == sixColors()));
}

void tst_OxaColorSet::differsWhenTheNameDiffers()
{
    OxaColorSet set = sixColors();
    set.name = QStringLiteral("other");
    QVERIFY(set != sixColors());
}

UIELEMENTS_APPLESS_TEST_MAIN(tst_OxaColorSet)
#include "tst_oxacolorset.moc"
