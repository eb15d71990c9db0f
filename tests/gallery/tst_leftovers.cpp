// SPDX-License-Identifier: Apache-2.0
#include "support/TestMain.h"

#include <QApplication>
#include <QLabel>

#include <looks/WarningCollector.h>
#include <pages/styletext/Leftovers.h>

namespace {

using Effect = Leftover::Effect;

const QColor early(0x01, 0x02, 0x03);
const QColor late(0x0a, 0x0b, 0x0c);

QString rule(const QColor &color) { return QStringLiteral("QLabel{color:%1;}").arg(color.name()); }

} // namespace

Q_DECLARE_METATYPE(Leftover::Effect)

/// findLeftovers() agrees with what Qt does with a sheet.
class tst_Leftovers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsNothingInAWholeSheet();
    void saysWhatQtMakesOfALeftover_data();
    void saysWhatQtMakesOfALeftover();
    void findsAllInOrder();
};

void tst_Leftovers::findsNothingInAWholeSheet()
{
    QVERIFY(findLeftovers(QString()).empty());
    QVERIFY(findLeftovers(rule(early) + rule(late)).empty());
}

void tst_Leftovers::saysWhatQtMakesOfALeftover_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::addColumn<QString>("leftover");
    QTest::addColumn<Effect>("effect");
    QTest::addColumn<bool>("earlyHolds");
    const QString reference = QStringLiteral("$(nope.normal)");
    const QString directive = QStringLiteral("$textColors: nope;");
    const QString brokenRule = QStringLiteral("QLabel{background-color:%1;}").arg(reference);
    QTest::newRow("a reference in the first rule")
            << brokenRule + rule(late) << reference << Effect::LosesRuleAndRest << false;
    QTest::newRow("a reference in a later rule") << rule(early) + brokenRule + rule(late)
                                                 << reference << Effect::LosesRuleAndRest << true;
    QTest::newRow("a directive in a rule")
            << rule(early) + QStringLiteral("QLabel{%1}").arg(directive) + rule(late) << directive
            << Effect::LosesRuleAndRest << true;
    QTest::newRow("a reference in declarations without a selector")
            << QStringLiteral("color:%1").arg(reference) << reference << Effect::LosesRuleAndRest
            << false;
    QTest::newRow("a directive before all rules")
            << directive + rule(late) << directive << Effect::LosesRest << false;
    QTest::newRow("a directive between rules")
            << rule(early) + directive + rule(late) << directive << Effect::LosesRest << true;
    QTest::newRow("a reference between rules")
            << rule(early) + reference + rule(late) << reference << Effect::LosesRest << true;
    QTest::newRow("a directive behind all rules")
            << rule(early) + directive << directive << Effect::Harmless << true;
    QTest::newRow("a directive alone") << directive << directive << Effect::Harmless << false;
}

void tst_Leftovers::saysWhatQtMakesOfALeftover()
{
    QFETCH(const QString, sheet);
    QFETCH(const QString, leftover);
    QFETCH(const Effect, effect);
    QFETCH(const bool, earlyHolds);
    const auto leftovers = findLeftovers(sheet);
    QCOMPARE(leftovers.size(), std::size_t(1));
    QCOMPARE(leftovers.front().text, leftover);
    QCOMPARE(leftovers.front().effect, effect);

    QLabel label;
    const QColor plain = label.palette().color(QPalette::WindowText);
    const WarningCollector warnings;
    label.setStyleSheet(sheet);
    label.ensurePolished();
    QCOMPARE(!warnings.texts().isEmpty(), effect == Effect::LosesRuleAndRest);
    QCOMPARE(label.palette().color(QPalette::WindowText), earlyHolds ? early : plain);
}

void tst_Leftovers::findsAllInOrder()
{
    const auto leftovers = findLeftovers(
            QStringLiteral("$borderColors: red; QLabel{color:$(a);} $borders: all;"));
    QCOMPARE(leftovers.size(), std::size_t(3));
    QCOMPARE(leftovers[0].text, QStringLiteral("$borderColors: red;"));
    QCOMPARE(leftovers[1].text, QStringLiteral("$(a)"));
    QCOMPARE(leftovers[2].text, QStringLiteral("$borders: all;"));
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_Leftovers)
#include "tst_leftovers.moc"
