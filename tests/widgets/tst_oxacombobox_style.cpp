// SPDX-License-Identifier: Apache-2.0
#include "ComboBoxes.h"
#include "support/RecordingStyle.h"
#include "support/TestApplication.h"

using ComboBoxes::Action;
using ComboBoxes::Field;
using ComboBoxes::List;
using ComboBoxes::OpenBox;
using ComboBoxes::rulesOf;
using ComboBoxes::sheetOf;
using ComboBoxes::styled;
using ComboBoxes::styleTextOf;

namespace {

const QString ordinaryColors = QStringLiteral("#%1{background-color:#ff0a141e;} "
                                              "#%1{border-color:#ff28323c;} "
                                              "#%1{color:#ff46505a;}");
const QString ordinaryBorder = QStringLiteral(
        " #%1{border-style:solid; border-width:1px;border-radius:1px;} ");

/// Counts the widgets that are polished and unpolished by name.
class PolishLog : public QProxyStyle
{
public:
    using QProxyStyle::polish;
    using QProxyStyle::unpolish;
    void polish(QWidget *widget) override { calls += QStringLiteral("polish ") + nameOf(widget); }
    void unpolish(QWidget *widget) override
    {
        calls += QStringLiteral("unpolish ") + nameOf(widget);
    }
    QStringList calls;

private:
    static QString nameOf(const QWidget *widget) { return widget->objectName(); }
};

} // namespace

Q_DECLARE_METATYPE(Field)
Q_DECLARE_METATYPE(List)

/// The style texts of a combo box and of its list, word for word.
class tst_OxaComboBoxStyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_stores.reset(); }

    void writesItsStyleText_data();
    void writesItsStyleText();
    void writesTheSizeOfAnInvisibleArrow();
    void writesTheSheetOfItsList_data();
    void writesTheSheetOfItsList();
    void writesColors_data();
    void writesColors();
    void writesNothingWithoutAName();
    void takesANameWhenItIsShown();
    void expandsItsTextAgainUnderANewName();
    void followsItsNameFromTheFirstStyleTextOnly();
    void stylesTheListFirst();
    void isPolishedAfterItsList();
    void givesItsListABarAndItsOwnName();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaComboBoxStyle::init()
{
    m_stores = std::make_unique<StoreGuard>(
            ComboBoxes::store({ OxaColorSet(QStringLiteral("a"), QColor(1, 2, 3)),
                                OxaColorSet(QStringLiteral("b"), QColor(4, 5, 6)),
                                OxaColorSet(QStringLiteral("c"), QColor(7, 8, 9)) }),
            ComboBoxes::store({ OxaColorSet(QStringLiteral("a"), QColor(101, 102, 103)),
                                OxaColorSet(ComboBoxes::textName, QColor(107, 108, 109)) }));
}

void tst_OxaComboBoxStyle::writesItsStyleText_data()
{
    QTest::addColumn<Action>("prepare");
    QTest::addColumn<Field>("field");
    Field field;
    QTest::newRow("as it starts") << Action([](OpenBox &box) { box.setItemViewBorderRadius(0); })
                                  << field;
    field.leftPadding = 3;
    QTest::newRow("left padding") << Action([](OpenBox &box) { box.setLeftPadding(3); }) << field;
    field.leftPadding = -4;
    QTest::newRow("negative left padding")
            << Action([](OpenBox &box) { box.setLeftPadding(-4); }) << field;
    field = {};
    field.arrowPadding = 8;
    field.dropDownWidth = 28;
    QTest::newRow("space around the arrow")
            << Action([](OpenBox &box) { box.setSvgDropdownIconPaddingRight(8); }) << field;
    field.arrowPadding = -7;
    field.dropDownWidth = -2;
    QTest::newRow("negative space around the arrow")
            << Action([](OpenBox &box) { box.setSvgDropdownIconPaddingRight(-7); }) << field;
    field = {};
    field.arrow = { 20, 9 };
    field.dropDownWidth = 30;
    QTest::newRow("size of the arrow") << Action([](OpenBox &box) {
        box.setSvgDropdownIconSize({ 20, 9 });
    }) << field;
    field = {};
    field.name = QStringLiteral("other");
    QTest::newRow("name") << Action([](OpenBox &box) {
        box.setObjectName(QStringLiteral("other"));
        box.setItemViewBorderRadius(0);
    }) << field;
}

void tst_OxaComboBoxStyle::writesItsStyleText()
{
    QFETCH(const Action, prepare);
    QFETCH(const Field, field);
    OpenBox box;
    prepare(box);
    QCOMPARE(box.getCSS(), styleTextOf(field));
    QCOMPARE(box.styleSheet(),
             ordinaryBorder.arg(field.name) + ordinaryColors.arg(field.name) + rulesOf(field));
    QCOMPARE(box.getOxaCSS().plainStyleSheet, rulesOf(field));
}

