// SPDX-License-Identifier: Apache-2.0
#include "AppSignalsTable.h"
#include "support/SignalLog.h"
#include "support/TestApplication.h"

#include <UiElements/app/OxaGlobalSignalListener.h>

#include <QMetaEnum>
#include <QMetaMethod>

namespace {

std::vector<QMetaMethod> signalsOf(const QMetaObject &type)
{
    std::vector<QMetaMethod> found;
    for (int index = type.methodOffset(); index < type.methodCount(); ++index) {
        if (type.method(index).methodType() == QMetaMethod::Signal)
            found.push_back(type.method(index));
    }
    return found;
}

QString describe(const QMetaMethod &method)
{
    const QByteArrayList types = method.parameterTypes();
    const QByteArrayList names = method.parameterNames();
    QByteArrayList parameters;
    for (int index = 0; index < types.size(); ++index)
        parameters += types.at(index) + ' ' + names.at(index);
    return QString::fromLatin1(method.name() + '(' + parameters.join(", ") + ')');
}

} // namespace

/// The signal hub and the global signal listener.
class tst_OxaAppSignals : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void areObjectsOfTheLibrary();
    void hasAsManySignalsAsItsTable();
    void listsItsSignalsInOrder_data();
    void listsItsSignalsInOrder();

    void isTheHubOfTheApplication();
    void makesAHubWithoutShortcuts();

    void deliversSignalsSynchronously();
    void doesNothingWhenNobodyIsConnected();
    void takesDefaultsWhereArgumentsAreLeftOut();
    void reachesSlotsThatAreConnectedToAShorterForm();
    void carriesTheOuterApplicationsValues();
    void letsAReceiverMoveThePopupsRectangle();

    void hasTwoSignals();
    void isTheListenerOfTheApplication();
    void carriesTheNameOfAShortcut();
    void carriesTheThemeOfTheDeveloperTools();
};

void tst_OxaAppSignals::areObjectsOfTheLibrary()
{
    QCOMPARE(OxaAppSignals::staticMetaObject.superClass(), &OxaObject::staticMetaObject);
    QCOMPARE(OxaGlobalSignalListener::staticMetaObject.superClass(), &OxaObject::staticMetaObject);
}

void tst_OxaAppSignals::hasAsManySignalsAsItsTable()
{
    QCOMPARE(signalsOf(OxaAppSignals::staticMetaObject).size(), std::size(appSignals));
}

void tst_OxaAppSignals::listsItsSignalsInOrder_data()
{
    QTest::addColumn<std::size_t>("index");
    for (std::size_t index = 0; index < std::size(appSignals); ++index)
        QTest::newRow(appSignals[index]) << index;
}

void tst_OxaAppSignals::listsItsSignalsInOrder()
{
    QFETCH(std::size_t, index);
    const std::vector<QMetaMethod> methods = signalsOf(OxaAppSignals::staticMetaObject);
    QVERIFY(index < methods.size());
    const QMetaMethod &method = methods[index];
    QCOMPARE(describe(method), QString::fromLatin1(appSignals[index]));
    QCOMPARE(method.access(), QMetaMethod::Public);
    QCOMPARE(method.typeName(), "void");
}

void tst_OxaAppSignals::isTheHubOfTheApplication()
{
    const auto *application = qobject_cast<OxaApplication *>(qApp);
    QVERIFY(OxaAppSignals::get());
    QCOMPARE(OxaAppSignals::get(), application->getAppSignals());
    QCOMPARE(OxaAppSignals::get()->parent(), application);
}

void tst_OxaAppSignals::makesAHubWithoutShortcuts()
{
    const OxaAppSignals hub;
    QVERIFY(!hub.parent());
    const auto shortcuts = QMetaEnum::fromType<OxaAppSignals::Shortcut>();
    for (int index = 0; index < shortcuts.keyCount(); ++index)
        QVERIFY(!hub.shortcutExists(OxaAppSignals::Shortcut(shortcuts.value(index))));
}

void tst_OxaAppSignals::deliversSignalsSynchronously()
{
    OxaAppSignals hub;
    SignalLog log;
    log.record(&hub, &OxaAppSignals::createSpace, QStringLiteral("createSpace"));
    log.record(&hub, &OxaAppSignals::endCall, QStringLiteral("endCall"));
    Q_EMIT hub.endCall();
    QCOMPARE(log.take(), QStringLiteral("endCall"));
    Q_EMIT hub.createSpace();
    QCOMPARE(log.take(), QStringLiteral("createSpace"));
}

void tst_OxaAppSignals::doesNothingWhenNobodyIsConnected()
{
    OxaAppSignals hub;
    QRect rect(1, 2, 3, 4);
    Q_EMIT hub.popupMeetingDetailPage(nullptr, {}, {}, {}, {}, {}, rect);
    Q_EMIT hub.navigateToSpace({});
    QCOMPARE(rect, QRect(1, 2, 3, 4));
    QVERIFY(hub.children().isEmpty());
}

