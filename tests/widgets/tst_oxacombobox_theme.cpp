// SPDX-License-Identifier: Apache-2.0
#include "ComboBoxes.h"
#include "support/TestApplication.h"

using ComboBoxes::Field;
using ComboBoxes::List;
using ComboBoxes::OpenBox;
using ComboBoxes::rulesOf;
using ComboBoxes::sheetOf;
using ComboBoxes::styled;
using ComboBoxes::styleTextOf;

namespace {

/// Returns what \a box paints its arrow in.
QString arrowColors(OxaComboBox &box, const std::initializer_list<OxaColorSet> &candidates)
{
    box.setFixedSize(60, 30);
    const QImage image = Pixels::render(box);
    QStringList found;
    for (const OxaColorSet &set : candidates) {
        if (Pixels::countNear(image, set.normal, {}, 2) >= 12 * 12)
            found += set.name;
    }
    return found.join(QLatin1Char(' '));
}

const OxaColorSet red(QStringLiteral("red"), QColor(250, 1, 2));
const OxaColorSet green(QStringLiteral("green"), QColor(3, 250, 4));
const OxaColorSet blue(QStringLiteral("blue"), QColor(5, 6, 250));

/// Returns \a set under the name of the arrow's set.
OxaColorSet asArrow(const OxaColorSet &set)
{
    OxaColorSet arrow = set;
    arrow.name = ComboBoxes::arrowName;
    return arrow;
}

} // namespace

/// What a combo box takes from style texts, configurations and themes.
class tst_OxaComboBoxTheme : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_stores.reset(); }

    void takesSetsAndBorderFromAStyleText_data();
    void takesSetsAndBorderFromAStyleText();
    void takesAConfiguration();
    void takesTheArrowsColorsFromAConfiguration();
    void looksAConfigurationUpInItsTheme();
    void cutsBorderNumbersToBytes();
    void forgetsABorderWithoutWidth();
    void declaresNoMissingColors();
    void looksItsSetsUpInTheNewTheme();
    void looksItsSetsUpInAThemeBeforeItsFirstStyleText();
    void keepsAConfigurationAtAThemeChangeBeforeItsFirstStyleText();
    void keepsNothingOfAStyleTextThatIsEmptiedLater();
    void looksTheArrowsSetUpInTheNewTheme();
    void keepsNoColorsThatTheThemeLacks();
    void takesThemeAndStyleOfAParent();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaComboBoxTheme::init()
{
    m_stores = std::make_unique<StoreGuard>(
            ComboBoxes::store({ OxaColorSet(QStringLiteral("a"), QColor(1, 2, 3)),
                                OxaColorSet(QStringLiteral("b"), QColor(4, 5, 6)),
                                OxaColorSet(QStringLiteral("c"), QColor(7, 8, 9)), asArrow(red),
                                green }),
            ComboBoxes::store({ OxaColorSet(QStringLiteral("a"), QColor(101, 102, 103)),
                                OxaColorSet(QStringLiteral("b"), QColor(104, 105, 106)),
                                OxaColorSet(ComboBoxes::backgroundName, QColor(107, 108, 109)),
                                asArrow(blue) }));
}

void tst_OxaComboBoxTheme::takesSetsAndBorderFromAStyleText_data()
{
    QTest::addColumn<QString>("styleText");
    QTest::addColumn<QString>("directives");
    QTest::addColumn<QString>("colors");
    const QString all = QStringLiteral("$backgroundColors: a; $borderColors: b; $textColors: c;");
    const QString colors = QStringLiteral("1,2,3 4,5,6 7,8,9");
    QTest::newRow("three sets, width and radius")
            << all + QStringLiteral("$borderWidth: 3; $borderRadius: 9;")
            << QStringLiteral("$borders: all; $borderWidth:3;$borderRadius:9; ") + all << colors;
    QTest::newRow("two sides") << all + QStringLiteral("$borders: top left;")
                               << QStringLiteral("$borders: top left; $borderWidth:1; ") + all
                               << colors;
    QTest::newRow("the other sides")
            << all + QStringLiteral("$borders: right bottom;")
            << QStringLiteral("$borders: right bottom; $borderWidth:1; ") + all << colors;
    QTest::newRow("no border") << QStringLiteral("$backgroundColors: a; $textColors: c;")
                               << QStringLiteral("$backgroundColors: a; $textColors: c;")
                               << QStringLiteral("1,2,3  7,8,9");
    QTest::newRow("corner of the radius is lost")
            << all + QStringLiteral("$borderRadius: 9 top;")
            << QStringLiteral("$borders: all; $borderWidth:1;$borderRadius:9; ") + all << colors;
}

