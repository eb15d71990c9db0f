// SPDX-License-Identifier: Apache-2.0
#include "GalleryTest.h"
#include "support/Pixels.h"

#include <UiElements/widgets/OxaLineEdit.h>
#include <UiElements/widgets/OxaSlider.h>

#include <QPointer>
#include <QSignalSpy>

#include <pages/focus/FocusPage.h>
#include <pages/focus/TabOrderOverlay.h>
#include <pages/focus/WindowWatcher.h>
#include <shell/TabOrder.h>
#include <widgets/Buttons.h>
#include <widgets/CodeEdit.h>
#include <widgets/Fields.h>
#include <widgets/SegmentedControl.h>

namespace {

/// The page in a window with a button before it. The window sets no minimum size, which the
/// platform does not enforce.
struct Shown
{
    Shown()
    {
        window.resize(1000, 760);
        page.setGeometry(0, 50, 1000, 700);
        window.show();
        settle();
    }

    /// Clicks the segment called \a text.
    void click(const char *text) const
    {
        const auto buttons = page.findChildren<OxaToggleButton *>();
        for (OxaToggleButton *button : buttons) {
            if (button->text() == QLatin1String(text))
                button->click();
        }
        settle();
    }

    static void settle() { QCoreApplication::processEvents(); }

    /// Returns the listed lines that name a push button, without their numbers.
    QString listedButtons() const
    {
        QStringList names;
        const QStringList lines = page.findChild<CodeEdit *>()->toPlainText().split(
                QLatin1Char('\n'));
        for (const QString &line : lines) {
            if (line.contains(QLatin1String(" OxaPushButton ")))
                names += line.section(QStringLiteral("“"), 1).chopped(1);
        }
        return names.join(QLatin1Char(' '));
    }

    TabOrderOverlay *overlay() const { return window.findChild<TabOrderOverlay *>(); }

    QWidget window;
    OxaPushButton &outside = *Buttons::make(QStringLiteral("Outside"), &window);
    FocusPage &page = *new FocusPage(&window);
};

} // namespace

/// The page "Focus": the tab order of the window as text, and drawn over it.
class tst_FocusPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase() { m_described.reset(); }

    void listsTheTabOrderOfTheWholeWindow();
    void followsTheOrderOfTheCompoundWidget();
    void followsTheStateOfAButton_data();
    void followsTheStateOfAButton();
    void marksWhatHasTheFocus();
    void drawsOverTheWindow();
    void takesNoClicks();
    void hidesTheOverlayWithThePage();
    void describesWidgets_data();
    void describesWidgets();
    void emitsOneSignalForEachTurnOfTheEventLoop();
    void ignoresOtherWindows();

private:
    std::unique_ptr<QWidget> m_described; ///< The parent of the rows' widgets.
};

void tst_FocusPage::listsTheTabOrderOfTheWholeWindow()
{
    Shown shown;
    QCOMPARE(shown.listedButtons(),
             QStringLiteral("Outside First Ada Ben Cleo Dev Eva Finn Last Invite"));
    const auto stops = TabOrder::of(&shown.window);
    const QString text = shown.page.findChild<CodeEdit *>()->toPlainText();
    QCOMPARE(text.count(QLatin1Char('\n')) + 1, int(stops.size()));
    QVERIFY(text.startsWith(QStringLiteral("   1 OxaPushButton “Outside”")));
}

void tst_FocusPage::followsTheOrderOfTheCompoundWidget()
{
    Shown shown;
    shown.click("Backwards");
    QCOMPARE(shown.listedButtons(),
             QStringLiteral("Outside First Finn Eva Dev Cleo Ben Ada Last Invite"));
    shown.click("Shuffled");
    QVERIFY(!shown.listedButtons().contains(QLatin1String("Finn Eva Dev Cleo Ben Ada")));
    shown.click("Forwards");
    QCOMPARE(shown.listedButtons(),
             QStringLiteral("Outside First Ada Ben Cleo Dev Eva Finn Last Invite"));
}

void tst_FocusPage::followsTheStateOfAButton_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<bool>("isListed");
    QTest::newRow("disabled") << QStringLiteral("Disabled") << false;
    QTest::newRow("hidden") << QStringLiteral("Hidden") << false;
    QTest::newRow("takes the focus by a click") << QStringLiteral("Click") << false;
    QTest::newRow("takes it by Tab") << QStringLiteral("Tab") << true;
}

