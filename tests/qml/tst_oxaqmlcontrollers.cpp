// SPDX-License-Identifier: Apache-2.0
#include "PropertyRows.h"
#include "support/TestApplication.h"

#include <UiElements/qml/OxaQmlControllerHelpers.h>
#include <UiElements/qml/OxaQmlDialogController.h>
#include <UiElements/qml/OxaQmlPopupController.h>

#include <QColor>
#include <QMetaMethod>
#include <QSize>

namespace {

using Dialog = OxaQmlDialogController;
using Popup = OxaQmlPopupController;

const PropertyRow<Dialog> dialogProperties[] = {
    { "takesModelOwnership", "bool", "takesModelOwnershipChanged()", "false", "true", "true",
      [](Dialog &dialog) { dialog.setProperty("takesModelOwnership", true); }, false },
    { "model", "QVariant", "modelChanged()", "", "some text", "'some text'",
      [](Dialog &dialog) { dialog.setModel(QStringLiteral("some text")); }, false },
};

const PropertyRow<Popup> popupProperties[] = {
    { "takesModelOwnership", "bool", "takesModelOwnershipChanged()", "false", "true", "true",
      [](Popup &popup) { popup.setProperty("takesModelOwnership", true); }, false },
    { "arrowOffset", "int", "arrowOffsetChanged()", "0", "-7", "-7",
      [](Popup &popup) { popup.setArrowOffset(-7); }, false },
    { "arrowSize", "int", "arrowSizeChanged()", "0", "12", "12",
      [](Popup &popup) { popup.setArrowSize(12); }, false },
    { "arrowAlignment", "OxaQmlBalloon::ArrowAlignment", "arrowAlignmentChanged()",
      "CenterAlignment", "TopAlignment", "OxaBalloon.TopAlignment",
      [](Popup &popup) { popup.setProperty("arrowAlignment", OxaQmlBalloon::TopAlignment); },
      false },
    { "arrowAnchor", "OxaQmlBalloon::ArrowAnchor", "arrowAnchorChanged()", "Top", "Left",
      "OxaBalloon.Left", [](Popup &popup) { popup.setArrowAnchor(OxaQmlBalloon::Left); }, false },
    { "model", "QVariant", "modelChanged()", "", "some text", "'some text'",
      [](Popup &popup) { popup.setModel(QStringLiteral("some text")); }, false },
    { "themeType", "QString", "themeTypeChanged()", "global", "dark", "'dark'",
      [](Popup &popup) { popup.setThemeType(QStringLiteral("dark")); }, false, true },
};

/// A controller of a client, which records with what it was initialised.
class RecordingController : public OxaQmlController
{
    Q_OBJECT

public:
    using OxaQmlController::OxaQmlController;

    void init(const QVariantMap &initialProperties) override { maps += initialProperties; }

    QVector<QVariantMap> maps;
};

const QVariantMap someProperties = { { QStringLiteral("a"), 1 } };

} // namespace

/// Controllers: their initialisation, their properties, and the helpers of overrides.
class tst_OxaQmlControllers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initialisesByTwoInvokables_data();
    void initialisesByTwoInvokables();
    void initialisesFromQml();
    void doesNothingInTheBaseClass();
    void declaresThePropertiesOfADialog_data();
    void declaresThePropertiesOfADialog();
    void changesADialog_data();
    void changesADialog();
    void declaresThePropertiesOfAPopup_data();
    void declaresThePropertiesOfAPopup();
    void changesAPopup_data();
    void changesAPopup();
    void returnsWhatWasSet();
    void drivesABalloonInQml();
    void appliesInitialStrings_data();
    void appliesInitialStrings();
    void appliesInitialBools_data();
    void appliesInitialBools();
    void encodesNamesInLatin1();
};

void tst_OxaQmlControllers::initialisesByTwoInvokables_data()
{
    QTest::addColumn<QByteArray>("signature");
    QTest::addColumn<QVariantMap>("properties");
    QTest::newRow("with properties") << QByteArray("init(QVariantMap)") << someProperties;
    QTest::newRow("without") << QByteArray("init()") << QVariantMap();
}