namespace {

/// Reaches the arrow of a combo box, which no function hides. An explicit instantiation may name
/// private members.
template <OxaSvgIcon OxaComboBox::*icon>
struct Arrow
{
    friend OxaSvgIcon &arrowOf(OxaComboBox &box) { return box.*icon; }
};
OxaSvgIcon &arrowOf(OxaComboBox &box);
template struct Arrow<&OxaComboBox::m_dropdownIcon>;

} // namespace

void tst_OxaComboBoxStyle::writesTheSizeOfAnInvisibleArrow()
{
    OpenBox box;
    arrowOf(box).setVisible(false);
    box.setSvgDropdownIconPaddingRight(6);
    Field field;
    field.arrow = { -1, -1 };
    field.arrowPadding = 6;
    field.dropDownWidth = 11; // Twice the padding, less 1.
    QCOMPARE(box.getCSS(), styleTextOf(field));
    QCOMPARE(box.getSvgDropdownIconSize(), QSize(-1, -1));
}

void tst_OxaComboBoxStyle::writesTheSheetOfItsList_data()
{
    QTest::addColumn<Action>("prepare");
    QTest::addColumn<List>("list");
    List list;
    QTest::newRow("as it starts") << Action([](OpenBox &) {}) << list;
    list.radius = 6;
    QTest::newRow("radius") << Action([](OpenBox &box) { box.setItemViewBorderRadius(6); }) << list;
    list.radius = -6;
    QTest::newRow("negative radius")
            << Action([](OpenBox &box) { box.setItemViewBorderRadius(-6); }) << list;
    list = {};
    list.background = QStringLiteral("rgba(1,2,3,1.0)");
    QTest::newRow("background") << Action([](OpenBox &box) {
        box.setPopupBackgroundColor(QStringLiteral("a"));
    }) << list;
    list.background = QStringLiteral("rgba(101,102,103,1.0)");
    list.text = QStringLiteral("rgba(107,108,109,1.0)");
    list.selection = QStringLiteral("rgba(101,102,103,1.0)");
    QTest::newRow("in another theme") << Action([](OpenBox &box) {
        box.setPopupBackgroundColor(QStringLiteral("a"));
        box.setSelectedBackgroundColor(QStringLiteral("a"));
        box.setItemViewBorderRadius(0); // A first style text, for the theme to renew.
        box.setThemeType(QStringLiteral("inverted"));
    }) << list;
    list = {};
    list.selection = QStringLiteral("rgba(4,5,6,1.0)");
    QTest::newRow("selection") << Action([](OpenBox &box) {
        box.setSelectedBackgroundColor(QStringLiteral("b"));
    }) << list;
}

void tst_OxaComboBoxStyle::writesTheSheetOfItsList()
{
    QFETCH(const Action, prepare);
    QFETCH(const List, list);
    OpenBox box;
    prepare(box);
    box.setItemViewDropdownOffset({});
    QCOMPARE(box.view()->styleSheet(), sheetOf(list));
    QCOMPARE(box.view()->objectName(), QStringLiteral("rillsAstractItemView"));
}

void tst_OxaComboBoxStyle::writesColors_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QString>("written");
    const auto add = [](const char *name, const QColor &color, const char *written) {
        QTest::newRow(name) << color << QString::fromLatin1(written);
    };
    add("transparent", QColor(12, 34, 56, 0), "rgba(12,34,56,0.0)");
    add("nearly transparent", QColor(0, 0, 0, 1), "rgba(0,0,0,0.00)");
    add("tenth", QColor(255, 255, 255, 26), "rgba(255,255,255,0.10)");
    add("just below the half", QColor(1, 2, 3, 127), "rgba(1,2,3,0.50)");
    add("half", QColor(12, 34, 56, 128), "rgba(12,34,56,0.50)");
    add("quarter", QColor(12, 34, 56, 64), "rgba(12,34,56,0.25)");
    add("nearly opaque", QColor(12, 34, 56, 254), "rgba(12,34,56,1.00)");
    add("opaque", QColor(12, 34, 56, 255), "rgba(12,34,56,1.0)");
    add("of another model", QColor::fromHsv(120, 255, 255), "rgba(0,255,0,1.0)");
}

void tst_OxaComboBoxStyle::writesColors()
{
    QFETCH(const QColor, color);
    QFETCH(const QString, written);
    const StoreGuard stores(ComboBoxes::store({ OxaColorSet(QStringLiteral("x"), color),
                                                OxaColorSet(ComboBoxes::borderName, color),
                                                OxaColorSet(ComboBoxes::textName, color) }));
    OpenBox box;
    box.setPopupBackgroundColor(QStringLiteral("x"));
    box.setSelectedBackgroundColor(QStringLiteral("x"));
    box.setItemViewBorderRadius(0);
    List list;
    list.background = list.selection = list.border = list.text = written;
    QCOMPARE(box.view()->styleSheet(), sheetOf(list));
}

