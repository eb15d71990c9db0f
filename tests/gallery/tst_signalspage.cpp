// SPDX-License-Identifier: Apache-2.0
#include "Controls.h"
#include "GalleryTest.h"

#include <UiElements/app/OxaAppSignals.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaTextInput.h>

#include <QMetaMethod>
#include <QSignalSpy>

#include <pages/signals/SignalArguments.h>
#include <pages/signals/SignalModel.h>
#include <pages/signals/SignalReceiver.h>
#include <pages/signals/SignalWatcher.h>
#include <pages/signals/SignalsPage.h>
#include <widgets/CodeEdit.h>
#include <widgets/EmptyState.h>
#include <widgets/ListView.h>

Q_DECLARE_METATYPE(QMetaMethod)

namespace {

/// Returns how many signals the hub declares, shorter forms included.
int signalsOfTheHub()
{
    const QMetaObject &type = OxaAppSignals::staticMetaObject;
    int count = 0;
    for (int i = type.methodOffset(); i < type.methodCount(); ++i)
        count += type.method(i).methodType() == QMetaMethod::Signal ? 1 : 0;
    return count;
}

/// The hub's signals that a watcher receives, as lines.
struct Heard
{
    Heard()
        : watcher(OxaAppSignals::get(),
                  [this](const QMetaMethod &signal, const QStringList &values) {
                      lines += QStringLiteral("%1: %2").arg(QString::fromLatin1(
                                                                    signal.methodSignature()),
                                                            values.join(QStringLiteral(", ")));
                  })
    {
    }

    QStringList lines;
    SignalWatcher watcher;
};

int receiversOf(const SignalModel &model, const char *signature)
{
    return model.indexOf(signature).data(SignalModel::ReceiversRole).toInt();
}

template <typename Value>
QString textOf(const char *type, const Value &value)
{
    return SignalArguments::text(type, &value);
}

/// A page with an empty log, and \a signature chosen.
struct PageWith
{
    explicit PageWith(const char *signature)
    {
        view.setCurrentIndex(model.indexOf(signature));
        log.clear();
    }

    QWidget window; ///< Has no minimum size, which the platform does not enforce.
    SignalsPage &page = *new SignalsPage(&window);
    ListView &view = *page.findChild<ListView *>();
    SignalModel &model = *page.findChild<SignalModel *>();
    CodeEdit &log = *page.findChild<CodeEdit *>();
};

} // namespace

/// The page "Signals": its list, and the signals that it receives.
class tst_SignalsPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void emitsAndReceivesEverySignal_data();
    void emitsAndReceivesEverySignal();
    void writesArguments_data();
    void writesArguments();
    void receivesTheFullFormOfASignal();
    void emitsNothingWithTypesThatItDoesNotKnow();

    void listsAllSignalsInTheirGroups();
    void findsSignals_data();
    void findsSignals();
    void countsReceivers();
    void emitsDataChangedForChangedCountsOnly();
    void disablesHeadings();

    void logsWhatTheButtonEmits();
    void logsWhatOthersEmit();
    void connectsAndDisconnectsReceivers();
    void keepsTheChosenSignalThroughASearch();
    void offersToClearASearchThatFindsNothing();
    void recountsWhileItIsShown();
};

void tst_SignalsPage::emitsAndReceivesEverySignal_data()
{
    QTest::addColumn<QMetaMethod>("signal");
    const QMetaObject &type = OxaAppSignals::staticMetaObject;
    for (int i = type.methodOffset(); i < type.methodCount(); ++i) {
        if (type.method(i).methodType() == QMetaMethod::Signal)
            QTest::newRow(type.method(i).methodSignature().constData()) << type.method(i);
    }
}

void tst_SignalsPage::emitsAndReceivesEverySignal()
{
    QFETCH(const QMetaMethod, signal);
    const Heard heard;
    QVERIFY(SignalArguments::emitWithDefaults(OxaAppSignals::get(), signal));
    QCOMPARE(heard.lines.size(), 1);
    const QMetaMethod whole = SignalWatcher::wholeForm(signal);
    QVERIFY(heard.lines.front().startsWith(QString::fromLatin1(whole.methodSignature() + ": ")));
    QCOMPARE(whole.name(), signal.name());
    QVERIFY2(!heard.lines.front().contains(QLatin1Char('?')), qPrintable(heard.lines.front()));
}

