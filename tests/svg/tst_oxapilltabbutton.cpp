// SPDX-License-Identifier: Apache-2.0
#include "support/Faces.h"
#include "support/Guards.h"
#include "support/SignalLog.h"
#include "support/SvgFiles.h"
#include "support/TestApplication.h"

#include <UiElements/svg/OxaPillTabButton.h>

#include <QSignalSpy>

namespace {

const char checkedText[] = "oxa-contentTabViewButtonChecked-text";
const char plainText[] = "oxa-contentTabViewButton-text";
const OxaColorSet textColors = Faces::colors(QLatin1String(plainText), 130);
const OxaColorSet checkedTextColors = Faces::colors(QLatin1String(checkedText), 70);
const OxaColorSet iconColors = Faces::colors(QStringLiteral("icon"), 220);
const OxaColorSet groundColors = Faces::colors(QStringLiteral("ground"), 175);
const OxaColorSet borderColors(QStringLiteral("oxa-defaultBorderForButton"), Qt::white);

constexpr int maximumWidth = 16777215; // Qt's, which it does not name in public.

} // namespace

class tst_OxaPillTabButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_stores.reset(); }

    void startsAsAnUncheckedPill();
    void takesWhatItsConstructorsAreGiven();
    void appliesNoStyleUntilAPropertyIsSet();

    void writesItsStyleTextForEachState_data();
    void writesItsStyleTextForEachState();
    void givesTheUncheckedPillABorderOfItsOwn();
    void givesTheCheckedPillABorderInItsFill();
    void hasNoBorderForABlankName_data();
    void hasNoBorderForABlankName();
    void changesIconAndStyleTogether();
    void overwritesAnIconSetThatACallerChose();
    void isToggledByMouseAndKey();
    void staysRoundAtAnyHeight();

    void neverGrowsPastItsContent();
    void measuresAnAbsentIconAsMinusOne();
    void measuresWhenTheIconChangesOnly();

    void paintsEachState_data() { Faces::addRows(); }
    void paintsEachState();

private:
    SvgFiles m_files;
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaPillTabButton::initTestCase()
{
    m_stores = std::make_unique<StoreGuard>(ColorSets::storeOf(
            { textColors, checkedTextColors, iconColors, groundColors, borderColors }));
}

void tst_OxaPillTabButton::startsAsAnUncheckedPill()
{
    const OxaPillTabButton pill;
    QVERIFY(pill.isCheckable());
    QVERIFY(!pill.isChecked());
    QCOMPARE(pill.getAccessibleRole(), QAccessible::PushButton);
    QCOMPARE(pill.getBackgroundColorSet(), QString());
    QCOMPARE(pill.getTextColorSet(), QLatin1String(plainText));
    QCOMPARE(pill.getIconColorSet(), QLatin1String(plainText));
    QCOMPARE(pill.getBackgroundColorSetChecked(), QString());
    QCOMPARE(pill.getTextColorSetChecked(), QLatin1String(checkedText));
    QCOMPARE(pill.getIconColorSetChecked(), QLatin1String(checkedText));
    QCOMPARE(pill.getSvgIconSize(), QSize(12, 12));
    QCOMPARE(pill.getSvgIconPadding(), QMargins(12, 0, 0, 0));
    QCOMPARE(pill.getTextLeftPadding(), 12);
    QCOMPARE(pill.getTextRightPadding(), 12);
    QCOMPARE(pill.getFontToken(), OxaFont::Token::BodySecondary);
    QCOMPARE(pill.font(), QFont(OxaFont(OxaFont::Token::BodySecondary, false)));
}

void tst_OxaPillTabButton::takesWhatItsConstructorsAreGiven()
{
    QWidget parent;
    QCOMPARE((new OxaPillTabButton(&parent))->parent(), &parent);
    const auto *pill = new OxaPillTabButton(QStringLiteral("abc"), &parent);
    QCOMPARE(pill->parent(), &parent);
    QCOMPARE(pill->text(), QStringLiteral("abc"));
}

void tst_OxaPillTabButton::appliesNoStyleUntilAPropertyIsSet()
{
    const OxaPillTabButton pill;
    QCOMPARE(pill.getCSS(), QString());
    QCOMPARE(pill.getSvgIconColorSet(), QString());
}

void tst_OxaPillTabButton::writesItsStyleTextForEachState_data()
{
    QTest::addColumn<bool>("isChecked");
    QTest::newRow("unchecked") << false;
    QTest::newRow("checked") << true;
}

