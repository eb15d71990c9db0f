// SPDX-License-Identifier: Apache-2.0
#include "support/TestApplication.h"

#include <QWidget>

/// A test class that leaves nothing behind.
class TidyClass : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void passes() { }
    void fails() { QFAIL("on purpose"); }
    void deletesAWindowLater()
    {
        auto *const window = new QWidget;
        window->show();
        window->deleteLater();
    }
    void registersTheTypeOfAProperty() { qRegisterMetaType<Qt::LayoutDirection>(); }
};

UIELEMENTS_TEST_MAIN(TidyClass)
#include "TidyClass.moc"
