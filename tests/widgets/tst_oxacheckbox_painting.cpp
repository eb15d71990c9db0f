// SPDX-License-Identifier: Apache-2.0
#include "CheckBoxPictures.h"
#include "support/Guards.h"
#include "support/SvgFiles.h"
#include "support/TestApplication.h"

#include <QStyle>

using namespace CheckBoxPictures;

namespace {

const QString longText = QStringLiteral("A text that is too long for one line of its check box");

/// Returns what Qt's class hints for a check box like \a checkBox.
QSize baseHint(const OxaCheckBox &checkBox) { return checkBox.QCheckBox::sizeHint(); }

/// Gives \a checkBox a size, a square tick and a text.
void setUp(OxaCheckBox &checkBox)
{
    checkBox.setSvgIcon(squareTick);
    checkBox.setCheckboxSize(QSize(24, 14));
    checkBox.setText(QStringLiteral("abc"));
    checkBox.resize(120, 40);
}

} // namespace

Q_DECLARE_METATYPE(QMargins)

class tst_OxaCheckBoxPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_stores = std::make_unique<StoreGuard>(store()); }
    void cleanup() { m_stores.reset(); }

    void paintsEachState_data() { Faces::addRows(); }
    void paintsEachState();
    void paintsItselfByDrawCheckbox_data();
    void paintsItselfByDrawCheckbox();
    void paintsNoTickWhileItIsUnchecked();
    void paintsNoTickAndTheUncheckedSetWhilePartiallyChecked();
    void takesTheTextsColorsOfItsStyleText();
    void fallsBackOnTheTextsColorsForItsTick();
    void followsTheTheme();
    void handsItsPaintingOverToQt_data();
    void handsItsPaintingOverToQt();
    void paintsTheCheckedSetWithATickThatIsHiddenOrMissing();

    void hintsTheSizeOfBoxAndText_data();
    void hintsTheSizeOfBoxAndText();
    void hintsMoreThanTheBoxWithoutAText();
    void hintsTheHeightOfAllLines();
    void hintsQtsSizeWhenQtPaints();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaCheckBoxPainting::paintsEachState()
{
    QFETCH(const Faces::Face, face);
    QFETCH(const Qt::LayoutDirection, direction);
    const LayoutDirectionGuard layoutDirection(direction);
    for (const bool isRounded : { false, true }) {
        QWidget window;
        OxaCheckBox checkBox(&window, isRounded);
        setUp(checkBox);
        QVERIFY(Faces::put(checkBox, face));
        const QImage image = Pixels::render(checkBox);
        const QRect box(direction == Qt::LeftToRight ? 0 : 90, 0, 30, 23);
        const QString name = Faces::nameOf(face);
        const bool isChecked = face == Faces::Face::Checked;
        const QRect inside = insideOfBox(checkBox.width());
        QCOMPARE(Faces::facesIn(image, checkedColors, inside), isChecked ? name : QString());
        QCOMPARE(Faces::facesIn(image, uncheckedColors, inside), isChecked ? QString() : name);
        QCOMPARE(Faces::facesIn(image, iconColors, inside), isChecked ? name : QString());
        QVERIFY(Faces::facesIn(image, borderColors, box).contains(name));
        const QRect text(direction == Qt::LeftToRight ? 32 : 0, 0, 86, 30);
        QCOMPARE(Faces::facesIn(image, textColors, text), name);
    }
}

void tst_OxaCheckBoxPainting::paintsItselfByDrawCheckbox_data()
{
    QTest::addColumn<bool>("isRounded");
    QTest::addColumn<bool>("isEnabled");
    QTest::newRow("not rounded") << false << true;
    QTest::newRow("rounded") << true << true;
    QTest::newRow("not rounded, disabled") << false << false;
}

void tst_OxaCheckBoxPainting::paintsItselfByDrawCheckbox()
{
    QFETCH(const bool, isRounded);
    QFETCH(const bool, isEnabled);
    OxaCheckBox checkBox(nullptr, isRounded);
    checkBox.setSvgIcon(squareTick);
    checkBox.setCheckboxSize(QSize(25, 21));
    checkBox.setText(longText);
    checkBox.setEnabled(isEnabled);
    checkBox.resize(paperSize);
    for (const bool isChecked : { true, false }) {
        checkBox.setChecked(isChecked);
        const QStyle::State enabled = isEnabled ? QStyle::State_Enabled : QStyle::State_None;
        const Look look { isRounded, isChecked, boxRadius,
                          enabled | (isChecked ? QStyle::State_On : QStyle::State_Off) };
        const QImage expected = drawing(checkBox,
                                        [&](QPainter *painter) { paint(painter, checkBox, look); });
        QCOMPARE(Pixels::render(checkBox), expected);
    }
}