void tst_OxaPillTabButton::writesItsStyleTextForEachState()
{
    QFETCH(const bool, isChecked);
    OxaPillTabButton pill;
    pill.resize(100, 31);
    pill.setChecked(isChecked);
    // Each setter applies the style of the state that the pill is in.
    const char *const properties[] = { "backgroundColorSet",  "textColorSet",
                                       "iconColorSet",        "backgroundColorSetChecked",
                                       "textColorSetChecked", "iconColorSetChecked" };
    for (const char *name : properties) {
        const QString set = QLatin1String(name).contains(QLatin1String("icon")) ? iconColors.name
                                                                                : groundColors.name;
        const QSignalSpy cssChanged(&pill, &OxaPillTabButton::cssChanged);
        QVERIFY(pill.setProperty(name, set));
        QCOMPARE(pill.property(name), QVariant(set));
        QCOMPARE(cssChanged.size(), 1);
    }
    const OxaCSSData style = pill.getOxaCSS();
    QCOMPARE(style.backgroundColorSetName, groundColors.name);
    QCOMPARE(style.borderColorSetName, isChecked ? groundColors.name : borderColors.name);
    QCOMPARE(style.textColorSetName, groundColors.name);
    QVERIFY(style.borderTop && style.borderRight && style.borderBottom && style.borderLeft);
    QCOMPARE(style.borderWidth, quint8(1));
    QCOMPARE(style.borderRadius, quint8(15));
    QCOMPARE(style.radiusCorner, 0);
    QCOMPARE(pill.getSvgIconColorSet(), iconColors.name);
}

void tst_OxaPillTabButton::givesTheUncheckedPillABorderOfItsOwn()
{
    OxaPillTabButton pill;
    pill.setBackgroundColorSet(groundColors.name);
    QCOMPARE(pill.getOxaCSS().borderColorSetName, borderColors.name);
    QVERIFY(pill.getOxaCSS().borderTop);
    pill.setChecked(true);
    QCOMPARE(pill.getOxaCSS().borderColorSetName, QString());
    QVERIFY(!pill.getOxaCSS().borderTop && !pill.getOxaCSS().borderRight);
    QVERIFY(!pill.getOxaCSS().borderBottom && !pill.getOxaCSS().borderLeft);
}

void tst_OxaPillTabButton::givesTheCheckedPillABorderInItsFill()
{
    OxaPillTabButton pill;
    pill.setBackgroundColorSetChecked(groundColors.name);
    QCOMPARE(pill.getOxaCSS().borderColorSetName, QString());
    pill.setChecked(true);
    QCOMPARE(pill.getOxaCSS().backgroundColorSetName, groundColors.name);
    QCOMPARE(pill.getOxaCSS().borderColorSetName, groundColors.name);
    QVERIFY(pill.getOxaCSS().borderTop);
}

void tst_OxaPillTabButton::hasNoBorderForABlankName_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << QString();
    QTest::newRow("white space") << QStringLiteral(" \t ");
}

void tst_OxaPillTabButton::hasNoBorderForABlankName()
{
    QFETCH(const QString, name);
    OxaPillTabButton pill;
    pill.setChecked(true);
    pill.setBackgroundColorSetChecked(groundColors.name);
    QVERIFY(pill.getOxaCSS().borderTop);
    pill.setBackgroundColorSetChecked(name);
    QVERIFY(!pill.getOxaCSS().borderTop && !pill.getOxaCSS().borderRight);
    QVERIFY(!pill.getOxaCSS().borderBottom && !pill.getOxaCSS().borderLeft);
}

void tst_OxaPillTabButton::changesIconAndStyleTogether()
{
    OxaPillTabButton pill;
    pill.setIconColorSet(iconColors.name);
    pill.resize(80, 30);
    SignalLog log;
    log.record(&pill, &OxaPillTabButton::svgIconColorSetChanged, QStringLiteral("icon"));
    log.record(&pill, &OxaPillTabButton::cssChanged, QStringLiteral("css"));
    log.record(&pill, &OxaPillTabButton::toggled, QStringLiteral("toggled"));
    pill.setChecked(true);
    QCOMPARE(log.take(), QStringLiteral("icon | css | toggled"));
    QCOMPARE(pill.getSvgIconColorSet(), QLatin1String(checkedText));
    QCOMPARE(pill.getOxaCSS().textColorSetName, QLatin1String(checkedText));
    pill.setChecked(false);
    QCOMPARE(pill.getSvgIconColorSet(), iconColors.name);
    QCOMPARE(pill.getOxaCSS().textColorSetName, QLatin1String(plainText));
}

void tst_OxaPillTabButton::overwritesAnIconSetThatACallerChose()
{
    OxaPillTabButton pill;
    pill.setSvgIconColorSet(iconColors.name);
    pill.setTextColorSetChecked(groundColors.name);
    QCOMPARE(pill.getSvgIconColorSet(), QLatin1String(plainText));
    pill.setSvgIconColorSet(iconColors.name);
    pill.setChecked(true);
    QCOMPARE(pill.getSvgIconColorSet(), QLatin1String(checkedText));
}

