// SPDX-License-Identifier: Apache-2.0
#include "PopupParts.h"
#include "support/ColorSets.h"
#include "support/TestApplication.h"

#include <functional>

using AppThemeType = OxaThemeUtils::AppThemeType;

namespace {

using Builder = std::function<WidgetData &(WidgetData &)>;

QString text(const QRect &rect)
{
    return QStringLiteral("%1,%2 %3x%4")
            .arg(rect.x())
            .arg(rect.y())
            .arg(rect.width())
            .arg(rect.height());
}

/// Returns a line for each field of \a data.
QStringList describe(const WidgetData &data)
{
    const auto line = [](const char *name, const QVariant &value) {
        return QLatin1String(name) + QLatin1Char(' ') + value.toString();
    };
    return { line("alignment", int(data.m_alignment)),
             line("arrowPostion", int(data.m_arrowPostion)),
             line("autoDismiss", data.m_autoDismiss),
             line("dismissTimerTicks", data.m_dismissTimerTicks),
             line("arrowAlignmentRect", data.m_arrowAlignmentRect),
             line("arrowPostionRect", text(data.m_arrowPostionRect)),
             line("dismissWithParentFocused", data.m_dismissWithParentFocused),
             line("dismissPopupOnSourceMove", data.m_dismissPopupOnSourceMove),
             line("activateOnShow", data.m_activateOnShow),
             line("fitInMainWindowGeometry", data.m_fitInMainWindowGeometry),
             line("focusSourceOnClose", data.m_focusSourceOnClose),
             line("selfReactivate", data.m_selfReactivate),
             line("showOnSourceScreen", data.m_showOnSourceScreen),
             line("shouldTakeFocus", data.m_shouldTakeFocus),
             line("skipDeepFocusCheck", data.m_skipDeepFocusCheck),
             line("shouldHaveTransparentBackground", data.m_shouldHaveTransparentBackground),
             line("addMariginForCentralWidget", data.m_addMariginForCentralWidget),
             line("cornerRadius", data.m_cornerRadius),
             line("theme", int(data.m_theme)),
             line("widgetColour", ColorSets::describe(data.m_widgetColour)),
             line("widgetBorderColour", ColorSets::describe(data.m_widgetBorderColour)),
             line("widgetBorderBlurColour", ColorSets::describe(data.m_widgetBorderBlurColour)),
             line("offset", QStringLiteral("%1,%2").arg(data.m_offset.x()).arg(data.m_offset.y())),
             line("headerText", data.m_headerText) };
}

} // namespace

Q_DECLARE_METATYPE(Builder)
Q_DECLARE_METATYPE(AppThemeType)

class tst_WidgetData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_stores = std::make_unique<StoreGuard>(PopupParts::store()); }
    void cleanup() { m_stores.reset(); }

    void hasItsDefaults();
    void setsOneFieldByEachBuilder_data();
    void setsOneFieldByEachBuilder();
    void isFilledByCallsInARow();
    void looksColoursUpInItsTheme_data();
    void looksColoursUpInItsTheme();
    void hasNoColoursWithoutTheirSets();
    void keepsTheRadiusForOtherSizes();
    void knowsTheSideOfAnArrow_data();
    void knowsTheSideOfAnArrow();
    void numbersItsEnumerations();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_WidgetData::hasItsDefaults()
{
    QCOMPARE(describe(WidgetData(AppThemeType::Light)).join(QLatin1Char('\n')),
             QStringLiteral("alignment 1\narrowPostion 0\nautoDismiss true\ndismissTimerTicks 0\n"
                            "arrowAlignmentRect false\narrowPostionRect 0,0 0x0\n"
                            "dismissWithParentFocused true\ndismissPopupOnSourceMove false\n"
                            "activateOnShow false\nfitInMainWindowGeometry false\n"
                            "focusSourceOnClose true\nselfReactivate true\n"
                            "showOnSourceScreen false\nshouldTakeFocus true\n"
                            "skipDeepFocusCheck false\nshouldHaveTransparentBackground true\n"
                            "addMariginForCentralWidget true\ncornerRadius 0\ntheme 1\n"
                            "widgetColour #ffff0000\nwidgetBorderColour #ff0000ff\n"
                            "widgetBorderBlurColour #ff00ff00\noffset 0,0\nheaderText "));
}

