// SPDX-License-Identifier: Apache-2.0
#include "ShortcutNames.h"
#include "support/TestMain.h"

#include <UiElements/keyboard/OxaKeySequenceLookup.h>

#include <QMetaEnum>
#include <QMetaMethod>
#include <QPointer>
#include <QQmlEngine>
#include <QTest>

using Shortcut = OxaKeySequenceLookup::Shortcut;

namespace {

const QString keys = QStringLiteral("Ctrl+F");

QString describe(const OxaKeySequenceInfo *info)
{
    if (!info)
        return QStringLiteral("null");
    QString text = QLatin1Char('\'') + info->keySequence() + QLatin1Char('\'');
    text += info->isGlobal() ? QLatin1String(" global") : QLatin1String();
    text += info->enabled() ? QLatin1String(" enabled") : QLatin1String();
    return text;
}

/// Evaluates \a script in a new engine that knows the \a lookup and nothing else of the library,
/// and then collects the engine's garbage.
QString evaluate(OxaKeySequenceLookup &lookup, const QString &script)
{
    QQmlEngine engine;
    QQmlEngine::setObjectOwnership(&lookup, QQmlEngine::CppOwnership);
    engine.globalObject().setProperty(QStringLiteral("lookup"), engine.newQObject(&lookup));
    const QString result = engine.evaluate(script).toString();
    engine.collectGarbage();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return result;
}

} // namespace

class tst_OxaKeySequenceLookup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isAnObjectOfTheLibrary();
    void namesAllShortcuts();
    void registersItsTypeByName();
    void showsItsInvokables();

    void takesTheFallbackAsLongAsTheServiceIsOff();
    void knowsGlobalShortcutsAsLongAsTheServiceIsOff();
    void makesAnObjectForEachCall();
    void isInvokable();
    void answersQml();
    void ownsWhatQmlGotFromIt();
    void leavesTheServicesObjectsToTheServiceWhenQmlHadThem();

    void ignoresTheServicesObjectsAsLongAsItIsOff();
    void ignoresTheFallbackWhenTheServiceIsOn();
    void handsOutTheServicesObject();
    void makesAnObjectBesideTheServicesOne();
    void handsOutNullForAnObjectThatIsGone();
    void replacesAnEntryAndKeepsTheOthers();
    void takesTheLastOfTwoEntriesOfOneUpdate();
    void goesBackToTheFallbackWithTheService();
};

void tst_OxaKeySequenceLookup::isAnObjectOfTheLibrary()
{
    QObject parent;
    const OxaKeySequenceLookup lookup(&parent);
    QCOMPARE(lookup.parent(), &parent);
    QCOMPARE(lookup.metaObject()->superClass(), &OxaObject::staticMetaObject);
    QVERIFY(!lookup.shortcutExists(Shortcut::Unknown));
}

void tst_OxaKeySequenceLookup::namesAllShortcuts()
{
    const auto shortcuts = QMetaEnum::fromType<Shortcut>();
    QCOMPARE(shortcuts.keyCount(), int(std::size(shortcutNames)));
    for (int number = 0; number < shortcuts.keyCount(); ++number) {
        QCOMPARE(shortcuts.key(number), shortcutNames[number]);
        QCOMPARE(shortcuts.value(number), number);
    }
}

void tst_OxaKeySequenceLookup::registersItsTypeByName()
{
    const OxaKeySequenceLookup lookup;
    QVERIFY(QMetaType::type("OxaKeySequenceLookup::Shortcut") != QMetaType::UnknownType);
}

void tst_OxaKeySequenceLookup::showsItsInvokables()
{
    const QMetaObject &type = OxaKeySequenceLookup::staticMetaObject;
    QStringList methods;
    for (int index = type.methodOffset(); index < type.methodCount(); ++index) {
        const QMetaMethod method = type.method(index);
        QCOMPARE(method.access(), QMetaMethod::Public);
        methods += QLatin1String(method.typeName()) + QLatin1Char(' ')
                + QString::fromLatin1(method.methodSignature());
    }
    QCOMPARE(methods.join(QLatin1String(" | ")),
             QStringLiteral("OxaKeySequenceInfo* "
                            "getKeySequence(OxaKeySequenceLookup::Shortcut,QString) | "
                            "OxaKeySequenceInfo* getKeySequence(OxaKeySequenceLookup::Shortcut)"));
}

