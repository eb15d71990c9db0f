// SPDX-License-Identifier: Apache-2.0
#include "Controls.h"
#include "GalleryTest.h"

#include <UiElements/widgets/OxaCheckBox.h>
#include <UiElements/widgets/OxaComboBox.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaLineEdit.h>
#include <UiElements/widgets/OxaTextBrowser.h>
#include <UiElements/widgets/OxaTextInput.h>

#include <QAbstractItemView>
#include <QPointer>

#include <pages/windows/SecondWindow.h>
#include <shell/GalleryWindow.h>
#include <shell/NavigationList.h>
#include <shell/PageRegistry.h>
#include <shell/PageStack.h>
#include <shell/TabOrder.h>
#include <specimens/SignalLog.h>
#include <support/RealInput.h>
#include <widgets/CodeEdit.h>
#include <widgets/Dialog.h>
#include <widgets/ListView.h>
#include <widgets/TableView.h>

namespace {

/// The gallery's window, shown and active, with the focus on the first stop of Tab.
class Shown
{
public:
    explicit Shown(const char *page)
    {
        window.showPage(QString::fromLatin1(page));
        window.show();
        // Not where a dialog opens: when a modal one closes, Qt looks for the window under the
        // pointer, and warns if the frame that it finds is gone by then.
        isActive = QTest::qWaitForWindowActive(&window) && RealInput::moveTo(window, QPoint(2, 2));
        TabOrder::of(&window).front()->setFocus(Qt::TabFocusReason);
    }

    /// Types the key \a name and returns what has the focus then.
    QWidget *type(const char *name) const
    {
        const QWidget *before = window.focusWidget();
        if (!RealInput::typeKeys({ QString::fromLatin1(name) }))
            return nullptr;
        // The caller compares, and so notices a focus that did not move.
        if (!QTest::qWaitFor([this, before] { return window.focusWidget() != before; }, 2000))
            qInfo("%s left the focus where it was", name);
        return window.focusWidget();
    }

    QString focusedText() const
    {
        const auto *button = qobject_cast<const QAbstractButton *>(window.focusWidget());
        return button ? button->text() : QString();
    }

    SegmentedControl &control(const char *name) const
    {
        return *Controls::called<SegmentedControl>(window, name);
    }

    QWidget *page() const { return window.findChild<PageStack *>()->currentWidget(); }

    /// Waits until a dialog has the focus, and returns it.
    QPointer<Dialog> dialog() const
    {
        const auto hasFocus = [this] {
            const auto *dialog = window.findChild<Dialog *>();
            return dialog && dialog->isActiveWindow()
                    && dialog->isAncestorOf(QApplication::focusWidget());
        };
        return QTest::qWaitFor(hasFocus) ? window.findChild<Dialog *>() : nullptr;
    }

    ListView &navigation() const { return *Controls::called<ListView>(window, "Pages"); }

    /// Types \a key and returns whether a page called \a expected is shown then.
    bool titleAfter(const char *key, const char *expected) const
    {
        return RealInput::typeKeys({ QString::fromLatin1(key) })
                && QTest::qWaitFor([&] { return title() == QLatin1String(expected); }, 2000);
    }

    /// Returns the title of the current page.
    QString title() const { return page()->findChild<OxaLabel *>()->text(); }

    GalleryWindow window;
    bool isActive = false;
};

} // namespace

/// The gallery by keyboard, with keys that come from the X server.
class tst_GalleryWindow_keys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void entersASegmentedControlAtItsCurrentMember();
    void goesToTheNextSegmentByAnArrowKey();
    void listsTheStopsThatTabMakes();
    void goesBetweenThePanesByF6();
    void choosesTheFirstAndTheLastPageByHomeAndEnd();
    void goesToTheNeighboursOfAPage();
    void goesBackAndForwardThroughPages();
    void goesToTheSearchOfAPage();
    void scalesMessages();
    void hidesTheNavigation();
    void emitsTheSignalOfAShortcut();
    void listsTheShortcutsInADialogThatEscapeCloses();
    void goesBackToTheOpenerOfADialog_data();
    void goesBackToTheOpenerOfADialog();
    void namesASpaceInADialog();
    void stopsOnceAtAContainer();
    void followsAShortcutInASecondWindow();
    void clearsASearchByEscape();
    void fillsInAFormByKeys();
    void showsTheCurrentCellOfATable();
    void showsWhereTheFocusIs_data();
    void showsWhereTheFocusIs();
};

