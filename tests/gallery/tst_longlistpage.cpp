// SPDX-License-Identifier: Apache-2.0
#include "Controls.h"
#include "GalleryTest.h"

#include <UiElements/emoji/EmojiTextConverter.h>
#include <UiElements/widgets/OxaLabel.h>

#include <QScrollBar>
#include <QSignalSpy>
#include <QWheelEvent>

#include <pages/chat/ChatList.h>
#include <pages/chat/ChatRow.h>
#include <pages/emoji/ReactionButton.h>
#include <pages/emoji/WrappedEmojiLabel.h>
#include <pages/widgets/Pages.h>
#include <shell/Page.h>
#include <shell/TabOrder.h>

namespace {

constexpr int middleRow = ChatList::firstLength / 2;

/// The page in a window that is shown.
struct LongListWindow
{
    LongListWindow()
    {
        // No minimum size: the platform does not enforce it.
        window.resize(1000, 800);
        page.resize(window.size());
        window.show();
    }

    void press(const char *button) const { Controls::withText<>(page, button)->click(); }

    QListWidgetItem *firstItem() const { return list.itemAt(0, 0); }
    int topOf(const QListWidgetItem *item) const { return list.visualItemRect(item).top(); }

    int rowsInView() const
    {
        const int bottom = list.viewport()->height() - 1;
        return list.row(list.itemAt(0, bottom)) - list.row(firstItem()) + 1;
    }

    /// True when all rows in view have a widget, and at most one other: the list keeps the row
    /// below them.
    bool hasWidgetsOnlyInView() const
    {
        const int others = list.rowWidgetCount() - rowsInView();
        return others == 0 || others == 1;
    }

    QWidget window;
    Page &page = *Pages::makeLongList(&window);
    ChatList &list = *page.findChild<ChatList *>();
};

void turnWheel(QWidget &widget, int steps)
{
    const QPointF center = widget.rect().center();
    QWheelEvent event(center, widget.mapToGlobal(center.toPoint()), QPoint(),
                      QPoint(0, -120 * steps), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QCoreApplication::sendEvent(&widget, &event);
}

using Move = void (*)(ChatList &list, int step);

/// A change that may make rows higher, or the list longer.
using Change = void (*)(LongListWindow &window);

} // namespace

Q_DECLARE_METATYPE(Move)
Q_DECLARE_METATYPE(Change)

/// The page "Long list": a chat of 100,000 messages.
class tst_LongListPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void makesTheSameMessagesEachTime();
    void beginsADayOrAGroupWithItsFirstMessage_data();
    void beginsADayOrAGroupWithItsFirstMessage();
    void writesInSeveralScriptsWithItsOwnEmoji();
    void opensAtItsEnd();
    void hasWidgetsOnlyForWhatIsInView_data();
    void hasWidgetsOnlyForWhatIsInView();
    void hasRoomForEachText_data();
    void hasRoomForEachText();
    void keepsTheReadersPlace_data();
    void keepsTheReadersPlace();
    void followsNewMessagesOnlyAtItsEnd();
    void removesTheCurrentMessageOrTheLast();
    void showsTheAuthorWhereTheFirstOfAGroupIsRemoved();
    void keepsTheUsersReactions();
    void startsKeysAtWhatIsInView();
    void stopsAtTheReactionsInViewAfterTheList();
    void showsItsFigures();
    void tellsAScreenReaderWhoWroteWhat();
};

void tst_LongListPage::cleanup() { GalleryApplication::get()->textSettings()->setFontScale(1.0F); }

void tst_LongListPage::makesTheSameMessagesEachTime()
{
    const auto messages = ChatHistory::make(1000, 7, 0);
    const auto again = ChatHistory::make(1000, 7, 0);
    QCOMPARE(messages.size(), std::size_t(1000));
    const auto isSame = [](const ChatMessage &a, const ChatMessage &b) {
        return a.minute == b.minute && a.author == b.author && a.text == b.text
                && a.reactions == b.reactions;
    };
    QVERIFY(std::equal(messages.begin(), messages.end(), again.begin(), isSame));
    const auto isLater = [](const ChatMessage &a, const ChatMessage &b) {
        return a.minute > b.minute;
    };
    QVERIFY(std::adjacent_find(messages.begin(), messages.end(), isLater) == messages.end());
    const auto others = ChatHistory::make(1000, 8, 0);
    QVERIFY(!std::equal(messages.begin(), messages.end(), others.begin(), isSame));
}

