// SPDX-License-Identifier: Apache-2.0
#include "support/TestMain.h"

#include "support/ApplicationState.h"

#include <QFile>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <vector>

using TestMain::TestClass;

namespace {

constexpr int mostFailures = 127; // A larger exit code would lose its upper bits, and might be 0.

/// Local to a function, so that it exists when the first class is added.
std::vector<TestClass> &testClasses()
{
    static std::vector<TestClass> classes;
    return classes;
}

bool agreeOnTheApplication(const std::vector<TestClass> &classes)
{
    const TestClass &first = classes.front();
    for (const TestClass &other : classes) {
        if (std::strcmp(first.applicationName, other.applicationName) != 0) {
            std::fprintf(stderr,
                         "%s runs under %s, but %s under %s: they need programs of their own.\n",
                         first.metaObject->className(), first.applicationName,
                         other.metaObject->className(), other.applicationName);
            return false;
        }
    }
    return true;
}

/// Returns whether an argument, such as "paints" or "paints:wide label", names a function of the
/// class.
bool isFunctionOf(const TestClass &testClass, const QString &argument)
{
    const QByteArray signature = argument.section(QLatin1Char(':'), 0, 0).toUtf8() + "()";
    return testClass.metaObject->indexOfSlot(signature.constData())
            >= QObject::staticMetaObject.methodCount();
}

bool isFunctionOfAny(const QString &argument)
{
    const std::vector<TestClass> &classes = testClasses();
    return std::any_of(classes.cbegin(), classes.cend(), [&argument](const TestClass &testClass) {
        return isFunctionOf(testClass, argument);
    });
}

int run(const TestClass &testClass, const QStringList &arguments)
{
    QStringList own;
    bool areFunctionsNamed = false;
    bool areOwnFunctionsNamed = false;
    for (const QString &argument : arguments) {
        const bool isOwn = isFunctionOf(testClass, argument);
        const bool isFunction = isFunctionOfAny(argument);
        if (isOwn || !isFunction)
            own.append(argument);
        areFunctionsNamed |= isFunction;
        areOwnFunctionsNamed |= isOwn;
    }
    if (areFunctionsNamed && !areOwnFunctionsNamed)
        return 0;

    const ApplicationState before = ApplicationState::now();
    const int failures = QTest::qExec(testClass.make().get(), own);
    const QStringList leftovers = ApplicationState::now().differencesTo(before);
    for (const QString &leftover : leftovers)
        std::fprintf(stderr, "FAIL!  : %s leaves behind %s\n", testClass.metaObject->className(),
                     qPrintable(leftover));
    return failures + leftovers.size();
}

} // namespace

bool TestMain::add(const TestClass &testClass)
{
    testClasses().push_back(testClass);
    return true;
}

int main(int argc, char **argv)
{
    // The icons that widgets load by themselves, as a client has them.
    Q_INIT_RESOURCE(widgeticons);
    const std::vector<TestClass> &classes = testClasses();
    if (!agreeOnTheApplication(classes))
        return 1;
    const auto application = classes.front().makeApplication(argc, argv);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi); // As in Qt Test's own main functions.

    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QFile::decodeName(argv[i]));
    int failures = 0;
    for (const TestClass &testClass : classes)
        failures += run(testClass, arguments);
    return qMin(failures, mostFailures);
}