void tst_GalleryWindow_keys::entersASegmentedControlAtItsCurrentMember()
{
    const Shown shown("labels");
    QVERIFY(shown.isActive);
    shown.control("Theme type").setCurrentIndex(2);
    QCOMPARE(shown.focusedText(), QStringLiteral("Light"));
    QVERIFY(shown.type("Tab"));
    QCOMPARE(shown.focusedText(), QStringLiteral("Dark"));
    QVERIFY(shown.type("Tab"));
    QCOMPARE(shown.focusedText(), QStringLiteral("LTR"));
    QVERIFY(shown.type("shift+Tab"));
    QCOMPARE(shown.focusedText(), QStringLiteral("Dark"));
}

void tst_GalleryWindow_keys::goesToTheNextSegmentByAnArrowKey()
{
    const Shown shown("labels");
    QVERIFY(shown.isActive);
    QVERIFY(shown.type("Tab"));
    QVERIFY(shown.type("Right"));
    QCOMPARE(shown.focusedText(), QStringLiteral("Light"));
    QCOMPARE(shown.control("Theme type").currentIndex(), 1);
    QVERIFY(shown.type("Left"));
    QCOMPARE(shown.control("Theme type").currentIndex(), 0);
}

void tst_GalleryWindow_keys::listsTheStopsThatTabMakes()
{
    Shown shown("focus");
    QVERIFY(shown.isActive);
    const std::vector<QWidget *> stops = TabOrder::of(&shown.window);
    QVERIFY(stops.size() > 10);
    for (std::size_t i = 1; i <= stops.size(); ++i) {
        const QWidget *expected = stops[i % stops.size()];
        const QWidget *reached = shown.type("Tab");
        QVERIFY2(reached == expected, qPrintable(TabOrder::describe(*reached)));
    }
}

void tst_GalleryWindow_keys::goesBetweenThePanesByF6()
{
    const Shown shown("colours");
    QVERIFY(shown.isActive);
    const QWidget *inHeader = shown.window.focusWidget();
    const auto *navigation = shown.window.findChild<NavigationList *>();
    QVERIFY(navigation->isAncestorOf(shown.type("F6")));
    QCOMPARE(shown.navigation().currentIndex().data().toString(), QStringLiteral("Colours"));
    const QWidget *inPage = shown.type("F6");
    QVERIFY(shown.page()->isAncestorOf(inPage));
    QCOMPARE(shown.type("F6"), inHeader);
    QCOMPARE(shown.type("shift+F6"), inPage);
    QVERIFY(navigation->isAncestorOf(shown.type("shift+F6")));
}

void tst_GalleryWindow_keys::choosesTheFirstAndTheLastPageByHomeAndEnd()
{
    const Shown shown("labels");
    QVERIFY(shown.isActive);
    QCOMPARE(shown.type("F6"), &shown.navigation());
    QVERIFY(shown.titleAfter("End", "Signals"));
    QVERIFY(shown.titleAfter("Home", "Colours"));
    QVERIFY(shown.titleAfter("Down", "Style text"));
    QVERIFY(shown.navigation().hasFocus());
}

void tst_GalleryWindow_keys::goesToTheNeighboursOfAPage()
{
    const Shown shown("labels");
    QVERIFY(shown.isActive);
    QVERIFY(shown.titleAfter("alt+Down", "Buttons"));
    QVERIFY(shown.titleAfter("alt+Up", "Labels"));
    QVERIFY(shown.titleAfter("alt+Up", "Icons"));
}

void tst_GalleryWindow_keys::goesBackAndForwardThroughPages()
{
    Shown shown("labels");
    QVERIFY(shown.isActive);
    shown.window.showPage(QStringLiteral("focus"));
    shown.window.showPage(QStringLiteral("forms"));
    QVERIFY(shown.titleAfter("alt+Left", "Focus"));
    QVERIFY(shown.titleAfter("alt+Left", "Labels"));
    QVERIFY(shown.titleAfter("alt+Right", "Focus"));
    shown.window.showPage(QStringLiteral("icons"));
    QVERIFY(RealInput::typeKeys({ QStringLiteral("alt+Right") }));
    QVERIFY(shown.titleAfter("alt+Left", "Focus"));
}