void tst_SignalsPage::writesArguments_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    const std::vector<std::string> names = { "Ada", "Grace" };
    const QWidget widget;
    const QVariantMap map = { { QStringLiteral("room"), 3 }, { QStringLiteral("who"), QString() } };
    QTest::newRow("a bool") << textOf("bool", true) << QStringLiteral("true");
    QTest::newRow("a number") << textOf("int", -7) << QStringLiteral("-7");
    QTest::newRow("a QString") << textOf("QString", QStringLiteral("a b"))
                               << QStringLiteral("“a b”");
    QTest::newRow("a string of the standard library")
            << textOf("std::string", std::string("ä")) << QStringLiteral("“ä”");
    QTest::newRow("strings") << textOf("std::vector<std::string>", names)
                             << QStringLiteral("[“Ada”, “Grace”]");
    QTest::newRow("a point") << textOf("QPoint", QPoint(1, -2)) << QStringLiteral("(1, -2)");
    QTest::newRow("an exact point")
            << textOf("QPointF", QPointF(0.5, 2)) << QStringLiteral("(0.5, 2)");
    QTest::newRow("a rectangle") << textOf("QRect", QRect(1, 2, 3, 4))
                                 << QStringLiteral("(1, 2, 3 × 4)");
    QTest::newRow("the emitter's rectangle")
            << textOf("QRect&", QRect(1, 2, 3, 4)) << QStringLiteral("(1, 2, 3 × 4)");
    QTest::newRow("a variant") << textOf("QVariant", QVariant(12)) << QStringLiteral("“12”");
    QTest::newRow("no variant") << textOf("QVariant", QVariant()) << QStringLiteral("invalid");
    QTest::newRow("a map") << textOf("QVariantMap", map) << QStringLiteral("{room: “3”, who: “”}");
    QTest::newRow("a widget") << textOf("QWidget*", &widget) << QStringLiteral("QWidget");
    QTest::newRow("no window") << textOf("QWindow*", static_cast<QWindow *>(nullptr))
                               << QStringLiteral("null");
    QTest::newRow("an enumeration of Qt's")
            << textOf("Qt::ArrowType", Qt::DownArrow) << QStringLiteral("DownArrow");
    QTest::newRow("an enumeration without names")
            << textOf("ApplicationMenuItem", static_cast<ApplicationMenuItem>(4))
            << QStringLiteral("4");
    QTest::newRow("an identifier") << textOf("fenn::guid", fenn::guid { { 0xab, 1 } })
                                   << QStringLiteral("ab010000000000000000000000000000");
    QTest::newRow("a whiteboard") << textOf("uiWhiteboard::CreateWhiteboardInfo",
                                            uiWhiteboard::CreateWhiteboardInfo { "a", "b" })
                                  << QStringLiteral("{conversationId: “a”, callId: “b”}");
    QTest::newRow("a time of Qt's")
            << textOf("QTime", QTime(8, 30)) << QStringLiteral("08:30:00.000");
    QTest::newRow("a type without a text") << textOf("QPen", QPen()) << QStringLiteral("?");
    QTest::newRow("an unknown type") << textOf("Pen", 0) << QStringLiteral("?");
}

void tst_SignalsPage::writesArguments()
{
    QFETCH(const QString, text);
    QTEST(text, "expected");
}

void tst_SignalsPage::receivesTheFullFormOfASignal()
{
    const Heard heard;
    Q_EMIT OxaAppSignals::get()->closeContactCards(true);
    Q_EMIT OxaAppSignals::get()->makeCall(QStringLiteral("ada"), true, QPoint(3, 4));
    const QStringList expected = { QStringLiteral("closeContactCards(bool,bool): true, false"),
                                   QStringLiteral("makeCall(QString,bool,QPoint): “ada”, true, "
                                                  "(3, 4)") };
    QCOMPARE(heard.lines, expected);
}

void tst_SignalsPage::emitsNothingWithTypesThatItDoesNotKnow()
{
    SignalModel model(OxaAppSignals::get());
    QSignalSpy spy(&model, &SignalModel::dataChanged);
    QVERIFY(!SignalArguments::emitWithDefaults(&model,
                                               QMetaMethod::fromSignal(&SignalModel::dataChanged)));
    QCOMPARE(spy.count(), 0);
}