void tst_OxaAppSignals::takesDefaultsWhereArgumentsAreLeftOut()
{
    OxaAppSignals hub;
    QStringList seen;
    connect(&hub, &OxaAppSignals::closeContactCards, this, [&seen](bool delay, bool force) {
        seen += QStringLiteral("close %1 %2").arg(delay).arg(force);
    });
    connect(&hub, &OxaAppSignals::showContactCard, this,
            [&seen](QRect, const QString &id, Qt::ArrowType, bool check, const QString &theme) {
                seen += QStringLiteral("card %1 %2 '%3'").arg(id).arg(check).arg(theme);
            });
    connect(&hub, &OxaAppSignals::showSpaceInformationCardFromRect, this,
            [&seen](const fenn::guid &, const QRectF &, QWindow *, bool check) {
                seen += QStringLiteral("space %1").arg(check);
            });
    Q_EMIT hub.closeContactCards(true);
    Q_EMIT hub.showContactCard(QRect(), QStringLiteral("ann"), Qt::UpArrow);
    Q_EMIT hub.showContactCard(QRect(), QStringLiteral("bob"), Qt::UpArrow, true);
    Q_EMIT hub.showSpaceInformationCardFromRect({}, QRectF(), nullptr);
    QCOMPARE(seen.join(QLatin1String(" | ")),
             QStringLiteral("close 1 0 | card ann 0 '' | card bob 1 '' | space 0"));
}

void tst_OxaAppSignals::reachesSlotsThatAreConnectedToAShorterForm()
{
    OxaAppSignals hub;
    const QSignalSpy longer(&hub, SIGNAL(closeContactCards(bool, bool)));
    const QSignalSpy shorter(&hub, SIGNAL(closeContactCards(bool)));
    Q_EMIT hub.closeContactCards(true, true);
    QCOMPARE(longer, (QList<QVariantList> { { true, true } }));
    QCOMPARE(shorter, (QList<QVariantList> { { true } }));
}

void tst_OxaAppSignals::carriesTheOuterApplicationsValues()
{
    using namespace dolmCore::viewModels;

    OxaAppSignals hub;
    fenn::guid call;
    call.bytes[15] = 7;
    bool seen = false;
    connect(&hub, &OxaAppSignals::startLocalShare, this,
            [&](const fenn::guid &callId, QWidget *parent, ShareSourcesSelectionWindowTab tab) {
                seen = callId == call && callId != fenn::guid() && !parent
                        && tab == ShareSourcesSelectionWindowTab(3);
            });
    Q_EMIT hub.startLocalShare(call, nullptr, ShareSourcesSelectionWindowTab(3));
    QVERIFY(seen);
}

void tst_OxaAppSignals::letsAReceiverMoveThePopupsRectangle()
{
    OxaAppSignals hub;
    connect(&hub, &OxaAppSignals::popupMeetingDetailPage, this,
            [](QWidget *, const std::string &, const std::string &, const std::string &,
               const std::string &, const std::string &, QRect &rect, int offsetY,
               bool sendTelemetry) { rect.translate(sendTelemetry ? 1000 : 5, 5 + offsetY); });
    QRect rect(1, 2, 3, 4);
    Q_EMIT hub.popupMeetingDetailPage(nullptr, {}, {}, {}, {}, {}, rect);
    QCOMPARE(rect, QRect(6, 7, 3, 4));
    Q_EMIT hub.popupMeetingDetailPage(nullptr, {}, {}, {}, {}, {}, rect, 10);
    QCOMPARE(rect, QRect(11, 22, 3, 4));
}

void tst_OxaAppSignals::hasTwoSignals()
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

void tst_OxaAppSignals::isTheListenerOfTheApplication()
{
    const auto *application = qobject_cast<OxaApplication *>(qApp);
    QVERIFY(OxaGlobalSignalListener::get());
    QCOMPARE(OxaGlobalSignalListener::get(), application->getGlobalSignalListener());
    QCOMPARE(OxaGlobalSignalListener::get()->parent(), application);
}

void tst_OxaAppSignals::carriesTheNameOfAShortcut()
{
    OxaGlobalSignalListener listener;
    auto seen = OxaKeySequenceLookup::Shortcut::Unknown;
    connect(&listener, &OxaGlobalSignalListener::shortcutActivated, this,
            [&seen](OxaKeySequenceLookup::Shortcut shortcutType) { seen = shortcutType; });
    Q_EMIT listener.shortcutActivated(OxaKeySequenceLookup::Shortcut::EndCall);
    QCOMPARE(seen, OxaKeySequenceLookup::Shortcut::EndCall);
}

void tst_OxaAppSignals::carriesTheThemeOfTheDeveloperTools()
{
    OxaGlobalSignalListener listener;
    const QSignalSpy spy(&listener, &OxaGlobalSignalListener::setDevToolsThemeMode);
    Q_EMIT listener.setDevToolsThemeMode(QStringLiteral("dark"));
    QCOMPARE(spy, (QList<QVariantList> { { QStringLiteral("dark") } }));
}

UIELEMENTS_TEST_MAIN(tst_OxaAppSignals)
#include "tst_oxaappsignals.moc"
