// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/app/OxaApplication.h>

#include <QTest>

/// The application object of tests, with the outer application's hooks answered by doing nothing.
class TestApplication : public OxaApplication
{
    Q_OBJECT

public:
    using OxaApplication::OxaApplication;

    void onQmlEngineCreated(OxaQmlEngine *engine) override;
    void restart() override;
    void registerMainWindowShortcuts(OxaMainWindow *window) override;

    /// Fills what the outer application says of itself.
    void setPublishingInfo(const AppPublishing::OxaPublishingInfo &info);
};

/// The main function of a test that runs under an OxaApplication. QTEST_MAIN gives a plain
/// QApplication instead, and QTEST_APPLESS_MAIN none.
#define UIELEMENTS_TEST_MAIN(TestClass)                                                            \
    int main(int argc, char **argv)                                                                \
    {                                                                                              \
        TestApplication application(argc, argv);                                                   \
        TestClass test;                                                                            \
        QTEST_SET_MAIN_SOURCE_PATH                                                                 \
        return QTest::qExec(&test, argc, argv);                                                    \
    }
