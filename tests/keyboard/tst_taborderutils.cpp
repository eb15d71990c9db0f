// SPDX-License-Identifier: Apache-2.0
#include "support/TestMain.h"
#include "support/Windows.h"

#include <UiElements/keyboard/TabOrderUtils.h>

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QTest>

Q_DECLARE_METATYPE(Qt::FocusPolicy)

namespace {

/// A field that records why it got the focus.
class Field : public QLineEdit
{
public:
    using QLineEdit::QLineEdit;

    Qt::FocusReason reason = Qt::NoFocusReason;

protected:
    void focusInEvent(QFocusEvent *event) override
    {
        reason = event->reason();
        QLineEdit::focusInEvent(event);
    }
};

/// A window with three fields in a row.
class Fields : public QWidget
{
public:
    Fields()
    {
        // The platform does not enforce a minimum size.
        row.setSizeConstraint(QLayout::SetNoConstraint);
        for (Field *field : { &first, &second, &third })
            row.addWidget(field);
    }

    bool appear() { return Windows::activate(*this); }

    QHBoxLayout row { this };
    Field first;
    Field second;
    Field third;
};

} // namespace

/// The focus chain, and who has the focus.
class tst_TabOrderUtils : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesTheFocusAway();
    void knowsWhatTakesTheFocusByTab_data();
    void knowsWhatTakesTheFocusByTab();
    void knowsThatNullAndHiddenWidgetsTakeNone();
    void findsTheDeepestProxy();
    void stopsAtACompoundWidgetOnceInEachDirection();
    void stopsAtAWidgetWhoseProxyIsElsewhere();
    void doesNotStopAtACompoundThatTakesNoFocusItself();
    void walksTheChain();
    void stepsOverTheItemsOfALayout();
    void stopsSearchingAfterOneRoundOfTheChain();
    void movesTheFocusForTheReasonOfItsKey();
    void scrollsTheTargetIntoView();
    void movesNothingWithoutATarget();
    void knowsWhereTheFocusIs();
    void hasNoDeepFocusWhenNothingHasIt();
    void knowsAncestors();
};

void tst_TabOrderUtils::takesTheFocusAway()
{
    TabOrderUtils::clearFocus();
    Fields window;
    QVERIFY(window.appear());
    window.second.setFocus();
    TabOrderUtils::clearFocus();
    QCOMPARE(QApplication::focusWidget(), nullptr);
    TabOrderUtils::clearFocus();
}

void tst_TabOrderUtils::knowsWhatTakesTheFocusByTab_data()
{
    QTest::addColumn<Qt::FocusPolicy>("policy");
    QTest::addColumn<bool>("isFocusable");
    QTest::newRow("none") << Qt::NoFocus << false;
    QTest::newRow("click") << Qt::ClickFocus << false;
    QTest::newRow("tab") << Qt::TabFocus << true;
    QTest::newRow("strong") << Qt::StrongFocus << true;
    QTest::newRow("wheel") << Qt::WheelFocus << true;
}

void tst_TabOrderUtils::knowsWhatTakesTheFocusByTab()
{
    QFETCH(const Qt::FocusPolicy, policy);
    Fields window;
    window.show();
    window.first.setFocusPolicy(policy);
    QTEST(TabOrderUtils::isTabFocusable(&window.first), "isFocusable");
    window.first.setEnabled(false);
    QVERIFY(!TabOrderUtils::isTabFocusable(&window.first));
    window.first.setEnabled(true);
    window.setEnabled(false);
    QVERIFY(!TabOrderUtils::isTabFocusable(&window.first));
}

void tst_TabOrderUtils::knowsThatNullAndHiddenWidgetsTakeNone()
{
    QVERIFY(!TabOrderUtils::isTabFocusable(nullptr));
    Fields window;
    QVERIFY(!TabOrderUtils::isTabFocusable(&window.first));
    window.show();
    QVERIFY(TabOrderUtils::isTabFocusable(&window.first));
    window.first.hide();
    QVERIFY(!TabOrderUtils::isTabFocusable(&window.first));
}