void tst_GalleryWindow_keys::goesToTheSearchOfAPage()
{
    const Shown shown("colours");
    QVERIFY(shown.isActive);
    QVERIFY(shown.type("ctrl+f"));
    QCOMPARE(shown.window.focusWidget()->accessibleName(), QStringLiteral("Search"));
    QVERIFY(shown.page()->isAncestorOf(shown.window.focusWidget()));
}

void tst_GalleryWindow_keys::scalesMessages()
{
    const Shown shown("labels");
    QVERIFY(shown.isActive);
    const SegmentedControl &view = shown.control("Messaging view");
    QCOMPARE(view.currentIndex(), 1);
    QVERIFY(RealInput::typeKeys({ QStringLiteral("ctrl+equal"), QStringLiteral("ctrl+plus") }));
    QTRY_COMPARE(view.currentIndex(), 3);
    QVERIFY(RealInput::typeKeys({ QStringLiteral("ctrl+plus"), QStringLiteral("ctrl+minus"),
                                  QStringLiteral("ctrl+minus") }));
    QTRY_COMPARE(view.currentIndex(), 1);
}

void tst_GalleryWindow_keys::hidesTheNavigation()
{
    const Shown shown("colours");
    QVERIFY(shown.isActive);
    const auto *navigation = shown.window.findChild<NavigationList *>();
    QVERIFY(navigation->isAncestorOf(shown.type("F6")));
    QVERIFY(RealInput::typeKeys({ QStringLiteral("alt+shift+q") }));
    QTRY_VERIFY(!navigation->isVisible());
    QVERIFY(shown.page()->width() == shown.window.width());
    QWidget *const inPage = shown.type("F6");
    QVERIFY(!navigation->isAncestorOf(inPage));
    QVERIFY(shown.type("F6") != inPage);
    QVERIFY(!navigation->isAncestorOf(shown.window.focusWidget()));
    QVERIFY(RealInput::typeKeys({ QStringLiteral("alt+shift+q") }));
    QTRY_VERIFY(navigation->isVisible());
}

void tst_GalleryWindow_keys::emitsTheSignalOfAShortcut()
{
    const Shown shown("signals");
    QVERIFY(shown.isActive);
    const auto *log = shown.page()->findChild<CodeEdit *>();
    QVERIFY(RealInput::typeKeys({ QStringLiteral("ctrl+m") }));
    QTRY_VERIFY(log->toPlainText().contains(QLatin1String("toggleAudioMute()")));
}

void tst_GalleryWindow_keys::listsTheShortcutsInADialogThatEscapeCloses()
{
    const Shown shown("labels");
    QVERIFY(shown.isActive);
    QWidget *const opener = shown.window.focusWidget();
    QVERIFY(RealInput::typeKeys({ QStringLiteral("ctrl+slash") }));
    const QPointer<Dialog> dialog = shown.dialog();
    QVERIFY(dialog);
    const auto *list = dialog->findChild<OxaTextBrowser *>();
    QVERIFY(list->toPlainText().contains(QLatin1String("Ctrl+Shift+K")));
    QVERIFY(RealInput::send({ QStringLiteral("type"), QStringLiteral("diagnos") }));
    QTRY_COMPARE(list->toPlainText(),
                 QStringLiteral("General\nOpen diagnostics dialog\nCtrl+Alt+Shift+D\n"));
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Escape") }));
    QTRY_VERIFY(!dialog);
    QTRY_VERIFY(shown.window.isActiveWindow());
    QTRY_COMPARE(QApplication::focusWidget(), opener);
}

void tst_GalleryWindow_keys::goesBackToTheOpenerOfADialog_data()
{
    QTest::addColumn<QByteArray>("opener");
    QTest::addColumn<QByteArray>("key");
    QTest::newRow("modal, closed by Escape") << QByteArray("Rename…") << QByteArray("Escape");
    QTest::newRow("modal, closed by Return") << QByteArray("Rename…") << QByteArray("Return");
    QTest::newRow("modeless") << QByteArray("Notes…") << QByteArray("Escape");
}