void tst_OxaKeySequenceLookup::takesTheFallbackAsLongAsTheServiceIsOff()
{
    OxaKeySequenceLookup lookup;
    QCOMPARE(describe(lookup.getKeySequence(Shortcut::SearchInConversation, keys)),
             QStringLiteral("'Ctrl+F' enabled"));
    QCOMPARE(describe(lookup.getKeySequence(Shortcut::EndCall)),
             QStringLiteral("'' global enabled"));
}

void tst_OxaKeySequenceLookup::knowsGlobalShortcutsAsLongAsTheServiceIsOff()
{
    OxaKeySequenceLookup lookup;
    QStringList global;
    for (int number = 0; number < int(std::size(shortcutNames)); ++number) {
        if (lookup.getKeySequence(Shortcut(number))->isGlobal())
            global += QLatin1String(shortcutNames[number]);
    }
    global.sort();
    QCOMPARE(global.join(QLatin1Char(' ')),
             QStringLiteral("AnswerCall AnswerWithMessage CallFloatingWindowFocus DeclineCall "
                            "EndCall MeetingNotificationKey ShareContent StartAnnotation "
                            "StartRemoteControl StopSharing ToggleMultiCall ToggleRemoteControl "
                            "ToggleSharing ToggleShowFloatingWindow"));
}

void tst_OxaKeySequenceLookup::makesAnObjectForEachCall()
{
    OxaKeySequenceLookup lookup;
    const OxaKeySequenceInfo *first = lookup.getKeySequence(Shortcut::Search, keys);
    const OxaKeySequenceInfo *second = lookup.getKeySequence(Shortcut::Search, keys);
    QVERIFY(first != second);
    QCOMPARE(first->parent(), &lookup);
    QCOMPARE(lookup.children().size(), 2);
    QVERIFY(!lookup.shortcutExists(Shortcut::Search));
}

void tst_OxaKeySequenceLookup::isInvokable()
{
    OxaKeySequenceLookup lookup;
    OxaKeySequenceInfo *info = nullptr;
    QVERIFY(QMetaObject::invokeMethod(&lookup, "getKeySequence",
                                      Q_RETURN_ARG(OxaKeySequenceInfo *, info),
                                      Q_ARG(OxaKeySequenceLookup::Shortcut, Shortcut::EndCall),
                                      Q_ARG(QString, keys)));
    QCOMPARE(describe(info), QStringLiteral("'Ctrl+F' global enabled"));
}

void tst_OxaKeySequenceLookup::answersQml()
{
    OxaKeySequenceLookup lookup;
    const QString script = QStringLiteral("var info = lookup.getKeySequence(%1, 'Ctrl+L');"
                                          "[info.keySequence, info.isGlobal, info.enabled].join()")
                                   .arg(int(Shortcut::EndCall));
    QCOMPARE(evaluate(lookup, script), QStringLiteral("Ctrl+L,true,true"));
    QCOMPARE(evaluate(lookup, QStringLiteral("lookup.getKeySequence(0).keySequence")), QString());
}

void tst_OxaKeySequenceLookup::ownsWhatQmlGotFromIt()
{
    OxaKeySequenceLookup lookup;
    evaluate(lookup, QStringLiteral("lookup.getKeySequence(0, 'Ctrl+L'); null"));
    QCOMPARE(lookup.findChildren<OxaKeySequenceInfo *>().size(), 1);
}

void tst_OxaKeySequenceLookup::leavesTheServicesObjectsToTheServiceWhenQmlHadThem()
{
    auto service = std::make_unique<QObject>();
    const QPointer<OxaKeySequenceInfo> child = new OxaKeySequenceInfo(service.get());
    auto free = std::make_unique<OxaKeySequenceInfo>();
    const QPointer<OxaKeySequenceInfo> guard = free.get();
    {
        OxaKeySequenceLookup lookup;
        lookup.setManagerEnabled(true);
        lookup.updateKeySequenceMap({ { Shortcut::Unknown, guard }, { Shortcut::Close, child } });
        const QString script = QStringLiteral("lookup.getKeySequence(%1).enabled");
        QCOMPARE(evaluate(lookup, script.arg(0)), QStringLiteral("true"));
        QCOMPARE(evaluate(lookup, script.arg(1)), QStringLiteral("true"));
    }
    QVERIFY(guard);
    QCOMPARE(child->parent(), service.get());
    free.reset();
    QVERIFY(!guard);
}

