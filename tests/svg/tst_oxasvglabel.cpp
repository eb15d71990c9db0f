// SPDX-License-Identifier: Apache-2.0
#include "support/Faces.h"
#include "support/Guards.h"
#include "support/SvgFiles.h"
#include "support/TestApplication.h"

#include <UiElements/svg/OxaSvgLabel.h>

#include <functional>

namespace {

const OxaColorSet textColors = Faces::colors(QStringLiteral("text"), 130);
const OxaColorSet otherTextColors = Faces::colors(QStringLiteral("other"), 70);
const OxaColorSet iconColors = Faces::colors(QStringLiteral("icon"), 220);

/// As odd as the height of the text, so that icons stand on whole pixels.
constexpr QSize oddSize(17, 17);

QImage picture(OxaSvgLabel &label)
{
    label.resize(120, 40);
    return Pixels::render(label);
}

} // namespace

using SetUp = std::function<void(OxaSvgLabel &, const QString &)>;
Q_DECLARE_METATYPE(SetUp)

/// OxaSvgLabel, without the icon block and inherited members.
class tst_OxaSvgLabel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_stores.reset(); }

    void takesWhatItsConstructorsAreGiven();
    void hintsTheSizeOfTextIconAndPaddings_data();
    void hintsTheSizeOfTextIconAndPaddings();
    void followsTheTextsColorsWithoutASetOfItsOwn();
    void followsTheThemeWithItsLinks();
    void paintsEachState_data() { Faces::addRows(false); }
    void paintsEachState();
    void paintsMarkupAsPlainText();
    void paintsTheFrameAndBackgroundOfItsSheet();

private:
    SvgFiles m_files;
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaSvgLabel::initTestCase()
{
    m_stores = std::make_unique<StoreGuard>(
            ColorSets::storeOf({ textColors, otherTextColors, iconColors,
                                 OxaColorSet(QStringLiteral("ground"), QColor(250, 240, 200)),
                                 OxaColorSet(QStringLiteral("button-hyperlink-text"), Qt::blue) }),
            ColorSets::storeOf({ OxaColorSet(QStringLiteral("button-hyperlink-text"), Qt::red) }));
}

void tst_OxaSvgLabel::takesWhatItsConstructorsAreGiven()
{
    QWidget parent;
    const auto *plain = new OxaSvgLabel(&parent);
    QCOMPARE(plain->parent(), &parent);
    QCOMPARE(plain->text(), QString());
    QCOMPARE(plain->getAccessibleRole(), QAccessible::NoRole);
    const auto *label = new OxaSvgLabel(QStringLiteral("abc"), &parent, QAccessible::StaticText,
                                        Qt::Tool);
    QCOMPARE(label->parent(), &parent);
    QCOMPARE(label->text(), QStringLiteral("abc"));
    QCOMPARE(label->getAccessibleRole(), QAccessible::StaticText);
    QVERIFY(label->windowFlags().testFlag(Qt::Tool));
}

void tst_OxaSvgLabel::hintsTheSizeOfTextIconAndPaddings_data()
{
    QTest::addColumn<SetUp>("setUp");
    QTest::addColumn<QSize>("more");
    QTest::newRow("a text alone") << SetUp([](OxaSvgLabel &, const QString &) {}) << QSize(0, 0);
    QTest::newRow("the text's paddings") << SetUp([](OxaSvgLabel &label, const QString &) {
        label.setTextLeftPadding(3);
        label.setTextRightPadding(4);
    }) << QSize(7, 0);
    QTest::newRow("the icon's paddings do not count without an icon")
            << SetUp([](OxaSvgLabel &label, const QString &) {
                   label.setSvgIconPadding(QMargins(1, 2, 3, 4));
               })
            << QSize(0, 0);
    QTest::newRow("an icon adds its height too")
            << SetUp([](OxaSvgLabel &label, const QString &path) {
                   label.setSvgIcon(path);
                   label.setSvgIconSize(QSize(20, 10));
                   label.setSvgIconPadding(QMargins(1, 2, 3, 4));
               })
            << QSize(24, 16);
    QTest::newRow("an icon without a picture counts") << SetUp(
            [](OxaSvgLabel &label, const QString &) { label.setSvgIconSize(QSize(20, 10)); })
                                                      << QSize(20, 10);
    // The icon exists then, but has no outer picture.
    QTest::newRow("an inner picture alone counts as minus one")
            << SetUp([](OxaSvgLabel &label, const QString &path) { label.setInnerSvgIcon(path); })
            << QSize(-1, -1);
}

