// SPDX-License-Identifier: Apache-2.0
#include "LoadedList.h"
#include "support/RealInput.h"
#include "support/TestApplication.h"
#include "support/Windows.h"

#include <QPushButton>
#include <QStyleOptionSlider>

#include <algorithm>

namespace {

constexpr int chatLength = 100000;

QStringList words(const char *text) { return QString::fromLatin1(text).split(QLatin1Char(' ')); }

/// A shown list of 100,000 rows under a real pointer and keyboard, which counts the rows that are
/// asked for.
class Chat : public LoadedList
{
public:
    Chat() : LoadedList()
    {
        setAttribute(Qt::WA_DontShowOnScreen, false);
        setFixedSize(200, 200);
        fill(chatLength);
    }

    bool appear()
    {
        if (!Windows::activate(*this))
            return false;
        setFocus();
        takeLog();
        return true;
    }

    /// Returns the first row on screen with a widget, or -1 unless exactly those on screen have
    /// one.
    int firstLoadedRow() const
    {
        const int first = verticalScrollBar()->value() / 20;
        const int last = std::min((verticalScrollBar()->value() + 199) / 20, count() - 1);
        for (int row = first; row <= last; ++row) {
            const QWidget *widget = itemWidget(item(row));
            if (!widget || !widget->isVisible() || widget->geometry() != visualItemRect(item(row)))
                return -1;
        }
        const int alive = findChildren<QLabel *>().count();
        return alive <= last - first + 3 ? first : -1;
    }
};

} // namespace

/// A long list in a real window, under a real pointer and keyboard.
class tst_OxaListWidgetInteraction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void scrollsByTheWheel();
    void scrollsByKeys();
    void scrollsByDraggingTheBar();
    void loadsUnderTheWheelWhileRowsAreRemoved();
    void mayBeDeletedUnderTheWheel_data();
    void mayBeDeletedUnderTheWheel();
    void staysAtItsBottomWhileItIsHiddenAndShown();
    void givesInputToTheWidgetOfARow();
};

void tst_OxaListWidgetInteraction::scrollsByTheWheel()
{
    Chat list;
    QVERIFY(list.appear());
    QVERIFY(RealInput::moveTo(list, QPoint(50, 100)));
    QVERIFY(RealInput::send(words("click --repeat 20 --delay 5 5")));
    QTRY_VERIFY(list.verticalScrollBar()->value() > 200);
    QTRY_VERIFY(list.firstLoadedRow() > 10);
    QVERIFY(RealInput::send(words("click --repeat 20 --delay 5 4")));
    QTRY_COMPARE(list.verticalScrollBar()->value(), 0);
    QTRY_COMPARE(list.firstLoadedRow(), 0);
}

void tst_OxaListWidgetInteraction::scrollsByKeys()
{
    Chat list;
    QVERIFY(list.appear());
    list.setCurrentRow(0);
    QVERIFY(RealInput::typeKeys(words("Next Next Down Down")));
    QTRY_VERIFY(list.currentRow() > 15);
    QTRY_VERIFY(list.firstLoadedRow() > 5);
    QVERIFY(list.itemWidget(list.currentItem()));
    QVERIFY(RealInput::typeKeys(words("End")));
    QTRY_COMPARE(list.currentRow(), chatLength - 1);
    QTRY_COMPARE(list.firstLoadedRow(), chatLength - 10);
    QVERIFY(RealInput::typeKeys(words("Prior Prior")));
    QTRY_VERIFY(list.firstLoadedRow() < chatLength - 10);
    QVERIFY(RealInput::typeKeys(words("Home")));
    QTRY_COMPARE(list.currentRow(), 0);
    QTRY_COMPARE(list.firstLoadedRow(), 0);
}