void tst_OxaKeySequenceLookup::ignoresTheServicesObjectsAsLongAsItIsOff()
{
    OxaKeySequenceLookup lookup;
    OxaKeySequenceInfo info;
    info.setKeySequence("Alt+X");
    lookup.updateKeySequenceMap({ { Shortcut::Search, &info } });
    QVERIFY(lookup.shortcutExists(Shortcut::Search));
    QCOMPARE(describe(lookup.getKeySequence(Shortcut::Search, keys)),
             QStringLiteral("'Ctrl+F' enabled"));
}

void tst_OxaKeySequenceLookup::ignoresTheFallbackWhenTheServiceIsOn()
{
    OxaKeySequenceLookup lookup;
    lookup.setManagerEnabled(true);
    const OxaKeySequenceInfo *info = lookup.getKeySequence(Shortcut::EndCall, keys);
    QCOMPARE(describe(info), QStringLiteral("'' enabled"));
    QCOMPARE(info->parent(), &lookup);
    QVERIFY(!lookup.shortcutExists(Shortcut::EndCall));
}

void tst_OxaKeySequenceLookup::handsOutTheServicesObject()
{
    OxaKeySequenceLookup lookup;
    lookup.setManagerEnabled(true);
    OxaKeySequenceInfo info;
    info.setKeySequence("Alt+X");
    info.setEnabled(false);
    lookup.updateKeySequenceMap({ { Shortcut::EndCall, &info } });
    QCOMPARE(lookup.getKeySequence(Shortcut::EndCall, keys), &info);
    QCOMPARE(describe(&info), QStringLiteral("'Alt+X'"));
}

void tst_OxaKeySequenceLookup::makesAnObjectBesideTheServicesOne()
{
    OxaKeySequenceLookup lookup;
    lookup.setManagerEnabled(true);
    OxaKeySequenceInfo info;
    lookup.updateKeySequenceMap({ { Shortcut::EndCall, &info } });
    lookup.getKeySequence(Shortcut::EndCall);
    lookup.getKeySequence(Shortcut::EndCall);
    QCOMPARE(lookup.findChildren<OxaKeySequenceInfo *>().size(), 2);
}

void tst_OxaKeySequenceLookup::handsOutNullForAnObjectThatIsGone()
{
    OxaKeySequenceLookup lookup;
    lookup.setManagerEnabled(true);
    auto info = std::make_unique<OxaKeySequenceInfo>();
    lookup.updateKeySequenceMap({ { Shortcut::Search, info.get() } });
    info.reset();
    QCOMPARE(describe(lookup.getKeySequence(Shortcut::Search, keys)), QStringLiteral("null"));
    QVERIFY(lookup.shortcutExists(Shortcut::Search));
}

void tst_OxaKeySequenceLookup::replacesAnEntryAndKeepsTheOthers()
{
    OxaKeySequenceLookup lookup;
    lookup.setManagerEnabled(true);
    OxaKeySequenceInfo first;
    OxaKeySequenceInfo second;
    lookup.updateKeySequenceMap({ { Shortcut::Search, &first }, { Shortcut::Close, &first } });
    lookup.updateKeySequenceMap({ { Shortcut::Search, &second } });
    lookup.updateKeySequenceMap({});
    QCOMPARE(lookup.getKeySequence(Shortcut::Search), &second);
    QCOMPARE(lookup.getKeySequence(Shortcut::Close), &first);
}

void tst_OxaKeySequenceLookup::takesTheLastOfTwoEntriesOfOneUpdate()
{
    OxaKeySequenceLookup lookup;
    lookup.setManagerEnabled(true);
    OxaKeySequenceInfo first;
    OxaKeySequenceInfo second;
    lookup.updateKeySequenceMap({ { Shortcut::Search, &first }, { Shortcut::Search, &second } });
    QCOMPARE(lookup.getKeySequence(Shortcut::Search), &second);
}

void tst_OxaKeySequenceLookup::goesBackToTheFallbackWithTheService()
{
    OxaKeySequenceLookup lookup;
    OxaKeySequenceInfo info;
    lookup.setManagerEnabled(true);
    lookup.updateKeySequenceMap({ { Shortcut::Search, &info } });
    lookup.setManagerEnabled(false);
    QCOMPARE(describe(lookup.getKeySequence(Shortcut::Search, keys)),
             QStringLiteral("'Ctrl+F' enabled"));
}

UIELEMENTS_TEST_MAIN_WITH(QCoreApplication, tst_OxaKeySequenceLookup)
#include "tst_oxakeysequencelookup.moc"