void tst_FocusPage::followsTheStateOfAButton()
{
    QFETCH(const QString, state);
    Shown shown;
    shown.click("Disabled");
    shown.click(qPrintable(state));
    QTEST(shown.listedButtons().contains(QLatin1String("Invite")), "isListed");
}

void tst_FocusPage::marksWhatHasTheFocus()
{
    Shown shown;
    shown.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&shown.window));
    shown.outside.setFocus();
    const auto *list = shown.page.findChild<CodeEdit *>();
    QTRY_VERIFY(list->toPlainText().startsWith(QStringLiteral("▸  1 OxaPushButton “Outside”")));
    QCOMPARE(list->toPlainText().count(QStringLiteral("▸")), 1);
}

void tst_FocusPage::drawsOverTheWindow()
{
    Shown shown;
    QCOMPARE(shown.overlay()->geometry(), shown.window.rect());
    const QColor ground =
            OxaThemeUtils::getColorSet("avatar-purple", OxaThemeUtils::AppThemeType::Global).normal;
    // The badge of the button, cut off at the window's corner, begins there.
    const QImage image = shown.overlay()->grab().toImage();
    QCOMPARE(image.pixelColor(4, 10), ground);
    shown.click("Text only");
    QVERIFY(!shown.overlay()->isVisible());
    QVERIFY(shown.listedButtons().startsWith(QLatin1String("Outside")));
    shown.click("Over the window");
    QVERIFY(shown.overlay()->isVisible());
}

void tst_FocusPage::takesNoClicks()
{
    Shown shown;
    QCOMPARE(shown.window.childAt(shown.outside.geometry().center()), &shown.outside);
    const auto stops = TabOrder::of(&shown.window);
    QVERIFY(std::find(stops.begin(), stops.end(), shown.overlay()) == stops.end());
}

void tst_FocusPage::hidesTheOverlayWithThePage()
{
    Shown shown;
    shown.page.hide();
    QVERIFY(!shown.overlay()->isVisible());
    QTRY_VERIFY(!shown.overlay());
    QVERIFY(!shown.window.findChild<WindowWatcher *>());
    shown.page.show();
    QVERIFY(shown.overlay());
    delete &shown.page;
    QVERIFY(!shown.overlay());
}

void tst_FocusPage::describesWidgets_data()
{
    QTest::addColumn<QWidget *>("widget");
    QTest::addColumn<QString>("text");
    m_described = std::make_unique<QWidget>();
    QWidget *parent = m_described.get();
    QTest::newRow("a button, by its text")
            << static_cast<QWidget *>(Buttons::make(QStringLiteral("Send"), parent))
            << QStringLiteral("OxaPushButton “Send”");
    auto *field = Fields::line(parent);
    field->setAccessibleName(QStringLiteral("Name"));
    QTest::newRow("a field, by its accessible name")
            << static_cast<QWidget *>(field) << QStringLiteral("OxaLineEdit “Name”");
    QTest::newRow("what has no name") << static_cast<QWidget *>(Fields::slider(0, 1, 0, parent))
                                      << QStringLiteral("OxaSlider");
}

void tst_FocusPage::describesWidgets()
{
    QFETCH(QWidget *, widget);
    QTEST(TabOrder::describe(*widget), "text");
}

void tst_FocusPage::emitsOneSignalForEachTurnOfTheEventLoop()
{
    QWidget window;
    auto *child = new QWidget(&window);
    window.show();
    const WindowWatcher *watcher = new WindowWatcher(&window);
    QSignalSpy changed(watcher, &WindowWatcher::changed);
    QCoreApplication::processEvents();
    changed.clear();
    child->resize(20, 20);
    child->move(5, 5);
    child->setEnabled(false);
    QCOMPARE(changed.size(), 0);
    QTRY_COMPARE(changed.size(), 1);
}

void tst_FocusPage::ignoresOtherWindows()
{
    QWidget window;
    QWidget other;
    QWidget inside(&other);
    other.show();
    const WindowWatcher *watcher = new WindowWatcher(&window);
    const QSignalSpy changed(watcher, &WindowWatcher::changed);
    inside.setEnabled(false);
    QCoreApplication::processEvents();
    QCOMPARE(changed.size(), 0);
}

GALLERY_TEST_MAIN(tst_FocusPage)
#include "tst_focuspage.moc"