void tst_WidgetData::setsOneFieldByEachBuilder_data()
{
    QTest::addColumn<Builder>("builder");
    QTest::addColumn<QString>("line");
    const auto add = [](const char *line, const Builder &builder) {
        QTest::newRow(line) << builder << QString::fromLatin1(line);
    };
    using Data = WidgetData;
    add("alignment 2", [](Data &d) -> Data & { return d.alignment(Data::Alignment::Right); });
    add("arrowPostion 4",
        [](Data &d) -> Data & { return d.arrowPostion(Data::ArrowPostion::NoArrowAbove); });
    add("autoDismiss false", [](Data &d) -> Data & { return d.autoDismiss(false); });
    add("dismissTimerTicks 7", [](Data &d) -> Data & { return d.dismissTimerTicks(7); });
    add("arrowAlignmentRect true", [](Data &d) -> Data & { return d.arrowAlignmentRect(true); });
    add("arrowPostionRect 1,2 3x4",
        [](Data &d) -> Data & { return d.arrowPostionRect(QRect(1, 2, 3, 4)); });
    add("dismissWithParentFocused false",
        [](Data &d) -> Data & { return d.dismissWithParentFocused(false); });
    add("dismissPopupOnSourceMove true",
        [](Data &d) -> Data & { return d.dismissPopupOnSourceMove(true); });
    add("activateOnShow true", [](Data &d) -> Data & { return d.activateOnShow(true); });
    add("fitInMainWindowGeometry true",
        [](Data &d) -> Data & { return d.fitInMainWindowGeometry(true); });
    add("focusSourceOnClose false", [](Data &d) -> Data & { return d.focusSourceOnClose(false); });
    add("selfReactivate false", [](Data &d) -> Data & { return d.selfReactivate(false); });
    add("showOnSourceScreen true", [](Data &d) -> Data & { return d.showOnSourceScreen(true); });
    add("shouldTakeFocus false", [](Data &d) -> Data & { return d.shouldTakeFocus(false); });
    add("skipDeepFocusCheck true", [](Data &d) -> Data & { return d.skipDeepFocusCheck(true); });
    add("shouldHaveTransparentBackground false",
        [](Data &d) -> Data & { return d.shouldHaveTransparentBackground(false); });
    add("addMariginForCentralWidget false",
        [](Data &d) -> Data & { return d.addMariginForCentralWidget(false); });
    add("cornerRadius 5", [](Data &d) -> Data & { return d.cornerRadius(5); });
    add("cornerRadius 8", [](Data &d) -> Data & { return d.cornerRadius(Data::PopupSize::Small); });
    add("cornerRadius 12",
        [](Data &d) -> Data & { return d.cornerRadius(Data::PopupSize::Large); });
    add("widgetColour #ff000001",
        [](Data &d) -> Data & { return d.widgetColour(QColor(0, 0, 1)); });
    add("widgetColour #ff00ffff",
        [](Data &d) -> Data & { return d.widgetColour(QStringLiteral("text-primary")); });
    add("widgetBorderColour #ff000001",
        [](Data &d) -> Data & { return d.widgetBorderColour(QColor(0, 0, 1)); });
    add("widgetBorderColour #ff00ffff",
        [](Data &d) -> Data & { return d.widgetBorderColour(QStringLiteral("text-primary")); });
    add("widgetBorderBlurColour #ff000001",
        [](Data &d) -> Data & { return d.widgetBorderBlurColour(QColor(0, 0, 1)); });
    add("widgetBorderBlurColour #ff00ffff",
        [](Data &d) -> Data & { return d.widgetBorderBlurColour(QStringLiteral("text-primary")); });
    add("offset -3,4", [](Data &d) -> Data & { return d.offset(QPoint(-3, 4)); });
    add("headerText Title",
        [](Data &d) -> Data & { return d.headerText(QStringLiteral("Title")); });
}

void tst_WidgetData::setsOneFieldByEachBuilder()
{
    QFETCH(const Builder, builder);
    QFETCH(const QString, line);
    WidgetData data = PopupParts::data();
    const QStringList before = describe(data);
    QCOMPARE(&builder(data), &data);
    const QStringList after = describe(data);
    QStringList changed;
    for (int i = 0; i < after.size(); ++i) {
        if (after.at(i) != before.at(i))
            changed += after.at(i);
    }
    QCOMPARE(changed, QStringList(line));
}

void tst_WidgetData::isFilledByCallsInARow()
{
    const WidgetData data = WidgetData(AppThemeType::Light).cornerRadius(3).offset(QPoint(1, 2));
    const WidgetData copy(data);
    QCOMPARE(describe(copy), describe(data));
    QCOMPARE(copy.m_cornerRadius, 3);
    QCOMPARE(copy.m_offset, QPoint(1, 2));
}

