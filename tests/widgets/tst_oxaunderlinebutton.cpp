// SPDX-License-Identifier: Apache-2.0
#include "support/Faces.h"
#include "support/Guards.h"
#include "support/PaintCounter.h"
#include "support/SvgFiles.h"
#include "support/TestApplication.h"

#include <UiElements/widgets/OxaUnderlineButton.h>

namespace {

const OxaColorSet ground = Faces::colors(QStringLiteral("oxa-underlineButton-background"), 220);
const OxaColorSet text = Faces::colors(QStringLiteral("oxa-underlineButton-text"), 130);
const OxaColorSet tabs = Faces::colors(QStringLiteral("oxa-spaceTabs-text"), 75);
const OxaColorSet line = Faces::colors(QStringLiteral("line"), 175);
const OxaColorSet dot(QStringLiteral("oxa-unreadCountCircle-background"), QColor(255, 0, 128));
const QColor orange(255, 128, 0);
const QColor halfBlack(127, 127, 127); // Half of a black pen, one pixel wide.

/// Returns the colour of the underline of \a button, which has no text.
QColor underlineOf(OxaUnderlineButton &button)
{
    button.resize(100, 40);
    button.setCheckable(true);
    button.setChecked(true);
    return Pixels::render(button).pixelColor(50, 39);
}

} // namespace

/// The properties of OxaUnderlineButton, and the colour of its underline.
class tst_OxaUnderlineButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_stores.reset(); }

    void startsWithNamedColors();
    void storesWhatItIsGiven();
    void keepsTheAnchorsPath();
    void repaintsForItsProperties();
    void doesNotRepaintForColors();

    void underlinesInBlackAtFirst();
    void underlinesInTheLastSetThatWasGiven();
    void underlinesInTheUnderlinesColorAfterAThemeChange();
    void keepsThePenWhenTheBorderWidthChanges();
    void looksItsColorsUpInItsTheme();
    void leavesSetsThatTheThemeLacksAlone();
    void fetchesANamedSetAgainAfterTheThemeLackedIt();

private:
    SvgFiles m_files;
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaUnderlineButton::init()
{
    const auto recolored = [](const OxaColorSet &set) { return OxaColorSet(set.name, orange); };
    m_stores = std::make_unique<StoreGuard>(ColorSets::storeOf({ ground, text, tabs, line, dot }),
                                            ColorSets::storeOf(
                                                    { recolored(ground), recolored(text),
                                                      recolored(tabs), recolored(dot),
                                                      OxaColorSet(line.name,
                                                                  QColor(0, 128, 255)) }));
}

void tst_OxaUnderlineButton::startsWithNamedColors()
{
    QWidget parent;
    const auto *button = new OxaUnderlineButton(&parent);
    QCOMPARE(button->parent(), &parent);
    QCOMPARE(button->getAccessibleRole(), QAccessible::PushButton);
    QCOMPARE(button->getBorderWidth(), 2);
    QCOMPARE(button->getBottomPadding(), 2);
    QVERIFY(!button->getShowUnreadIndicator());
    QVERIFY(button->getLeftIcon().isNull());
    QCOMPARE(button->getAnchorIcon(), QString());
    QCOMPARE(button->property("focusBorderRadius"), QVariant(14));
    QVERIFY(!button->isCheckable());
}

void tst_OxaUnderlineButton::storesWhatItIsGiven()
{
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(Qt::red);
    OxaUnderlineButton button;
    const std::pair<const char *, QVariant> values[] = {
        { "borderWidth", 5 },
        { "bottomPadding", 6 },
        { "showUnreadIndicator", true },
        { "leftIcon", image },
        { "anchorIcon", m_files.square() },
    };
    for (const auto &[name, value] : values) {
        QVERIFY2(button.setProperty(name, value), name);
        QCOMPARE(button.property(name), value);
    }
}

void tst_OxaUnderlineButton::keepsTheAnchorsPath()
{
    const QString missing = m_files.path(QStringLiteral("missing.svg"));
    OxaUnderlineButton button;
    SvgFiles::ignoreMissing(missing);
    button.setAnchorIcon(missing);
    QCOMPARE(button.getAnchorIcon(), missing);
    button.setAnchorIcon(QString());
    QCOMPARE(button.getAnchorIcon(), QString());
}

void tst_OxaUnderlineButton::repaintsForItsProperties()
{
    OxaUnderlineButton button;
    PaintCounter paints(button);
    button.setAnchorIcon(m_files.square());
    QCOMPARE(paints.take(), 1);
    button.setBottomPadding(5);
    QCOMPARE(paints.take(), 1);
    button.setShowUnreadIndicator(true);
    QCOMPARE(paints.take(), 1);
    button.setLeftIcon(QImage(4, 4, QImage::Format_RGB32));
    QCOMPARE(paints.take(), 1);
}

void tst_OxaUnderlineButton::doesNotRepaintForColors()
{
    OxaUnderlineButton button;
    PaintCounter paints(button);
    button.setBackgroundColorSet(line.name);
    button.setTextColorSet(line.name);
    button.setUnderlineColorSet(line.name);
    button.setBorderWidth(5);
    QCOMPARE(paints.take(), 0);
}

