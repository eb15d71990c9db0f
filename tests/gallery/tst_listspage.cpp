// SPDX-License-Identifier: Apache-2.0
#include "Controls.h"
#include "GalleryTest.h"

#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaSlider.h>

#include <QScrollBar>

#include <looks/TextSettings.h>
#include <pages/lists/ConversationsCard.h>
#include <pages/lists/HistoryCard.h>
#include <pages/lists/HistoryModel.h>
#include <pages/lists/HistoryServer.h>
#include <pages/lists/LongListView.h>
#include <pages/lists/OverflowBar.h>
#include <pages/lists/RowRole.h>
#include <pages/widgets/Pages.h>
#include <shell/Page.h>
#include <widgets/Buttons.h>
#include <widgets/CodeEdit.h>
#include <widgets/EmptyState.h>

namespace {

OxaPushButton *buttonCalled(const QWidget &parent, const char *text)
{
    const auto buttons = parent.findChildren<OxaPushButton *>();
    for (OxaPushButton *button : buttons) {
        if (button->text() == QLatin1String(text))
            return button;
    }
    return nullptr;
}

/// A card that is shown in a window without a minimum size, which the platform does not enforce.
template <typename CardClass>
struct Shown
{
    Shown()
    {
        window.resize(900, 500);
        card.resize(window.size());
        window.show();
    }

    QWidget window;
    CardClass &card = *new CardClass(&window);
};

/// Presses the buttons called \a texts and returns the new lines of the log.
QString linesAfter(ConversationsCard &card, const QStringList &texts)
{
    auto *log = card.findChild<CodeEdit *>();
    log->clear();
    for (const QString &text : texts)
        buttonCalled(card, qPrintable(text))->click();
    return log->toPlainText();
}

/// Returns the rows of \a view that wait for their page.
int missingRows(const LongListView &view, const HistoryModel &model)
{
    int missing = 0;
    for (int row = view.firstRow(); row <= view.lastRow(); ++row)
        missing += model.getItemAt(row) ? 0 : 1;
    return missing;
}

/// A model with a quick server, and the server's log.
struct Service
{
    Service()
    {
        server.setMeanDelay(10);
        QObject::connect(&server, &HistoryServer::logged, &server,
                         [this](const QString &line) { lines += line; });
    }

    HistoryModel model;
    HistoryServer server { &model };
    QStringList lines;
};

} // namespace

/// The page "Lists": its recorder, and its list of ten million rows.
class tst_ListsPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recordsWhatEachButtonMakesTheModelEmit_data();
    void recordsWhatEachButtonMakesTheModelEmit();
    void replacesTheChosenShareOfRows_data();
    void replacesTheChosenShareOfRows();
    void offersToFillAnEmptyList();
    void answersOutOfOrderUntilTheWindowIsFull();
    void dropsAnswersThatTheWindowHasLeft();
    void asksOnlyOnceForAPendingPage();
    void loadsAllRowsInSightAfterAJump();
    void keepsTheFirstRowAtAnotherFontScale();
    void staysAtTheEndInAnotherTheme();
    void showsAsManyAvatarsAsThereIsRoomFor_data();
    void showsAsManyAvatarsAsThereIsRoomFor();
};

void tst_ListsPage::recordsWhatEachButtonMakesTheModelEmit_data()
{
    QTest::addColumn<QString>("buttons");
    QTest::addColumn<QString>("lines");
    QTest::newRow("append") << QStringLiteral("Append")
                            << QStringLiteral("appendRows: ins 8,11 | count 12");
    QTest::newRow("update, which always reports row 0 first")
            << QStringLiteral("Update") << QStringLiteral("appendOrUpdate: chg 0,0 | chg 2,3");
    QTest::newRow("mark read") << QStringLiteral("Mark read")
                               << QStringLiteral("setRoleValueForRow: chg 1,1 [260]");
    QTest::newRow("replace a quarter")
            << QStringLiteral("Replace") << QStringLiteral("replace: chg 3,3 | chg 7,7");
    QTest::newRow("remove") << QStringLiteral("Remove")
                            << QStringLiteral("removeRows: rem 1,1 | count 7");
    QTest::newRow("clear") << QStringLiteral("Clear") << QStringLiteral("clear: reset | count 0");
    QTest::newRow("on an empty list")
            << QStringLiteral("Clear, Clear, Update, Mark read, Replace, Remove")
            << QStringLiteral(
                       "clear: reset | count 0\nclear: no signal\nappendOrUpdate: no signal\n"
                       "setRoleValueForRow: no signal\nreplace: no signal\nremoveRows: no signal");
}