void tst_OxaSvgLabel::hintsTheSizeOfTextIconAndPaddings()
{
    QFETCH(const SetUp, setUp);
    QFETCH(const QSize, more);
    OxaSvgLabel label(QStringLiteral("abc"));
    setUp(label, m_files.square());
    QCOMPARE(label.sizeHint(), label.QLabel::sizeHint() + more);
}

void tst_OxaSvgLabel::followsTheTextsColorsWithoutASetOfItsOwn()
{
    OxaSvgLabel label;
    label.setSvgIcon(m_files.square());
    label.setSvgIconSize(oddSize);
    label.setCSS(QStringLiteral("$textColors: text;"));
    QCOMPARE(Pixels::countNear(picture(label), textColors.normal), 17 * 17);
    label.setCSS(QStringLiteral("$textColors: other;"));
    QCOMPARE(Pixels::countNear(picture(label), otherTextColors.normal), 17 * 17);

    // The inner picture keeps its own set.
    label.setSvgIconColorSet(iconColors.name);
    label.setInnerSvgIcon(m_files.square());
    label.setInnerSvgIconSize(QSize(7, 7));
    label.setCSS(QStringLiteral("$textColors: text;"));
    QCOMPARE(Pixels::countNear(picture(label), iconColors.normal), 17 * 17 - 7 * 7);
    QCOMPARE(Pixels::countNear(picture(label), otherTextColors.normal), 7 * 7);
}

void tst_OxaSvgLabel::followsTheThemeWithItsLinks()
{
    OxaSvgLabel label;
    label.setTextFormat(Qt::RichText);
    label.setText(QStringLiteral("<a href='x'>y</a>"));
    QVERIFY(label.text().contains(QLatin1String("#0000ff")));
    label.setThemeType(QStringLiteral("inverted"));
    QVERIFY(label.text().contains(QLatin1String("#ff0000")));
}

void tst_OxaSvgLabel::paintsEachState()
{
    QFETCH(const Faces::Face, face);
    QFETCH(const Qt::LayoutDirection, direction);
    const LayoutDirectionGuard layoutDirection(direction);
    OxaSvgLabel label(QStringLiteral("abc"));
    label.setFocusPolicy(Qt::StrongFocus);
    label.setCSS(QStringLiteral("$textColors: text;"));
    label.setSvgIcon(m_files.square());
    label.setSvgIconSize(oddSize);
    label.setSvgIconColorSet(iconColors.name);
    label.setTextHorAlign(OxaEnum::HorAlign::LeftAlign);
    label.resize(120, 40);
    QVERIFY(Faces::put(label, face));
    const QImage image = picture(label);
    QCOMPARE(Faces::facesIn(image, iconColors), Faces::nameOf(face));
    QCOMPARE(Faces::facesIn(image, textColors), Faces::nameOf(face));
    const QRect icon = Pixels::boundsNear(image, Faces::colorOf(iconColors, face));
    const QRect text = Pixels::boundsNear(image, Faces::colorOf(textColors, face));
    QCOMPARE(icon, QRect(direction == Qt::LeftToRight ? 0 : 103, 12, 17, 17));
    QCOMPARE(text.left() > icon.right(), direction == Qt::LeftToRight);
    QCOMPARE(text.right() < icon.left(), direction == Qt::RightToLeft);
}

void tst_OxaSvgLabel::paintsMarkupAsPlainText()
{
    OxaSvgLabel label(QStringLiteral("<b>a</b>"));
    label.setCSS(QStringLiteral("$textColors: text;"));
    const QImage plain = picture(label);
    label.setTextFormat(Qt::RichText);
    QCOMPARE(picture(label), plain);
}

void tst_OxaSvgLabel::paintsTheFrameAndBackgroundOfItsSheet()
{
    OxaSvgLabel label(QStringLiteral("abc"));
    label.setCSS(QStringLiteral("$textColors: text; $backgroundColors: ground;"));
    const QImage image = picture(label);
    QCOMPARE(image.pixelColor(1, 1), QColor(250, 240, 200));
    QVERIFY(Pixels::countNear(image, textColors.normal) > 0);
}

UIELEMENTS_TEST_MAIN(tst_OxaSvgLabel)
#include "tst_oxasvglabel.moc"
