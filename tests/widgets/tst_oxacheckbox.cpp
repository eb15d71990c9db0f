// SPDX-License-Identifier: Apache-2.0
#include "CheckBoxPictures.h"
#include "support/Guards.h"
#include "support/PaintCounter.h"
#include "support/SignalLog.h"
#include "support/TestApplication.h"

#include <QAccessible>
#include <QSignalSpy>

using namespace CheckBoxPictures;

namespace {

/// Reaches what is meant for derived classes.
class OpenCheckBox : public OxaCheckBox
{
    Q_OBJECT

public:
    using OxaCheckBox::getElidedText;
    using OxaCheckBox::getLineWidth;
    using OxaCheckBox::hitButton;
    using OxaCheckBox::OxaCheckBox;

    QStringList log;

protected Q_SLOTS:
    void onThemeChanged() override
    {
        log += QStringLiteral("onThemeChanged");
        OxaCheckBox::onThemeChanged();
    }
};

/// The names of the sets that are missing, in the order of their warnings.
class MissingNames
{
    Q_DISABLE_COPY_MOVE(MissingNames)

public:
    MissingNames() : m_before(qInstallMessageHandler(&MissingNames::collect)) { s_names.clear(); }
    ~MissingNames() { qInstallMessageHandler(m_before); }

    static QStringList take() { return std::exchange(s_names, {}); }

private:
    static void collect(QtMsgType, const QMessageLogContext &, const QString &message)
    {
        s_names += message.section(QLatin1Char('"'), 1, 1);
    }

    const QtMessageHandler m_before;
    static QStringList s_names;
};

QStringList MissingNames::s_names;

} // namespace

class tst_OxaCheckBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_stores = std::make_unique<StoreGuard>(store()); }
    void cleanup() { m_stores.reset(); }

    void startsWithTheDefaults_data();
    void startsWithTheDefaults();
    void startsWithASmallFocusRadiusAndHover();
    void isMadeWithAParent();
    void changesByItsProperties_data();
    void changesByItsProperties();
    void makesTheTickSmallerThanTheBox_data();
    void makesTheTickSmallerThanTheBox();
    void looksItsSetsUpInOrder();
    void looksItsSetsUpAtEachThemeType();
    void followsSignalsWithItsTick();
    void returnsToItsTicksColorsForAStyleText();
    void countsThePaddingsAroundTheText();
    void elidesATextToTheLine();
    void isClickedAnywhere_data();
    void isClickedAnywhere();
    void isHitInAllOfItsRectangle();
    void tellsWhenThePointerComesAndGoes();
    void namesItselfToAssistiveTechnology();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaCheckBox::startsWithTheDefaults_data()
{
    QTest::addColumn<QVariant>("expected");
    const auto addRow = [](const char *property, const QVariant &value) {
        QTest::newRow(property) << value;
    };
    addRow("svgIcon", QStringLiteral(":/Resources/check_12_w.svg"));
    addRow("svgIconSize", QSize(10, 10));
    addRow("svgIconColorSet", QString());
    addRow("svgIconAlignment", QVariant::fromValue(OxaEnum::Alignment::Left));
    addRow("svgIconTopLeftPadding", QPoint());
    addRow("svgIconBottomRightPadding", QPoint());
    addRow("innerSvgIcon", QString());
    addRow("innerSvgIconSize", QSize(-1, -1));
    addRow("innerSvgIconColorSet", QString());
    addRow("textHorAlign", QVariant::fromValue(OxaEnum::HorAlign::LeftAlign));
    addRow("textLeftPadding", 10);
    addRow("textRightPadding", 0);
    addRow("elideMode", QVariant::fromValue(Qt::ElideNone));
    addRow("elidePadding", 0);
    addRow("fontToken", QVariant::fromValue(OxaFont::Token::Default));
    addRow("fontType", QVariant::fromValue(FontManagerEnum::FontType::Default));
    addRow("checkboxSize", QSize(14, 14));
    addRow("useDefaultStyle", true);
    addRow("wordWrap", true);
    addRow("css", QByteArray());
    addRow("themeType", QStringLiteral("global"));
    addRow("focusBorderRadius", 1);
    addRow("text", QString());
    addRow("checked", false);
    addRow("tristate", false);
}

void tst_OxaCheckBox::startsWithTheDefaults()
{
    QFETCH(const QVariant, expected);
    for (const bool isRounded : { false, true }) {
        const OxaCheckBox checkBox(nullptr, isRounded);
        const QVariant value = checkBox.property(QTest::currentDataTag());
        QVERIFY(value.isValid());
        QCOMPARE(value.userType(), expected.userType());
        if (QMetaType::typeFlags(value.userType()).testFlag(QMetaType::IsEnumeration))
            QCOMPARE(value.toInt(), expected.toInt());
        else
            QCOMPARE(value, expected);
    }
}