void tst_WidgetData::looksColoursUpInItsTheme_data()
{
    QTest::addColumn<AppThemeType>("theme");
    QTest::addColumn<QColor>("color");
    QTest::newRow("global") << AppThemeType::Global << QColor(Qt::red);
    QTest::newRow("light") << AppThemeType::Light << QColor(Qt::red);
    QTest::newRow("dark") << AppThemeType::Dark << QColor(Qt::yellow);
    QTest::newRow("inverted") << AppThemeType::Inverted << QColor(Qt::yellow);
}

void tst_WidgetData::looksColoursUpInItsTheme()
{
    QFETCH(const AppThemeType, theme);
    QFETCH(const QColor, color);
    OxaColorSetMap inverted = PopupParts::store();
    for (auto &[name, set] : inverted)
        set = OxaColorSet(QString::fromStdString(name), Qt::yellow);
    m_stores.reset();
    StoreGuard stores(PopupParts::store(), inverted);
    stores.setFlags(false, false);
    WidgetData data(theme);
    QCOMPARE(data.m_widgetColour, color);
    data.widgetBorderColour(QStringLiteral("background-primary"));
    QCOMPARE(data.m_widgetBorderColour, color);
}

void tst_WidgetData::hasNoColoursWithoutTheirSets()
{
    m_stores.reset();
    const StoreGuard stores(OxaColorSetMap {});
    for (const char *name : { "background-primary", "oxa-default-border", "oxa-popupDropShadow" })
        QTest::ignoreMessage(QtWarningMsg,
                             qPrintable(QStringLiteral("ColorSet name does not exist!  \"%1\"")
                                                .arg(QLatin1String(name))));
    const WidgetData data = PopupParts::data();
    QVERIFY(!data.m_widgetColour.isValid());
    QVERIFY(!data.m_widgetBorderColour.isValid());
    QVERIFY(!data.m_widgetBorderBlurColour.isValid());
}

void tst_WidgetData::keepsTheRadiusForOtherSizes()
{
    WidgetData data = PopupParts::data().cornerRadius(5);
    data.cornerRadius(WidgetData::PopupSize(2));
    QCOMPARE(data.m_cornerRadius, 5);
}

void tst_WidgetData::knowsTheSideOfAnArrow_data()
{
    QTest::addColumn<Qt::ArrowType>("arrow");
    QTest::addColumn<int>("side");
    QTest::newRow("up") << Qt::UpArrow << 0;
    QTest::newRow("left") << Qt::LeftArrow << 1;
    QTest::newRow("right") << Qt::RightArrow << 2;
    QTest::newRow("down") << Qt::DownArrow << 3;
    QTest::newRow("none") << Qt::NoArrow << 4;
    QTest::newRow("another value") << Qt::ArrowType(7) << 4;
}

void tst_WidgetData::knowsTheSideOfAnArrow()
{
    QFETCH(const Qt::ArrowType, arrow);
    QFETCH(const int, side);
    QCOMPARE(int(WidgetData::toArrowPosition(arrow)), side);
}

void tst_WidgetData::numbersItsEnumerations()
{
    using Data = WidgetData;
    static_assert(sizeof(Data::Alignment) == 1 && sizeof(Data::ArrowPostion) == 1);
    static_assert(std::is_unsigned_v<std::underlying_type_t<Data::Alignment>>);
    static_assert(std::is_unsigned_v<std::underlying_type_t<Data::ArrowPostion>>);
    QCOMPARE(int(Data::Alignment::Left), 0);
    QCOMPARE(int(Data::Alignment::Center), 1);
    QCOMPARE(int(Data::Alignment::Right), 2);
    QCOMPARE(int(Data::ArrowPostion::Top), 0);
    QCOMPARE(int(Data::ArrowPostion::Left), 1);
    QCOMPARE(int(Data::ArrowPostion::Right), 2);
    QCOMPARE(int(Data::ArrowPostion::Bottom), 3);
    QCOMPARE(int(Data::ArrowPostion::NoArrowAbove), 4);
    QCOMPARE(int(Data::ArrowPostion::NoArrowBelow), 5);
    QCOMPARE(int(Data::PopupSize::Small), 0);
    QCOMPARE(int(Data::PopupSize::Large), 1);
}

UIELEMENTS_TEST_MAIN(tst_WidgetData)
#include "tst_widgetdata.moc"