void tst_ListsPage::recordsWhatEachButtonMakesTheModelEmit()
{
    QFETCH(const QString, buttons);
    ConversationsCard card;
    QTEST(linesAfter(card, buttons.split(QStringLiteral(", "))), "lines");
}

void tst_ListsPage::replacesTheChosenShareOfRows_data()
{
    QTest::addColumn<int>("percent");
    QTest::addColumn<QString>("line");
    QTest::newRow("none") << 0 << QStringLiteral("replace: no signal");
    QTest::newRow("at least one") << 1 << QStringLiteral("replace: chg 7,7");
    QTest::newRow("every other") << 50
                                 << QStringLiteral(
                                            "replace: chg 1,1 | chg 3,3 | chg 5,5 | chg 7,7");
    QTest::newRow("all in one run") << 100 << QStringLiteral("replace: chg 0,7");
}

void tst_ListsPage::replacesTheChosenShareOfRows()
{
    QFETCH(const int, percent);
    ConversationsCard card;
    card.findChild<OxaSlider *>()->setValue(percent);
    QTEST(linesAfter(card, { QStringLiteral("Replace") }), "line");
}

void tst_ListsPage::offersToFillAnEmptyList()
{
    ConversationsCard card;
    auto *emptyState = card.findChild<EmptyState *>();
    QVERIFY(emptyState->isHidden());
    buttonCalled(card, "Clear")->click();
    QVERIFY(!emptyState->isHidden());
    auto *log = card.findChild<CodeEdit *>();
    log->clear();
    buttonCalled(*emptyState, "Start some")->click();
    QVERIFY(emptyState->isHidden());
    QCOMPARE(log->toPlainText(), QStringLiteral("appendRows: ins 0,3 | count 4"));
}

void tst_ListsPage::answersOutOfOrderUntilTheWindowIsFull()
{
    Service service;
    service.model.setScrolledIndex(HistoryModel::messageCount / 2);
    QCOMPARE(service.model.loadedCount(), 0);
    QCOMPARE(service.server.pendingCount(), HistoryModel::pagesInWindow);
    service.server.answerAll();
    const QString expected = QStringLiteral(
            "ask 99999, 100000, 100001, 100002, 100003; got 100002; "
            "got 100000; got 100003; got 99999; got 100001");
    QCOMPARE(service.lines.join(QStringLiteral("; ")), expected);
    QCOMPARE(service.model.loadedCount(), HistoryModel::pagesInWindow * HistoryModel::pageSize);
    const QModelIndex middle = service.model.index(HistoryModel::messageCount / 2, 0);
    QCOMPARE(middle.data(RowRole::Title).toString(), QStringLiteral("Message 5,000,001"));
}

void tst_ListsPage::dropsAnswersThatTheWindowHasLeft()
{
    Service service;
    service.model.setScrolledIndex(5000);
    service.model.setScrolledIndex(9000);
    QCOMPARE(service.server.pendingCount(), 2 * HistoryModel::pagesInWindow);
    QTRY_COMPARE(service.server.pendingCount(), 0);
    QCOMPARE(service.server.figures().late, HistoryModel::pagesInWindow);
    QCOMPARE(service.server.figures().answered, HistoryModel::pagesInWindow);
    QCOMPARE(service.model.loadedCount(), HistoryModel::pagesInWindow * HistoryModel::pageSize);
}

