// SPDX-License-Identifier: Apache-2.0
#include "support/TestMain.h"
#include "support/Windows.h"

#include <UiElements/svg/VisualUtils.h>

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QShortcut>
#include <QSignalSpy>
#include <QTest>
#include <QWidget>

#include <memory>

using VisualUtils::EventFilter;

namespace {

/// Records the events that reach it.
class Target : public QObject
{
    Q_OBJECT

public:
    QList<QEvent::Type> reached;

    bool event(QEvent *event) override
    {
        reached += event->type();
        return QObject::event(event);
    }
};

/// Records what is typed into it.
class Typewriter : public QWidget
{
    Q_OBJECT

public:
    QString typed;

protected:
    void keyPressEvent(QKeyEvent *event) override { typed += event->text(); }
};

void send(QObject *receiver, QEvent::Type type)
{
    QEvent event(type);
    QCoreApplication::sendEvent(receiver, &event);
}

/// Records the events that a filter handles. Those that it lets through are in Target::reached.
struct Handled
{
    QList<QEvent::Type> types;
    bool keepsEvents = false;

    EventFilter::Handler handler()
    {
        return [this](QEvent *event) {
            types += event->type();
            return keepsEvents;
        };
    }
};

} // namespace

class tst_VisualUtils : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void handlesOnlyEventsOfItsTypes();
    void handlesAllEventsWithoutTypes();
    void keepsAnEventFromTheTargetWhenTheHandlerSaysSo();
    void letsEventsOfOtherObjectsPass();
    void belongsToTheTarget();
    void handlesNothingWithoutAParent();
    void stopsWhenItIsDeleted();
    void isDeletedWithItsTarget();
    void keepsFilteringAfterItsFirstUse();
    void isDeletedAfterItsFirstUseWhenAsked();
    void isRemovedFromTheTargetBeforeTheHandlerOfItsOnlyUse();
    void keepsAHandlerThatDeletesTheFilterToItsEnd();

    void acceptsWhatAltGrTypes_data();
    void acceptsWhatAltGrTypes();
    void acceptsNoOtherEventOfTheKey();
    void keepsAltGrTextFromAShortcut_data();
    void keepsAltGrTextFromAShortcut();
};

void tst_VisualUtils::handlesOnlyEventsOfItsTypes()
{
    Target target;
    Handled handled;
    const EventFilter filter(&target, { QEvent::Enter, QEvent::Leave }, handled.handler());
    for (const QEvent::Type type : { QEvent::Enter, QEvent::Show, QEvent::Leave })
        send(&target, type);
    QCOMPARE(handled.types, QList<QEvent::Type>({ QEvent::Enter, QEvent::Leave }));
    QVERIFY(target.reached.endsWith(QEvent::Leave));
    QVERIFY(target.reached.contains(QEvent::Show));
}

void tst_VisualUtils::handlesAllEventsWithoutTypes()
{
    Target target;
    Handled handled;
    const EventFilter filter(&target, {}, handled.handler());
    const QList<QEvent::Type> types = { QEvent::Enter, QEvent::User, QEvent::Show };
    for (const QEvent::Type type : types)
        send(&target, type);
    QCOMPARE(handled.types, types);
}

void tst_VisualUtils::keepsAnEventFromTheTargetWhenTheHandlerSaysSo()
{
    Target target;
    Handled handled;
    const EventFilter filter(&target, { QEvent::Enter }, handled.handler());
    target.reached.clear();
    send(&target, QEvent::Enter);
    QCOMPARE(target.reached, QList<QEvent::Type>({ QEvent::Enter }));
    handled.keepsEvents = true;
    send(&target, QEvent::Enter);
    send(&target, QEvent::Leave);
    QCOMPARE(target.reached, QList<QEvent::Type>({ QEvent::Enter, QEvent::Leave }));
}

void tst_VisualUtils::letsEventsOfOtherObjectsPass()
{
    Target target;
    Target other;
    Handled handled;
    handled.keepsEvents = true;
    EventFilter filter(&target, {}, handled.handler());
    other.installEventFilter(&filter);
    send(&other, QEvent::Enter);
    QCOMPARE(other.reached, QList<QEvent::Type>({ QEvent::Enter }));
    QCOMPARE(handled.types, QList<QEvent::Type>());
}

void tst_VisualUtils::belongsToTheTarget()
{
    Target target;
    const EventFilter filter(&target, {}, Handled().handler());
    QCOMPARE(filter.parent(), &target);
}

void tst_VisualUtils::handlesNothingWithoutAParent()
{
    Target other;
    Handled handled;
    EventFilter filter(nullptr, {}, handled.handler());
    other.installEventFilter(&filter);
    send(&other, QEvent::Enter);
    QCOMPARE(handled.types, QList<QEvent::Type>());
}

void tst_VisualUtils::stopsWhenItIsDeleted()
{
    Target target;
    Handled handled;
    auto filter = std::make_unique<EventFilter>(&target, std::vector<QEvent::Type>(),
                                                handled.handler());
    send(&target, QEvent::Enter);
    filter.reset();
    handled.types.clear();
    send(&target, QEvent::Leave);
    QCOMPARE(handled.types, QList<QEvent::Type>());
    QVERIFY(target.reached.endsWith(QEvent::Leave));
}

void tst_VisualUtils::isDeletedWithItsTarget()
{
    Handled handled;
    auto target = std::make_unique<Target>();
    const QPointer<EventFilter> filter(new EventFilter(target.get(), {}, handled.handler()));
    target.reset();
    QVERIFY(!filter);
}

