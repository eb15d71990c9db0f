// SPDX-License-Identifier: Apache-2.0
#include "support/Guards.h"
#include "support/TestApplication.h"

#include <UiElements/widgets/OxaNotification.h>

#include <QGraphicsBlurEffect>
#include <QGraphicsOpacityEffect>
#include <QPropertyAnimation>
#include <QSignalSpy>
#include <QTimer>

namespace {

/// A notification that waits and fades for a short time.
class QuickNotification : public OxaNotification
{
public:
    explicit QuickNotification(int showTimeout = 10, int fadeOutDuration = 50)
    {
        setShowTimeout(showTimeout);
        setFadeOutDuration(fadeOutDuration);
    }

    QTimer *timer() const { return findChild<QTimer *>(); }
    bool isFading() const { return qobject_cast<QGraphicsOpacityEffect *>(graphicsEffect()); }
    void beginFade() { QMetaObject::invokeMethod(this, "onFadeOut"); }
};

} // namespace

/// OxaNotification, without inherited members.
class tst_OxaNotification : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithoutTimes();
    void storesItsTimes_data();
    void storesItsTimes();
    void staysWithoutATimeout_data();
    void staysWithoutATimeout();
    void waitsWithARepeatingPreciseTimer();
    void restartsItsTimerWithTheCurrentTimeout();
    void endsTheWaitWhenStartedWithoutATimeout();
    void neverFadesWithoutADuration_data();
    void neverFadesWithoutADuration();
    void fadesFromNineTenthsToNothing();
    void isOpaqueAgainAfterTheFade();
    void fadesOnceIfStartedTwice();
    void goesOnFadingWhenStartedAgain();
    void replacesAnotherEffectButNoOpacity();
    void completesTheFadeWhileHidden_data();
    void completesTheFadeWhileHidden();
    void fadesAgainWhenASlotStartsIt();
    void letsASlotDeleteIt_data();
    void letsASlotDeleteIt();
    void survivesItsDeletionDuringTheFade();
};

void tst_OxaNotification::startsWithoutTimes()
{
    QWidget parent;
    const OxaNotification notification(&parent);
    QCOMPARE(notification.parent(), &parent);
    QCOMPARE(notification.getShowTimeout(), 0);
    QCOMPARE(notification.getFadeOutDuration(), 0);
    QVERIFY(!notification.findChild<QTimer *>());
}

void tst_OxaNotification::storesItsTimes_data()
{
    QTest::addColumn<int>("milliseconds");
    QTest::newRow("a second") << 1000;
    QTest::newRow("none") << 0;
    QTest::newRow("below none") << -1;
}

void tst_OxaNotification::storesItsTimes()
{
    QFETCH(const int, milliseconds);
    OxaNotification notification;
    QVERIFY(notification.setProperty("showTimeout", milliseconds));
    QVERIFY(notification.setProperty("fadeOutDuration", milliseconds));
    QCOMPARE(notification.getShowTimeout(), milliseconds);
    QCOMPARE(notification.getFadeOutDuration(), milliseconds);
    notification.setShowTimeout(7);
    notification.setFadeOutDuration(8);
    QCOMPARE(notification.property("showTimeout").toInt(), 7);
    QCOMPARE(notification.property("fadeOutDuration").toInt(), 8);
    QVERIFY(!notification.findChild<QTimer *>());
}

void tst_OxaNotification::staysWithoutATimeout_data()
{
    QTest::addColumn<int>("timeout");
    QTest::newRow("none") << 0;
    QTest::newRow("below none") << -1;
}

void tst_OxaNotification::staysWithoutATimeout()
{
    QFETCH(const int, timeout);
    QuickNotification notification(timeout);
    notification.start();
    QVERIFY(!notification.timer());
}

void tst_OxaNotification::waitsWithARepeatingPreciseTimer()
{
    QuickNotification notification(1000);
    notification.start();
    QVERIFY(notification.timer()->isActive());
    QVERIFY(!notification.timer()->isSingleShot());
    QCOMPARE(notification.timer()->timerType(), Qt::PreciseTimer);
    QCOMPARE(notification.timer()->interval(), 1000);
    QVERIFY(!notification.isFading());
}

void tst_OxaNotification::restartsItsTimerWithTheCurrentTimeout()
{
    QuickNotification notification(100000);
    notification.start();
    const QTimer *timer = notification.timer();
    notification.setShowTimeout(200000);
    QCOMPARE(timer->interval(), 100000);
    notification.start();
    QCOMPARE(notification.findChildren<QTimer *>(), { notification.timer() });
    QCOMPARE(notification.timer(), timer);
    QCOMPARE(timer->interval(), 200000);
    QVERIFY(timer->remainingTime() > 100000);
}

void tst_OxaNotification::endsTheWaitWhenStartedWithoutATimeout()
{
    QuickNotification notification(1000);
    notification.start();
    notification.setShowTimeout(0);
    QVERIFY(notification.timer()->isActive());
    notification.start();
    QVERIFY(!notification.timer()->isActive());
}

void tst_OxaNotification::neverFadesWithoutADuration_data()
{
    QTest::addColumn<int>("duration");
    QTest::newRow("none") << 0;
    QTest::newRow("below none") << -1;
}

void tst_OxaNotification::neverFadesWithoutADuration()
{
    QFETCH(const int, duration);
    QuickNotification notification(5, duration);
    const QSignalSpy completed(&notification, &OxaNotification::fadeOutCompleted);
    notification.start();
    QSignalSpy timeouts(notification.timer(), &QTimer::timeout);
    QTRY_VERIFY(timeouts.size() > 2);
    QVERIFY(!notification.graphicsEffect());
    QVERIFY(notification.timer()->isActive());
    QCOMPARE(completed.size(), 0);
}

