// SPDX-License-Identifier: Apache-2.0
#include "Controls.h"
#include "GalleryTest.h"

#include <UiElements/app/OxaAppSignals.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaLineEdit.h>
#include <UiElements/widgets/OxaProgressBar.h>
#include <UiElements/widgets/OxaSlider.h>
#include <UiElements/widgets/OxaStackedWidget.h>
#include <UiElements/widgets/OxaTextBrowser.h>

#include <QPointer>

#include <looks/ThemeSwitcher.h>
#include <pages/windows/SecondWindow.h>
#include <pages/windows/SettingsCard.h>
#include <shell/Page.h>
#include <shell/PageRegistry.h>
#include <shell/ShortcutsDialog.h>
#include <specimens/EmissionLog.h>
#include <support/RealInput.h>
#include <widgets/Dialog.h>

namespace {

/// The page in a window that is shown.
struct Shown
{
    Shown()
    {
        page->resize(window.size());
        window.show();
    }

    /// Clicks the button \a text of the page.
    void click(const char *text) const { Controls::withText(*page, text)->click(); }

    QPointer<Dialog> dialog() const { return window.findChild<Dialog *>(); }

    /// Returns what the dialogs have emitted.
    QStringList log() const
    {
        return page->findChild<EmissionLog *>()->toPlainText().split(QLatin1Char('\n'));
    }

    /// Returns the name that the first dialog asks for.
    QString name() const
    {
        return Controls::withText(*page, "Rename…")
                ->parentWidget()
                ->findChildren<OxaLabel *>()
                .last()
                ->text();
    }

    QWidget window;
    Page *page = findPageEntry(QStringLiteral("windows"))->make(&window);
};

void deleteClosed() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

} // namespace

/// The page "Windows and dialogs".
class tst_WindowsPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void logsTheShortcutsInASecondWindow();
    void givesASecondWindowTheThemeTypeOfTheOthers();
    void registersShortcutsOnTheFirstWindowOnly();
    void listsShortcutsInTheDirectionOfTheLayout();
    void renamesByADialog();
    void keepsTheNameWhenTheDialogIsCancelled();
    void logsHowADialogIsClosed_data();
    void logsHowADialogIsClosed();
    void opensTheNotesOnce();
    void survivesThePageWithADialogOpen();
    void showsThePageOfAButton();
    void followsTheVolume();
};

/// Moves the pointer to where no window is: when a modal dialog closes, Qt looks for the window
/// under the pointer, and warns if the frame that it finds is gone by then.
void tst_WindowsPage::initTestCase()
{
    QVERIFY(RealInput::send(
            { QStringLiteral("mousemove"), QStringLiteral("1270"), QStringLiteral("1014") }));
}

void tst_WindowsPage::logsTheShortcutsInASecondWindow()
{
    const Shown shown;
    shown.click("Open a second window");
    const QPointer<SecondWindow> second = shown.window.findChild<SecondWindow *>();
    QVERIFY(second && second->isVisible());
    Q_EMIT OxaAppSignals::get()->toggleAudioMute();
    QCOMPARE(second->findChild<EmissionLog *>()->toPlainText(),
             QStringLiteral("toggleAudioMute()"));
    Controls::withText(*second, "Close")->click();
    deleteClosed();
    QVERIFY(!second);
}

void tst_WindowsPage::givesASecondWindowTheThemeTypeOfTheOthers()
{
    GalleryApplication::get()->themeSwitcher()->setThemeType(QStringLiteral("dark"));
    const QVariant type = SecondWindow(nullptr).property("themeType");
    GalleryApplication::get()->themeSwitcher()->setThemeType(QStringLiteral("global"));
    QCOMPARE(type.toString(), QStringLiteral("dark"));
}

void tst_WindowsPage::registersShortcutsOnTheFirstWindowOnly()
{
    const auto areRegistered = [] {
        return OxaAppSignals::get()->shortcutExists(OxaAppSignals::Shortcut::OpenGlobalSearch);
    };
    QVERIFY(!areRegistered());
    auto first = std::make_unique<OxaMainWindow>();
    QCOMPARE(first->findChildren<OxaShortcut *>().size(), 58);
    {
        const OxaMainWindow second;
        QVERIFY(second.findChildren<OxaShortcut *>().isEmpty());
    }
    QVERIFY(areRegistered());
    first.reset();
    QVERIFY(!areRegistered());
}

