// SPDX-License-Identifier: Apache-2.0
#include "Controls.h"
#include "GalleryTest.h"

#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaToggleButton.h>
#include <UiElements/widgets/OxaUnderlineButton.h>

#include <ThemeSwitcher.h>
#include <pages/buttons/ButtonLooks.h>
#include <pages/buttons/FocusCard.h>
#include <pages/buttons/FrozenButton.h>
#include <pages/buttons/IconsCard.h>
#include <pages/buttons/PressesCard.h>
#include <pages/buttons/ToggleCard.h>
#include <pages/buttons/UnderlineCard.h>
#include <widgets/CodeEdit.h>
#include <widgets/Slider.h>

Q_DECLARE_METATYPE(QStyle::State)

namespace {

using Controls::choose;
using Controls::withText;

/// Returns how many pixels of \a image are of \a color.
int pixelsOf(const QImage &image, const QColor &color)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == color ? 1 : 0;
    }
    return count;
}

/// Returns the colour of the icon's strongest pixel, as if it were opaque.
QColor inkOf(const OxaPushButton &button, QIcon::State state)
{
    const QImage image = button.icon().pixmap(QSize(16, 16), QIcon::Normal, state).toImage();
    QColor ink(Qt::transparent);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).alpha() > ink.alpha())
                ink = image.pixelColor(x, y);
        }
    }
    return ink;
}

/// True when two colours are the same but for what half-covered pixels lose.
bool isAlike(const QColor &a, const QColor &b)
{
    return qAbs(a.red() - b.red()) + qAbs(a.green() - b.green()) + qAbs(a.blue() - b.blue()) < 12;
}

OxaColorSet colors(const char *name)
{
    return OxaThemeUtils::getColorSet(name, OxaThemeUtils::AppThemeType::Global);
}

/// A card in a window that is shown and active.
template <typename CardClass>
struct Shown
{
    Shown()
    {
        window.resize(600, 400);
        card.resize(window.size());
        window.show();
        window.activateWindow();
        isActive = QTest::qWaitForWindowActive(&window);
    }

    QWidget window;
    CardClass &card = *new CardClass(&window);
    bool isActive = false;
};

} // namespace

/// The page "Buttons": that its controls do what they say.
class tst_ButtonsPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void freezesAButtonInAState_data();
    void freezesAButtonInAState();
    void freezesAButtonForTheMouse();
    void logsWhatAButtonTells();
    void logsLongPressesWhileTheyAreOn();
    void tintsIconsWithTheTheme();
    void showsAndHidesThePixmapAndTheBadges();
    void bringsTheFocusAsTheKeyboardDoes_data();
    void bringsTheFocusAsTheKeyboardDoes();
    void leavesTheApplicationWithItsOwnFocusFrames();
    void givesTheStyleARectangle();
    void setsAllTabsAtOnce();
    void leavesTheToolTipToTheApplication();
};

void tst_ButtonsPage::cleanup()
{
    GalleryApplication::get()->themeSwitcher()->setAppearance(ThemeSwitcher::Appearance::Light);
}

void tst_ButtonsPage::freezesAButtonInAState_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QColor>("ground");
    const OxaColorSet ground = colors("gallery-button-background");
    const QStyle::State pressed = QStyle::State_MouseOver | QStyle::State_Sunken;
    QTest::newRow("normal") << QStyle::State(QStyle::State_None) << ground.normal;
    QTest::newRow("hovered") << QStyle::State(QStyle::State_MouseOver) << ground.hovered;
    QTest::newRow("pressed") << pressed << ground.pressed;
}

void tst_ButtonsPage::freezesAButtonInAState()
{
    QFETCH(const QStyle::State, state);
    QFETCH(const QColor, ground);
    FrozenButton<OxaPushButton> button(state);
    ButtonLooks::apply(button);
    button.resize(80, 32);
    QVERIFY(pixelsOf(button.grab().toImage(), ground) > 80 * 32 / 2);
}

void tst_ButtonsPage::freezesAButtonForTheMouse()
{
    QWidget window;
    auto *button = new FrozenButton<OxaUnderlineButton>(QStyle::State_None);
    button->setParent(&window);
    button->resize(80, 32);
    QCOMPARE(window.childAt(QPoint(10, 10)), nullptr);
    QCOMPARE(button->focusPolicy(), Qt::NoFocus);
}

void tst_ButtonsPage::logsWhatAButtonTells()
{
    const Shown<PressesCard> shown;
    auto *button = withText<OxaPushButton>(shown.card, "Hold me");
    auto *log = shown.card.findChild<CodeEdit *>();
    log->clear();
    QTest::mouseClick(button, Qt::LeftButton);
    QTest::mouseClick(button, Qt::RightButton);
    const QString lines = log->toPlainText();
    QVERIFY2(lines.contains(QStringLiteral("clicked()\nrightClick()")), qPrintable(lines));
}

void tst_ButtonsPage::logsLongPressesWhileTheyAreOn()
{
    const Shown<PressesCard> shown;
    auto *button = withText<OxaPushButton>(shown.card, "Hold me");
    auto *log = shown.card.findChild<CodeEdit *>();
    QTest::mousePress(button, Qt::LeftButton);
    QTRY_VERIFY(log->toPlainText().contains(QStringLiteral("longPressed()")));
    QTest::mouseRelease(button, Qt::LeftButton);
    QVERIFY(!log->toPlainText().contains(QStringLiteral("clicked()")));
    choose(shown.card, "Long press", "Off");
    QVERIFY(!button->isLongPressEnabled());
}

