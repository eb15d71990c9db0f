// SPDX-License-Identifier: Apache-2.0
#include "QmlScript.h"
#include "support/TestApplication.h"

#include <UiElements/qml/OxaQmlDialogController.h>
#include <UiElements/qml/OxaQmlPopupController.h>

#include <QPointer>
#include <QQuickItem>
#include <QSignalSpy>
#include <QStringListModel>
#include <QTest>

#include <new>

namespace {

/// A controller of one of the two classes with models.
class Controller
{
public:
    Controller()
    {
        QFETCH(const bool, isDialog);
        if (isDialog)
            m_dialog = new OxaQmlDialogController;
        else
            m_popup = new OxaQmlPopupController;
    }
    ~Controller() { die(); }

    OxaQmlController *get() const
    {
        return m_dialog ? static_cast<OxaQmlController *>(m_dialog) : m_popup;
    }
    void die() { delete get(); }

    void setModel(const QVariant &model) const
    {
        m_dialog ? m_dialog->setModel(model) : m_popup->setModel(model);
    }
    void setModel(QObject *model) const { setModel(QVariant::fromValue(model)); }
    QVariant model() const { return get()->property("model"); }
    void own() const { get()->setProperty("takesModelOwnership", true); }

private:
    QPointer<OxaQmlDialogController> m_dialog;
    QPointer<OxaQmlPopupController> m_popup;
};

/// Runs what a slot has left for the event loop.
void deleteLaterNow() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

void addControllers()
{
    QTest::addColumn<bool>("isDialog");
    QTest::newRow("dialog") << true;
    QTest::newRow("popup") << false;
}

} // namespace

/// The models of controllers: who deletes them, and what is left of one that died.
class tst_OxaQmlControllersModels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void deletesAnOwnedModelAfterItself_data() { addControllers(); }
    void deletesAnOwnedModelAfterItself();
    void deletesAnOwnedModelOfAnyClass_data() { addControllers(); }
    void deletesAnOwnedModelOfAnyClass();
    void leavesAModelThatItDoesNotOwn_data() { addControllers(); }
    void leavesAModelThatItDoesNotOwn();
    void leavesAModelThatWasReplaced_data() { addControllers(); }
    void leavesAModelThatWasReplaced();
    void ownsWhatIsNoObject_data();
    void ownsWhatIsNoObject();
    void survivesAModelThatDiedFirst_data() { addControllers(); }
    void survivesAModelThatDiedFirst();
    void forgetsAModelThatDied_data() { addControllers(); }
    void forgetsAModelThatDied();
    void noticesANewModelWhereADeadOneWas_data() { addControllers(); }
    void noticesANewModelWhereADeadOneWas();
    void ownsAModelOfItsOwnQml_data() { addControllers(); }
    void ownsAModelOfItsOwnQml();
};

void tst_OxaQmlControllersModels::deletesAnOwnedModelAfterItself()
{
    Controller controller;
    const QPointer<QObject> model = new QObject;
    controller.setModel(model);
    controller.own();
    controller.die();
    QVERIFY(model);
    deleteLaterNow();
    QVERIFY(!model);
}

void tst_OxaQmlControllersModels::deletesAnOwnedModelOfAnyClass()
{
    Controller controller;
    const QPointer<QStringListModel> model = new QStringListModel;
    controller.setModel(QVariant::fromValue<QAbstractItemModel *>(model));
    controller.own();
    controller.die();
    deleteLaterNow();
    QVERIFY(!model);
}

void tst_OxaQmlControllersModels::leavesAModelThatItDoesNotOwn()
{
    Controller controller;
    const QPointer<QObject> model = new QObject;
    controller.setModel(model);
    controller.die();
    deleteLaterNow();
    QVERIFY(model);
    delete model.data();
}

void tst_OxaQmlControllersModels::leavesAModelThatWasReplaced()
{
    Controller controller;
    const QPointer<QObject> model = new QObject;
    controller.own();
    controller.setModel(model);
    controller.setModel(QStringList());
    controller.die();
    deleteLaterNow();
    QVERIFY(model);
    delete model.data();
}

void tst_OxaQmlControllersModels::ownsWhatIsNoObject_data()
{
    QTest::addColumn<bool>("isDialog");
    QTest::addColumn<QVariant>("model");
    const auto row = [](const char *name, const QVariant &model) {
        for (const bool isDialog : { true, false })
            QTest::addRow("%s in a %s", name, isDialog ? "dialog" : "popup") << isDialog << model;
    };
    row("no model", QVariant());
    row("a list", QVariantList { 1, 2 });
    row("a number", 7);
    row("a null pointer", QVariant::fromValue<QObject *>(nullptr));
}

void tst_OxaQmlControllersModels::ownsWhatIsNoObject()
{
    QFETCH(const QVariant, model);
    Controller controller;
    controller.own();
    controller.setModel(model);
    QCOMPARE(controller.model(), model);
    QCOMPARE(controller.model().isValid(), model.isValid());
    controller.die();
    deleteLaterNow();
}

void tst_OxaQmlControllersModels::survivesAModelThatDiedFirst()
{
    Controller controller;
    auto model = std::make_unique<QObject>();
    controller.own();
    controller.setModel(model.get());
    model.reset();
    controller.die();
    deleteLaterNow();
}

void tst_OxaQmlControllersModels::forgetsAModelThatDied()
{
    Controller controller;
    auto model = std::make_unique<QObject>();
    controller.setModel(model.get());
    const QSignalSpy spy(controller.get(), SIGNAL(modelChanged()));
    model.reset();
    QVERIFY(!controller.model().isValid());
    const QVariant type = QmlScript::run(*controller.get(),
                                         QStringLiteral("return typeof it.model"));
    QCOMPARE(type.toString(), QStringLiteral("undefined"));
    QCOMPARE(spy.count(), 0);
}

void tst_OxaQmlControllersModels::noticesANewModelWhereADeadOneWas()
{
    Controller controller;
    alignas(QObject) char place[sizeof(QObject)];
    auto *model = new (place) QObject;
    controller.setModel(model);
    model->~QObject();

    const QSignalSpy spy(controller.get(), SIGNAL(modelChanged()));
    model = new (place) QObject;
    controller.setModel(model);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(controller.model().value<QObject *>(), model);
    model->~QObject();
}

void tst_OxaQmlControllersModels::ownsAModelOfItsOwnQml()
{
    QFETCH(const bool, isDialog);
    QQmlEngine engine;
    auto root = QmlScript::create(engine,
                                  QStringLiteral("Item { Item { id: other }\n"
                                                 "%1 { takesModelOwnership: true; model: other } }")
                                          .arg(isDialog ? QStringLiteral("OxaQmlDialogController")
                                                        : QStringLiteral("OxaQmlPopupController")));
    const QPointer<QQuickItem> model = root->findChild<QQuickItem *>();
    const QPointer<OxaQmlController> controller = root->findChild<OxaQmlController *>();
    QCOMPARE(controller->property("model").value<QObject *>(), model);
    root.reset();
    deleteLaterNow();
    QVERIFY(!model);
    QVERIFY(!controller);
}

UIELEMENTS_TEST_MAIN(tst_OxaQmlControllersModels)
#include "tst_oxaqmlcontrollers_models.moc"
