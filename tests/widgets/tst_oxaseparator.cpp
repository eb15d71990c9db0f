// SPDX-License-Identifier: Apache-2.0
#include "support/ColorSets.h"
#include "support/Guards.h"
#include "support/PaintCounter.h"
#include "support/Pixels.h"
#include "support/TestApplication.h"

#include <UiElements/widgets/OxaSeparator.h>

namespace {

constexpr char missingWarning[] = "ColorSet name does not exist!  \"missing\"";

OxaColorSetMap storeOf(const char *legacy, const char *other)
{
    return ColorSets::storeOf(
            { ColorSets::make(QStringLiteral("legacy-separator-primary"), { legacy, "#ffffff" }),
              ColorSets::make(QStringLiteral("other"), { other, "#ffffff" }) });
}

QImage lineOf(const QColor &color)
{
    QImage image(30, 1, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}

} // namespace

/// OxaSeparator, without the blocks that it inherits.
class tst_OxaSeparator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_stores.reset(); }

    void isOnePixelHigh();
    void fillsItselfWithTheNormalColor();
    void paintsATranslucentColorAsPenAndAsBrush();
    void looksItsColorUpWhenTheThemeTypeChanges();
    void storesTheNameOfItsSetAlone();
    void showsTheColorOfANewNameOnceItIsAskedTo();
    void paintsNothingWhereItsSetDoesNotExist();
    void paintsNothingWithoutANameAndWarnsNot();
    void repaintsWhenItsColorIsLookedUp();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaSeparator::init()
{
    m_stores = std::make_unique<StoreGuard>(storeOf("#102030", "#405060"),
                                            storeOf("#708090", "#a0b0c0"));
}

void tst_OxaSeparator::isOnePixelHigh()
{
    QWidget window;
    OxaSeparator separator(&window);
    QCOMPARE(separator.parentWidget(), &window);
    separator.resize(200, 50);
    QCOMPARE(separator.size(), QSize(200, 1));
    QCOMPARE(separator.minimumHeight(), 1);
    QCOMPARE(separator.maximumHeight(), 1);
}

void tst_OxaSeparator::fillsItselfWithTheNormalColor()
{
    OxaSeparator separator;
    separator.resize(30, 1);
    const QColor normal(0x10, 0x20, 0x30);
    QCOMPARE(separator.getColorSetName(), QStringLiteral("legacy-separator-primary"));
    QCOMPARE(Pixels::render(separator), lineOf(normal));
    // At 200 % it is two pixels of the screen high.
    QCOMPARE(Pixels::countNear(Pixels::render(separator, Qt::white, 2.0), normal, QRect(), 0),
             60 * 2);
}

void tst_OxaSeparator::paintsATranslucentColorAsPenAndAsBrush()
{
    const StoreGuard stores(storeOf("#80102030", "#405060"));
    OxaSeparator separator;
    separator.resize(30, 1);
    const QColor color(0x10, 0x20, 0x30, 0x80);
    const QImage expected = Pixels::drawing(separator.size(), [&](QPainter *painter) {
        painter->setPen(color);
        painter->setBrush(QBrush(color, Qt::SolidPattern));
        painter->drawRect(separator.rect());
    });
    QCOMPARE(Pixels::render(separator), expected);
}

void tst_OxaSeparator::looksItsColorUpWhenTheThemeTypeChanges()
{
    OxaWidget window;
    auto *separator = new OxaSeparator(&window);
    separator->resize(30, 1);
    window.setThemeType(QStringLiteral("inverted"));
    QCOMPARE(Pixels::render(*separator), lineOf(QColor(0x70, 0x80, 0x90)));
}

void tst_OxaSeparator::storesTheNameOfItsSetAlone()
{
    OxaSeparator separator;
    separator.resize(30, 1);
    separator.setColorSetName(QStringLiteral("missing"));
    QCOMPARE(separator.property("colorSetName").toString(), QStringLiteral("missing"));
    QVERIFY(separator.setProperty("colorSetName", QStringLiteral("other")));
    QCOMPARE(separator.getColorSetName(), QStringLiteral("other"));
    QCOMPARE(Pixels::render(separator), lineOf(QColor(0x10, 0x20, 0x30)));
}

void tst_OxaSeparator::showsTheColorOfANewNameOnceItIsAskedTo()
{
    OxaSeparator separator;
    separator.resize(30, 1);
    separator.setColorSetName(QStringLiteral("other"));
    separator.onThemeChanged();
    QCOMPARE(Pixels::render(separator), lineOf(QColor(0x40, 0x50, 0x60)));
}

void tst_OxaSeparator::paintsNothingWhereItsSetDoesNotExist()
{
    OxaSeparator separator;
    separator.resize(30, 1);
    separator.setColorSetName(QStringLiteral("missing"));
    QTest::ignoreMessage(QtWarningMsg, missingWarning);
    separator.onThemeChanged();
    QCOMPARE(Pixels::render(separator, Qt::green), lineOf(Qt::green));
}

void tst_OxaSeparator::paintsNothingWithoutANameAndWarnsNot()
{
    OxaSeparator separator;
    separator.resize(30, 1);
    separator.setColorSetName(QString());
    separator.onThemeChanged();
    QCOMPARE(Pixels::render(separator, Qt::green), lineOf(Qt::green));
}

void tst_OxaSeparator::repaintsWhenItsColorIsLookedUp()
{
    OxaSeparator separator;
    PaintCounter paints(separator);
    separator.setColorSetName(QStringLiteral("other"));
    QCOMPARE(paints.take(), 0);
    OxaThemeUtils::refreshThemedWidgets(&separator);
    QCOMPARE(paints.take(), 1);
}

UIELEMENTS_TEST_MAIN(tst_OxaSeparator)
#include "tst_oxaseparator.moc"