void tst_OxaComboBoxStyle::writesNothingWithoutAName()
{
    OpenBox box(nullptr, QString());
    box.view()->setObjectName(QStringLiteral("mine"));
    box.view()->setStyleSheet(QStringLiteral("color: red"));
    box.setItemViewBorderRadius(3);
    box.setLeftPadding(3);
    QCOMPARE(box.log.take(), QStringLiteral("apply | apply"));
    QCOMPARE(box.view()->objectName(), QStringLiteral("mine"));
    QCOMPARE(box.view()->styleSheet(), QStringLiteral("color: red"));
    QCOMPARE(box.getCSS(), QString());
    QCOMPARE(box.styleSheet(), QString());
}

void tst_OxaComboBoxStyle::takesANameWhenItIsShown()
{
    OpenBox box(nullptr, QString());
    box.setObjectName(QStringLiteral("box"));
    QCOMPARE(box.log.take(), QString());
    QCOMPARE(box.getCSS(), QString());
    box.show();
    QCOMPARE(box.log.take(), styled);
    QCOMPARE(box.getCSS(), styleTextOf({}));
}

void tst_OxaComboBoxStyle::expandsItsTextAgainUnderANewName()
{
    OpenBox box;
    box.setItemViewBorderRadius(0);
    box.log.take();
    box.setObjectName(QStringLiteral("new"));
    QCOMPARE(box.log.take(), QStringLiteral("cssChanged"));
    // The text's own rules keep the old name until the box is styled again.
    QCOMPARE(box.getCSS(), styleTextOf({}));
    QCOMPARE(box.styleSheet(),
             ordinaryBorder.arg(QStringLiteral("new")) + ordinaryColors.arg(QStringLiteral("new"))
                     + rulesOf({}));
}

void tst_OxaComboBoxStyle::followsItsNameFromTheFirstStyleTextOnly()
{
    OpenBox box(nullptr, QString());
    box.setObjectName(QStringLiteral("one"));
    QCOMPARE(box.log.take(), QString());
    box.setCSS(QStringLiteral("$textColors: a;"));
    box.setCSS(QStringLiteral("$textColors: a;"));
    QCOMPARE(box.log.take(), QStringLiteral("cssChanged | cssChanged"));
    box.setObjectName(QStringLiteral("two"));
    QCOMPARE(box.log.take(), QStringLiteral("cssChanged"));
    QCOMPARE(box.styleSheet(), QStringLiteral("#two{border:none;}#two{color:#ff010203;}"));
}

void tst_OxaComboBoxStyle::stylesTheListFirst()
{
    OpenBox box;
    QStringList sheets;
    connect(&box, &OxaComboBox::cssChanged, &box, [&box, &sheets] {
        sheets += box.view()->styleSheet();
        sheets += box.getCSS();
    });
    box.setItemViewBorderRadius(6);
    List list;
    list.radius = 6;
    QCOMPARE(sheets,
             QStringList({ sheetOf(list), styleTextOf({}), sheetOf(list), styleTextOf({}) }));
}

void tst_OxaComboBoxStyle::isPolishedAfterItsList()
{
    PolishLog style;
    OpenBox box;
    box.setItemViewBorderRadius(0);
    box.view()->setStyleSheet(QString());
    box.view()->setStyle(&style);
    style.calls.clear();
    box.setItemViewBorderRadius(0);
    const int unpolish = style.calls.indexOf(QStringLiteral("unpolish box"));
    QVERIFY(unpolish >= 0);
    QCOMPARE(style.calls.indexOf(QStringLiteral("polish box")), unpolish + 1);
}

void tst_OxaComboBoxStyle::givesItsListABarAndItsOwnName()
{
    OxaComboBox box;
    box.setObjectName(QStringLiteral("box"));
    QCOMPARE(box.view()->verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    box.setAccessibleName(QStringLiteral("Language"));
    box.showPopup();
    QCOMPARE(box.view()->accessibleName(), QStringLiteral("Language"));
    box.hidePopup();

    box.view()->setAccessibleName(QStringLiteral("Languages"));
    box.view()->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    box.showPopup();
    QCOMPARE(box.view()->accessibleName(), QStringLiteral("Languages"));
    QCOMPARE(box.view()->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    box.hidePopup();
}

UIELEMENTS_TEST_MAIN(tst_OxaComboBoxStyle)
#include "tst_oxacombobox_style.moc"