void tst_OxaComboBoxTheme::takesSetsAndBorderFromAStyleText()
{
    QFETCH(const QString, styleText);
    QFETCH(const QString, directives);
    QFETCH(const QString, colors);
    OpenBox box;
    box.setCSS(styleText);
    QCOMPARE(box.getCSS(), styleText);
    box.setItemViewBorderRadius(0);
    QCOMPARE(box.getCSS(), directives + rulesOf({}));
    QStringList written;
    for (const QString &color : colors.split(QLatin1Char(' ')))
        written += color.isEmpty() ? QString() : QStringLiteral("rgba(%1,1.0)").arg(color);
    List list;
    list.background = written.at(0);
    list.border = written.at(1);
    list.text = written.at(2);
    QCOMPARE(box.view()->styleSheet(), sheetOf(list));
}

void tst_OxaComboBoxTheme::takesAConfiguration()
{
    OpenBox box;
    box.updateStyle({ "c", "a", "b", 2, 7 });
    QCOMPARE(box.log.take(), styled);
    Field field;
    field.borders = QStringLiteral("$borders: all; $borderWidth:2;$borderRadius:7;");
    field.background = QStringLiteral("a");
    field.border = QStringLiteral("b");
    field.text = QStringLiteral("c");
    QCOMPARE(box.getCSS(), styleTextOf(field));
    List list;
    list.background = QStringLiteral("rgba(1,2,3,1.0)");
    list.border = QStringLiteral("rgba(4,5,6,1.0)");
    list.text = QStringLiteral("rgba(7,8,9,1.0)");
    QCOMPARE(box.view()->styleSheet(), sheetOf(list));
}

void tst_OxaComboBoxTheme::takesTheArrowsColorsFromAConfiguration()
{
    OpenBox box;
    QCOMPARE(arrowColors(box, { red, green }), red.name);
    box.updateStyle({ green.name.toStdString(), "a", "b", 1, 1 });
    QCOMPARE(arrowColors(box, { red, green }), green.name);
    box.setComboBoxAnimationEnabled(false);
    box.showPopup();
    box.setSvgDropDownIconExpanded(QStringLiteral(":/Resources/arrow-down_8.svg"));
    QVERIFY(Pixels::countNear(Pixels::render(box), green.checked) >= 12 * 12);
    box.hidePopup();
}

void tst_OxaComboBoxTheme::looksAConfigurationUpInItsTheme()
{
    OpenBox box;
    box.setThemeType(QStringLiteral("inverted"));
    box.updateStyle({ "a", "b", "a", 1, 1 });
    List list;
    list.background = QStringLiteral("rgba(104,105,106,1.0)");
    list.border = list.text = QStringLiteral("rgba(101,102,103,1.0)");
    QCOMPARE(box.view()->styleSheet(), sheetOf(list));
}

void tst_OxaComboBoxTheme::cutsBorderNumbersToBytes()
{
    OpenBox box;
    box.updateStyle({ "c", "a", "b", 300, 258 });
    QVERIFY(box.getCSS().startsWith(QStringLiteral("$borders: all; $borderWidth:44;"
                                                   "$borderRadius:2; ")));
}

/// A text without a border has no place for the width 0, so that the text brings Qt's default back.
void tst_OxaComboBoxTheme::forgetsABorderWithoutWidth()
{
    OpenBox box;
    box.updateStyle({ "c", "a", "b", 0, 5 });
    const QString sets = QStringLiteral("$backgroundColors: a; $borderColors: b; $textColors: c;");
    QCOMPARE(box.getCSS(), sets + rulesOf({}));
    box.setItemViewBorderRadius(0);
    QCOMPARE(box.getCSS(), QStringLiteral("$borders: all; $borderWidth:1; ") + sets + rulesOf({}));
}

void tst_OxaComboBoxTheme::declaresNoMissingColors()
{
    OpenBox box;
    for (int lookUp = 0; lookUp < 2; ++lookUp)
        QTest::ignoreMessage(QtWarningMsg, "ColorSet name does not exist!  \"missing\"");
    box.setPopupBackgroundColor(QStringLiteral("missing"));
    box.setSelectedBackgroundColor(QStringLiteral("missing"));
    box.setItemViewBorderRadius(0);
    List list;
    list.background.clear();
    QCOMPARE(box.view()->styleSheet(), sheetOf(list));
}