void tst_OxaQmlControllers::initialisesByTwoInvokables()
{
    QFETCH(const QByteArray, signature);
    QFETCH(const QVariantMap, properties);
    const QMetaObject &type = OxaQmlController::staticMetaObject;
    const int index = type.indexOfMethod(signature.constData());
    QVERIFY(index >= type.methodOffset());
    QCOMPARE(type.method(index).methodType(), QMetaMethod::Method);

    RecordingController controller;
    if (properties.isEmpty())
        type.method(index).invoke(&controller);
    else
        type.method(index).invoke(&controller, Q_ARG(QVariantMap, properties));
    QCOMPARE(controller.maps, QVector<QVariantMap> { properties });
}

void tst_OxaQmlControllers::initialisesFromQml()
{
    RecordingController controller;
    QmlScript::run(controller, QStringLiteral("it.init({ a: 1 }); it.init()"));
    const QVector<QVariantMap> expected { someProperties, {} };
    QCOMPARE(controller.maps, expected);
}

void tst_OxaQmlControllers::doesNothingInTheBaseClass()
{
    OxaQmlPopupController controller;
    const QSignalSpy spy(&controller, &OxaQmlPopupController::themeTypeChanged);
    static_cast<OxaQmlController &>(controller)
            .init({ { QStringLiteral("themeType"), QStringLiteral("dark") } });
    static_cast<OxaQmlController &>(controller).init();
    QCOMPARE(spy.count(), 0);
    QCOMPARE(controller.property("themeType").toString(), QStringLiteral("global"));
}

void tst_OxaQmlControllers::declaresThePropertiesOfADialog_data()
{
    PropertyRows::addRows(dialogProperties);
}

void tst_OxaQmlControllers::declaresThePropertiesOfADialog()
{
    QFETCH(const int, row);
    PropertyRows::checkDeclaration(dialogProperties[row], row);
}

void tst_OxaQmlControllers::changesADialog_data() { PropertyRows::addRows(dialogProperties); }

void tst_OxaQmlControllers::changesADialog()
{
    QFETCH(const int, row);
    const auto &property = dialogProperties[row];
    Dialog inCpp;
    PropertyRows::checkChange<Dialog>(property, inCpp, property.set);
    Dialog inQml;
    PropertyRows::checkChange<Dialog>(property, inQml, PropertyRows::setterInQml(property));
}

void tst_OxaQmlControllers::declaresThePropertiesOfAPopup_data()
{
    PropertyRows::addRows(popupProperties);
}

void tst_OxaQmlControllers::declaresThePropertiesOfAPopup()
{
    QFETCH(const int, row);
    PropertyRows::checkDeclaration(popupProperties[row], row);
}

void tst_OxaQmlControllers::changesAPopup_data() { PropertyRows::addRows(popupProperties); }

void tst_OxaQmlControllers::changesAPopup()
{
    QFETCH(const int, row);
    const auto &property = popupProperties[row];
    Popup inCpp;
    PropertyRows::checkChange<Popup>(property, inCpp, property.set);
    Popup inQml;
    PropertyRows::checkChange<Popup>(property, inQml, PropertyRows::setterInQml(property));
}

void tst_OxaQmlControllers::returnsWhatWasSet()
{
    Popup popup;
    for (const auto &property : popupProperties)
        property.set(popup);
    QCOMPARE(popup.arrowOffset(), -7);
    QCOMPARE(popup.arrowSize(), 12);
    QCOMPARE(popup.arrowAlignment(), OxaQmlBalloon::TopAlignment);
    QCOMPARE(popup.arrowAnchor(), OxaQmlBalloon::Left);
}

void tst_OxaQmlControllers::drivesABalloonInQml()
{
    QQmlEngine engine;
    const auto root = QmlScript::create(
            engine,
            QStringLiteral("OxaBalloon { arrowAnchor: c.arrowAnchor; arrowOffset: c.arrowOffset\n"
                           "arrowAlignment: c.arrowAlignment; arrowSize: c.arrowSize\n"
                           "OxaQmlPopupController { id: c } }"));
    const auto *balloon = qobject_cast<OxaQmlBalloon *>(root.get());
    auto *controller = root->findChild<Popup *>(QString(), Qt::FindDirectChildrenOnly);
    QVERIFY(balloon && controller);
    QCOMPARE(balloon->arrowSize(), 0);

    for (const auto &property : popupProperties)
        property.set(*controller);
    QCOMPARE(balloon->arrowAnchor(), OxaQmlBalloon::Left);
    QCOMPARE(balloon->arrowAlignment(), OxaQmlBalloon::TopAlignment);
    QCOMPARE(balloon->arrowOffset(), -7);
    QCOMPARE(balloon->arrowSize(), 12);
}