void tst_WindowsPage::listsShortcutsInTheDirectionOfTheLayout()
{
    const OxaMainWindow window;
    const auto list = [] {
        return ShortcutsDialog(nullptr).findChild<OxaTextBrowser *>()->toPlainText();
    };
    QVERIFY(list().contains(QLatin1String("\nAnswer call\nCtrl+Shift+C\n")));
    GalleryApplication::get()->textSettings()->setDirection(Qt::RightToLeft);
    const QString mirrored = list();
    GalleryApplication::get()->textSettings()->setDirection(Qt::LeftToRight);
    QVERIFY(mirrored.contains(QLatin1String("\nCtrl+Shift+C\nAnswer call\n")));
}

void tst_WindowsPage::renamesByADialog()
{
    const Shown shown;
    shown.click("Rename…");
    const QPointer<Dialog> dialog = shown.dialog();
    QVERIFY(dialog->isModal());
    auto *field = Controls::called<OxaLineEdit>(*dialog, "Name");
    QCOMPARE(field->selectedText(), QStringLiteral("Design"));
    field->setText(QStringLiteral("Research"));
    Controls::withText(*dialog, "Rename")->click();
    QCOMPARE(shown.name(), QStringLiteral("Research"));
    deleteClosed();
    QVERIFY(!dialog);
}

void tst_WindowsPage::keepsTheNameWhenTheDialogIsCancelled()
{
    const Shown shown;
    shown.click("Rename…");
    Controls::called<OxaLineEdit>(*shown.dialog(), "Name")->setText(QStringLiteral("Research"));
    Controls::withText(*shown.dialog(), "Cancel")->click();
    QCOMPARE(shown.name(), QStringLiteral("Design"));
    deleteClosed();
}

void tst_WindowsPage::logsHowADialogIsClosed_data()
{
    QTest::addColumn<QString>("close");
    QTest::addColumn<QStringList>("log");
    const QStringList rejection { QStringLiteral("rejected()"), QStringLiteral("finished(0)") };
    const QStringList acceptance { QStringLiteral("accepted()"), QStringLiteral("finished(1)") };
    QTest::newRow("by its window's button")
            << QStringLiteral("close") << QStringList(QStringLiteral("onClose()")) + rejection;
    QTest::newRow("rejected") << QStringLiteral("reject") << rejection;
    QTest::newRow("accepted") << QStringLiteral("accept") << acceptance;
}

void tst_WindowsPage::logsHowADialogIsClosed()
{
    QFETCH(const QString, close);
    const Shown shown;
    shown.click("Rename…");
    QMetaObject::invokeMethod(shown.dialog(), qPrintable(close));
    QTEST(shown.log(), "log");
    deleteClosed();
}

void tst_WindowsPage::opensTheNotesOnce()
{
    const Shown shown;
    shown.click("Notes…");
    shown.click("Notes…");
    QCOMPARE(shown.window.findChildren<Dialog *>().size(), 1);
    QVERIFY(!shown.dialog()->isModal());
    shown.dialog()->close();
    deleteClosed();
    QVERIFY(!shown.dialog());
    shown.click("Notes…");
    QVERIFY(shown.dialog());
}

void tst_WindowsPage::survivesThePageWithADialogOpen()
{
    const Shown shown;
    shown.click("Notes…");
    const QPointer<Dialog> dialog = shown.dialog();
    delete shown.page;
    QVERIFY(dialog);
    dialog->close();
    deleteClosed();
    QVERIFY(!dialog);
}

void tst_WindowsPage::showsThePageOfAButton()
{
    const Shown shown;
    const auto *card = shown.page->findChild<SettingsCard *>();
    const auto *pages = card->findChild<OxaStackedWidget *>();
    const auto *sound = Controls::withText(*card, "Sound");
    const auto *hours = Controls::withText(*card, "Hours");
    QVERIFY(sound->isChecked() && !hours->isChecked());
    shown.click("Hours");
    QCOMPARE(pages->currentIndex(), 1);
    QVERIFY(!sound->isChecked() && hours->isChecked());
    shown.click("Hours");
    QVERIFY(hours->isChecked());
    QVERIFY(!Controls::withText(*card, "Video")->isEnabled());
}

void tst_WindowsPage::followsTheVolume()
{
    const Shown shown;
    const auto *card = shown.page->findChild<SettingsCard *>();
    Controls::called<OxaSlider>(*card, "Volume")->setValue(25);
    QCOMPARE(Controls::called<OxaProgressBar>(*card, "Level")->value(), 25);
}

GALLERY_TEST_MAIN(tst_WindowsPage)
#include "tst_windowspage.moc"