void tst_OxaCheckBox::startsWithASmallFocusRadiusAndHover()
{
    const OxaCheckBox checkBox;
    QCOMPARE(checkBox.getCheckboxMargin(), 3);
    QVERIFY(checkBox.testAttribute(Qt::WA_Hover));
    QCOMPARE(checkBox.font(), OxaFont(OxaFont::Token::Default, false));
    QVERIFY(checkBox.isDefaultStyle());
    QVERIFY(checkBox.getWordWrap());
}

void tst_OxaCheckBox::isMadeWithAParent()
{
    QWidget parent;
    const auto *checkBox = new OxaCheckBox(&parent, true);
    QCOMPARE(checkBox->parent(), &parent);
    QVERIFY(!checkBox->isWindow());
}

void tst_OxaCheckBox::changesByItsProperties_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("paints");
    QTest::newRow("checkboxSize") << QVariant(QSize(20, 24)) << 1;
    QTest::newRow("useDefaultStyle") << QVariant(false) << 1;
    QTest::newRow("wordWrap") << QVariant(false) << 1;
    QTest::newRow("textLeftPadding") << QVariant(4) << 1;
    QTest::newRow("elidePadding") << QVariant(4) << 1;
    QTest::newRow("svgIconTopLeftPadding") << QVariant(QPoint(1, 2)) << 1;
}

void tst_OxaCheckBox::changesByItsProperties()
{
    QFETCH(const QVariant, value);
    OxaCheckBox checkBox;
    checkBox.setText(QStringLiteral("abc"));
    PaintCounter paints(checkBox);
    QVERIFY(checkBox.setProperty(QTest::currentDataTag(), value));
    QCOMPARE(checkBox.property(QTest::currentDataTag()), value);
    QTEST(paints.take(), "paints");
}

void tst_OxaCheckBox::makesTheTickSmallerThanTheBox_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSize>("tick");
    QTest::newRow("larger") << QSize(30, 20) << QSize(26, 16);
    QTest::newRow("as large as what the tick lacks") << QSize(4, 4) << QSize(0, 0);
    QTest::newRow("none") << QSize(0, 0) << QSize(-4, -4);
    QTest::newRow("negative") << QSize(-3, 2) << QSize(-7, -2);
}

void tst_OxaCheckBox::makesTheTickSmallerThanTheBox()
{
    QFETCH(const QSize, size);
    OxaCheckBox checkBox;
    checkBox.setCheckboxSize(size);
    QCOMPARE(checkBox.getCheckboxSize(), size);
    QTEST(checkBox.getSvgIconSize(), "tick");
}

void tst_OxaCheckBox::looksItsSetsUpInOrder()
{
    const StoreGuard stores(ColorSets::storeOf({ OxaColorSet(QStringLiteral("other"), Qt::red) }));
    const MissingNames names;
    OxaCheckBox checkBox;
    const QStringList all = { textColors.name,    borderColors.name,    iconColors.name,
                              checkedColors.name, uncheckedColors.name, focusColors.name };
    QCOMPARE(MissingNames::take(), QStringList(focusColors.name) + all);
    checkBox.setThemeType(QStringLiteral("dark"));
    QCOMPARE(MissingNames::take(), all);
}

void tst_OxaCheckBox::looksItsSetsUpAtEachThemeType()
{
    OpenCheckBox checkBox;
    QCOMPARE(checkBox.log, QStringList());
    QObject::connect(&checkBox, &OxaCheckBox::cssChanged, &checkBox,
                     [&checkBox] { checkBox.log += QStringLiteral("cssChanged"); });
    QObject::connect(&checkBox, &OxaCheckBox::themeTypeChanged, &checkBox,
                     [&checkBox] { checkBox.log += QStringLiteral("themeTypeChanged"); });
    PaintCounter paints(checkBox);
    checkBox.setThemeType(QStringLiteral("light"));
    QCOMPARE(checkBox.log,
             QStringList({ QStringLiteral("cssChanged"), QStringLiteral("onThemeChanged"),
                           QStringLiteral("themeTypeChanged") }));
    QVERIFY(paints.take() > 0);
}

void tst_OxaCheckBox::followsSignalsWithItsTick()
{
    OxaCheckBox checkBox;
    checkBox.setSvgIcon(squareTick);
    checkBox.setChecked(true);
    const OxaColorSet orange(QStringLiteral("orange"), QColor(255, 128, 0));
    Q_EMIT checkBox.svgIconColorSetChanged(orange);
    QVERIFY(Pixels::countNear(Pixels::render(checkBox), orange.normal) > 50);
    Q_EMIT checkBox.svgIconSizeChanged(QSize(3, 3));
    QCOMPARE(checkBox.getSvgIconSize(), QSize(3, 3));
    QVERIFY(Pixels::countNear(Pixels::render(checkBox), orange.normal) <= 9);
}

