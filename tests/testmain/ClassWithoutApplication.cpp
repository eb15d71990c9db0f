// SPDX-License-Identifier: Apache-2.0
#include "support/TestMain.h"

/// A test class that cannot share a program with TidyClass.
class ClassWithoutApplication : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void passes() { }
};

UIELEMENTS_APPLESS_TEST_MAIN(ClassWithoutApplication)
#include "ClassWithoutApplication.moc"
