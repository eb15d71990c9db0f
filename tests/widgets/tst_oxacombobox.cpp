// SPDX-License-Identifier: Apache-2.0
#include "ComboBoxes.h"
#include "support/PaintCounter.h"
#include "support/TestApplication.h"

#include <QSignalSpy>

#include <limits>

using ComboBoxes::Action;
using ComboBoxes::OpenBox;
using ComboBoxes::styled;

namespace {

const QString path = QStringLiteral(":/Resources/arrow-up_8.svg");

} // namespace

/// The members of OxaComboBox: what it starts with, and what each setter triggers.
class tst_OxaComboBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_stores = std::make_unique<StoreGuard>(ComboBoxes::store()); }
    void cleanup() { m_stores.reset(); }

    void startsWithItsDefaults();
    void startsUnstyledWithAPopupWindow();
    void showsItsPropertiesToTheMetaObject_data();
    void showsItsPropertiesToTheMetaObject();
    void hasSignalsThatNothingEmits();

    void tellsOfAnArrowBeforeItIsStyled_data();
    void tellsOfAnArrowBeforeItIsStyled();
    void stylesItselfInSetters_data();
    void stylesItselfInSetters();
    void onlyStoresInOtherSetters();
    void repaintsForTheArrowsSizeAlone();
    void truncatesTheLeftPadding_data();
    void truncatesTheLeftPadding();
    void makesItsTextEditable();

    void runsItsThemeFunctionAtEachChange();
    void remembersTheHighlightedRow();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaComboBox::startsWithItsDefaults()
{
    const OxaComboBox box;
    QCOMPARE(box.getSvgDropdownIcon(), QStringLiteral(":/Resources/arrow-down_8.svg"));
    QCOMPARE(box.getSvgDropDownIconExpanded(), QStringLiteral(":/Resources/arrow-up_8.svg"));
    QCOMPARE(box.getSvgDropdownIconSize(), QSize(12, 12));
    QCOMPARE(box.getSvgDropdownIconPadding(), 5);
    QCOMPARE(box.getItemViewBorderRadius(), 0);
    QCOMPARE(box.getItemViewDropdownOffset(), QPoint(0, 4));
    QVERIFY(!box.isOpenedUpwards());
    QCOMPARE(box.getSelectedBackgroundColor(), QString());
    QCOMPARE(box.getPopupBackgroundColor(), QString());
    QVERIFY(box.isShowPopupEnabled());
    QVERIFY(box.isComboBoxAnimationEnabled());
    QCOMPARE(box.getFontToken(), OxaFont::Token::Default);
    QCOMPARE(box.getFontType(), FontManagerEnum::FontType::Default);
    QCOMPARE(box.property("themeType"), QVariant(QStringLiteral("global")));
}

void tst_OxaComboBox::startsUnstyledWithAPopupWindow()
{
    const OxaComboBox box;
    QCOMPARE(box.getCSS(), QString());
    QCOMPARE(box.styleSheet(), QString());
    QCOMPARE(box.view()->styleSheet(), QString());
    QVERIFY(box.view()->window() != box.window());
    QCOMPARE(box.view()->window()->windowFlags(),
             Qt::WindowFlags(Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint));
}

void tst_OxaComboBox::showsItsPropertiesToTheMetaObject_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QByteArray>("notifier");
    const auto add = [](const char *name, const QVariant &value, const char *notifier = "") {
        QTest::addRow("%s", name) << QByteArray(name) << value << QByteArray(notifier);
    };
    add("svgDropdownIcon", path, "svgDropdownIconChanged");
    add("svgDropDownIconExpanded", path, "svgDropdownIconExpandedChanged");
    add("svgDropdownIconSize", QSize(7, 8), "svgDropdownIconSizeChanged");
    add("itemViewBorderRadius", 6);
    add("itemViewDropdownOffset", QPoint(-3, 9));
    add("openedUpwards", true);
    add("selectedBackgroundColor", QStringLiteral("a"));
    add("popupBackgroundColor", QStringLiteral("b"));
    add("showPopupEnabled", false);
    add("animateComboBox", false);
}

