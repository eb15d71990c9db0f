// SPDX-License-Identifier: Apache-2.0
#include "Told.h"
#include "qml/QmlScript.h"
#include "support/TestApplication.h"
#include "support/Windows.h"

#include <UiElements/qml/OxaPopupQuickView.h>
#include <UiElements/qml/OxaQuickWidget.h>

#include <QPushButton>
#include <QQuickItem>
#include <QQuickWindow>
#include <QVBoxLayout>

namespace {

constexpr char form[] = R"(
Item {
    width: 100; height: 100
    Rectangle {
        y: 10; width: 50; height: 20
        activeFocusOnTab: true
        focus: true
        Accessible.role: Accessible.Button
        Accessible.name: "ok"
        Accessible.onPressAction: x = 7
    }
    Text { y: 40; text: "text"; Accessible.role: Accessible.StaticText; Accessible.name: text }
    Text { visible: false; Accessible.role: Accessible.StaticText; Accessible.name: "hidden" }
})";

constexpr char shapes[] = R"(
Item {
    OxaBalloon { }
    OxaBalloon { Accessible.role: Accessible.Dialog; Accessible.name: "card" }
    OxaHalfPill { }
    OxaHalfPill { Accessible.ignored: true }
})";

/// A window with a button and a form of QML.
class Window : public QWidget
{
public:
    Window()
    {
        auto *column = new QVBoxLayout(this);
        column->addWidget(new QPushButton(QStringLiteral("before")));
        column->addWidget(&quickWidget);
        std::unique_ptr<QObject> root = QmlScript::create(*quickWidget.engine(),
                                                          QString::fromLatin1(form));
        quickWidget.setContent(QUrl(), nullptr, root.release());
    }

    QAccessibleInterface *quick() { return Told::of(quickWidget.quickWindow()); }

    OxaQuickWidget quickWidget;
};

} // namespace

/// What assistive technology is told of QML.
class tst_AccessibleQml : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void joinsTheTreeOfAWidget();
    void tellsWhereAnItemIs();
    void tellsOfTheFocusInAWidget();
    void forgetsTheTreeOfAWidgetThatIsDeleted();
    void tellsWhichWindowsAreDialogs();
    void givesShapesTheirRoles();
};

void tst_AccessibleQml::joinsTheTreeOfAWidget()
{
    Window window;
    QVERIFY(Windows::activate(window));
    QCOMPARE(Told::children(Told::of(&window)), QStringLiteral("Button before | Pane"));
    QAccessibleInterface *widget = Told::of(&window.quickWidget);
    QCOMPARE(Told::children(widget), QStringLiteral("Pane"));
    QCOMPARE(widget->child(0), window.quick());
    QCOMPARE(Told::children(window.quick()),
             QStringLiteral("Button ok | StaticText text | StaticText hidden"));
    // And up again.
    QAccessibleInterface *button = window.quick()->child(0);
    QCOMPARE(button->parent(), window.quick());
    QCOMPARE(window.quick()->parent(), widget);
    QCOMPARE(widget->indexOfChild(window.quick()), 0);
    QCOMPARE(widget->parent(), Told::of(&window));
    QCOMPARE(window.quick()->window(), window.windowHandle());
}

void tst_AccessibleQml::tellsWhereAnItemIs()
{
    Window window;
    QVERIFY(Windows::activate(window));
    QAccessibleInterface *button = window.quick()->child(0);
    const QRect place = button->rect();
    QCOMPARE(window.quick()->childAt(place.x() + 1, place.y() + 1), button);
    button->actionInterface()->doAction(QStringLiteral("Press"));
    QCOMPARE(button->rect().x(), place.x() + 7);
    QCOMPARE(window.quick()->rect(), Told::of(&window.quickWidget)->rect());
    QCOMPARE(Told::states(window.quick()), QString());
    QCOMPARE(Told::states(button), QStringLiteral("focusable"));
    QCOMPARE(Told::states(window.quick()->child(2)), QStringLiteral("invisible read-only"));
    window.move(window.pos() + QPoint(30, 20));
    QTRY_COMPARE(button->rect().topLeft(), window.quickWidget.mapToGlobal(QPoint(7, 10)));
    QCOMPARE(button->window(), window.windowHandle());
    window.quickWidget.hide();
    QCOMPARE(Told::states(window.quick()), QStringLiteral("invisible"));
    QCOMPARE(Told::states(button), QStringLiteral("invisible focusable"));
}

void tst_AccessibleQml::tellsOfTheFocusInAWidget()
{
    Window window;
    QVERIFY(Windows::activate(window));
    Told::Events events(QAccessible::Focus);
    window.quickWidget.setFocus();
    QCOMPARE(events.take(), QStringLiteral("Focus ok | Focus "));
    QString last;
    QVERIFY(QTest::qWaitFor([&] { return !(last = events.take()).isEmpty(); }));
    QCOMPARE(last, QStringLiteral("Focus ok"));
    QCOMPARE(Told::states(Told::of(&window.quickWidget)), QStringLiteral("focusable"));
    QCOMPARE(Told::describe(Told::of(&window)->focusChild()), QStringLiteral("Button ok"));
}

void tst_AccessibleQml::forgetsTheTreeOfAWidgetThatIsDeleted()
{
    auto window = std::make_unique<Window>();
    QVERIFY(Windows::activate(*window));
    const QAccessible::Id button = QAccessible::uniqueId(window->quick()->child(0));
    const QAccessible::Id quick = QAccessible::uniqueId(window->quick());
    window.reset();
    QVERIFY(!QAccessible::accessibleInterface(button));
    QVERIFY(!QAccessible::accessibleInterface(quick));
}

void tst_AccessibleQml::tellsWhichWindowsAreDialogs()
{
    OxaPopupQuickView popup;
    popup.setTitle(QStringLiteral("card"));
    QCOMPARE(Told::describe(Told::of(&popup)), QStringLiteral("Dialog card"));
    QCOMPARE(Told::of(&popup)->parent(), Told::of(qApp));
    popup.setTitle(QString());
    const std::unique_ptr<QObject> items = QmlScript::create(*popup.engine(),
                                                             QString::fromLatin1(form));
    static_cast<QQuickItem *>(items.get())->setParentItem(popup.contentItem());
    QCOMPARE(Told::describe(Told::of(&popup)), QStringLiteral("Dialog ok"));
    OxaQuickView view;
    QCOMPARE(Told::of(&view)->role(), QAccessible::Window);
    view.setFlag(Qt::Dialog);
    QCOMPARE(Told::of(&view)->role(), QAccessible::Dialog);
    QQuickWindow plain;
    QCOMPARE(Told::of(&plain)->role(), QAccessible::Window);
}

void tst_AccessibleQml::givesShapesTheirRoles()
{
    QQmlEngine engine;
    const std::unique_ptr<QObject> items = QmlScript::create(engine, QString::fromLatin1(shapes));
    QQuickWindow window;
    static_cast<QQuickItem *>(items.get())->setParentItem(window.contentItem());
    QCOMPARE(Told::children(Told::of(&window)), QStringLiteral("ToolTip | Dialog card | Grouping"));
}

UIELEMENTS_TEST_MAIN(tst_AccessibleQml)
#include "tst_accessibleqml.moc"