void tst_ButtonsPage::tintsIconsWithTheTheme()
{
    IconsCard card;
    const auto *button = withText<OxaPushButton>(card, "Favourite");
    for (const auto appearance :
         { ThemeSwitcher::Appearance::Dark, ThemeSwitcher::Appearance::Light }) {
        GalleryApplication::get()->themeSwitcher()->setAppearance(appearance);
        card.setThemeType(QStringLiteral("global"));
        const OxaColorSet icon = colors("gallery-icon");
        QVERIFY(isAlike(inkOf(*button, QIcon::On), icon.checked));
        QVERIFY(isAlike(inkOf(*button, QIcon::Off), icon.normal));
    }
    choose(card, "Colour", "Busy");
    QVERIFY(isAlike(inkOf(*button, QIcon::On), colors("presence-busy").checked));
}

void tst_ButtonsPage::showsAndHidesThePixmapAndTheBadges()
{
    const Shown<IconsCard> shown;
    auto *bell = Controls::called<OxaPushButton>(shown.card, "Notifications");
    const QColor ink = colors("gallery-icon").normal;
    const QColor badge = colors("badge-background").normal;
    QVERIFY(pixelsOf(bell->grab().toImage(), ink) > 100);
    QVERIFY(pixelsOf(bell->grab().toImage(), badge) > 40);
    choose(shown.card, "Pixmap", "Hidden");
    QCOMPARE(pixelsOf(bell->grab().toImage(), ink), 0);
    choose(shown.card, "Badge", "Off");
    QCOMPARE(pixelsOf(bell->grab().toImage(), badge), 0);
    QVERIFY(!withText<OxaPushButton>(shown.card, "Favourite")->isBadgeVisible());
}

void tst_ButtonsPage::bringsTheFocusAsTheKeyboardDoes_data()
{
    QTest::addColumn<QString>("button");
    QTest::newRow("dots") << QStringLiteral("Dots");
    QTest::newRow("the style's frame") << QStringLiteral("The style's");
}

void tst_ButtonsPage::bringsTheFocusAsTheKeyboardDoes()
{
    QFETCH(const QString, button);
    const Shown<FocusCard> shown;
    QVERIFY(shown.isActive);
    auto *target = withText<OxaPushButton>(shown.card, qPrintable(button));
    choose(shown.card, "Focus", "Nowhere");
    const QImage without = target->grab().toImage();
    choose(shown.card, "Focus", qPrintable(button));
    QVERIFY(target->hasFocus());
    QVERIFY(shown.window.testAttribute(Qt::WA_KeyboardFocusChange));
    QVERIFY(target->grab().toImage() != without);
    choose(shown.card, "Focus", "Nowhere");
    QVERIFY(!target->hasFocus());
}

void tst_ButtonsPage::leavesTheApplicationWithItsOwnFocusFrames()
{
    const FocusCard card;
    QVERIFY(!qApp->property("useGlobalFocusBorders").isValid());
}

void tst_ButtonsPage::givesTheStyleARectangle()
{
    const Shown<FocusCard> shown;
    auto *button = withText<OxaPushButton>(shown.card, "The style's");
    choose(shown.card, "Rectangle", "A smaller one");
    QCOMPARE(button->property("customFocusRect").toRect(), button->rect().adjusted(5, 5, -5, -5));
    choose(shown.card, "Rectangle", "The button's");
    QVERIFY(button->property("customFocusRect").toRect().isNull());
}

void tst_ButtonsPage::setsAllTabsAtOnce()
{
    const UnderlineCard card;
    const auto tabs = card.findChildren<OxaUnderlineButton *>();
    QCOMPARE(tabs.size(), 3);
    choose(card, "Unread dot", "Off");
    choose(card, "Image", "On");
    choose(card, "Small icon", "Off");
    Controls::called<Slider>(card, "Line")->setValue(5);
    Controls::called<Slider>(card, "Padding")->setValue(9);
    for (const OxaUnderlineButton *tab : tabs) {
        QVERIFY(!tab->getShowUnreadIndicator());
        QVERIFY(!tab->getLeftIcon().isNull());
        QCOMPARE(tab->getAnchorIcon(), QString());
        QCOMPARE(tab->getBorderWidth(), 5);
        QCOMPARE(tab->getBottomPadding(), 9);
    }
}

void tst_ButtonsPage::leavesTheToolTipToTheApplication()
{
    const ToggleCard card;
    auto *button = card.findChild<OxaToggleButton *>();
    const auto *toolTip = Controls::called<OxaLabel>(card, "Tool tip");
    QCOMPARE(toolTip->text(), QStringLiteral("Mute"));
    button->click();
    QVERIFY(!button->isChecked());
    QCOMPARE(toolTip->text(), QStringLiteral("Mute"));
    withText(card, "Uncheck")->click();
    QCOMPARE(toolTip->text(), QStringLiteral("Unmute"));
    QCOMPARE(Controls::called<OxaLabel>(card, "Name")->text(), QStringLiteral("Unmute"));
}

GALLERY_TEST_MAIN(tst_ButtonsPage)
#include "tst_buttonspage.moc"