void tst_VisualUtils::keepsFilteringAfterItsFirstUse()
{
    Target target;
    Handled handled;
    const EventFilter filter(&target, { QEvent::Enter }, handled.handler());
    send(&target, QEvent::Enter);
    send(&target, QEvent::Enter);
    QCOMPARE(handled.types.size(), 2);
}

void tst_VisualUtils::isDeletedAfterItsFirstUseWhenAsked()
{
    Target target;
    Handled handled;
    const QPointer<EventFilter> filter(
            new EventFilter(&target, { QEvent::Enter }, handled.handler()));
    filter->setRemoveAfterFirstUse(true);
    send(&target, QEvent::Leave);
    QCOMPARE(handled.types.size(), 0);
    send(&target, QEvent::Enter);
    send(&target, QEvent::Enter);
    QCOMPARE(handled.types.size(), 1);
    QVERIFY(filter);
    QTRY_VERIFY(!filter);
}

void tst_VisualUtils::isRemovedFromTheTargetBeforeTheHandlerOfItsOnlyUse()
{
    Target target;
    int uses = 0;
    EventFilter filter(&target, { QEvent::Enter }, [&](QEvent *) {
        if (++uses < 3)
            send(&target, QEvent::Enter);
        return true;
    });
    filter.setRemoveAfterFirstUse(true);
    target.reached.clear();
    send(&target, QEvent::Enter);
    QCOMPARE(uses, 1);
    QCOMPARE(target.reached, QList<QEvent::Type>({ QEvent::Enter }));
}

void tst_VisualUtils::keepsAHandlerThatDeletesTheFilterToItsEnd()
{
    Target target;
    QPointer<EventFilter> filter;
    const QString captured = QStringLiteral("what the handler captured");
    QString seen;
    filter = new EventFilter(&target, { QEvent::Enter }, [&filter, &seen, captured](QEvent *) {
        delete filter;
        seen = captured;
        return false;
    });
    send(&target, QEvent::Enter);
    QVERIFY(!filter);
    QCOMPARE(seen, captured);
}

void tst_VisualUtils::acceptsWhatAltGrTypes_data()
{
    const Qt::KeyboardModifiers altGr = Qt::ControlModifier | Qt::AltModifier;
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("a character") << altGr << QStringLiteral("@") << true;
    QTest::newRow("a letter of another script") << altGr << QStringLiteral("\u0105") << true;
    QTest::newRow("a blank") << altGr << QStringLiteral(" ") << true;
    QTest::newRow("a character with further modifiers")
            << (altGr | Qt::ShiftModifier | Qt::MetaModifier) << QStringLiteral("@") << true;
    QTest::newRow("no text") << altGr << QString() << false;
    QTest::newRow("a character that does not print") << altGr << QStringLiteral("\u0001") << false;
    QTest::newRow("two characters") << altGr << QStringLiteral("ab") << false;
    QTest::newRow("a character of two code units")
            << altGr << QStringLiteral("\U0001F600") << false;
    QTest::newRow("Ctrl alone") << Qt::KeyboardModifiers(Qt::ControlModifier) << QStringLiteral("@")
                                << false;
    QTest::newRow("Alt alone") << Qt::KeyboardModifiers(Qt::AltModifier) << QStringLiteral("@")
                               << false;
    QTest::newRow("no modifier") << Qt::KeyboardModifiers() << QStringLiteral("@") << false;
}

void tst_VisualUtils::acceptsWhatAltGrTypes()
{
    QFETCH(const Qt::KeyboardModifiers, modifiers);
    QFETCH(const QString, text);
    Target target;
    QCOMPARE(EventFilter::overrideShortcutOverride(&target)->parent(), &target);
    QKeyEvent event(QEvent::ShortcutOverride, Qt::Key_Q, modifiers, text);
    event.ignore();
    QCoreApplication::sendEvent(&target, &event);
    QTEST(event.isAccepted(), "accepted");
    QVERIFY(target.reached.contains(QEvent::ShortcutOverride));
}

void tst_VisualUtils::acceptsNoOtherEventOfTheKey()
{
    Target target;
    EventFilter::overrideShortcutOverride(&target);
    for (const QEvent::Type type : { QEvent::KeyPress, QEvent::KeyRelease }) {
        QKeyEvent event(type, Qt::Key_Q, Qt::ControlModifier | Qt::AltModifier,
                        QStringLiteral("@"));
        event.ignore();
        QCoreApplication::sendEvent(&target, &event);
        QVERIFY(!event.isAccepted());
    }
}

void tst_VisualUtils::keepsAltGrTextFromAShortcut_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("hasFilter");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("activations");
    QTest::newRow("a character is typed")
            << QStringLiteral("@") << true << QStringLiteral("@") << 0;
    QTest::newRow("a key combination without text is a shortcut")
            << QString() << true << QString() << 1;
    QTest::newRow("a character without the filter is a shortcut")
            << QStringLiteral("@") << false << QString() << 1;
}

void tst_VisualUtils::keepsAltGrTextFromAShortcut()
{
    QFETCH(const QString, text);
    QFETCH(const bool, hasFilter);
    Typewriter widget;
    const QShortcut shortcut(Qt::CTRL + Qt::ALT + Qt::Key_Q, &widget);
    const QSignalSpy activated(&shortcut, &QShortcut::activated);
    if (hasFilter)
        EventFilter::overrideShortcutOverride(&widget);
    QVERIFY(Windows::activate(widget));
    QTest::sendKeyEvent(QTest::Press, widget.windowHandle(), Qt::Key_Q, text,
                        Qt::ControlModifier | Qt::AltModifier);
    QTEST(widget.typed, "typed");
    QTEST(activated.size(), "activations");
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_VisualUtils)
#include "tst_visualutils.moc"
