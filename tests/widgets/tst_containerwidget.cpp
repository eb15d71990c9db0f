// SPDX-License-Identifier: Apache-2.0
#include "support/TestApplication.h"
#include "support/Windows.h"

#include <UiElements/widgets/ContainerWidget.h>
#include <UiElements/widgets/OxaPushButton.h>

#include <QBoxLayout>
#include <QGridLayout>
#include <QLineEdit>

namespace {

/// Sends a key press, and returns whether a filter took it.
bool pressKey(QWidget &widget, Qt::Key key)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    event.ignore();
    const int before = widget.property("handled").toInt();
    QCoreApplication::sendEvent(&widget, &event);
    return widget.property("handled").toInt() == before;
}

void sendFocus(QWidget &widget, QEvent::Type type)
{
    QFocusEvent event(type);
    QCoreApplication::sendEvent(&widget, &event);
}

/// A button that counts the keys that reach it, and records what its container's filter hands on.
class Button : public OxaPushButton
{
public:
    using OxaPushButton::OxaPushButton;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const bool isOfInterest = event->type() == QEvent::KeyPress
                || event->type() == QEvent::FocusIn;
        if (watched == this && isOfInterest)
            handedOn += event->type();
        return takesAll || OxaPushButton::eventFilter(watched, event);
    }

    QVector<QEvent::Type> handedOn;
    Qt::FocusReason lastReason = Qt::NoFocusReason;
    bool takesAll = false;

protected:
    void keyPressEvent(QKeyEvent *) override
    {
        setProperty("handled", property("handled").toInt() + 1);
    }
    void focusInEvent(QFocusEvent *event) override
    {
        lastReason = event->reason();
        OxaPushButton::focusInEvent(event);
    }
};

/// A container between two fields, with five buttons and a field: b is disabled, the field is no
/// button, c is hidden.
class Window : public QWidget
{
public:
    explicit Window(QBoxLayout *items)
    {
        container.setLayout(items);
        for (const char *name : { "a", "b", "c", "d" }) {
            auto *button = new Button(QString::fromLatin1(name));
            button->setObjectName(QString::fromLatin1(name));
            items->addWidget(button);
        }
        items->insertWidget(2, &field);
        items->insertSpacing(1, 10);
        button("b").setEnabled(false);
        button("c").hide();
        container.setupEventFilters();
        auto *column = new QVBoxLayout(this);
        column->setSizeConstraint(
                QLayout::SetNoConstraint); // Offscreen windows have no size limits.
        for (QWidget *widget :
             { static_cast<QWidget *>(&before), static_cast<QWidget *>(&container),
               static_cast<QWidget *>(&after) })
            column->addWidget(widget);
    }

    bool appear() { return Windows::activate(*this); }

    Button &button(const char *name) const
    {
        return *static_cast<Button *>(
                container.findChild<OxaPushButton *>(QString::fromLatin1(name)));
    }

    static QString focused()
    {
        const auto *now = qobject_cast<QPushButton *>(QApplication::focusWidget());
        return now ? now->text() : QString();
    }

    QLineEdit before;
    ContainerWidget container;
    QLineEdit field;
    QLineEdit after;
};

} // namespace

/// A row or column of buttons that is one stop of Tab.
class tst_ContainerWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithAName();
    void storesItsMessage();
    void movesTheFocusAlongItsLayout_data();
    void movesTheFocusAlongItsLayout();
    void swallowsKeysAcrossItsLayout_data();
    void swallowsKeysAcrossItsLayout();
    void leavesOtherKeysToTheButtons();
    void leavesKeysToAButtonWhileNoItemHasTheFocus();
    void swallowsTheKeysOfEarlierLayoutsToo();
    void leavesKeysAloneInAPlainBoxLayout();
    void watchesItsOwnLayoutOnlyIfThatIsABox();
    void handsEventsOnToTheButtonsOwnFilter();
    void saysAcceleratorInfoUntilTheFocusMovesInside();
    void ignoresTheFocusOfOtherButtons();
    void leavesToEitherSideAndSaysAcceleratorInfoAgain_data();
    void leavesToEitherSideAndSaysAcceleratorInfoAgain();
    void staysWhereNothingElseTakesTheFocus();
    void survivesTheDeletionOfItsLayout();
};

void tst_ContainerWidget::startsWithAName()
{
    const ContainerWidget container;
    QCOMPARE(container.objectName(), QStringLiteral("ContainerWidget"));
    QCOMPARE(container.focusPolicy(), Qt::NoFocus);
    QVERIFY(container.sayAcceleratorInfo());
}

void tst_ContainerWidget::storesItsMessage()
{
    ContainerWidget container;
    QCOMPARE(container.getAccessibleMessage(), QString());
    container.setAccessibleMessage(QStringLiteral("three tabs"));
    QCOMPARE(container.getAccessibleMessage(), QStringLiteral("three tabs"));
}