void tst_LongListPage::beginsADayOrAGroupWithItsFirstMessage_data()
{
    QTest::addColumn<int>("author");
    QTest::addColumn<int>("minute");
    QTest::addColumn<int>("start");
    QTest::newRow("the same author") << 1 << 1009 << int(ChatStart::Nothing);
    QTest::newRow("the same author, later") << 1 << 1010 << int(ChatStart::Group);
    QTest::newRow("another author") << 2 << 1000 << int(ChatStart::Group);
    QTest::newRow("the next day") << 1 << 1440 << int(ChatStart::Day);
}

void tst_LongListPage::beginsADayOrAGroupWithItsFirstMessage()
{
    QFETCH(const int, author);
    QFETCH(const int, minute);
    QFETCH(const int, start);
    const ChatMessage before { 1000, 1, 0 };
    const ChatMessage message { minute, quint8(author), 0 };
    QCOMPARE(int(ChatHistory::startOf(message, &before)), start);
    QCOMPARE(ChatHistory::startOf(message, nullptr), ChatStart::Day);
}

void tst_LongListPage::writesInSeveralScriptsWithItsOwnEmoji()
{
    QSet<int> scripts;
    for (const QString &text : ChatHistory::texts()) {
        for (const QChar letter : text)
            scripts.insert(letter.script());
        EmojiTextConverter converter(16, 1.0);
        converter.convert(text);
        for (const QString &file : converter.svgFiles())
            QVERIFY2(QFile::exists(file), qPrintable(file));
    }
    for (const auto script : { QChar::Script_Latin, QChar::Script_Arabic, QChar::Script_Hebrew,
                               QChar::Script_Hiragana, QChar::Script_Han })
        QVERIFY2(scripts.contains(script), qPrintable(QString::number(script)));
}

void tst_LongListPage::opensAtItsEnd()
{
    const LongListWindow window;
    QCOMPARE(window.list.count(), 100000);
    QCOMPARE(window.list.verticalScrollBar()->value(), window.list.verticalScrollBar()->maximum());
    QVERIFY(window.list.itemWidget(window.list.item(99999)));
    // None was made in vain.
    QCOMPARE(window.list.madeCount(), window.rowsInView());
}

void tst_LongListPage::hasWidgetsOnlyForWhatIsInView_data()
{
    QTest::addColumn<Move>("move");
    QTest::addColumn<int>("lastRow");
    QTest::newRow("by page keys") << Move([](ChatList &list, int) {
        QTest::keyClick(&list, Qt::Key_PageDown);
    }) << 400;
    QTest::newRow("by arrow keys")
            << Move([](ChatList &list, int) { QTest::keyClick(&list, Qt::Key_Down); }) << 60;
    QTest::newRow("from end to end by keys") << Move([](ChatList &list, int step) {
        QTest::keyClick(&list, step % 2 == 0 ? Qt::Key_Home : Qt::Key_End);
    }) << 99999;
    QTest::newRow("by the wheel") << Move([](ChatList &list, int) {
        turnWheel(*list.viewport(), 3);
    }) << 200;
    QTest::newRow("by the bar, through all rows") << Move([](ChatList &list, int step) {
        list.verticalScrollBar()->setValue(list.verticalScrollBar()->maximum() / 60 * (step + 1));
    }) << 99900;
}

void tst_LongListPage::hasWidgetsOnlyForWhatIsInView()
{
    QFETCH(const Move, move);
    QFETCH(const int, lastRow);
    LongListWindow window;
    window.press("First message");
    window.list.setCurrentRow(0);
    for (int step = 0; step < 60; ++step) {
        move(window.list, step);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(window.hasWidgetsOnlyInView());
    }
    const int bottom = window.list.viewport()->height() - 1;
    QVERIFY(window.list.row(window.list.itemAt(0, bottom)) >= lastRow);
    QVERIFY(window.list.madeCount() >= 60);
}

void tst_LongListPage::hasRoomForEachText_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<float>("scale");
    QTest::newRow("wide") << 1200 << 1.0F;
    QTest::newRow("narrow") << 640 << 1.0F;
    QTest::newRow("with large text") << 900 << 1.5F;
}