void tst_TabOrderUtils::findsTheDeepestProxy()
{
    Fields window;
    QCOMPARE(TabOrderUtils::deepestFocusProxy(nullptr), nullptr);
    QCOMPARE(TabOrderUtils::deepestFocusProxy(&window.first), nullptr);
    window.second.setFocusProxy(&window.third);
    QCOMPARE(TabOrderUtils::deepestFocusProxy(&window.second), &window.third);
    window.first.setFocusProxy(&window.second);
    QCOMPARE(TabOrderUtils::deepestFocusProxy(&window.first), &window.third);
}

void tst_TabOrderUtils::stopsAtACompoundWidgetOnceInEachDirection()
{
    Fields window;
    // The field in a spin box hands the focus to the box; a frame hands it to its field.
    auto *box = new QSpinBox;
    auto *fieldInBox = box->findChild<QLineEdit *>();
    auto *frame = new QWidget;
    auto *fieldInFrame = new QLineEdit(frame);
    frame->setFocusPolicy(Qt::StrongFocus);
    frame->setFocusProxy(fieldInFrame);
    window.row.addWidget(box);
    window.row.addWidget(frame);
    window.show();
    const auto isStop = TabOrderUtils::shouldFocusNextWidget;
    QVERIFY(isStop(box, true, nullptr) && !isStop(fieldInBox, true, nullptr));
    QVERIFY(isStop(box, false, nullptr) && isStop(fieldInBox, false, nullptr));
    QVERIFY(isStop(frame, true, nullptr) && isStop(fieldInFrame, true, nullptr));
    QVERIFY(!isStop(frame, false, nullptr) && isStop(fieldInFrame, false, nullptr));
}

void tst_TabOrderUtils::stopsAtAWidgetWhoseProxyIsElsewhere()
{
    Fields window;
    window.show();
    window.first.setFocusProxy(&window.third);
    QVERIFY(TabOrderUtils::shouldFocusNextWidget(&window.first, true, nullptr));
    QVERIFY(TabOrderUtils::shouldFocusNextWidget(&window.first, false, nullptr));
}

void tst_TabOrderUtils::doesNotStopAtACompoundThatTakesNoFocusItself()
{
    Fields window;
    auto *frame = new QWidget;
    auto *inside = new QLineEdit(frame);
    frame->setFocusProxy(inside);
    window.row.addWidget(frame);
    window.show();
    // Going forward, its focus proxy comes first.
    QCOMPARE(TabOrderUtils::getNextPrevFocusableWidget(&window.third, true, nullptr), inside);
    QCOMPARE(TabOrderUtils::getNextPrevFocusableWidget(&window.first, false, nullptr), inside);
    QCOMPARE(TabOrderUtils::getNextPrevFocusableWidget(inside, false, nullptr), &window.third);
}

void tst_TabOrderUtils::walksTheChain()
{
    Fields window;
    window.show();
    const auto neighbour = TabOrderUtils::getNextPrevFocusableWidget;
    QCOMPARE(neighbour(&window.first, true, nullptr), &window.second);
    QCOMPARE(neighbour(&window.third, true, nullptr), &window.first);
    QCOMPARE(neighbour(&window.second, false, nullptr), &window.first);
    QCOMPARE(neighbour(&window.first, false, nullptr), &window.third);
    window.second.setFocusPolicy(Qt::ClickFocus);
    QCOMPARE(neighbour(&window.first, true, nullptr), &window.third);
    QCOMPARE(neighbour(&window, true, nullptr), &window.first);
    QCOMPARE(neighbour(nullptr, true, nullptr), nullptr);
}

void tst_TabOrderUtils::stepsOverTheItemsOfALayout()
{
    Fields window;
    auto *owned = new QHBoxLayout;
    auto *item = new QLineEdit;
    owned->addWidget(item);
    window.row.addLayout(owned);
    auto *after = new QPushButton;
    window.row.addWidget(after);
    window.show();
    const auto neighbour = TabOrderUtils::getNextPrevFocusableWidget;
    QCOMPARE(neighbour(&window.third, true, nullptr), item);
    QCOMPARE(neighbour(&window.third, true, owned), after);
    QCOMPARE(neighbour(after, false, owned), &window.third);
    item->setFocusPolicy(Qt::WheelFocus);
    QVERIFY(!TabOrderUtils::shouldFocusNextWidget(item, true, owned));
    QVERIFY(TabOrderUtils::shouldFocusNextWidget(item, true, nullptr));
}

