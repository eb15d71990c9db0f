// SPDX-License-Identifier: Apache-2.0
#include "support/TestMain.h"

#include <QCoreApplication>
#include <QProcess>

/// The main function of all tests, by what programs of several classes print and return.
class tst_TestMain : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void runsAllClassesInTheOrderOfTheirSources();
    void runsOnlyTheClassThatHasTheNamedFunction();
    void runsFunctionsOfTwoClasses();
    void runsTheNamedRow();
    void givesOptionsToEachClass();
    void failsForAFunctionThatNoClassHas();
    void addsTheFailuresOfAllClasses();

    void passesWhenNothingIsLeft_data();
    void passesWhenNothingIsLeft();
    void failsWhenSomethingIsLeft_data();
    void failsWhenSomethingIsLeft();

    void refusesClassesOfDifferentApplications();

private:
    int run(const QStringList &arguments, const QString &program = QStringLiteral(TWO_CLASSES));
    QStringList passed() const;

    QString m_output;
};

/// Runs a program, keeps what it prints, and returns its exit code.
int tst_TestMain::run(const QStringList &arguments, const QString &program)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForFinished())
        return -1;
    m_output = QString::fromLocal8Bit(process.readAll());
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

/// Returns the functions that passed, without those of Qt Test itself.
QStringList tst_TestMain::passed() const
{
    QStringList functions;
    const QStringList lines = m_output.split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        if (line.startsWith(QLatin1String("PASS")) && !line.contains(QLatin1String("TestCase()")))
            functions.append(line.section(QStringLiteral(": "), 1));
    }
    return functions;
}

void tst_TestMain::runsAllClassesInTheOrderOfTheirSources()
{
    run({});
    const int first = m_output.indexOf(QLatin1String("Start testing of TidyClass"));
    const int second = m_output.indexOf(QLatin1String("Start testing of UntidyClass"));
    QVERIFY2(first >= 0 && first < second, qPrintable(m_output));
}

void tst_TestMain::runsOnlyTheClassThatHasTheNamedFunction()
{
    QCOMPARE(run({ QStringLiteral("passesToo") }), 0);
    QCOMPARE(passed(), QStringList(QStringLiteral("UntidyClass::passesToo()")));
    QVERIFY(!m_output.contains(QLatin1String("Start testing of TidyClass")));
}

void tst_TestMain::runsFunctionsOfTwoClasses()
{
    QCOMPARE(run({ QStringLiteral("passesToo"), QStringLiteral("passes") }), 0);
    QCOMPARE(passed(),
             QStringList({ QStringLiteral("TidyClass::passes()"),
                           QStringLiteral("UntidyClass::passesToo()") }));
}

void tst_TestMain::runsTheNamedRow()
{
    QCOMPARE(run({ QStringLiteral("hasRows:second row") }), 0);
    QCOMPARE(passed(), QStringList(QStringLiteral("UntidyClass::hasRows(second row)")));
}

void tst_TestMain::givesOptionsToEachClass()
{
    QCOMPARE(run({ QStringLiteral("-silent"), QStringLiteral("passesToo"),
                   QStringLiteral("passes") }),
             0);
    QCOMPARE(passed(), QStringList());
    QCOMPARE(m_output.count(QLatin1String("Totals: 3 passed")), 2);
}

void tst_TestMain::failsForAFunctionThatNoClassHas()
{
    QCOMPARE(run({ QStringLiteral("isNowhere") }), 1);
    QVERIFY2(m_output.contains(QLatin1String("Unknown test function: 'isNowhere'")),
             qPrintable(m_output));
}

void tst_TestMain::addsTheFailuresOfAllClasses()
{
    QCOMPARE(run({ QStringLiteral("fails"), QStringLiteral("failsToo") }), 2);
}

void tst_TestMain::passesWhenNothingIsLeft_data()
{
    QTest::addColumn<QString>("function");

    QTest::newRow("a window waits to be deleted") << "deletesAWindowLater";
    QTest::newRow("a property of an enumeration, whose type was unknown before")
            << "registersTheTypeOfAProperty";
}

void tst_TestMain::passesWhenNothingIsLeft()
{
    QFETCH(const QString, function);
    QVERIFY2(run({ function }) == 0, qPrintable(m_output));
    QVERIFY2(m_output.startsWith(QLatin1String("*****")), qPrintable(m_output));
}

void tst_TestMain::failsWhenSomethingIsLeft_data()
{
    QTest::addColumn<QString>("what");

    QTest::newRow("leavesAWidget") << "widgets";
    QTest::newRow("leavesAWindow") << "windows";
    QTest::newRow("leavesTheLayoutDirection") << "layoutDirection";
    QTest::newRow("leavesTheFont") << "font";
    QTest::newRow("leavesThePalette") << "palette";
    QTest::newRow("leavesTheStyleSheet") << "styleSheet";
    QTest::newRow("leavesAThemeFlag") << "isDarkTheme";
    QTest::newRow("leavesADynamicProperty") << "ofTheTest";
    QTest::newRow("leavesAStore") << "store";
    QTest::newRow("leavesAnInvertedStore") << "inverted store";
}

void tst_TestMain::failsWhenSomethingIsLeft()
{
    QFETCH(const QString, what);
    QVERIFY(run({ QLatin1String(QTest::currentDataTag()) }) > 0);
    const QString complaint = QStringLiteral("FAIL!  : UntidyClass leaves behind %1: ").arg(what);
    QVERIFY2(m_output.contains(complaint), qPrintable(m_output));
}

void tst_TestMain::refusesClassesOfDifferentApplications()
{
    QCOMPARE(run({}, QStringLiteral(TWO_APPLICATIONS)), 1);
    QCOMPARE(m_output,
             QLatin1String(
                     "TidyClass runs under TestApplication, but ClassWithoutApplication under "
                     "no application object: they need programs of their own.\n"));
}

UIELEMENTS_TEST_MAIN_WITH(QCoreApplication, tst_TestMain)
#include "tst_testmain.moc"