void tst_OxaCheckBoxPainting::paintsNoTickWhileItIsUnchecked()
{
    OxaCheckBox checkBox;
    setUp(checkBox);
    QCOMPARE(Faces::facesIn(Pixels::render(checkBox), iconColors, insideOfBox(120)), QString());
    checkBox.setChecked(true);
    QCOMPARE(Faces::facesIn(Pixels::render(checkBox), iconColors, insideOfBox(120)),
             QStringLiteral("checked"));
    checkBox.setChecked(false);
    QCOMPARE(Faces::facesIn(Pixels::render(checkBox), iconColors, insideOfBox(120)), QString());
}

void tst_OxaCheckBoxPainting::paintsNoTickAndTheUncheckedSetWhilePartiallyChecked()
{
    OxaCheckBox checkBox;
    setUp(checkBox);
    const QImage unchecked = Pixels::render(checkBox);
    checkBox.setTristate(true);
    // From either side, as Qt counts it as checked.
    for (const Qt::CheckState before : { Qt::Unchecked, Qt::Checked }) {
        checkBox.setCheckState(before);
        checkBox.setCheckState(Qt::PartiallyChecked);
        QVERIFY(checkBox.isChecked());
        QCOMPARE(Pixels::render(checkBox), unchecked);
    }
    checkBox.setCheckState(Qt::Checked);
    QCOMPARE(Faces::facesIn(Pixels::render(checkBox), iconColors, insideOfBox(120)),
             QStringLiteral("checked"));
}

void tst_OxaCheckBoxPainting::takesTheTextsColorsOfItsStyleText()
{
    OxaCheckBox checkBox;
    setUp(checkBox);
    const QRect text(32, 0, 88, 30);
    checkBox.setCSS(QStringLiteral("$textColors: background-primary;"));
    QVERIFY(Pixels::countNear(Pixels::render(checkBox), focusColors.normal, text) > 0);
    checkBox.setThemeType(QStringLiteral("light"));
    QCOMPARE(Faces::facesIn(Pixels::render(checkBox), textColors, text), QStringLiteral("normal"));
    // A style text without a set for the text.
    checkBox.setCSS(QStringLiteral("$backgroundColors: transparent;"));
    QCOMPARE(Faces::facesIn(Pixels::render(checkBox), textColors, text), QStringLiteral("normal"));
    checkBox.setObjectName(QStringLiteral("renamed"));
    QCOMPARE(Faces::facesIn(Pixels::render(checkBox), textColors, text), QStringLiteral("normal"));
}

void tst_OxaCheckBoxPainting::fallsBackOnTheTextsColorsForItsTick()
{
    OxaCheckBox checkBox;
    setUp(checkBox);
    checkBox.setChecked(true);
    QTest::ignoreMessage(QtWarningMsg, "ColorSet name does not exist!  \"missing\"");
    checkBox.setSvgIconColorSet(QStringLiteral("missing"));
    QCOMPARE(Faces::facesIn(Pixels::render(checkBox), iconColors, insideOfBox(120)), QString());
    QVERIFY(Pixels::countNear(Pixels::render(checkBox), textColors.checked, QRect(0, 0, 30, 23))
            > 100);
}

void tst_OxaCheckBoxPainting::followsTheTheme()
{
    OxaColorSetMap inverted;
    const QColor orange(255, 128, 0);
    for (const auto &[name, set] : store())
        inverted.emplace(name, OxaColorSet(set.name, orange));
    const StoreGuard stores(store(), inverted);
    OxaCheckBox checkBox;
    setUp(checkBox);
    checkBox.setChecked(true);
    checkBox.setThemeType(QStringLiteral("inverted"));
    const QImage image = Pixels::render(checkBox);
    for (const OxaColorSet &set : { textColors, borderColors, iconColors, checkedColors })
        QCOMPARE(Faces::facesIn(image, set), QString());
    QVERIFY(Pixels::countNear(image, orange, QRect(0, 0, 30, 23)) > 23 * 13);
    QVERIFY(Pixels::countNear(image, orange, QRect(32, 0, 88, 23)) > 0);
    checkBox.setChecked(false);
    QVERIFY(Pixels::countNear(Pixels::render(checkBox), orange, QRect(0, 0, 30, 23)) > 23 * 13);
}

void tst_OxaCheckBoxPainting::handsItsPaintingOverToQt_data()
{
    QTest::addColumn<Qt::CheckState>("state");
    QTest::newRow("unchecked") << Qt::Unchecked;
    QTest::newRow("partially checked") << Qt::PartiallyChecked;
    QTest::newRow("checked") << Qt::Checked;
}

void tst_OxaCheckBoxPainting::handsItsPaintingOverToQt()
{
    QFETCH(const Qt::CheckState, state);
    OxaCheckBox checkBox(nullptr, true);
    QCheckBox plain;
    plain.setAttribute(Qt::WA_Hover);
    plain.setFont(checkBox.font());
    checkBox.setIsDefaultStyle(false);
    for (QCheckBox *each : { static_cast<QCheckBox *>(&checkBox), &plain }) {
        each->setTristate(true);
        each->setText(QStringLiteral("abc"));
        each->setCheckState(state);
        each->resize(120, 40);
    }
    QCOMPARE(Pixels::render(checkBox), Pixels::render(plain));
}