void tst_GalleryWindow_keys::goesBackToTheOpenerOfADialog()
{
    QFETCH(const QByteArray, opener);
    QFETCH(const QByteArray, key);
    const Shown shown("windows");
    QVERIFY(shown.isActive);
    auto *button = Controls::withText(*shown.page(), opener.constData());
    button->setFocus(Qt::TabFocusReason);
    QVERIFY(RealInput::typeKeys({ QStringLiteral("space") }));
    const QPointer<Dialog> dialog = shown.dialog();
    QVERIFY(dialog);
    QVERIFY(RealInput::typeKeys({ QString::fromLatin1(key) }));
    QTRY_VERIFY(!dialog);
    QTRY_VERIFY(shown.window.isActiveWindow());
    QTRY_COMPARE(QApplication::focusWidget(), button);
}

void tst_GalleryWindow_keys::namesASpaceInADialog()
{
    const Shown shown("windows");
    QVERIFY(shown.isActive);
    Controls::withText(*shown.page(), "Rename…")->setFocus(Qt::TabFocusReason);
    QVERIFY(RealInput::typeKeys({ QStringLiteral("space") }));
    const QPointer<Dialog> dialog = shown.dialog();
    QVERIFY(dialog);
    QVERIFY(RealInput::send({ QStringLiteral("type"), QStringLiteral("Research") }));
    QTRY_COMPARE(dialog->findChild<OxaLineEdit *>()->text(), QStringLiteral("Research"));
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Return") }));
    QTRY_VERIFY(Controls::withText<OxaLabel>(*shown.page(), "Research"));
}

void tst_GalleryWindow_keys::stopsOnceAtAContainer()
{
    const Shown shown("windows");
    QVERIFY(shown.isActive);
    auto *sound = Controls::withText(*shown.page(), "Sound");
    auto *hours = Controls::withText(*shown.page(), "Hours");
    sound->setFocus(Qt::TabFocusReason);
    QCOMPARE(shown.type("Down"), hours);
    QVERIFY(!hours->isChecked());
    QCOMPARE(shown.type("Tab")->accessibleName(), QStringLiteral("Volume"));
    QVERIFY(sound->parentWidget()->isAncestorOf(shown.type("shift+Tab")));
    hours->setFocus(Qt::TabFocusReason);
    QVERIFY(RealInput::typeKeys({ QStringLiteral("space") }));
    QTRY_VERIFY(hours->isChecked());
    QCOMPARE(shown.type("Tab")->accessibleName(), QStringLiteral("Working hours begin"));
}

void tst_GalleryWindow_keys::followsAShortcutInASecondWindow()
{
    const Shown shown("windows");
    QVERIFY(shown.isActive);
    auto *button = Controls::withText(*shown.page(), "Open a second window");
    button->setFocus(Qt::TabFocusReason);
    QVERIFY(RealInput::typeKeys({ QStringLiteral("space") }));
    QTRY_VERIFY(shown.window.findChild<SecondWindow *>());
    const QPointer<SecondWindow> second = shown.window.findChild<SecondWindow *>();
    QVERIFY(QTest::qWaitForWindowActive(second));
    QVERIFY(RealInput::typeKeys({ QStringLiteral("ctrl+m") }));
    QTRY_COMPARE(second->findChild<SignalLog *>()->toPlainText(),
                 QStringLiteral("toggleAudioMute()"));
    Controls::withText(*second, "Close")->setFocus(Qt::TabFocusReason);
    QVERIFY(RealInput::typeKeys({ QStringLiteral("space") }));
    QTRY_VERIFY(!second);
    QTRY_COMPARE(QApplication::focusWidget(), button);
}

void tst_GalleryWindow_keys::clearsASearchByEscape()
{
    const Shown shown("colours");
    QVERIFY(shown.isActive);
    auto *search = shown.page()->findChild<OxaTextInput *>();
    search->setText(QStringLiteral("border"));
    search->setFocus();
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Escape") }));
    QTRY_COMPARE(search->text(), QString());
    QVERIFY(search->hasFocus());
}