void tst_TabOrderUtils::stopsSearchingAfterOneRoundOfTheChain()
{
    Fields window;
    window.show();
    window.first.setEnabled(false);
    window.third.hide();
    QCOMPARE(TabOrderUtils::getNextPrevFocusableWidget(&window.second, true, nullptr), nullptr);
    QCOMPARE(TabOrderUtils::getNextPrevFocusableWidget(&window.second, false, nullptr), nullptr);
    QWidget lone;
    QCOMPARE(TabOrderUtils::getNextPrevFocusableWidget(&lone, true, nullptr), nullptr);
}

void tst_TabOrderUtils::movesTheFocusForTheReasonOfItsKey()
{
    Fields window;
    QVERIFY(window.appear());
    window.second.setFocus();
    QVERIFY(TabOrderUtils::focusNextPrevChild(true, &window.second, nullptr));
    QCOMPARE(QApplication::focusWidget(), &window.third);
    QCOMPARE(window.third.reason, Qt::TabFocusReason);
    QVERIFY(TabOrderUtils::focusNextPrevChild(false, &window.second, nullptr));
    QCOMPARE(QApplication::focusWidget(), &window.first);
    QCOMPARE(window.first.reason, Qt::BacktabFocusReason);
}

void tst_TabOrderUtils::scrollsTheTargetIntoView()
{
    QScrollArea area;
    area.resize(100, 100);
    auto *fields = new Fields;
    fields->row.setSpacing(500);
    area.setWidget(fields);
    QVERIFY(Windows::activate(area));
    QVERIFY(fields->third.visibleRegion().isEmpty());
    QVERIFY(TabOrderUtils::focusNextPrevChild(true, &fields->second, nullptr));
    QVERIFY(!fields->third.visibleRegion().isEmpty());
}

void tst_TabOrderUtils::movesNothingWithoutATarget()
{
    Fields window;
    QVERIFY(window.appear());
    window.second.setFocus();
    window.first.setEnabled(false);
    window.third.setEnabled(false);
    QVERIFY(!TabOrderUtils::focusNextPrevChild(true, &window.second, nullptr));
    QVERIFY(!TabOrderUtils::focusNextPrevChild(true, nullptr, nullptr));
    QCOMPARE(QApplication::focusWidget(), &window.second);
}

void tst_TabOrderUtils::knowsWhereTheFocusIs()
{
    Fields window;
    QVERIFY(window.appear());
    window.second.setFocus();
    QVERIFY(TabOrderUtils::hasDeepFocus(&window.second));
    QVERIFY(TabOrderUtils::hasDeepFocus(&window));
    QVERIFY(!TabOrderUtils::hasDeepFocus(&window.first));
    QVERIFY(!TabOrderUtils::hasDeepFocus(nullptr));
}

void tst_TabOrderUtils::hasNoDeepFocusWhenNothingHasIt()
{
    Fields window;
    QVERIFY(window.appear());
    TabOrderUtils::clearFocus();
    QVERIFY(!TabOrderUtils::hasDeepFocus(&window));
    QVERIFY(!TabOrderUtils::hasDeepFocus(nullptr));
}

void tst_TabOrderUtils::knowsAncestors()
{
    Fields window;
    QWidget popup(&window, Qt::Popup);
    const QWidget inside(&popup);
    QVERIFY(TabOrderUtils::isAncestorOfParent(&window, &window.first));
    QVERIFY(TabOrderUtils::isAncestorOfParent(&window, &window));
    QVERIFY(!TabOrderUtils::isAncestorOfParent(&window.first, &window));
    QVERIFY(!TabOrderUtils::isAncestorOfParent(&window.first, &window.second));
    // QWidget::isAncestorOf() stops at the window.
    QVERIFY(!window.isAncestorOf(&inside));
    QVERIFY(TabOrderUtils::isAncestorOfParent(&window, &inside));
    QVERIFY(!TabOrderUtils::isAncestorOfParent(&window, nullptr));
    QVERIFY(!TabOrderUtils::isAncestorOfParent(nullptr, &window));
    QVERIFY(!TabOrderUtils::isAncestorOfParent(nullptr, nullptr));
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_TabOrderUtils)
#include "tst_taborderutils.moc"