void tst_SignalsPage::listsAllSignalsInTheirGroups()
{
    const SignalModel model(OxaAppSignals::get());
    QCOMPARE(model.signalCount(), signalsOfTheHub());
    QStringList headings;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row);
        if (index.data(SignalModel::HeadingRole).toBool())
            headings += index.data().toString() + QStringLiteral(": ")
                    + index.siblingAtRow(row + 1).data(SignalModel::NameRole).toString();
    }
    QCOMPARE(headings.size(), 13);
    QCOMPARE(headings.front(), QStringLiteral("Contacts (11): closeContactCards"));
    QCOMPARE(headings[11], QStringLiteral("Sharing and annotation (17): startLocalShare"));
    QCOMPARE(headings.back(), QStringLiteral("Other (13): showVDIUpgradeCheckerWindow"));
    QCOMPARE(model.index(model.rowCount() - 1).data().toString(),
             QStringLiteral("appMenuItemSelected(QVariant tabInfo)"));
}

void tst_SignalsPage::findsSignals_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("count");
    QTest::newRow("all") << QString() << signalsOfTheHub();
    QTest::newRow("by a name") << QStringLiteral("contactPerson") << 1;
    QTest::newRow("by a name in any case, with space around it")
            << QStringLiteral(" CONTACTPERSON ") << 1;
    QTest::newRow("by a type") << QStringLiteral("ECMProvider") << 1;
    QTest::newRow("by a parameter") << QStringLiteral("sendTelemetry") << 1;
    QTest::newRow("nothing") << QStringLiteral("nowhere") << 0;
}

void tst_SignalsPage::findsSignals()
{
    QFETCH(const QString, text);
    SignalModel model(OxaAppSignals::get());
    model.setFilter(text);
    QTEST(model.signalCount(), "count");
}

void tst_SignalsPage::countsReceivers()
{
    const Heard heard; // A watcher is not counted.
    SignalReceiver receiver;
    SignalModel model(OxaAppSignals::get());
    QCOMPARE(receiversOf(model, "contactPerson()"), 0);
    const QMetaMethod shorter = model.signalAt(model.indexOf("closeContactCards(bool)"));
    receiver.connectTo(OxaAppSignals::get(), shorter);
    receiver.connectTo(OxaAppSignals::get(), shorter);
    model.refreshReceivers();
    QCOMPARE(receiversOf(model, "closeContactCards(bool)"), 2);
    QCOMPARE(receiversOf(model, "closeContactCards(bool,bool)"), 2);
    QCOMPARE(receiversOf(model, "contactPerson()"), 0);
    receiver.disconnectFrom(OxaAppSignals::get(), shorter);
    model.refreshReceivers();
    QCOMPARE(receiversOf(model, "closeContactCards(bool,bool)"), 0);
}

void tst_SignalsPage::emitsDataChangedForChangedCountsOnly()
{
    const Heard heard;
    SignalModel model(OxaAppSignals::get());
    QSignalSpy spy(&model, &SignalModel::dataChanged);
    model.refreshReceivers();
    QCOMPARE(spy.count(), 0);
    SignalReceiver receiver;
    const QModelIndex index = model.indexOf("contactPerson()");
    receiver.connectTo(OxaAppSignals::get(), model.signalAt(index));
    model.refreshReceivers();
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.front().front().toModelIndex(), index);
}

void tst_SignalsPage::disablesHeadings()
{
    const SignalModel model(OxaAppSignals::get());
    QCOMPARE(model.flags(model.index(0)), Qt::ItemFlags(Qt::NoItemFlags));
    QVERIFY(model.flags(model.index(1)).testFlag(Qt::ItemIsSelectable));
    QVERIFY(!model.signalAt(model.index(0)).isValid());
    QVERIFY(!model.signalAt(QModelIndex()).isValid());
}