void tst_LongListPage::hasRoomForEachText()
{
    QFETCH(const int, width);
    QFETCH(const float, scale);
    LongListWindow window;
    window.page.resize(width, 800);
    GalleryApplication::get()->textSettings()->setFontScale(scale);
    QSet<QString> texts;
    for (int page = 0; page < 40; ++page) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const auto rows = window.list.viewport()->findChildren<ChatRow *>();
        for (const ChatRow *row : rows) {
            const auto *label = row->findChild<WrappedEmojiLabel *>();
            QVERIFY2(label->sizeHint().height() == label->height(), qPrintable(label->text()));
            QVERIFY2(row->rect().contains(row->childrenRect()), qPrintable(label->text()));
            texts.insert(label->text());
        }
        window.list.verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepSub);
    }
    QVERIFY(texts.size() > 25);
}

void tst_LongListPage::keepsTheReadersPlace_data()
{
    QTest::addColumn<Change>("change");
    QTest::newRow("rows inserted above")
            << Change([](LongListWindow &window) { window.press("Insert 20 above"); });
    QTest::newRow("a row added") << Change(
            [](LongListWindow &window) { window.press("Add at the end"); });
    QTest::newRow("a row removed above") << Change([](LongListWindow &window) {
        const int value = window.list.verticalScrollBar()->value();
        window.list.setCurrentRow(100);
        window.list.verticalScrollBar()->setValue(value);
        window.press("Remove a message");
    });
    QTest::newRow("another width")
            << Change([](LongListWindow &window) { window.page.resize(700, 800); });
    QTest::newRow("larger text") << Change([](LongListWindow &) {
        GalleryApplication::get()->textSettings()->setFontScale(1.5F);
    });
}

void tst_LongListPage::keepsTheReadersPlace()
{
    QFETCH(const Change, change);
    LongListWindow window;
    window.press("Middle");
    window.list.verticalScrollBar()->setValue(window.list.verticalScrollBar()->value() + 5);
    const QListWidgetItem *first = window.firstItem();
    const int top = window.topOf(first);
    QCOMPARE(top, -5);
    change(window);
    QTRY_VERIFY(window.hasWidgetsOnlyInView());
    QCOMPARE(window.firstItem(), first);
    QCOMPARE(window.topOf(first), top);
}

void tst_LongListPage::followsNewMessagesOnlyAtItsEnd()
{
    LongListWindow window;
    const QScrollBar *bar = window.list.verticalScrollBar();
    const int maximum = bar->maximum();
    window.press("Add at the end");
    QCOMPARE(window.list.count(), 100001);
    QVERIFY(bar->maximum() > maximum);
    QCOMPARE(bar->value(), bar->maximum());
    Controls::choose(window.page, "scrollToBottomAutomatically", "No");
    const int value = bar->value();
    window.press("Add at the end");
    QCOMPARE(bar->value(), value);
    QVERIFY(bar->maximum() > value);
}

void tst_LongListPage::removesTheCurrentMessageOrTheLast()
{
    LongListWindow window;
    window.press("Remove a message");
    QCOMPARE(window.list.count(), 99999);
    QCOMPARE(window.list.verticalScrollBar()->value(), window.list.verticalScrollBar()->maximum());
    window.press("Middle");
    window.list.setCurrentRow(middleRow + 3);
    const QListWidgetItem *before = window.list.item(middleRow + 2);
    const QListWidgetItem *after = window.list.item(middleRow + 4);
    window.press("Remove a message");
    QCOMPARE(window.list.item(middleRow + 2), before);
    QCOMPARE(window.list.item(middleRow + 3), after);
}

void tst_LongListPage::showsTheAuthorWhereTheFirstOfAGroupIsRemoved()
{
    LongListWindow window;
    window.press("Middle");
    const auto startOf = [&list = window.list](int row) { return list.startOf(row); };
    int row = middleRow + 1;
    while (startOf(row) != ChatStart::Group || startOf(row + 1) != ChatStart::Nothing)
        ++row;
    const QListWidgetItem *next = window.list.item(row + 1);
    const int height = window.list.heightOf(row + 1);
    window.list.setCurrentRow(row);
    window.press("Remove a message");
    QCOMPARE(window.list.item(row), next);
    QVERIFY(window.list.heightOf(row) > height);
    QTRY_COMPARE(window.list.itemWidget(window.list.item(row))->geometry(),
                 window.list.visualItemRect(next));
    const auto *text = window.list.itemWidget(window.list.item(row))
                               ->findChild<WrappedEmojiLabel *>();
    QCOMPARE(text->height(), text->sizeHint().height());
    QVERIFY(text->y() > 16);
}

