// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QCoreApplication>
#include <QTest>

#include <memory>

/// The main function of all test programs. A program has one test class or several, each in a
/// source of its own that ends in one of the macros below. They run in the order of the program's
/// sources, under one application object, on whose class they must agree.
///
/// Arguments are those of Qt Test. A class runs the functions that are named and are its own; where
/// functions are named and none is its own, it does not run.
///
/// Types that sources declare as metatypes need names of their own in a program: Qt knows them by
/// name.
///
/// After each class the application is compared with what it was before. Windows that are left,
/// other properties, font, palette or stores count as a failure of the class.
namespace TestMain {

struct TestClass
{
    const QMetaObject *metaObject;
    std::unique_ptr<QObject> (*make)();
    const char *applicationName;
    std::unique_ptr<QCoreApplication> (*makeApplication)(int &argc, char **argv);
};

/// Adds a class to those that the program runs. The result initialises a constant, and means
/// nothing.
bool add(const TestClass &testClass);

template <typename Application>
std::unique_ptr<QCoreApplication> makeApplication(int &argc, char **argv)
{
    return std::make_unique<Application>(argc, argv);
}

inline std::unique_ptr<QCoreApplication> makeNoApplication(int &, char **) { return nullptr; }

} // namespace TestMain

#define UIELEMENTS_ADD_TEST_CLASS(TestClass, applicationName, makeApplication)                     \
    static const bool isAdded##TestClass = TestMain::add(                                          \
            { &TestClass::staticMetaObject,                                                        \
              []() -> std::unique_ptr<QObject> {                                                   \
                  QTEST_SET_MAIN_SOURCE_PATH                                                       \
                  return std::make_unique<TestClass>();                                            \
              },                                                                                   \
              applicationName, makeApplication });

/// Runs a class under an application object of the class \a Application, such as QApplication.
#define UIELEMENTS_TEST_MAIN_WITH(Application, TestClass)                                          \
    UIELEMENTS_ADD_TEST_CLASS(TestClass, #Application, &TestMain::makeApplication<Application>)

/// Runs a class without an application object.
#define UIELEMENTS_APPLESS_TEST_MAIN(TestClass)                                                    \
    UIELEMENTS_ADD_TEST_CLASS(TestClass, "no application object", &TestMain::makeNoApplication)
