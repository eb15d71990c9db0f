// SPDX-License-Identifier: Apache-2.0
#include "qml/EngineFixture.h"

#include <UiElements/qml/DialogContext.h>
#include <UiElements/qml/OxaQuickView.h>

#include <QQuickItem>
#include <QSignalSpy>

namespace {

const QString source = QStringLiteral("Controlled.qml");
const QString other = QStringLiteral("50%20 gr\u00f6\u00dfer.qml");

/// A context that shows its count of views.
class Dialogs : public DialogContext
{
public:
    using DialogContext::oxaQuickViewsMapEmpty;
    using DialogContext::oxaQuickViewsMapSize;
};

/// Lets no window close.
class Refusal : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Close)
            event->ignore();
        return event->type() == QEvent::Close;
    }
};

} // namespace

/// DialogContext, and what all contexts have in common.
class tst_DialogContext : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void makesADialogOfFixedSize();
    void makesOneDialogForASource();
    void makesNothingOfAnEmptySource();
    void keepsAFileWithErrors();
    void forgetsADialogThatCloses();
    void closesAllDialogs();
    void hidesADialogThatRefusesToClose();
    void survivesACallbackThatDeletesItsDialog();
    void survivesACallbackThatDeletesTheContext();
    void keepsTheFirstOfTwoThatAreMadeInOneAnother();
    void leavesItsDialogsBehind();
};

void tst_DialogContext::makesADialogOfFixedSize()
{
    const EngineFixture fixture;
    Dialogs context;
    QWindow parent;
    const QScopedPointer<OxaQuickView> dialog(
            context.createQmlDialog(source, &parent, EngineFixture::named(QStringLiteral("Ada")),
                                    EngineFixture::callback()));
    QCOMPARE(EngineLog::take(),
             QStringLiteral("Creating Controlled.qml | Initializing "
                            "Controlled.qml | init Ada | callback | Ready "
                            "Controlled.qml"));
    QCOMPARE(dialog->transientParent(), &parent);
    QCOMPARE(dialog->type(), Qt::Dialog);
    QCOMPARE(dialog->maximumSize(), QSize(120, 80));
}

void tst_DialogContext::makesOneDialogForASource()
{
    const EngineFixture fixture;
    Dialogs context;
    QVERIFY(context.oxaQuickViewsMapEmpty());
    const QScopedPointer<OxaQuickView> first(
            context.createQmlDialog(source, nullptr, {}, EngineFixture::callback()));
    EngineLog::take();
    QCOMPARE(context.createQmlDialog(source, nullptr, {}, EngineFixture::callback()).data(),
             first.data());
    QCOMPARE(EngineLog::take(), QString());
    const QScopedPointer<OxaQuickView> second(context.createQmlDialog(other, nullptr, {}, {}));
    QVERIFY(second != first);
    QCOMPARE(context.oxaQuickViewsMapSize(), std::size_t(2));
    QVERIFY(!context.oxaQuickViewsMapEmpty());
    QCOMPARE(context.findOxaQuickView("Controlled.qml").data(), first.data());
    QVERIFY(context.oxaQuickViewExists("50%20 gr\u00f6\u00dfer.qml")); // In UTF-8.
    QVERIFY(!context.oxaQuickViewExists("Other.qml"));
}

void tst_DialogContext::makesNothingOfAnEmptySource()
{
    const EngineFixture fixture;
    Dialogs context;
    QTest::ignoreMessage(
            QtWarningMsg,
            "Trying to create a Qml view for an empty source! This should never happen!");
    QVERIFY(!context.createQmlDialog(QString(), nullptr, {}, EngineFixture::callback()));
    QVERIFY(context.oxaQuickViewsMapEmpty());
    QCOMPARE(EngineLog::take(), QString());
}

void tst_DialogContext::keepsAFileWithErrors()
{
    const EngineFixture fixture;
    Dialogs context;
    ignoreWarningOfQml(QStringLiteral("qrc:/Qml/UnknownType.qml:5:5: Missing is not a type"));
    const QScopedPointer<OxaQuickView> dialog(
            context.createQmlDialog(QStringLiteral("UnknownType.qml"), nullptr, {}, {}));
    QVERIFY(dialog);
    QVERIFY(context.oxaQuickViewExists("UnknownType.qml"));
}

