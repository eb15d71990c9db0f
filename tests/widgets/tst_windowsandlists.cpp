// SPDX-License-Identifier: Apache-2.0
#include "WindowsAndLists.h"
#include "support/CodeBlocks.h"
#include "support/ColorSets.h"
#include "support/Guards.h"
#include "support/TestApplication.h"
#include "support/Windows.h"

#include <QPointer>
#include <QScrollBar>

namespace {

StoreGuard clientStores()
{
    OxaColorSetMap store;
    for (const char *name :
         { "button-hyperlink-text", "client-tab", "client-tab-text", "client-text" })
        store.emplace(name, OxaColorSet(QString::fromLatin1(name), Qt::gray));
    return StoreGuard(store, store);
}

} // namespace

/// The code of docs/windows-and-lists.md.
class tst_WindowsAndLists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isQuotedWordForWord();
    void registersShortcutsOnce();
    void keepsTabsAndPagesTogether();
    void makesRowsOfTheChatAsTheyComeIntoView();
    void handsTheChatsThemeTypeToItsRows();
    void handsOverTheNameThatWasEntered();
};

void tst_WindowsAndLists::isQuotedWordForWord()
{
    const QByteArrayList blocks = CodeBlocks::blocksOf(QStringLiteral(WINDOWS_GUIDE));
    QVERIFY(blocks.size() > 1);
    // All of it, so that a reader's copy compiles.
    QCOMPARE(blocks.join('\n'), CodeBlocks::codeOf(QStringLiteral(WINDOWS_AND_LISTS)));
}

void tst_WindowsAndLists::registersShortcutsOnce()
{
    OxaMainWindow first;
    OxaMainWindow second;
    registerOnce(&first);
    registerOnce(&second); // Without the question this would warn.
    const OxaAppSignals *hub = OxaAppSignals::get();
    QVERIFY(hub->shortcutExists(OxaAppSignals::Shortcut::OpenGlobalSearch));
}

void tst_WindowsAndLists::keepsTabsAndPagesTogether()
{
    const StoreGuard stores = clientStores();
    Pages pages;
    for (const char *title : { "Chats", "Calls", "Files" })
        pages.add(QString::fromLatin1(title), new QLabel(QString::fromLatin1(title)));
    auto *bar = pages.findChild<OxaTabBar *>();
    auto *stack = pages.findChild<OxaStackedWidget *>();
    const auto shown = [stack] { return qobject_cast<QLabel *>(stack->currentWidget())->text(); };
    QCOMPARE(bar->currentIndex(), 0);
    QCOMPARE(shown(), QStringLiteral("Chats"));
    bar->setCurrentIndex(2);
    QCOMPARE(shown(), QStringLiteral("Files"));
    pages.remove(0);
    QCOMPARE(bar->count(), 2);
    QCOMPARE(stack->count(), 2);
    QCOMPARE(shown(), bar->tabText(bar->currentIndex()));
}

void tst_WindowsAndLists::makesRowsOfTheChatAsTheyComeIntoView()
{
    const StoreGuard stores = clientStores();
    QStringList messages;
    for (int i = 0; i < 2000; ++i)
        messages += QStringLiteral("Message %1").arg(i);
    Chat chat(messages);
    chat.resize(300, 320);
    QVERIFY(Windows::activate(chat));
    QTRY_COMPARE(chat.verticalScrollBar()->value(), chat.verticalScrollBar()->maximum());
    const int alive = chat.viewport()->findChildren<OxaEmojiLabel *>().size();
    QVERIFY2(alive >= 10 && alive <= 30, qPrintable(QString::number(alive)));
    QVERIFY(chat.itemWidget(chat.item(1999)));
    chat.append(QStringLiteral("The newest"));
    QTRY_VERIFY(chat.itemWidget(chat.item(2000)));
    QCOMPARE(chat.verticalScrollBar()->value(), chat.verticalScrollBar()->maximum());
}

void tst_WindowsAndLists::handsTheChatsThemeTypeToItsRows()
{
    const StoreGuard stores = clientStores();
    Chat chat({ QStringLiteral("One"), QStringLiteral("Two") });
    chat.resize(300, 320);
    QVERIFY(Windows::activate(chat));
    chat.setThemeType(QStringLiteral("dark"));
    chat.append(QStringLiteral("Three"));
    QTRY_COMPARE(chat.viewport()->findChildren<OxaEmojiLabel *>().size(), 3);
    const auto rows = chat.viewport()->findChildren<OxaEmojiLabel *>();
    for (const OxaEmojiLabel *row : rows)
        QCOMPARE(row->getThemeType(), OxaThemeUtils::AppThemeType::Dark);
}

void tst_WindowsAndLists::handsOverTheNameThatWasEntered()
{
    QWidget parent;
    QString entered;
    askForName(&parent, [&entered](const QString &name) { entered = name; });
    const QPointer<OxaDialog> dialog = parent.findChild<OxaDialog *>();
    dialog->findChild<OxaLineEdit *>()->setText(QStringLiteral("Ada"));
    dialog->findChild<OxaPushButton *>()->click();
    QTRY_VERIFY(!dialog);
    QCOMPARE(entered, QStringLiteral("Ada"));
}

UIELEMENTS_TEST_MAIN(tst_WindowsAndLists)
#include "tst_windowsandlists.moc"