void tst_OxaComboBox::showsItsPropertiesToTheMetaObject()
{
    QFETCH(const QByteArray, name);
    QFETCH(const QVariant, value);
    QFETCH(const QByteArray, notifier);
    OxaComboBox box;
    QVERIFY(box.property(name.constData()) != value || name == "svgDropDownIconExpanded");
    QVERIFY(box.setProperty(name.constData(), value));
    QCOMPARE(box.property(name.constData()), value);
    const QMetaObject *meta = box.metaObject();
    QCOMPARE(meta->property(meta->indexOfProperty(name.constData())).notifySignal().name(),
             notifier);

    const QMetaProperty padding = meta->property(meta->indexOfProperty("svgDropdownIconPadding"));
    QVERIFY(padding.isReadable());
    QVERIFY(!padding.isWritable());
}

void tst_OxaComboBox::hasSignalsThatNothingEmits()
{
    OpenBox box;
    const QSignalSpy radius(&box, &OxaComboBox::svgDropdownBorderRadiusChanged);
    const QSignalSpy width(&box, &OxaComboBox::svgDropdownBorderWidthChanged);
    box.updateStyle({ "", "", "", 3, 4 });
    QCOMPARE(box.log.take(), styled);
    QCOMPARE(radius.size() + width.size(), 0);
}

void tst_OxaComboBox::tellsOfAnArrowBeforeItIsStyled_data()
{
    QTest::addColumn<Action>("set");
    QTest::addColumn<QString>("signal");
    QTest::newRow("file") << Action([](OpenBox &box) { box.setSvgDropdownIcon(path); })
                          << QStringLiteral("file %1").arg(path);
    QTest::newRow("expanded file")
            << Action([](OpenBox &box) { box.setSvgDropDownIconExpanded(path); })
            << QStringLiteral("expanded %1").arg(path);
    QTest::newRow("size") << Action([](OpenBox &box) {
        box.setSvgDropdownIconSize({ 3, 4 });
    }) << QStringLiteral("size 3 4");
    QTest::newRow("padding") << Action([](OpenBox &box) { box.setSvgDropdownIconPaddingRight(9); })
                             << QStringLiteral("padding 9");
}

void tst_OxaComboBox::tellsOfAnArrowBeforeItIsStyled()
{
    QFETCH(const Action, set);
    QFETCH(const QString, signal);
    OpenBox box;
    connect(&box, &OxaComboBox::svgDropdownIconChanged, &box, [&box](const QString &file) {
        box.log.note(QStringLiteral("file %1").arg(file));
        QCOMPARE(file, box.getSvgDropdownIcon());
    });
    connect(&box, &OxaComboBox::svgDropdownIconExpandedChanged, &box, [&box](const QString &file) {
        box.log.note(QStringLiteral("expanded %1").arg(file));
        QCOMPARE(file, box.getSvgDropDownIconExpanded());
    });
    connect(&box, &OxaComboBox::svgDropdownIconSizeChanged, &box, [&box](const QSize &size) {
        box.log.note(QStringLiteral("size %1 %2").arg(size.width()).arg(size.height()));
        QCOMPARE(size, box.getSvgDropdownIconSize());
    });
    connect(&box, &OxaComboBox::svgDropdownIconPaddingChanged, &box, [&box](int padding) {
        box.log.note(QStringLiteral("padding %1").arg(padding));
        QCOMPARE(padding, box.getSvgDropdownIconPadding());
    });
    for (int call = 0; call < 2; ++call) { // The second call changes nothing, and does the same.
        set(box);
        QCOMPARE(box.log.take(), signal + QStringLiteral(" | ") + styled);
    }
}

void tst_OxaComboBox::stylesItselfInSetters_data()
{
    QTest::addColumn<Action>("set");
    QTest::newRow("radius of the list")
            << Action([](OpenBox &box) { box.setItemViewBorderRadius(0); });
    QTest::newRow("offset of the list") << Action([](OpenBox &box) {
        box.setItemViewDropdownOffset({ 0, 4 });
    });
    QTest::newRow("left padding") << Action([](OpenBox &box) { box.setLeftPadding(12); });
    QTest::newRow("editable") << Action([](OpenBox &box) { box.setEditable(false); });
    QTest::newRow("style") << Action([](OpenBox &box) { box.updateStyle({}); });
}