void tst_OxaQmlControllers::appliesInitialStrings_data()
{
    QTest::addColumn<QVariantMap>("properties");
    QTest::addColumn<QString>("theme");
    QTest::addColumn<int>("changes");
    const QString name = QStringLiteral("themeType");
    const QString dark = QStringLiteral("dark");
    QTest::newRow("a string") << QVariantMap { { name, dark } } << dark << 1;
    QTest::newRow("bytes") << QVariantMap { { name, QByteArray("dark") } } << dark << 1;
    QTest::newRow("a number") << QVariantMap { { name, 7 } } << QStringLiteral("7") << 1;
    QTest::newRow("a colour") << QVariantMap { { name, QColor(Qt::red) } }
                              << QStringLiteral("#ff0000") << 1;
    QTest::newRow("nothing") << QVariantMap() << QStringLiteral("global") << 0;
    QTest::newRow("another name") << QVariantMap { { dark, dark } } << QStringLiteral("global")
                                  << 0;
    QTest::newRow("an invalid value")
            << QVariantMap { { name, QVariant() } } << QStringLiteral("global") << 0;
    QTest::newRow("a size") << QVariantMap { { name, QSize(1, 2) } } << QStringLiteral("global")
                            << 0;
}

void tst_OxaQmlControllers::appliesInitialStrings()
{
    QFETCH(const QVariantMap, properties);
    QFETCH(const QString, theme);
    QFETCH(const int, changes);
    Popup controller;
    const QSignalSpy spy(&controller, &Popup::themeTypeChanged);
    OxaQmlControllerHelpers::applyInitialStringPropertyToController(&controller, properties,
                                                                    QStringLiteral("themeType"));
    QCOMPARE(controller.property("themeType").toString(), theme);
    QCOMPARE(spy.count(), changes);
}

void tst_OxaQmlControllers::appliesInitialBools_data()
{
    QTest::addColumn<QVariantMap>("properties");
    QTest::addColumn<bool>("owns");
    const QString name = QStringLiteral("takesModelOwnership");
    QTest::newRow("true") << QVariantMap { { name, true } } << true;
    QTest::newRow("false") << QVariantMap { { name, false } } << false;
    QTest::newRow("a number") << QVariantMap { { name, 1 } } << true;
    QTest::newRow("a word") << QVariantMap { { name, QStringLiteral("true") } } << true;
    QTest::newRow("the word false") << QVariantMap { { name, QStringLiteral("false") } } << false;
    QTest::newRow("nothing") << QVariantMap() << false;
    QTest::newRow("a size") << QVariantMap { { name, QSize(1, 2) } } << false;
}

void tst_OxaQmlControllers::appliesInitialBools()
{
    QFETCH(const QVariantMap, properties);
    QFETCH(const bool, owns);
    Dialog controller;
    const QSignalSpy spy(&controller, &Dialog::takesModelOwnershipChanged);
    OxaQmlControllerHelpers::applyInitialBoolPropertyToController(&controller, properties,
                                                                  QStringLiteral(
                                                                          "takesModelOwnership"));
    QCOMPARE(controller.property("takesModelOwnership").toBool(), owns);
    QCOMPARE(spy.count(), int(owns));
    QVERIFY(controller.dynamicPropertyNames().isEmpty());
}

void tst_OxaQmlControllers::encodesNamesInLatin1()
{
    Dialog controller;
    const QString name = QString::fromLatin1("gr\xf6\xdf"
                                             "e");
    OxaQmlControllerHelpers::applyInitialStringPropertyToController(&controller,
                                                                    { { name,
                                                                        QStringLiteral("XL") } },
                                                                    name);
    QCOMPARE(controller.dynamicPropertyNames(),
             QList<QByteArray> { "gr\xf6\xdf"
                                 "e" });
}

UIELEMENTS_TEST_MAIN(tst_OxaQmlControllers)
#include "tst_oxaqmlcontrollers.moc"
