// SPDX-License-Identifier: Apache-2.0
#include "support/TestMain.h"

#include <UiElements/keyboard/OxaKeyEvent.h>

#include <QKeyEvent>
#include <QMetaProperty>
#include <QTest>

class tst_OxaKeyEvent : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithoutEventAndModifiers();
    void showsAReadOnlyProperty();
    void emitsOnlyForNewModifiers();
    void takesTheModifiersOfAnEvent();
    void storesAnEventOfUnchangedModifiersSilently();
    void storesTheEventBeforeItEmits();
    void forgetsTheEventForNull();
};

void tst_OxaKeyEvent::startsWithoutEventAndModifiers()
{
    QObject parent;
    const OxaKeyEvent event(&parent);
    QCOMPARE(event.parent(), &parent);
    QCOMPARE(event.metaObject()->superClass(), &QObject::staticMetaObject);
    QCOMPARE(event.modifiers(), Qt::KeyboardModifiers());
    QVERIFY(!event.keyEvent());
}

void tst_OxaKeyEvent::showsAReadOnlyProperty()
{
    const QMetaObject &type = OxaKeyEvent::staticMetaObject;
    const QMetaProperty property = type.property(type.indexOfProperty("modifiers"));
    QVERIFY(property.isReadable());
    QVERIFY(!property.isWritable());
    QCOMPARE(property.typeName(), "Qt::KeyboardModifiers");
    QCOMPARE(property.notifySignal().methodSignature(), QByteArray("modifiersChanged()"));
}

void tst_OxaKeyEvent::emitsOnlyForNewModifiers()
{
    OxaKeyEvent event;
    const QSignalSpy changed(&event, &OxaKeyEvent::modifiersChanged);
    event.setModifiers(Qt::NoModifier);
    QCOMPARE(changed.size(), 0);
    event.setModifiers(Qt::ShiftModifier | Qt::AltModifier);
    event.setModifiers(Qt::ShiftModifier | Qt::AltModifier);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(event.property("modifiers").toInt(), int(Qt::ShiftModifier | Qt::AltModifier));
}

void tst_OxaKeyEvent::takesTheModifiersOfAnEvent()
{
    OxaKeyEvent event;
    const QSignalSpy changed(&event, &OxaKeyEvent::modifiersChanged);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_M, Qt::ControlModifier);
    event.setKeyEvent(&press);
    QCOMPARE(event.keyEvent(), &press);
    QCOMPARE(event.modifiers(), Qt::ControlModifier);
    QCOMPARE(changed.size(), 1);
}

void tst_OxaKeyEvent::storesAnEventOfUnchangedModifiersSilently()
{
    OxaKeyEvent event;
    const QSignalSpy changed(&event, &OxaKeyEvent::modifiersChanged);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_M, Qt::NoModifier);
    event.setKeyEvent(&press);
    QCOMPARE(event.keyEvent(), &press);
    QCOMPARE(changed.size(), 0);
}

void tst_OxaKeyEvent::storesTheEventBeforeItEmits()
{
    OxaKeyEvent event;
    const QKeyEvent *seen = nullptr;
    connect(&event, &OxaKeyEvent::modifiersChanged, this, [&] { seen = event.keyEvent(); });
    QKeyEvent press(QEvent::KeyPress, Qt::Key_M, Qt::ControlModifier);
    event.setKeyEvent(&press);
    QCOMPARE(seen, &press);
}

void tst_OxaKeyEvent::forgetsTheEventForNull()
{
    OxaKeyEvent event;
    QKeyEvent press(QEvent::KeyPress, Qt::Key_M, Qt::ControlModifier);
    event.setKeyEvent(&press);
    event.setKeyEvent(nullptr);
    QVERIFY(!event.keyEvent());
    QCOMPARE(event.modifiers(), Qt::ControlModifier);
}

UIELEMENTS_APPLESS_TEST_MAIN(tst_OxaKeyEvent)
#include "tst_oxakeyevent.moc"