void tst_OxaCheckBoxPainting::paintsTheCheckedSetWithATickThatIsHiddenOrMissing()
{
    OxaCheckBox checkBox;
    setUp(checkBox);
    checkBox.setChecked(true);
    checkBox.setSvgIcon(QString());
    const QImage image = Pixels::render(checkBox);
    QCOMPARE(Faces::facesIn(image, iconColors, insideOfBox(120)), QString());
    QVERIFY(Pixels::countNear(image, checkedColors.checked) > 200);
    const SvgFiles files;
    const QString path = files.path(QStringLiteral("missing.svg"));
    SvgFiles::ignoreMissing(path);
    checkBox.setSvgIcon(path);
    QCOMPARE(Pixels::render(checkBox), image);
}

void tst_OxaCheckBoxPainting::hintsTheSizeOfBoxAndText_data()
{
    QTest::addColumn<QSize>("boxSize");
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("right");
    QTest::addColumn<QMargins>("padding");
    QTest::addColumn<bool>("wordWrap");
    QTest::newRow("as new") << QSize(14, 14) << 10 << 0 << QMargins() << true;
    QTest::newRow("not wrapped") << QSize(14, 14) << 10 << 0 << QMargins() << false;
    QTest::newRow("a large box") << QSize(50, 60) << 10 << 0 << QMargins() << true;
    QTest::newRow("paddings") << QSize(14, 14) << 5 << 7 << QMargins(1, 20, 3, 40) << true;
}

void tst_OxaCheckBoxPainting::hintsTheSizeOfBoxAndText()
{
    QFETCH(const QSize, boxSize);
    QFETCH(const int, left);
    QFETCH(const int, right);
    QFETCH(const QMargins, padding);
    QFETCH(const bool, wordWrap);
    OxaCheckBox checkBox;
    checkBox.resize(400, 40);
    checkBox.setText(QStringLiteral("abc"));
    checkBox.setCheckboxSize(boxSize);
    checkBox.setTextLeftPadding(left);
    checkBox.setTextRightPadding(right);
    checkBox.setSvgIconPadding(padding);
    checkBox.setWordWrap(wordWrap);
    const QFontMetrics metrics = checkBox.fontMetrics();
    const QSize text = metrics.boundingRect(QRect(0, 0, 300, 40), Qt::AlignVCenter,
                                            QStringLiteral("abc"))
                               .size();
    // The box's height and the paddings above and below don't count beside a text.
    QCOMPARE(checkBox.sizeHint(),
             QSize(text.width() + left + right + 3 + boxSize.width() + padding.left()
                           + padding.right(),
                   text.height()));
}

void tst_OxaCheckBoxPainting::hintsMoreThanTheBoxWithoutAText()
{
    OxaCheckBox checkBox;
    checkBox.setSvgIconPadding(QMargins(1, 2, 3, 4));
    const QSize base = baseHint(checkBox);
    QCOMPARE(checkBox.sizeHint(), QSize(base.width() + 3 + 14 + 1 + 3, base.height() + 14 + 2 + 4));
}

void tst_OxaCheckBoxPainting::hintsTheHeightOfAllLines()
{
    OxaCheckBox checkBox;
    checkBox.setText(longText);
    checkBox.resize(100, 40);
    const QFontMetrics metrics = checkBox.fontMetrics();
    // What is left beside a box of 14 and a padding of 10.
    const QRect text = metrics.boundingRect(QRect(0, 0, 100 - 24, 40),
                                            Qt::AlignVCenter | Qt::TextWordWrap, longText);
    QVERIFY(text.height() > 3 * metrics.height());
    QCOMPARE(checkBox.sizeHint(), QSize(text.width() + 10 + 3 + 14, text.height()));
    checkBox.setWordWrap(false);
    const QRect line = metrics.boundingRect(QRect(0, 0, 100 - 24, 40), Qt::AlignVCenter, longText);
    QVERIFY(line.height() < 2 * metrics.height());
    QCOMPARE(checkBox.sizeHint(), QSize(line.width() + 10 + 3 + 14, line.height()));
}

void tst_OxaCheckBoxPainting::hintsQtsSizeWhenQtPaints()
{
    OxaCheckBox checkBox;
    checkBox.setIsDefaultStyle(false);
    QCOMPARE(checkBox.sizeHint(), baseHint(checkBox));
    checkBox.setText(longText);
    checkBox.resize(100, 40);
    QCOMPARE(checkBox.sizeHint(), baseHint(checkBox));
}

UIELEMENTS_TEST_MAIN(tst_OxaCheckBoxPainting)
#include "tst_oxacheckbox_painting.moc"