void tst_OxaComboBoxTheme::looksItsSetsUpInTheNewTheme()
{
    OpenBox box;
    box.setItemViewBorderRadius(0);
    box.setThemeType(QStringLiteral("inverted"));
    QCOMPARE(box.getCSS(), styleTextOf({}));
    QVERIFY(box.styleSheet().contains(QStringLiteral("#box{background-color:#ff6b6c6d;}")));
    List list;
    list.background = QStringLiteral("rgba(107,108,109,1.0)");
    QCOMPARE(box.view()->styleSheet(), sheetOf(list));
}

/// A box that no one has shown yet, in a window whose theme changes.
void tst_OxaComboBoxTheme::looksItsSetsUpInAThemeBeforeItsFirstStyleText()
{
    for (const QString &name : { QStringLiteral("box"), QString() }) {
        OpenBox box(nullptr, name);
        box.setThemeType(QStringLiteral("inverted"));
        box.setObjectName(QStringLiteral("box"));
        box.show();
        QCOMPARE(box.getCSS(), styleTextOf({}));
        List list;
        list.background = QStringLiteral("rgba(107,108,109,1.0)");
        QCOMPARE(box.view()->styleSheet(), sheetOf(list));
    }
}

void tst_OxaComboBoxTheme::keepsAConfigurationAtAThemeChangeBeforeItsFirstStyleText()
{
    OpenBox box(nullptr, QString());
    box.updateStyle({ "a", "b", "a", 2, 7 });
    box.setThemeType(QStringLiteral("inverted"));
    box.setObjectName(QStringLiteral("box"));
    box.show();
    Field field;
    field.borders = QStringLiteral("$borders: all; $borderWidth:2;$borderRadius:7;");
    field.background = QStringLiteral("b");
    field.border = field.text = QStringLiteral("a");
    QCOMPARE(box.getCSS(), styleTextOf(field));
}

void tst_OxaComboBoxTheme::keepsNothingOfAStyleTextThatIsEmptiedLater()
{
    OpenBox box;
    box.updateStyle({ "a", "b", "a", 2, 7 });
    box.setCSS(QString());
    box.setLeftPadding(3);
    Field field;
    field.leftPadding = 3;
    QCOMPARE(box.getCSS(), rulesOf(field));
}

void tst_OxaComboBoxTheme::looksTheArrowsSetUpInTheNewTheme()
{
    OpenBox box;
    box.setThemeType(QStringLiteral("inverted"));
    QCOMPARE(arrowColors(box, { red, blue }), blue.name);
    box.setThemeType(QStringLiteral("global"));
    QCOMPARE(arrowColors(box, { red, blue }), red.name);
}

void tst_OxaComboBoxTheme::keepsNoColorsThatTheThemeLacks()
{
    OpenBox box;
    box.setItemViewBorderRadius(0);
    const StoreGuard stores({ { "c", OxaColorSet(QStringLiteral("c"), QColor(7, 8, 9)) } });
    for (int icon = 0; icon < 2; ++icon)
        QTest::ignoreMessage(QtWarningMsg,
                             "ColorSet name does not exist!  "
                             "\"oxa-rills-combobox-dropdown-arrow\"");
    box.setThemeType(QStringLiteral("global"));
    // Nothing is looked up: an arrow without colours has no name to ask for either.
    box.setThemeType(QStringLiteral("global"));
    QCOMPARE(arrowColors(box, { red, blue, OxaColorSet(QStringLiteral("black"), Qt::black) }),
             QString());
}

void tst_OxaComboBoxTheme::takesThemeAndStyleOfAParent()
{
    OxaComboBox parent;
    parent.setThemeType(QStringLiteral("inverted"));
    OpenBox box;
    box.setItemViewBorderRadius(0);
    box.log.take();
    box.setParent(&parent);
    QCOMPARE(box.getThemeType(), OxaThemeUtils::AppThemeType::Inverted);
    QCOMPARE(box.log.take(), QStringLiteral("cssChanged | onThemeChanged | ") + styled);
    QCOMPARE(arrowColors(box, { red, blue }), blue.name);
}

UIELEMENTS_TEST_MAIN(tst_OxaComboBoxTheme)
#include "tst_oxacombobox_theme.moc"
