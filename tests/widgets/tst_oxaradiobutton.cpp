// SPDX-License-Identifier: Apache-2.0
#include "support/Faces.h"
#include "support/Guards.h"
#include "support/TestApplication.h"

#include <UiElements/svg/DrawUtils.h>
#include <UiElements/widgets/OxaRadioButton.h>

#include <QAccessible>
#include <QPainter>

namespace {

const OxaColorSet focusColors(QStringLiteral("background-primary"), QColor(200, 100, 30));
const QColor inverse(55, 155, 225);
constexpr QStyle::State keyboardFocus = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;

/// Returns \a picture with the dotted frame of \a color on it.
QImage framed(QImage picture, const QColor &color)
{
    QPainter painter(&picture);
    DrawUtils::drawLegacyFocusRect(&painter, keyboardFocus, picture.rect(), color);
    return picture;
}

/// A radio button of ours and one of Qt's that look alike without the frame.
struct Pair
{
    Pair()
    {
        for (QRadioButton *button : { static_cast<QRadioButton *>(&ours), &plain }) {
            button->setText(QStringLiteral("abc"));
            button->setFont(ours.font());
            button->setGeometry(10, button == &plain ? 60 : 10, 120, 30);
        }
        window.resize(200, 100);
    }

    QWidget window;
    OxaRadioButton ours { &window };
    QRadioButton plain { &window };
};

} // namespace

class tst_OxaRadioButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_stores = std::make_unique<StoreGuard>(ColorSets::storeOf({ focusColors })); }
    void cleanup() { m_stores.reset(); }

    void takesWhatItsConstructorsAreGiven();
    void looksItsSetUpOnceAtEachThemeType();
    void isPaintedByQtInEachState_data() { Faces::addRows(); }
    void isPaintedByQtInEachState();
    void framesItselfWhileItHasTheFocusByKeyboard_data();
    void framesItselfWhileItHasTheFocusByKeyboard();
    void paintsNoFrameForFocusByMouse();
    void leavesTheFrameToTheApplicationsStyle();
    void paintsNoFrameWithoutAllOfItsSet();
    void followsTheTheme();
    void namesItselfToAssistiveTechnology();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaRadioButton::takesWhatItsConstructorsAreGiven()
{
    QWidget parent;
    const auto *plain = new OxaRadioButton(&parent);
    QCOMPARE(plain->parent(), &parent);
    QCOMPARE(plain->text(), QString());
    const auto *button = new OxaRadioButton(QStringLiteral("abc"), &parent);
    QCOMPARE(button->parent(), &parent);
    QCOMPARE(button->text(), QStringLiteral("abc"));
    QCOMPARE(button->getFontToken(), OxaFont::Token::Default);
    QCOMPARE(button->font(), OxaFont(OxaFont::Token::Default, false));
    QVERIFY(button->autoExclusive());
}

void tst_OxaRadioButton::looksItsSetUpOnceAtEachThemeType()
{
    const StoreGuard stores(ColorSets::storeOf({ OxaColorSet(QStringLiteral("other"), Qt::red) }));
    const char *const warning = "ColorSet name does not exist!  \"background-primary\"";
    QTest::ignoreMessage(QtWarningMsg, warning);
    OxaRadioButton button;
    QTest::ignoreMessage(QtWarningMsg, warning);
    button.setThemeType(QStringLiteral("dark"));
}

void tst_OxaRadioButton::isPaintedByQtInEachState()
{
    QFETCH(const Faces::Face, face);
    QFETCH(const Qt::LayoutDirection, direction);
    const LayoutDirectionGuard layoutDirection(direction);
    Pair pair;
    QVERIFY(Faces::put(pair.ours, face));
    const QImage ours = Pixels::render(pair.ours);
    pair.ours.clearFocus();
    QVERIFY(Faces::put(pair.plain, face));
    const QImage plain = Pixels::render(pair.plain);
    QCOMPARE(ours, face == Faces::Face::Focused ? framed(plain, focusColors.normal) : plain);
}

void tst_OxaRadioButton::framesItselfWhileItHasTheFocusByKeyboard_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void tst_OxaRadioButton::framesItselfWhileItHasTheFocusByKeyboard()
{
    QFETCH(const Qt::LayoutDirection, direction);
    const LayoutDirectionGuard layoutDirection(direction);
    Pair pair;
    QVERIFY(Faces::focusByKeyboard(pair.ours));
    // Every second pixel of an edge of 2 * 120 + 2 * 28.
    QCOMPARE(Pixels::countNear(Pixels::render(pair.ours), inverse, QRect(), 0), 148);
    pair.ours.clearFocus();
    QCOMPARE(Pixels::countNear(Pixels::render(pair.ours), inverse, QRect(), 0), 0);
}

void tst_OxaRadioButton::paintsNoFrameForFocusByMouse()
{
    Pair pair;
    QVERIFY(Faces::focusByKeyboard(pair.ours));
    pair.window.setAttribute(Qt::WA_KeyboardFocusChange, false);
    QVERIFY(pair.ours.hasFocus());
    QCOMPARE(Pixels::countNear(Pixels::render(pair.ours), inverse, QRect(), 0), 0);
}

void tst_OxaRadioButton::leavesTheFrameToTheApplicationsStyle()
{
    const ApplicationPropertyGuard borders("useGlobalFocusBorders", true);
    Pair pair;
    QVERIFY(Faces::focusByKeyboard(pair.ours));
    const QImage ours = Pixels::render(pair.ours);
    QVERIFY(Faces::focusByKeyboard(pair.plain));
    QCOMPARE(ours, Pixels::render(pair.plain));
    QCOMPARE(pair.ours.property("hasCustomRect"), QVariant());
}

void tst_OxaRadioButton::paintsNoFrameWithoutAllOfItsSet()
{
    OxaColorSet incomplete = focusColors;
    incomplete.checked = QColor();
    const StoreGuard stores(ColorSets::storeOf({ incomplete }));
    Pair pair;
    QVERIFY(Faces::focusByKeyboard(pair.ours));
    const QImage ours = Pixels::render(pair.ours);
    QVERIFY(Faces::focusByKeyboard(pair.plain));
    QCOMPARE(ours, Pixels::render(pair.plain));
}

void tst_OxaRadioButton::followsTheTheme()
{
    const StoreGuard stores(ColorSets::storeOf({ focusColors }),
                            ColorSets::storeOf({ OxaColorSet(focusColors.name, Qt::cyan) }));
    Pair pair;
    QVERIFY(Faces::focusByKeyboard(pair.ours));
    pair.ours.setThemeType(QStringLiteral("inverted"));
    QCOMPARE(Pixels::countNear(Pixels::render(pair.ours), Qt::red, QRect(), 0), 148);
}

void tst_OxaRadioButton::namesItselfToAssistiveTechnology()
{
    OxaRadioButton button(QStringLiteral("&By mail"));
    const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&button);
    QVERIFY(accessible);
    QCOMPARE(accessible->role(), QAccessible::RadioButton);
    QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("By mail"));
    QVERIFY(accessible->state().checkable);
    QVERIFY(!accessible->state().checked);
    button.setChecked(true);
    QVERIFY(accessible->state().checked);
}

UIELEMENTS_TEST_MAIN(tst_OxaRadioButton)
#include "tst_oxaradiobutton.moc"