void tst_SignalsPage::logsWhatTheButtonEmits()
{
    const PageWith page("makeCall(QString,bool,QPoint)");
    Controls::withText(page.page, "Emit")->click();
    const QStringList lines = page.log.toPlainText().split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 4);
    QVERIFY(lines[0].endsWith(QStringLiteral(" makeCall(QString,bool,QPoint)")));
    QCOMPARE(lines[1], QStringLiteral("    contactId = “”"));
    QCOMPARE(lines[2], QStringLiteral("    isAudio = false"));
    QCOMPARE(lines[3], QStringLiteral("    clickPos = (0, 0)"));
    Controls::withText(page.page, "Clear the log")->click();
    QCOMPARE(page.log.toPlainText(), QString());
}

void tst_SignalsPage::logsWhatOthersEmit()
{
    const PageWith page("contactPerson()");
    Q_EMIT OxaAppSignals::get()->attachFile();
    QVERIFY(page.log.toPlainText().endsWith(QStringLiteral(" attachFile()")));
}

void tst_SignalsPage::connectsAndDisconnectsReceivers()
{
    const PageWith page("contactPerson()");
    auto *add = Controls::withText(page.page, "Add a receiver");
    add->click();
    add->click();
    QCOMPARE(receiversOf(page.model, "contactPerson()"), 2);
    Controls::withText(page.page, "Remove receivers")->click();
    QCOMPARE(receiversOf(page.model, "contactPerson()"), 0);
}

void tst_SignalsPage::keepsTheChosenSignalThroughASearch()
{
    const PageWith page("showContactCard(QRect,QString,Qt::ArrowType)");
    auto *search = page.page.findChild<OxaTextInput *>();
    const auto chosen = [&page] {
        return page.view.currentIndex().data(SignalModel::NameRole).toString();
    };
    search->setText(QStringLiteral("contact"));
    QCOMPARE(chosen(), QStringLiteral("showContactCard"));
    QCOMPARE(page.view.currentIndex().data().toString(),
             QStringLiteral("showContactCard(QRect sourceRect, QString contactId, "
                            "Qt::ArrowType arrow)"));
    search->setText(QStringLiteral("guid"));
    QCOMPARE(chosen(), QStringLiteral("navigateToSpace"));
    search->setText(QStringLiteral("contactPerson"));
    const auto labels = page.page.findChildren<OxaLabel *>();
    QVERIFY(std::any_of(labels.begin(), labels.end(), [](const OxaLabel *label) {
        return label->text() == QLatin1String("1 signal");
    }));
    search->setText(QStringLiteral("nowhere"));
    QVERIFY(!page.view.currentIndex().isValid());
    search->setText(QString());
    QCOMPARE(chosen(), QStringLiteral("closeContactCards"));
}

void tst_SignalsPage::offersToClearASearchThatFindsNothing()
{
    const PageWith page("contactPerson()");
    auto *search = page.page.findChild<OxaTextInput *>();
    auto *emptyState = page.page.findChild<EmptyState *>();
    auto *emitButton = Controls::withText(page.page, "Emit");
    QVERIFY(emptyState->isHidden());
    QVERIFY(emitButton->isEnabled());
    search->setText(QStringLiteral("nowhere"));
    QVERIFY(!emptyState->isHidden());
    QVERIFY(page.view.isHidden());
    QVERIFY(!emitButton->isEnabled());
    Controls::withText(*emptyState, "Clear the search")->click();
    QVERIFY(emptyState->isHidden());
    QCOMPARE(page.model.signalCount(), signalsOfTheHub());
}

void tst_SignalsPage::recountsWhileItIsShown()
{
    PageWith page("contactPerson()");
    SignalReceiver receiver;
    const QMetaMethod signal = page.model.signalAt(page.model.indexOf("contactPerson()"));
    receiver.connectTo(OxaAppSignals::get(), signal);
    QCOMPARE(receiversOf(page.model, "contactPerson()"), 0);
    page.window.show();
    QCOMPARE(receiversOf(page.model, "contactPerson()"), 1);
    receiver.disconnectFrom(OxaAppSignals::get(), signal);
    QTRY_COMPARE(receiversOf(page.model, "contactPerson()"), 0);
    page.window.hide();
    QSignalSpy spy(&page.model, &SignalModel::dataChanged);
    receiver.connectTo(OxaAppSignals::get(), signal);
    QVERIFY(!spy.wait(700));
}

GALLERY_TEST_MAIN(tst_SignalsPage)
#include "tst_signalspage.moc"