void tst_OxaListWidgetInteraction::scrollsByDraggingTheBar()
{
    Chat list;
    QVERIFY(list.appear());
    const QScrollBar *bar = list.verticalScrollBar();
    QStyleOptionSlider option;
    option.initFrom(bar);
    option.orientation = Qt::Vertical;
    option.maximum = bar->maximum();
    option.pageStep = bar->pageStep();
    const QPoint handle = bar->style()
                                  ->subControlRect(QStyle::CC_ScrollBar, &option,
                                                   QStyle::SC_ScrollBarSlider, bar)
                                  .center();
    QVERIFY(RealInput::drag(*bar, handle, handle + QPoint(0, 60)));
    QTRY_VERIFY(bar->value() > 100000);
    QTRY_VERIFY(list.firstLoadedRow() > 5000);
    QVERIFY(RealInput::drag(*bar, handle + QPoint(0, 60), handle + QPoint(0, 500)));
    QTRY_COMPARE(list.firstLoadedRow(), chatLength - 10);
}

void tst_OxaListWidgetInteraction::loadsUnderTheWheelWhileRowsAreRemoved()
{
    Chat list;
    QVERIFY(list.appear());
    const auto makeLabel = list.makeWidget;
    list.makeWidget = [&list, makeLabel](QListWidgetItem *item) {
        if (item->text().endsWith(QLatin1Char('3')))
            list.removeItem(list.row(item));
        else
            makeLabel(item);
    };
    QVERIFY(RealInput::moveTo(list, QPoint(50, 100)));
    QVERIFY(RealInput::send(words("click --repeat 10 --delay 5 5")));
    QTRY_VERIFY(list.count() < chatLength - 1);
    QTRY_VERIFY(list.firstLoadedRow() > 10);
}

void tst_OxaListWidgetInteraction::mayBeDeletedUnderTheWheel_data()
{
    QTest::addColumn<bool>("isOnBar");
    QTest::newRow("over the rows") << false;
    QTest::newRow("over the bar") << true;
}

void tst_OxaListWidgetInteraction::mayBeDeletedUnderTheWheel()
{
    QFETCH(const bool, isOnBar);
    QWidget window;
    window.resize(300, 300);
    auto *list = new Chat;
    list->setParent(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QPointer<OxaListWidget> deleted(list);
    connect(list, &OxaListWidget::updateItemWidget, this, [list] { delete list; });
    const QWidget *target = isOnBar ? static_cast<QWidget *>(list->verticalScrollBar()) : list;
    QVERIFY(RealInput::moveTo(*target, QPoint(5, 150)));
    QVERIFY(RealInput::send(words("click 5")));
    QTRY_VERIFY(!deleted);
}

void tst_OxaListWidgetInteraction::staysAtItsBottomWhileItIsHiddenAndShown()
{
    Chat list;
    list.setIsScrollAtBottom(true);
    QVERIFY(list.appear());
    QTRY_COMPARE(list.firstLoadedRow(), chatLength - 10);
    list.hide();
    list.fill(50);
    list.show();
    QTRY_COMPARE(list.firstLoadedRow(), chatLength + 40);
}

void tst_OxaListWidgetInteraction::givesInputToTheWidgetOfARow()
{
    Chat list;
    int clicks = 0;
    list.makeWidget = [&list, &clicks](QListWidgetItem *item) {
        auto *button = new QPushButton(item->text());
        connect(button, &QPushButton::clicked, button, [&clicks] { ++clicks; });
        list.setItemWidget(item, button);
    };
    QVERIFY(list.appear());
    list.scrollToValue(2000);
    QVERIFY(RealInput::click(list, QPoint(50, 30)));
    QTRY_COMPARE(clicks, 1);
    QVERIFY(list.itemWidget(list.item(101))->hasFocus());
    QVERIFY(RealInput::typeKeys(words("space")));
    QTRY_COMPARE(clicks, 2);
    QCOMPARE(list.verticalScrollBar()->value(), 2000);
}

UIELEMENTS_TEST_MAIN(tst_OxaListWidgetInteraction)
#include "tst_oxalistwidget_interaction.moc"