void tst_ListsPage::asksOnlyOnceForAPendingPage()
{
    Service service;
    service.model.setScrolledIndex(5000);
    service.model.setScrolledIndex(9000);
    service.model.setScrolledIndex(5000);
    QCOMPARE(service.server.figures().asked, 2 * HistoryModel::pagesInWindow);
    service.server.answerAll();
    QCOMPARE(service.model.loadedCount(), HistoryModel::pagesInWindow * HistoryModel::pageSize);
}

void tst_ListsPage::loadsAllRowsInSightAfterAJump()
{
    const Shown<HistoryCard> shown;
    const auto &view = *shown.card.findChild<LongListView *>();
    const auto &model = *shown.card.findChild<HistoryModel *>();
    QCOMPARE(missingRows(view, model), 0);
    shown.card.findChild<HistoryServer *>()->setMeanDelay(10);
    for (const char *jump : { "Last row", "First row", "Middle", "Last row" }) {
        buttonCalled(shown.card, jump)->click();
        QVERIFY(missingRows(view, model) > 0);
    }
    QCOMPARE(view.lastRow(), HistoryModel::messageCount - 1);
    QTRY_COMPARE(missingRows(view, model), 0);
}

void tst_ListsPage::keepsTheFirstRowAtAnotherFontScale()
{
    const Shown<HistoryCard> shown;
    const auto &view = *shown.card.findChild<LongListView *>();
    const int row = view.firstRow();
    GalleryApplication::get()->textSettings()->setFontScale(1.5F);
    const int rowWhenLarge = view.firstRow();
    GalleryApplication::get()->textSettings()->setFontScale(1.0F);
    QCOMPARE(rowWhenLarge, row);
    QCOMPARE(view.firstRow(), row);
}

void tst_ListsPage::staysAtTheEndInAnotherTheme()
{
    const Shown<HistoryCard> shown;
    auto *view = shown.card.findChild<LongListView *>();
    buttonCalled(shown.card, "Last row")->click();
    const QScrollBar *scrollBar = view->verticalScrollBar();
    QCOMPARE(scrollBar->value(), scrollBar->maximum());
    view->setThemeType(QStringLiteral("dark"));
    QCOMPARE(scrollBar->value(), scrollBar->maximum());
}

void tst_ListsPage::showsAsManyAvatarsAsThereIsRoomFor_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("more");
    QTest::addColumn<int>("hidden");
    QTest::newRow("only the rest") << 36 << QStringLiteral("+8") << 8;
    QTest::newRow("a pixel too narrow for one") << 79 << QStringLiteral("+8") << 8;
    QTest::newRow("one") << 80 << QStringLiteral("+7") << 7;
    QTest::newRow("a pixel too narrow for all") << 343 << QStringLiteral("+2") << 2;
    QTest::newRow("all") << 344 << QStringLiteral("+0") << 0;
}

void tst_ListsPage::showsAsManyAvatarsAsThereIsRoomFor()
{
    QFETCH(const int, width);
    QFETCH(const int, hidden);
    QWidget window;
    Page *page = Pages::makeLists(&window);
    window.resize(1000, 800);
    page->resize(window.size());
    window.show();
    auto *bar = page->findChild<OverflowBar *>();
    Controls::called<OxaSlider>(*page, "Width")->setValue(width);
    QTRY_COMPARE(bar->width(), width);
    QCOMPARE(bar->hiddenPeople()->rowCount(), hidden);
    const auto labels = bar->findChildren<OxaLabel *>();
    const OxaLabel *more = labels.front();
    QTEST(more->text(), "more");
    QCOMPARE(more->isVisible(), hidden > 0);
    const auto visible = std::count_if(labels.begin(), labels.end(),
                                       [](const OxaLabel *label) { return label->isVisible(); });
    QCOMPARE(int(visible), 8 - hidden + (hidden > 0 ? 1 : 0));
}

GALLERY_TEST_MAIN(tst_ListsPage)
#include "tst_listspage.moc"