void tst_OxaComboBox::stylesItselfInSetters()
{
    QFETCH(const Action, set);
    OpenBox box;
    set(box);
    QCOMPARE(box.log.take(), styled);
}

void tst_OxaComboBox::onlyStoresInOtherSetters()
{
    OpenBox box;
    PaintCounter paints(box);
    box.log.take();
    box.setOpenedUpwards(true);
    box.setComboBoxAnimationEnabled(false);
    box.setShowPopupEnabled(false);
    box.setSelectedBackgroundColor(QStringLiteral("missing"));
    box.setPopupBackgroundColor(QStringLiteral("missing"));
    QCOMPARE(box.log.take(), QString());
    QCOMPARE(paints.take(), 0);
}

void tst_OxaComboBox::repaintsForTheArrowsSizeAlone()
{
    OpenBox box(nullptr, QString());
    PaintCounter paints(box);
    box.setSvgDropdownIcon(path);
    box.setSvgDropDownIconExpanded(path);
    box.setSvgDropdownIconPaddingRight(7);
    box.setItemViewBorderRadius(7);
    box.setItemViewDropdownOffset({ 7, 7 });
    box.setLeftPadding(7);
    box.updateStyle({});
    QCOMPARE(paints.take(), 0);
    box.setSvgDropdownIconSize({ 12, 12 });
    QCOMPARE(paints.take(), 1);
}

void tst_OxaComboBox::truncatesTheLeftPadding_data()
{
    QTest::addColumn<double>("padding");
    QTest::addColumn<int>("pixels");
    QTest::newRow("just below a pixel") << 7.999 << 7;
    QTest::newRow("half") << 0.5 << 0;
    QTest::newRow("negative") << -2.7 << -2;
    QTest::newRow("largest int") << 2147483647.0 << 2147483647;
    QTest::newRow("beyond int") << 1e300 << 2147483647;
    QTest::newRow("below int") << -1e300 << std::numeric_limits<int>::min();
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << 2147483647;
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << 0;
}

void tst_OxaComboBox::truncatesTheLeftPadding()
{
    QFETCH(const double, padding);
    QFETCH(const int, pixels);
    OpenBox box;
    box.setLeftPadding(padding);
    ComboBoxes::Field field;
    field.leftPadding = pixels;
    QCOMPARE(box.getCSS(), ComboBoxes::styleTextOf(field));
}

void tst_OxaComboBox::makesItsTextEditable()
{
    OpenBox box;
    box.setEditable(true);
    QVERIFY(box.isEditable());
    QVERIFY(box.lineEdit());
    QCOMPARE(box.log.take(), styled);
    box.setEditable(false);
    QVERIFY(!box.isEditable());
    QCOMPARE(box.log.take(), styled);
}

void tst_OxaComboBox::runsItsThemeFunctionAtEachChange()
{
    OpenBox box;
    box.log.record(&box, &OxaComboBox::themeTypeChanged, QStringLiteral("themeTypeChanged"));
    box.setThemeType(QStringLiteral("global"));
    QCOMPARE(box.log.take(),
             QStringLiteral("cssChanged | onThemeChanged | %1 | themeTypeChanged").arg(styled));
}

void tst_OxaComboBox::remembersTheHighlightedRow()
{
    OpenBox box;
    QTest::keyClick(box.view(), Qt::Key_Space);
    QCOMPARE(box.currentIndex(), 0); // The first row, before any was highlighted.
    box.highLightedIndex(2);
    QTest::keyClick(box.view(), Qt::Key_Space);
    QCOMPARE(box.currentIndex(), 2);
    Q_EMIT box.highlighted(1);
    QTest::keyClick(box.view(), Qt::Key_Space);
    QCOMPARE(box.currentIndex(), 1);
    QVERIFY(QMetaObject::invokeMethod(&box, "highLightedIndex", Q_ARG(int, 2)));
    QTest::keyClick(box.view(), Qt::Key_Space);
    QCOMPARE(box.currentIndex(), 2);
}

UIELEMENTS_TEST_MAIN(tst_OxaComboBox)
#include "tst_oxacombobox.moc"