void tst_GalleryWindow_keys::fillsInAFormByKeys()
{
    const Shown shown("forms");
    QVERIFY(shown.isActive);
    const auto typeText = [](const char *text) {
        return RealInput::send({ QStringLiteral("type"), QString::fromLatin1(text) });
    };
    auto *address = Controls::called<OxaTextInput>(*shown.page(), "Mail address");
    address->setFocus();
    QVERIFY(typeText("ada@"));
    QTRY_COMPARE(address->text(), QStringLiteral("ada@"));
    QCOMPARE(shown.type("Tab")->accessibleName(), QStringLiteral("Clear Input"));
    QCOMPARE(shown.type("Tab")->accessibleName(), QStringLiteral("Password"));
    QVERIFY(typeText("secret"));
    QCOMPARE(shown.type("Tab")->accessibleName(), QStringLiteral("Show password"));
    auto *remember = qobject_cast<OxaCheckBox *>(shown.type("Tab"));
    QVERIFY(remember);
    QVERIFY(RealInput::typeKeys({ QStringLiteral("space") }));
    QTRY_VERIFY(remember->isChecked());
    QVERIFY(shown.type("Tab"));
    QCOMPARE(shown.focusedText(), QStringLiteral("Sign in"));
    QCOMPARE(shown.type("Tab")->accessibleName(), QStringLiteral("Name"));
    QCOMPARE(shown.type("Tab")->accessibleName(), QStringLiteral("Language"));
    auto *captions = qobject_cast<OxaComboBox *>(shown.type("Tab"));
    QVERIFY(captions);
    QVERIFY(RealInput::typeKeys({ QStringLiteral("space") }));
    QTRY_VERIFY(captions->view()->isVisible());
    QVERIFY(captions->view()->window()->frameGeometry().bottom()
            < captions->mapToGlobal(QPoint()).y());
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Down"), QStringLiteral("space") }));
    QTRY_COMPARE(captions->currentText(), QStringLiteral("In calls"));
    QTRY_VERIFY(!captions->view()->isVisible());
}

void tst_GalleryWindow_keys::showsTheCurrentCellOfATable()
{
    const Shown shown("colours");
    QVERIFY(shown.isActive);
    auto *table = shown.page()->findChild<TableView *>();
    const QColor border = OxaThemeUtils::getColorSet("gallery-focus-border",
                                                     OxaThemeUtils::AppThemeType::Global)
                                  .normal;
    const auto frameIsAt = [table, border](const QModelIndex &index) {
        const QImage image = table->viewport()->grab().toImage();
        return image.pixelColor(table->visualRect(index).topLeft() + QPoint(1, 5)) == border;
    };
    shown.page()->findChild<OxaTextInput *>()->setFocus();
    QCOMPARE(shown.type("Tab"), table);
    const QModelIndex first = table->currentIndex();
    QVERIFY(first.isValid());
    QTRY_VERIFY(frameIsAt(first));
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Right") }));
    QTRY_VERIFY(frameIsAt(first.siblingAtColumn(1)));
    QVERIFY(!frameIsAt(first));
}

void tst_GalleryWindow_keys::showsWhereTheFocusIs_data()
{
    QTest::addColumn<QByteArray>("page");
    for (const QString &name : pageNames())
        QTest::newRow(qPrintable(name)) << name.toLatin1();
}

void tst_GalleryWindow_keys::showsWhereTheFocusIs()
{
    QFETCH(const QByteArray, page);
    Shown shown(page.constData());
    QVERIFY(shown.isActive);
    // Frames that are for the keyboard only need a window in which a key was pressed.
    QVERIFY(shown.type("Tab"));
    QStringList unseen;
    for (QWidget *stop : TabOrder::of(&shown.window)) {
        if (QWidget *focused = shown.window.focusWidget())
            focused->clearFocus();
        const QImage without = stop->grab().toImage();
        stop->setFocus(Qt::TabFocusReason);
        // Tiles are one stop, which hands the focus to the first of them.
        if (stop->grab().toImage() == without)
            unseen += TabOrder::describe(*stop);
    }
    QCOMPARE(unseen.join(QLatin1Char('\n')), QString());
}

GALLERY_TEST_MAIN(tst_GalleryWindow_keys)
#include "tst_gallerywindow_keys.moc"