void tst_LongListPage::keepsTheUsersReactions()
{
    LongListWindow window;
    window.press("Middle");
    auto *button = window.list.findChild<ReactionButton *>();
    while (!button) {
        window.list.verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepAdd);
        button = window.list.findChild<ReactionButton *>();
    }
    window.list.scrollToItem(window.list.itemAt(button->parentWidget()->pos()));
    const int value = window.list.verticalScrollBar()->value();
    const QPoint place = button->mapTo(&window.list, button->rect().center());
    QTest::mouseClick(button, Qt::LeftButton);
    const QString name = button->accessibleName();
    QVERIFY2(name.endsWith(QLatin1String("one of them yours")), qPrintable(name));
    window.press("First message");
    QTRY_VERIFY(window.hasWidgetsOnlyInView());
    window.list.verticalScrollBar()->setValue(value);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const auto *again = qobject_cast<ReactionButton *>(window.list.childAt(place));
    QVERIFY(again);
    QCOMPARE(again->accessibleName(), name);
}

void tst_LongListPage::startsKeysAtWhatIsInView()
{
    LongListWindow window;
    window.press("Middle");
    window.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window.window));
    const int value = window.list.verticalScrollBar()->value();
    window.list.setFocus();
    QTest::keyClick(&window.list, Qt::Key_Down);
    QVERIFY(qAbs(window.list.currentRow() - middleRow) < 20);
    QCOMPARE(window.list.verticalScrollBar()->value(), value);
}

void tst_LongListPage::stopsAtTheReactionsInViewAfterTheList()
{
    LongListWindow window;
    TabOrder::followLayouts(&window.page);
    QSignalSpy settled(&window.list, &ChatList::settled);
    do {
        window.list.verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepSub);
        QVERIFY(settled.wait());
    } while (window.list.findChildren<ReactionButton *>().size() < 2);
    const auto stops = TabOrder::of(&window.window);
    auto stop = std::find(stops.begin(), stops.end(), &window.list);
    int top = -1;
    for (++stop; window.list.isAncestorOf(*stop); ++stop) {
        const int next = (*stop)->mapTo(&window.list, QPoint()).y();
        QVERIFY(next >= top);
        top = next;
    }
    QVERIFY(top > 0);
    QCOMPARE(qobject_cast<OxaPushButton *>(*stop)->text(), QStringLiteral("First message"));
}

void tst_LongListPage::showsItsFigures()
{
    LongListWindow window;
    const auto figure = [&window](int line) {
        return window.page.findChildren<OxaLabel *>(QStringLiteral("figure")).at(line)->text();
    };
    QTRY_COMPARE(figure(0), QStringLiteral("100,000"));
    QTRY_COMPARE(figure(1), QString::number(window.list.rowWidgetCount()));
    QCOMPARE(figure(3), QStringLiteral("Scroll to see"));
    window.press("Insert 20 above");
    QTRY_COMPARE(figure(0), QStringLiteral("100,020"));
    QCOMPARE(figure(3), QStringLiteral("Scroll to see"));
    const int made = window.list.madeCount();
    window.list.verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepSub);
    QSignalSpy settled(&window.list, &ChatList::settled);
    QVERIFY(settled.wait());
    QVERIFY2(figure(3).endsWith(QLatin1String(" ms")), qPrintable(figure(3)));
    QCOMPARE(figure(1), QString::number(window.list.rowWidgetCount()));
    QVERIFY(window.list.madeCount() > made);
    QCOMPARE(figure(2), QString::number(window.list.madeCount()));
}

void tst_LongListPage::tellsAScreenReaderWhoWroteWhat()
{
    const LongListWindow window;
    const QListWidgetItem *last = window.list.item(99999);
    const auto *row = window.list.itemWidget(window.list.item(99999));
    const QString text = row->findChild<WrappedEmojiLabel *>()->text();
    const QString spoken = last->data(Qt::AccessibleTextRole).toString();
    QVERIFY2(QRegularExpression(QStringLiteral("^.+, \\d\\d:\\d\\d: ")).match(spoken).hasMatch(),
             qPrintable(spoken));
    QVERIFY2(spoken.endsWith(text), qPrintable(spoken));
    QVERIFY(last->text().isEmpty());
}

GALLERY_TEST_MAIN(tst_LongListPage)
#include "tst_longlistpage.moc"