void tst_OxaCheckBox::returnsToItsTicksColorsForAStyleText()
{
    OxaCheckBox checkBox;
    checkBox.setSvgIcon(squareTick);
    checkBox.setChecked(true);
    Q_EMIT checkBox.svgIconColorSetChanged(OxaColorSet(QStringLiteral("red"), Qt::red));
    checkBox.setCSS(QStringLiteral("$textColors: background-primary;"));
    QVERIFY(Pixels::countNear(Pixels::render(checkBox), iconColors.checked) > 50);
    // A name of its own wins over a style text, and gives way to the next theme type.
    checkBox.setSvgIconColorSet(focusColors.name);
    checkBox.setCSS(QStringLiteral("$textColors: background-primary;"));
    QVERIFY(Pixels::countNear(Pixels::render(checkBox), focusColors.checked) > 50);
    checkBox.setThemeType(QStringLiteral("light"));
    QVERIFY(Pixels::countNear(Pixels::render(checkBox), iconColors.checked) > 50);
}

void tst_OxaCheckBox::countsThePaddingsAroundTheText()
{
    OxaCheckBox checkBox;
    QCOMPARE(checkBox.geTextPadding(), 14 + 10);
    checkBox.setCheckboxSize(QSize(100, 7));
    checkBox.setTextRightPadding(20);
    checkBox.setSvgIconPadding(QMargins(1, 1000, 2, 1000));
    QCOMPARE(checkBox.geTextPadding(), 100 + 10 + 20 + 1 + 2);
}

void tst_OxaCheckBox::elidesATextToTheLine()
{
    OpenCheckBox checkBox;
    checkBox.resize(100, 20);
    checkBox.setElidePadding(30);
    QCOMPARE(checkBox.getLineWidth(), 70);
    const QString text(40, QLatin1Char('x'));
    QCOMPARE(checkBox.getElidedText(text, 10, 5), text);
    checkBox.setElideMode(Qt::ElideMiddle);
    QCOMPARE(checkBox.getElidedText(text, 10, 5),
             checkBox.fontMetrics().elidedText(text, Qt::ElideMiddle, 70 - 10 - 10));
}

void tst_OxaCheckBox::isClickedAnywhere_data()
{
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<bool>("isDefaultStyle");
    const std::pair<const char *, QPoint> positions[] = {
        { "top left", QPoint(0, 0) },        { "top right", QPoint(199, 0) },
        { "middle", QPoint(100, 30) },       { "bottom left", QPoint(0, 59) },
        { "bottom right", QPoint(199, 59) },
    };
    for (const auto &[name, position] : positions) {
        QTest::addRow("%s", name) << position << Qt::LeftToRight << true;
        QTest::addRow("%s, right to left", name) << position << Qt::RightToLeft << true;
        QTest::addRow("%s, as Qt paints it", name) << position << Qt::LeftToRight << false;
    }
}

void tst_OxaCheckBox::isClickedAnywhere()
{
    QFETCH(const QPoint, position);
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const bool, isDefaultStyle);
    const LayoutDirectionGuard layoutDirection(direction);
    OxaCheckBox checkBox;
    checkBox.setIsDefaultStyle(isDefaultStyle);
    checkBox.setText(QStringLiteral("abc"));
    checkBox.resize(200, 60);
    const QSignalSpy toggled(&checkBox, &QCheckBox::toggled);
    QTest::mouseClick(&checkBox, Qt::LeftButton, Qt::NoModifier, position);
    QVERIFY(checkBox.isChecked());
    QTest::mouseClick(&checkBox, Qt::LeftButton, Qt::NoModifier, position);
    QVERIFY(!checkBox.isChecked());
    QCOMPARE(toggled.size(), 2);
}

void tst_OxaCheckBox::isHitInAllOfItsRectangle()
{
    OpenCheckBox checkBox;
    checkBox.resize(200, 60);
    QVERIFY(checkBox.hitButton(QPoint(199, 59)));
    QVERIFY(!checkBox.hitButton(QPoint(200, 59)));
    QVERIFY(!checkBox.hitButton(QPoint(-1, 0)));
}

void tst_OxaCheckBox::tellsWhenThePointerComesAndGoes()
{
    OxaCheckBox checkBox;
    SignalLog log;
    log.record(&checkBox, &OxaCheckBox::mouseEntered, QStringLiteral("mouseEntered"));
    log.record(&checkBox, &OxaCheckBox::mouseExited, QStringLiteral("mouseExited"));
    QEnterEvent enter(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
    QCoreApplication::sendEvent(&checkBox, &enter);
    QCOMPARE(log.take(), QStringLiteral("mouseEntered"));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&checkBox, &leave);
    QCOMPARE(log.take(), QStringLiteral("mouseExited"));
}

void tst_OxaCheckBox::namesItselfToAssistiveTechnology()
{
    OxaCheckBox checkBox;
    checkBox.setText(QStringLiteral("&Remember me"));
    const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&checkBox);
    QVERIFY(accessible);
    QCOMPARE(accessible->role(), QAccessible::CheckBox);
    QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Remember me"));
    QVERIFY(accessible->state().checkable);
    QVERIFY(!accessible->state().checked);
    checkBox.setChecked(true);
    QVERIFY(accessible->state().checked);
    checkBox.setTristate(true);
    checkBox.setCheckState(Qt::PartiallyChecked);
    QVERIFY(accessible->state().checkStateMixed);
}

UIELEMENTS_TEST_MAIN(tst_OxaCheckBox)
#include "tst_oxacheckbox.moc"
