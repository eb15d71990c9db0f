// SPDX-License-Identifier: Apache-2.0
#include "Told.h"
#include "support/Guards.h"
#include "support/TestApplication.h"
#include "support/TestMain.h"
#include "theme/ThemedWidgets.h"

#include <UiElements/accessibility/AccessibleClasses_p.h>
#include <UiElements/accessibility/AccessibleWidget_p.h>

#include <QVBoxLayout>

#include <limits>

namespace {

constexpr int hostileNumbers[] = { std::numeric_limits<int>::min(), -1, 0, 1, 7,
                                   std::numeric_limits<int>::max() };

void readTexts(QAccessibleInterface &told)
{
    for (const int kind : { 0, 1, 2, 3, 4, 5, 6, 99, 0x10000, -1 }) {
        told.text(QAccessible::Text(kind));
        told.setText(QAccessible::Text(kind), QString(1000, QLatin1Char('&')));
        told.text(QAccessible::Text(kind));
    }
}

void readTree(QAccessibleInterface &told)
{
    for (const int number : hostileNumbers) {
        for (const int other : hostileNumbers)
            told.childAt(number, other);
        told.relations(QAccessible::Relation(number));
        told.interface_cast(QAccessible::InterfaceType(number));
    }
    told.indexOfChild(&told);
    told.parent();
    told.window();
    told.rect();
    told.state();
    told.focusChild();
    told.foregroundColor();
}

void act(QAccessibleInterface &told)
{
    QAccessibleActionInterface *actions = told.actionInterface();
    if (!actions)
        return;
    for (const char *name : { "", "nonsense", "Press", "Toggle", "Increase", "ShowMenu" }) {
        actions->doAction(QString::fromLatin1(name));
        actions->keyBindingsForAction(QString::fromLatin1(name));
        actions->localizedActionName(QString::fromLatin1(name));
    }
    const QStringList names = actions->actionNames();
    for (const QString &name : names)
        actions->doAction(name);
}

void setValues(QAccessibleInterface &told)
{
    QAccessibleValueInterface *value = told.valueInterface();
    if (!value)
        return;
    for (const QVariant &each :
         { QVariant(), QVariant(1e300), QVariant(std::numeric_limits<double>::quiet_NaN()),
           QVariant(QStringLiteral("x")), QVariant(-5) }) {
        value->setCurrentValue(each);
        value->currentValue();
    }
    value->minimumValue();
    value->maximumValue();
    value->minimumStepSize();
}

void readAll(QAccessibleInterface &told)
{
    readTexts(told);
    readTree(told);
    setValues(told);
    act(told);
    for (int i = 0; i < told.childCount(); ++i) {
        QAccessibleInterface *child = told.child(i);
        if (child && child->isValid())
            readAll(*child);
    }
}

} // namespace

/// Asks of each widget what no reader should, before it is shown, while it is and once it is
/// disabled. Texts and the children of views are left out: these are Qt's answers, with warnings.
class tst_AccessibleReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void asksForAnything_data() { addThemedClasses(); }
    void asksForAnything()
    {
        FETCH_THEMED_CLASS;
        OxaColorSetMap store = storeWith("#ff0000");
        // Of the pill, which is toggled.
        const auto checked = QStringLiteral("oxa-contentTabViewButtonChecked-text");
        store.emplace(checked.toStdString(), ColorSets::make(checked, { "#ff0000" }));
        const StoreGuard stores(store);
        const Told::Events events;
        QWidget window;
        QVBoxLayout layout(&window);
        std::unique_ptr<QWidget> widget = themed.make(&window);
        layout.addWidget(widget.get());
        // Its base classes may have told of it before it was one of the library's.
        const AccessibleClass *known = AccessibleClasses::rowOf(*widget);
        QCOMPARE(dynamic_cast<AccessibleWidget *>(Told::of(widget.get())) != nullptr,
                 known->metaObject != &QWidget::staticMetaObject);
        readAll(*Told::of(widget.get()));
        if (known->metaObject != &QWidget::staticMetaObject) {
            QVERIFY(!Told::of(widget.get())->child(-1));
            QVERIFY(!Told::of(widget.get())->child(Told::of(widget.get())->childCount()));
        }
        window.show();
        widget->show();
        readAll(*Told::of(widget.get()));
        QCoreApplication::processEvents();
        widget->setEnabled(false);
        readAll(*Told::of(widget.get()));
        QAccessibleInterface *told = Told::of(widget.get());
        const QAccessible::Id id = QAccessible::uniqueId(told);
        widget.reset();
        QVERIFY(!QAccessible::accessibleInterface(id));
    }
};

UIELEMENTS_TEST_MAIN(tst_AccessibleReader)
#include "tst_accessiblereader.moc"
