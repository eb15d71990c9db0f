// SPDX-License-Identifier: Apache-2.0
#include "GalleryTest.h"
#include "ShownGallery.h"

#include <UiElements/widgets/OxaLineEdit.h>
#include <UiElements/widgets/OxaTextBrowser.h>

#include <pages/windows/SecondWindow.h>
#include <shell/NavigationList.h>
#include <specimens/EmissionLog.h>

/// The gallery's shortcuts, dialogs and further windows, with keys that come from the X server.
class tst_GalleryWindow_shortcuts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
};

void tst_GalleryWindow_shortcuts::goesToTheNeighboursOfAPage()
{
    const ShownGallery shown("labels");
    QVERIFY(shown.isActive);
    QVERIFY(shown.titleAfter("alt+Down", "Buttons"));
    QVERIFY(shown.titleAfter("alt+Up", "Labels"));
    QVERIFY(shown.titleAfter("alt+Up", "Icons"));
}

void tst_GalleryWindow_shortcuts::goesBackAndForwardThroughPages()
{
    ShownGallery shown("labels");
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

void tst_GalleryWindow_shortcuts::goesToTheSearchOfAPage()
{
    const ShownGallery shown("colours");
    QVERIFY(shown.isActive);
    QVERIFY(shown.type("ctrl+f"));
    QCOMPARE(shown.window.focusWidget()->accessibleName(), QStringLiteral("Search"));
    QVERIFY(shown.page()->isAncestorOf(shown.window.focusWidget()));
}

void tst_GalleryWindow_shortcuts::scalesMessages()
{
    const ShownGallery shown("labels");
    QVERIFY(shown.isActive);
    const SegmentedControl &view = shown.control("Messaging view");
    QCOMPARE(view.currentIndex(), 1);
    QVERIFY(RealInput::typeKeys({ QStringLiteral("ctrl+equal"), QStringLiteral("ctrl+plus") }));
    QTRY_COMPARE(view.currentIndex(), 3);
    QVERIFY(RealInput::typeKeys({ QStringLiteral("ctrl+plus"), QStringLiteral("ctrl+minus"),
                                  QStringLiteral("ctrl+minus") }));
    QTRY_COMPARE(view.currentIndex(), 1);
}

void tst_GalleryWindow_shortcuts::hidesTheNavigation()
{
    const ShownGallery shown("colours");
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

void tst_GalleryWindow_shortcuts::emitsTheSignalOfAShortcut()
{
    const ShownGallery shown("signals");
    QVERIFY(shown.isActive);
    const auto *log = shown.page()->findChild<CodeEdit *>();
    QVERIFY(RealInput::typeKeys({ QStringLiteral("ctrl+m") }));
    QTRY_VERIFY(log->toPlainText().contains(QLatin1String("toggleAudioMute()")));
}

void tst_GalleryWindow_shortcuts::listsTheShortcutsInADialogThatEscapeCloses()
{
    const ShownGallery shown("labels");
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

void tst_GalleryWindow_shortcuts::goesBackToTheOpenerOfADialog_data()
{
    QTest::addColumn<QByteArray>("opener");
    QTest::addColumn<QByteArray>("key");
    QTest::newRow("modal, closed by Escape") << QByteArray("Rename…") << QByteArray("Escape");
    QTest::newRow("modal, closed by Return") << QByteArray("Rename…") << QByteArray("Return");
    QTest::newRow("modeless") << QByteArray("Notes…") << QByteArray("Escape");
}

void tst_GalleryWindow_shortcuts::goesBackToTheOpenerOfADialog()
{
    QFETCH(const QByteArray, opener);
    QFETCH(const QByteArray, key);
    const ShownGallery shown("windows");
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

void tst_GalleryWindow_shortcuts::namesASpaceInADialog()
{
    const ShownGallery shown("windows");
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

void tst_GalleryWindow_shortcuts::stopsOnceAtAContainer()
{
    const ShownGallery shown("windows");
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

void tst_GalleryWindow_shortcuts::followsAShortcutInASecondWindow()
{
    const ShownGallery shown("windows");
    QVERIFY(shown.isActive);
    auto *button = Controls::withText(*shown.page(), "Open a second window");
    button->setFocus(Qt::TabFocusReason);
    QVERIFY(RealInput::typeKeys({ QStringLiteral("space") }));
    QTRY_VERIFY(shown.window.findChild<SecondWindow *>());
    const QPointer<SecondWindow> second = shown.window.findChild<SecondWindow *>();
    QVERIFY(QTest::qWaitForWindowActive(second));
    QVERIFY(RealInput::typeKeys({ QStringLiteral("ctrl+m") }));
    QTRY_COMPARE(second->findChild<EmissionLog *>()->toPlainText(),
                 QStringLiteral("toggleAudioMute()"));
    Controls::withText(*second, "Close")->setFocus(Qt::TabFocusReason);
    QVERIFY(RealInput::typeKeys({ QStringLiteral("space") }));
    QTRY_VERIFY(!second);
    QTRY_COMPARE(QApplication::focusWidget(), button);
}

GALLERY_TEST_MAIN(tst_GalleryWindow_shortcuts)
#include "tst_gallerywindow_shortcuts.moc"