void tst_OxaNotification::fadesFromNineTenthsToNothing()
{
    QuickNotification notification;
    notification.beginFade();
    auto *effect = qobject_cast<QGraphicsOpacityEffect *>(notification.graphicsEffect());
    QVERIFY(effect);
    QCOMPARE(effect->parent(), &notification);
    QCOMPARE(effect->opacity(), 0.9); // The animation sets its start value at once.
    const auto *animation = effect->findChild<QPropertyAnimation *>();
    QCOMPARE(animation->propertyName(), QByteArrayLiteral("opacity"));
    QCOMPARE(animation->targetObject(), effect);
    QCOMPARE(animation->duration(), 50);
    QCOMPARE(animation->startValue(), QVariant(0.9));
    QCOMPARE(animation->endValue(), QVariant(0.0));
    QCOMPARE(animation->state(), QAbstractAnimation::Running);
}

void tst_OxaNotification::isOpaqueAgainAfterTheFade()
{
    QuickNotification notification;
    notification.show();
    QPointer<QObject> animation;
    qreal opacity = -1;
    bool isWaiting = true;
    connect(&notification, &OxaNotification::fadeOutCompleted, this, [&] {
        auto *effect = qobject_cast<QGraphicsOpacityEffect *>(notification.graphicsEffect());
        opacity = effect->opacity();
        animation = effect->findChild<QPropertyAnimation *>();
        isWaiting = notification.timer()->isActive();
    });
    notification.start();
    QTRY_COMPARE(opacity, 0.0);
    QVERIFY(!isWaiting);
    QVERIFY(!notification.graphicsEffect());
    QVERIFY(!animation);
    QVERIFY(notification.isVisible());
    QVERIFY(!notification.timer()->isActive());
}

void tst_OxaNotification::fadesOnceIfStartedTwice()
{
    QuickNotification notification;
    QSignalSpy completed(&notification, &OxaNotification::fadeOutCompleted);
    notification.start();
    notification.start();
    QVERIFY(completed.wait());
    QVERIFY(!completed.wait(150)); // Twice the time that a second fade would need.
    QCOMPARE(completed.size(), 1);
}

void tst_OxaNotification::goesOnFadingWhenStartedAgain()
{
    QuickNotification notification(10, 200);
    QSignalSpy completed(&notification, &OxaNotification::fadeOutCompleted);
    notification.start();
    QTRY_VERIFY(notification.isFading());
    const QPointer<QObject> effect = notification.graphicsEffect();
    notification.start();
    const QSignalSpy timeouts(notification.timer(), &QTimer::timeout);
    QTRY_VERIFY(timeouts.size() > 1);
    QCOMPARE(notification.graphicsEffect(), effect);
    QVERIFY(completed.wait());
    QVERIFY(!notification.timer()->isActive());
    QCOMPARE(completed.size(), 1);
}

void tst_OxaNotification::replacesAnotherEffectButNoOpacity()
{
    QuickNotification notification;
    const QPointer<QObject> blur = new QGraphicsBlurEffect;
    notification.setGraphicsEffect(static_cast<QGraphicsEffect *>(blur.data()));
    notification.beginFade();
    QVERIFY(!blur);
    QVERIFY(notification.isFading());

    auto *opacity = new QGraphicsOpacityEffect;
    notification.setGraphicsEffect(opacity);
    notification.beginFade();
    QCOMPARE(notification.graphicsEffect(), opacity);
    QVERIFY(!opacity->findChild<QPropertyAnimation *>());
}

void tst_OxaNotification::completesTheFadeWhileHidden_data()
{
    QTest::addColumn<bool>("isFading");
    QTest::newRow("before the fade") << false;
    QTest::newRow("half-way") << true;
}

void tst_OxaNotification::completesTheFadeWhileHidden()
{
    QFETCH(const bool, isFading);
    QuickNotification notification;
    QSignalSpy completed(&notification, &OxaNotification::fadeOutCompleted);
    notification.show();
    notification.start();
    if (isFading)
        QTRY_VERIFY(notification.isFading());
    notification.hide();
    QVERIFY(completed.wait());
    QVERIFY(!notification.isVisible());
    QVERIFY(!notification.graphicsEffect());
}

void tst_OxaNotification::fadesAgainWhenASlotStartsIt()
{
    QuickNotification notification;
    QSignalSpy completed(&notification, &OxaNotification::fadeOutCompleted);
    connect(&notification, &OxaNotification::fadeOutCompleted, this, [&] {
        if (completed.size() < 2)
            notification.start();
    });
    notification.start();
    QTRY_COMPARE(completed.size(), 2);
    QVERIFY(!notification.timer()->isActive());
}

void tst_OxaNotification::letsASlotDeleteIt_data()
{
    QTest::addColumn<bool>("isLater");
    QTest::newRow("at once") << false;
    QTest::newRow("later") << true;
}

void tst_OxaNotification::letsASlotDeleteIt()
{
    QFETCH(const bool, isLater);
    const QPointer<QuickNotification> notification = new QuickNotification;
    connect(notification, &OxaNotification::fadeOutCompleted, this, [&] {
        if (isLater)
            notification->deleteLater();
        else
            delete notification;
    });
    notification->show();
    notification->start();
    QTRY_VERIFY(!notification);
}

void tst_OxaNotification::survivesItsDeletionDuringTheFade()
{
    auto notification = std::make_unique<QuickNotification>();
    notification->start();
    QTRY_VERIFY(notification->isFading());
    const QPointer<QObject> animation = notification->findChild<QPropertyAnimation *>();
    QVERIFY(animation);
    notification.reset();
    QVERIFY(!animation);
}

UIELEMENTS_TEST_MAIN(tst_OxaNotification)
#include "tst_oxanotification.moc"