void tst_ContainerWidget::movesTheFocusAlongItsLayout_data()
{
    QTest::addColumn<bool>("isVertical");
    QTest::addColumn<QString>("from");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QString>("to");
    const QString a = QStringLiteral("a");
    const QString d = QStringLiteral("d");
    QTest::newRow("Down, past what takes no focus") << true << a << Qt::Key_Down << d;
    QTest::newRow("Up, past what takes no focus") << true << d << Qt::Key_Up << a;
    QTest::newRow("Right, past what takes no focus") << false << a << Qt::Key_Right << d;
    QTest::newRow("Left, past what takes no focus") << false << d << Qt::Key_Left << a;
    QTest::newRow("Down at the end stays") << true << d << Qt::Key_Down << d;
    QTest::newRow("Up at the start stays") << true << a << Qt::Key_Up << a;
    QTest::newRow("Right at the end stays") << false << d << Qt::Key_Right << d;
    QTest::newRow("Left at the start stays") << false << a << Qt::Key_Left << a;
}

void tst_ContainerWidget::movesTheFocusAlongItsLayout()
{
    QFETCH(const bool, isVertical);
    QFETCH(const QString, from);
    QFETCH(const Qt::Key, key);
    QFETCH(const QString, to);
    Window window(isVertical ? static_cast<QBoxLayout *>(new QVBoxLayout) : new QHBoxLayout);
    QVERIFY(window.appear());
    Button &start = window.button(from.toLatin1().constData());
    start.setFocus();
    QVERIFY(pressKey(start, key));
    QCOMPARE(Window::focused(), to);
    if (from != to)
        QCOMPARE(window.button(to.toLatin1().constData()).lastReason, Qt::TabFocusReason);
}

void tst_ContainerWidget::swallowsKeysAcrossItsLayout_data()
{
    QTest::addColumn<bool>("isVertical");
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Left in a column") << true << Qt::Key_Left;
    QTest::newRow("Right in a column") << true << Qt::Key_Right;
    QTest::newRow("Up in a row") << false << Qt::Key_Up;
    QTest::newRow("Down in a row") << false << Qt::Key_Down;
}

void tst_ContainerWidget::swallowsKeysAcrossItsLayout()
{
    QFETCH(const bool, isVertical);
    QFETCH(const Qt::Key, key);
    Window window(isVertical ? static_cast<QBoxLayout *>(new QVBoxLayout) : new QHBoxLayout);
    QVERIFY(window.appear());
    window.button("a").setFocus();
    QVERIFY(pressKey(window.button("a"), key));
    QCOMPARE(Window::focused(), QStringLiteral("a"));
    // Also while no item has the focus.
    window.before.setFocus();
    QVERIFY(pressKey(window.button("a"), key));
}

void tst_ContainerWidget::leavesOtherKeysToTheButtons()
{
    Window window(new QHBoxLayout);
    QVERIFY(window.appear());
    window.button("a").setFocus();
    for (const Qt::Key key : { Qt::Key_Space, Qt::Key_Return, Qt::Key_Home, Qt::Key_A })
        QVERIFY(!pressKey(window.button("a"), key));
    QCOMPARE(Window::focused(), QStringLiteral("a"));
}

void tst_ContainerWidget::leavesKeysToAButtonWhileNoItemHasTheFocus()
{
    Window window(new QHBoxLayout);
    QVERIFY(window.appear());
    window.before.setFocus();
    for (const Qt::Key key : { Qt::Key_Left, Qt::Key_Right })
        QVERIFY(!pressKey(window.button("a"), key));
    QVERIFY(window.before.hasFocus());
}

void tst_ContainerWidget::swallowsTheKeysOfEarlierLayoutsToo()
{
    QWidget window;
    ContainerWidget container(&window);
    QVBoxLayout column;
    Button button(&container);
    column.addWidget(&button);
    container.setupEventFilters(&column);
    column.removeWidget(&button);
    QHBoxLayout row;
    row.addWidget(&button);
    container.setupEventFilters(&row);
    // Left and Right move now, and go to the button while it has no focus to move.
    QVERIFY(!pressKey(button, Qt::Key_Left));
    QVERIFY(!pressKey(button, Qt::Key_Right));
    QVERIFY(pressKey(button, Qt::Key_Up));
    container.setupEventFilters(&column);
    QVERIFY(pressKey(button, Qt::Key_Left));
    QVERIFY(!pressKey(button, Qt::Key_Up));
}

void tst_ContainerWidget::leavesKeysAloneInAPlainBoxLayout()
{
    Window window(new QBoxLayout(QBoxLayout::LeftToRight));
    QVERIFY(window.appear());
    window.button("a").setFocus();
    QVERIFY(!pressKey(window.button("a"), Qt::Key_Left));
    QVERIFY(!pressKey(window.button("a"), Qt::Key_Right));
    QVERIFY(pressKey(window.button("a"), Qt::Key_Down));
    QCOMPARE(Window::focused(), QStringLiteral("d"));
}