void tst_OxaUnderlineButton::underlinesInBlackAtFirst()
{
    OxaUnderlineButton button;
    QCOMPARE(underlineOf(button), halfBlack);
}

void tst_OxaUnderlineButton::underlinesInTheLastSetThatWasGiven()
{
    OxaUnderlineButton button;
    button.setTextColorSet(line.name);
    QCOMPARE(underlineOf(button), line.pressed);
    button.setUnderlineColorSet(line.name);
    QCOMPARE(underlineOf(button), line.normal);
    button.setTextColorSet(text.name);
    QCOMPARE(underlineOf(button), text.pressed);
    button.setBackgroundColorSet(line.name);
    QCOMPARE(underlineOf(button), text.pressed);
}

void tst_OxaUnderlineButton::underlinesInTheUnderlinesColorAfterAThemeChange()
{
    OxaUnderlineButton fresh; // Its underline has the text's set.
    fresh.setThemeType(QStringLiteral("global"));
    QCOMPARE(underlineOf(fresh), text.normal);

    OxaUnderlineButton button;
    button.setUnderlineColorSet(line.name);
    button.setTextColorSet(text.name);
    QCOMPARE(underlineOf(button), text.pressed);
    button.setThemeType(QStringLiteral("global"));
    QCOMPARE(underlineOf(button), line.normal);
    button.setThemeType(QStringLiteral("inverted"));
    QCOMPARE(underlineOf(button), QColor(0, 128, 255));
}

void tst_OxaUnderlineButton::keepsThePenWhenTheBorderWidthChanges()
{
    // At a width of 2, half of the line is below the button's last row of pixels.
    const auto height = [](OxaUnderlineButton &button) {
        underlineOf(button);
        return Pixels::boundsNear(Pixels::render(button), line.normal, 100).height();
    };
    OxaUnderlineButton button;
    button.setUnderlineColorSet(line.name);
    const int before = height(button);
    button.setBorderWidth(10);
    QCOMPARE(height(button), before);
    button.setUnderlineColorSet(line.name);
    QCOMPARE(height(button), before + 4);
}

void tst_OxaUnderlineButton::looksItsColorsUpInItsTheme()
{
    OxaUnderlineButton button;
    button.resize(100, 40);
    button.setText(QStringLiteral("abc"));
    button.setAnchorIcon(m_files.square());
    button.setShowUnreadIndicator(true);
    QCOMPARE(Faces::facesIn(Pixels::render(button), text), QStringLiteral("normal"));
    QCOMPARE(Pixels::countNear(Pixels::render(button), tabs.normal), 64);
    QCOMPARE(Pixels::render(button).pixelColor(5, 17), dot.normal);
    button.setThemeType(QStringLiteral("inverted"));
    QVERIFY(Pixels::countNear(Pixels::render(button), orange) > 64);
    QCOMPARE(Pixels::render(button).pixelColor(5, 17), orange);
    QCOMPARE(Faces::facesIn(Pixels::render(button), text), QString());
    QCOMPARE(Faces::facesIn(Pixels::render(button), tabs), QString());
    Faces::hover(button);
    QVERIFY(Pixels::countNear(Pixels::render(button), orange) > 3000);
}

void tst_OxaUnderlineButton::leavesSetsThatTheThemeLacksAlone()
{
    const StoreGuard empty({});
    const QString warning = QStringLiteral("ColorSet name does not exist!  \"%1\"");
    for (const OxaColorSet &set : { ground, text })
        QTest::ignoreMessage(QtWarningMsg, qPrintable(warning.arg(set.name)));
    OxaUnderlineButton button;
    button.setThemeType(QStringLiteral("dark")); // Nothing is looked up.
    QCOMPARE(underlineOf(button), halfBlack);
}

void tst_OxaUnderlineButton::fetchesANamedSetAgainAfterTheThemeLackedIt()
{
    const OxaPushButton widget;
    OxaNamedColorSet set(line.name);
    QVERIFY(!set.colors().isValid());
    set.fetch(&widget);
    QCOMPARE(set.colors(), line);

    m_stores.reset();
    m_stores = std::make_unique<StoreGuard>(ColorSets::storeOf({ text }));
    QTest::ignoreMessage(QtWarningMsg, "ColorSet name does not exist!  \"line\"");
    set.fetch(&widget);
    QVERIFY(!set.colors().isValid());
    QCOMPARE(set.name(), line.name);

    m_stores.reset();
    m_stores = std::make_unique<StoreGuard>(ColorSets::storeOf({ line, text }));
    set.fetch(&widget);
    QCOMPARE(set.colors(), line);
    set.fetch(text.name, &widget);
    QCOMPARE(set.name(), text.name);
    QCOMPARE(set.colors(), text);
}

UIELEMENTS_TEST_MAIN(tst_OxaUnderlineButton)
#include "tst_oxaunderlinebutton.moc"