void tst_OxaPillTabButton::isToggledByMouseAndKey()
{
    OxaPillTabButton pill;
    pill.setIconColorSet(iconColors.name);
    QTest::mouseClick(&pill, Qt::LeftButton);
    QVERIFY(pill.isChecked());
    QCOMPARE(pill.getSvgIconColorSet(), QLatin1String(checkedText));
    QTest::keyClick(&pill, Qt::Key_Space);
    QVERIFY(!pill.isChecked());
    QCOMPARE(pill.getSvgIconColorSet(), iconColors.name);
}

void tst_OxaPillTabButton::staysRoundAtAnyHeight()
{
    OxaPillTabButton pill;
    pill.setBackgroundColorSet(groundColors.name);
    for (const int height : { 25, 40, 60 }) {
        pill.resize(100, height);
        const QImage image = Pixels::render(pill); // Sends the event too.
        QCOMPARE(pill.getOxaCSS().borderRadius, quint8(height / 2));
        QCOMPARE(pill.property("focusBorderRadius").toInt(), height / 2);
        // Outside of the curve there is nothing of the fill.
        const QRect corner(0, 0, height / 8, height / 8);
        QCOMPARE(Pixels::countNear(image, groundColors.normal, corner), 0);
        QCOMPARE(image.pixelColor(50, height / 2), groundColors.normal);
    }
}

void tst_OxaPillTabButton::neverGrowsPastItsContent()
{
    OxaPillTabButton pill(QStringLiteral("abc"));
    QCOMPARE(pill.maximumWidth(), maximumWidth);
    pill.setSvgIconPadding(QMargins(12, 1, 5, 2));
    pill.setSvgIcon(m_files.square());
    QCOMPARE(pill.maximumWidth(), maximumWidth);
    QCoreApplication::processEvents();
    const int text = pill.fontMetrics().horizontalAdvance(QStringLiteral("abc"));
    QCOMPARE(pill.maximumWidth(), 12 + 12 + text + 2 * 1 + 12 + 12 + 5);
}

void tst_OxaPillTabButton::measuresAnAbsentIconAsMinusOne()
{
    OxaPillTabButton pill(QStringLiteral("abc"));
    pill.setSvgIconVisible(false);
    pill.setSvgIcon(m_files.square());
    QCoreApplication::processEvents();
    const int text = pill.fontMetrics().horizontalAdvance(QStringLiteral("abc"));
    QCOMPARE(pill.maximumWidth(), 12 + 12 + text + 2 * 1 - 1 + 12);
}

void tst_OxaPillTabButton::measuresWhenTheIconChangesOnly()
{
    OxaPillTabButton pill(QStringLiteral("abc"));
    pill.setSvgIcon(m_files.square());
    QCoreApplication::processEvents();
    const int width = pill.maximumWidth();
    pill.setText(QStringLiteral("a much longer text"));
    pill.setSvgIconSize(QSize(30, 30));
    QCoreApplication::processEvents();
    QCOMPARE(pill.maximumWidth(), width);
    pill.setSvgIcon(m_files.square());
    QCoreApplication::processEvents();
    QVERIFY(pill.maximumWidth() > width + 18);
}

void tst_OxaPillTabButton::paintsEachState()
{
    QFETCH(const Faces::Face, face);
    QFETCH(const Qt::LayoutDirection, direction);
    const LayoutDirectionGuard layoutDirection(direction);
    QWidget window;
    OxaPillTabButton pill(QStringLiteral("abc"), &window);
    pill.setSvgIcon(m_files.square());
    pill.setIconColorSet(iconColors.name);
    pill.setIconColorSetChecked(iconColors.name);
    pill.setBackgroundColorSet(groundColors.name);
    pill.setBackgroundColorSetChecked(groundColors.name);
    pill.resize(120, 40);
    QVERIFY(Faces::put(pill, face));
    const QImage image = Pixels::render(pill);
    const QColor ground = Faces::colorOf(groundColors, face);
    QVERIFY(Pixels::countNear(image, ground) > 1000);
    QCOMPARE(Faces::facesIn(image, iconColors), Faces::nameOf(face));
    const bool isChecked = face == Faces::Face::Checked;
    const OxaColorSet &texts = isChecked ? checkedTextColors : textColors;
    QCOMPARE(Faces::facesIn(image, texts), Faces::nameOf(face));
    const QRect icon = Pixels::boundsNear(image, Faces::colorOf(iconColors, face));
    const QRect text = Pixels::boundsNear(image, Faces::colorOf(texts, face));
    QCOMPARE(text.left() > icon.right(), direction == Qt::LeftToRight);
    QCOMPARE(text.right() < icon.left(), direction == Qt::RightToLeft);
}

UIELEMENTS_TEST_MAIN(tst_OxaPillTabButton)
#include "tst_oxapilltabbutton.moc"
