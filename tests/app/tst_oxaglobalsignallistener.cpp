// SPDX-License-Identifier: Apache-2.0
#include "support/TestApplication.h"

#include <UiElements/app/OxaGlobalSignalListener.h>

#include <QMetaMethod>

class tst_OxaGlobalSignalListener : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isAnObjectOfTheLibrary();
    void hasTwoSignals();
    void isTheListenerOfTheApplication();
    void carriesTheNameOfAShortcut();
    void carriesTheThemeOfTheDeveloperTools();
};

void tst_OxaGlobalSignalListener::isAnObjectOfTheLibrary()
{
    QCOMPARE(OxaGlobalSignalListener::staticMetaObject.superClass(), &OxaObject::staticMetaObject);
}

void tst_OxaGlobalSignalListener::hasTwoSignals()
{
    const QMetaObject &type = OxaGlobalSignalListener::staticMetaObject;
    QStringList methods;
    for (int index = type.methodOffset(); index < type.methodCount(); ++index) {
        const QMetaMethod method = type.method(index);
        QCOMPARE(method.methodType(), QMetaMethod::Signal);
        methods += QString::fromLatin1(method.methodSignature() + ' '
                                       + method.parameterNames().join(", "));
    }
    QCOMPARE(methods,
             (QStringList {
                     QStringLiteral(
                             "shortcutActivated(OxaKeySequenceLookup::Shortcut) shortcutType"),
                     QStringLiteral("setDevToolsThemeMode(QString) theme") }));
}

void tst_OxaGlobalSignalListener::isTheListenerOfTheApplication()
{
    const auto *application = qobject_cast<OxaApplication *>(qApp);
    QVERIFY(OxaGlobalSignalListener::get());
    QCOMPARE(OxaGlobalSignalListener::get(), application->getGlobalSignalListener());
    QCOMPARE(OxaGlobalSignalListener::get()->parent(), application);
}

void tst_OxaGlobalSignalListener::carriesTheNameOfAShortcut()
{
    OxaGlobalSignalListener listener;
    auto seen = OxaKeySequenceLookup::Shortcut::Unknown;
    connect(&listener, &OxaGlobalSignalListener::shortcutActivated, this,
            [&seen](OxaKeySequenceLookup::Shortcut shortcutType) { seen = shortcutType; });
    Q_EMIT listener.shortcutActivated(OxaKeySequenceLookup::Shortcut::EndCall);
    QCOMPARE(seen, OxaKeySequenceLookup::Shortcut::EndCall);
}

void tst_OxaGlobalSignalListener::carriesTheThemeOfTheDeveloperTools()
{
    OxaGlobalSignalListener listener;
    const QSignalSpy spy(&listener, &OxaGlobalSignalListener::setDevToolsThemeMode);
    Q_EMIT listener.setDevToolsThemeMode(QStringLiteral("dark"));
    QCOMPARE(spy, (QList<QVariantList> { { QStringLiteral("dark") } }));
}

UIELEMENTS_TEST_MAIN(tst_OxaGlobalSignalListener)
#include "tst_oxaglobalsignallistener.moc"