void tst_ContainerWidget::watchesItsOwnLayoutOnlyIfThatIsABox()
{
    ContainerWidget container;
    container.setupEventFilters();
    auto *grid = new QGridLayout(&container);
    auto *button = new Button;
    grid->addWidget(button);
    container.setupEventFilters();
    for (const Qt::Key key : { Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down })
        QVERIFY(!pressKey(*button, key));
    container.setupEventFilters(nullptr);
    QVERIFY(!pressKey(*button, Qt::Key_Left));
}

void tst_ContainerWidget::handsEventsOnToTheButtonsOwnFilter()
{
    ContainerWidget container;
    auto *row = new QHBoxLayout(&container);
    auto *button = new Button;
    row->addWidget(button);
    container.setupEventFilters();
    button->handedOn.clear();
    pressKey(*button, Qt::Key_A);
    pressKey(*button, Qt::Key_Up); // Swallowed before.
    sendFocus(*button, QEvent::FocusIn);
    QCOMPARE(button->handedOn, QVector<QEvent::Type>({ QEvent::KeyPress, QEvent::FocusIn }));
    button->takesAll = true;
    QVERIFY(pressKey(*button, Qt::Key_A));
}

void tst_ContainerWidget::saysAcceleratorInfoUntilTheFocusMovesInside()
{
    ContainerWidget container;
    auto *row = new QHBoxLayout(&container);
    auto *a = new OxaPushButton;
    auto *b = new OxaPushButton;
    row->addWidget(a);
    row->addWidget(b);
    container.setupEventFilters();
    sendFocus(*a, QEvent::FocusIn);
    QVERIFY(container.sayAcceleratorInfo());
    sendFocus(*a, QEvent::FocusOut);
    sendFocus(*a, QEvent::FocusIn);
    QVERIFY(container.sayAcceleratorInfo());
    sendFocus(*b, QEvent::FocusIn);
    QVERIFY(!container.sayAcceleratorInfo());
    sendFocus(*a, QEvent::FocusIn);
    QVERIFY(!container.sayAcceleratorInfo());
}

void tst_ContainerWidget::ignoresTheFocusOfOtherButtons()
{
    ContainerWidget container;
    auto *row = new QHBoxLayout(&container);
    auto *a = new QPushButton;
    auto *b = new QPushButton;
    row->addWidget(a);
    row->addWidget(b);
    container.setupEventFilters();
    sendFocus(*a, QEvent::FocusIn);
    sendFocus(*b, QEvent::FocusIn);
    QVERIFY(container.sayAcceleratorInfo());
}

void tst_ContainerWidget::leavesToEitherSideAndSaysAcceleratorInfoAgain_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<bool>("isForward");
    QTest::newRow("Tab") << Qt::Key_Tab << true;
    QTest::newRow("Backtab") << Qt::Key_Backtab << false;
}

void tst_ContainerWidget::leavesToEitherSideAndSaysAcceleratorInfoAgain()
{
    QFETCH(const Qt::Key, key);
    QFETCH(const bool, isForward);
    Window window(new QHBoxLayout);
    QVERIFY(window.appear());
    window.button("a").setFocus();
    pressKey(window.button("a"), Qt::Key_Right);
    QVERIFY(!window.container.sayAcceleratorInfo());
    QTest::keyClick(&window.button("d"), key);
    QCOMPARE(QApplication::focusWidget(), isForward ? &window.after : &window.before);
    QVERIFY(window.container.sayAcceleratorInfo());
    // The next button counts as the first one again.
    window.button("a").setFocus();
    QVERIFY(window.container.sayAcceleratorInfo());
}

void tst_ContainerWidget::staysWhereNothingElseTakesTheFocus()
{
    Window window(new QHBoxLayout);
    window.before.hide();
    window.after.hide();
    QVERIFY(window.appear());
    window.button("a").setFocus();
    QTest::keyClick(&window.button("a"), Qt::Key_Tab);
    QCOMPARE(Window::focused(), QStringLiteral("a"));
}

void tst_ContainerWidget::survivesTheDeletionOfItsLayout()
{
    Window window(new QHBoxLayout);
    QVERIFY(window.appear());
    window.button("a").setFocus();
    delete window.container.layout();
    QVERIFY(!pressKey(window.button("a"), Qt::Key_Right));
    QVERIFY(pressKey(window.button("a"), Qt::Key_Up));
    // Without a layout Tab goes on inside.
    QTest::keyClick(&window.button("a"), Qt::Key_Tab);
    QCOMPARE(Window::focused(), QStringLiteral("d"));
}

UIELEMENTS_TEST_MAIN(tst_ContainerWidget)
#include "tst_containerwidget.moc"