void tst_DialogContext::forgetsADialogThatCloses()
{
    const EngineFixture fixture;
    Dialogs context;
    const auto dialog = context.createQmlDialog(source, nullptr, {}, {});
    dialog->show();
    QVERIFY(dialog->close());
    QVERIFY(context.oxaQuickViewExists("Controlled.qml"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!dialog);
    QVERIFY(context.oxaQuickViewsMapEmpty());
    const QScopedPointer<OxaQuickView> next(context.createQmlDialog(source, nullptr, {}, {}));
    QVERIFY(next);
}

void tst_DialogContext::closesAllDialogs()
{
    const EngineFixture fixture;
    Dialogs context;
    const auto shown = context.createQmlDialog(source, nullptr, {}, {});
    const auto neverShown = context.createQmlDialog(other, nullptr, {}, {});
    shown->show();
    const QSignalSpy shownCloses(shown, &OxaQuickView::aboutToClose);
    const QSignalSpy neverShownCloses(neverShown, &OxaQuickView::aboutToClose);
    context.closeAllOxaQuickViews();
    QVERIFY(shown && neverShown);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!shown && !neverShown);
    QCOMPARE(shownCloses.size(), 1);
    QCOMPARE(neverShownCloses.size(), 0);
    QVERIFY(context.oxaQuickViewsMapEmpty());
}

void tst_DialogContext::hidesADialogThatRefusesToClose()
{
    const EngineFixture fixture;
    Dialogs context;
    const QScopedPointer<OxaQuickView> dialog(context.createQmlDialog(source, nullptr, {}, {}));
    Refusal refusal;
    dialog->installEventFilter(&refusal);
    dialog->show();
    context.closeAllOxaQuickViews();
    QVERIFY(!dialog->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(context.oxaQuickViewExists("Controlled.qml"));
}

void tst_DialogContext::survivesACallbackThatDeletesItsDialog()
{
    const EngineFixture fixture;
    Dialogs context;
    const auto deletesView = [](OxaQmlController *controller) {
        delete static_cast<QQuickItem *>(controller->parent())->window();
    };
    QVERIFY(!context.createQmlDialog(source, nullptr, {}, deletesView));
    QVERIFY(context.oxaQuickViewsMapEmpty());
}

void tst_DialogContext::survivesACallbackThatDeletesTheContext()
{
    const EngineFixture fixture;
    auto context = std::make_unique<Dialogs>();
    const QScopedPointer<OxaQuickView> dialog(
            context->createQmlDialog(source, nullptr, {},
                                     [&context](OxaQmlController *) { context.reset(); }));
    QVERIFY(!context);
    QVERIFY(dialog);
}

void tst_DialogContext::keepsTheFirstOfTwoThatAreMadeInOneAnother()
{
    const EngineFixture fixture;
    Dialogs context;
    QPointer<OxaQuickView> inner;
    const QPointer<OxaQuickView> outer =
            context.createQmlDialog(source, nullptr, {}, [&context, &inner](OxaQmlController *) {
                inner = context.createQmlDialog(source, nullptr, {}, {});
            });
    QVERIFY(inner && outer && inner != outer);
    QCOMPARE(context.findOxaQuickView("Controlled.qml"), inner);
    delete outer;
    QCOMPARE(context.findOxaQuickView("Controlled.qml"), inner);
    delete inner;
    QVERIFY(context.oxaQuickViewsMapEmpty());
}

void tst_DialogContext::leavesItsDialogsBehind()
{
    const EngineFixture fixture;
    auto context = std::make_unique<Dialogs>();
    const auto dialog = context->createQmlDialog(source, nullptr, {}, {});
    context.reset();
    QVERIFY(dialog);
    delete dialog;
}

UIELEMENTS_TEST_MAIN(tst_DialogContext)
#include "tst_dialogcontext.moc"
