// SPDX-License-Identifier: Apache-2.0
#include "support/ContextTranslator.h"
#include "support/SignalLog.h"
#include "support/TestMain.h"

#include <UiElements/keyboard/OxaKeySequenceInfo.h>

#include <QMetaProperty>
#include <QTest>

class tst_OxaKeySequenceInfo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsEnabledWithoutKeys();
    void showsReadOnlyProperties_data();
    void showsReadOnlyProperties();
    void emitsOnlyForNewKeys();
    void takesKeysAsUtf8();
    void emitsOnlyForANewGlobalFlag();
    void emitsOnlyForANewEnabledFlag();

    void splitsATextIntoModifiersAndKey_data();
    void splitsATextIntoModifiersAndKey();
    void readsTextsAsThePlatformShowsThem();
};

void tst_OxaKeySequenceInfo::startsEnabledWithoutKeys()
{
    QObject parent;
    const OxaKeySequenceInfo info(&parent);
    QCOMPARE(info.parent(), &parent);
    QCOMPARE(info.metaObject()->superClass(), &OxaObject::staticMetaObject);
    QCOMPARE(info.keySequence(), QString());
    QVERIFY(!info.isGlobal());
    QVERIFY(info.enabled());
}

void tst_OxaKeySequenceInfo::showsReadOnlyProperties_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QByteArray>("notifySignal");
    QTest::newRow("keySequence") << QByteArray("QString") << QByteArray("keySequenceChanged()");
    QTest::newRow("isGlobal") << QByteArray("bool") << QByteArray("isGlobalChanged()");
    QTest::newRow("enabled") << QByteArray("bool") << QByteArray("enabledChanged()");
}

void tst_OxaKeySequenceInfo::showsReadOnlyProperties()
{
    QFETCH(QByteArray, type);
    QFETCH(QByteArray, notifySignal);
    const QMetaObject &meta = OxaKeySequenceInfo::staticMetaObject;
    const QMetaProperty property = meta.property(meta.indexOfProperty(QTest::currentDataTag()));
    QVERIFY(property.isReadable());
    QVERIFY(!property.isWritable());
    QCOMPARE(QByteArray(property.typeName()), type);
    QCOMPARE(property.notifySignal().methodSignature(), notifySignal);
}

void tst_OxaKeySequenceInfo::emitsOnlyForNewKeys()
{
    OxaKeySequenceInfo info;
    const QSignalSpy changed(&info, &OxaKeySequenceInfo::keySequenceChanged);
    info.setKeySequence(QString());
    QCOMPARE(changed.size(), 0);
    info.setKeySequence(QStringLiteral("Ctrl+F"));
    QCOMPARE(changed.size(), 1);
    info.setKeySequence(QStringLiteral("Ctrl+F"));
    info.setKeySequence("Ctrl+F");
    info.setKeySequence(std::string("Ctrl+F"));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(info.property("keySequence").toString(), QStringLiteral("Ctrl+F"));
}

void tst_OxaKeySequenceInfo::takesKeysAsUtf8()
{
    const QString umlaut = QStringLiteral("Ctrl+\u00d6");
    OxaKeySequenceInfo info;
    info.setKeySequence("Ctrl+\xc3\x96");
    QCOMPARE(info.keySequence(), umlaut);
    info.setKeySequence(static_cast<const char *>(nullptr));
    QCOMPARE(info.keySequence(), QString());
    info.setKeySequence(std::string("Ctrl+\xc3\x96"));
    QCOMPARE(info.keySequence(), umlaut);
}

void tst_OxaKeySequenceInfo::emitsOnlyForANewGlobalFlag()
{
    OxaKeySequenceInfo info;
    SignalLog log;
    log.record(&info, &OxaKeySequenceInfo::isGlobalChanged, QStringLiteral("isGlobal"));
    log.record(&info, &OxaKeySequenceInfo::enabledChanged, QStringLiteral("enabled"));
    info.setIsGlobal(false);
    QCOMPARE(log.take(), QString());
    info.setIsGlobal(true);
    info.setIsGlobal(true);
    QCOMPARE(log.take(), QStringLiteral("isGlobal"));
    QVERIFY(info.isGlobal());
}

void tst_OxaKeySequenceInfo::emitsOnlyForANewEnabledFlag()
{
    OxaKeySequenceInfo info;
    SignalLog log;
    log.record(&info, &OxaKeySequenceInfo::isGlobalChanged, QStringLiteral("isGlobal"));
    log.record(&info, &OxaKeySequenceInfo::enabledChanged, QStringLiteral("enabled"));
    info.setEnabled(true);
    QCOMPARE(log.take(), QString());
    info.setEnabled(false);
    info.setEnabled(false);
    QCOMPARE(log.take(), QStringLiteral("enabled"));
    QVERIFY(!info.enabled());
}

void tst_OxaKeySequenceInfo::splitsATextIntoModifiersAndKey_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<Qt::Key>("key");
    const auto row = [](const char *name, const char *text, Qt::KeyboardModifiers modifiers,
                        Qt::Key key) {
        QTest::newRow(name) << QString::fromLatin1(text) << modifiers << key;
    };
    row("two modifiers", "Ctrl+Shift+M", Qt::ControlModifier | Qt::ShiftModifier, Qt::Key_M);
    row("all modifiers", "Meta+Ctrl+Alt+Shift+Num+F35",
        Qt::MetaModifier | Qt::ControlModifier | Qt::AltModifier | Qt::ShiftModifier
                | Qt::KeypadModifier,
        Qt::Key_F35);
    row("no modifier", "F1", Qt::NoModifier, Qt::Key_F1);
    row("a key beyond Latin-1", "Ctrl+Return", Qt::ControlModifier, Qt::Key_Return);
    row("further chords are ignored", "Ctrl+K, Alt+X", Qt::ControlModifier, Qt::Key_K);
    row("an empty text", "", Qt::NoModifier, Qt::Key(0));
    row("a text that names no key", "nonsense", Qt::NoModifier, Qt::Key_unknown);
}

void tst_OxaKeySequenceInfo::splitsATextIntoModifiersAndKey()
{
    QFETCH(QString, text);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(Qt::Key, key);
    const auto keys = OxaKeySequenceInfo().extractKeysFromSequence(text);
    QCOMPARE(keys.first, modifiers);
    QCOMPARE(keys.second, key);
}

void tst_OxaKeySequenceInfo::readsTextsAsThePlatformShowsThem()
{
    const ContextTranslator translator;
    const QString text = QStringLiteral("QShortcut/Ctrl+F");
    const auto split = OxaKeySequenceInfo().extractKeysFromSequence(text);
    QCOMPARE(split.first, Qt::ControlModifier);
    QCOMPARE(split.second, Qt::Key_F);
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_OxaKeySequenceInfo)
#include "tst_oxakeysequenceinfo.moc"
