// SPDX-License-Identifier: Apache-2.0
#include "support/ColorSets.h"
#include "support/Guards.h"
#include "support/PaintCounter.h"
#include "support/Pixels.h"
#include "support/TestApplication.h"

#include <UiElements/widgets/OxaProgressBar.h>
#include <UiElements/widgets/OxaWidget.h>

#include <limits>

namespace {

constexpr QSize barSize(100, 20);
constexpr int highest = std::numeric_limits<int>::max();
constexpr int lowest = std::numeric_limits<int>::min();

constexpr char barSet[] = "oxa-percentage-indicator-possessive";
constexpr char trackSet[] = "oxa-progressbar";

OxaColorSetMap storeOf(const char *bar, const char *track)
{
    const auto make = [](const char *name, const char *color) {
        return ColorSets::make(QString::fromLatin1(name), { color, "#ffffff" });
    };
    return ColorSets::storeOf(
            { make(barSet, bar), make(trackSet, track), make("other", "#0000ff") });
}

/// Returns where the bars of \a image stand: "F0 F10 T20" are two filled ones and an idle one, by
/// their left edges. Bars that touch count as one; other colours are "?".
QString barsIn(const QImage &image)
{
    QStringList bars;
    QChar last;
    for (int x = 0; x < image.width(); ++x) {
        const QColor color = image.pixelColor(x, image.height() / 2);
        const QChar kind = QLatin1Char(color == QColor(Qt::red)             ? 'F'
                                               : color == QColor(Qt::gray)  ? 'T'
                                               : color == QColor(Qt::white) ? ' '
                                                                            : '?');
        if (kind != last && kind != QLatin1Char(' '))
            bars += kind + QString::number(x);
        last = kind;
    }
    return bars.join(QLatin1Char(' '));
}

QImage drawn(const std::function<void(QPainter *)> &draw) { return Pixels::drawing(barSize, draw); }

/// A progress bar of a good size to look at.
class Bar : public OxaProgressBar
{
public:
    explicit Bar(int count, int value = -1) : OxaProgressBar(nullptr, count)
    {
        resize(barSize);
        if (value > maximum())
            setMaximum(value);
        if (value < minimum())
            setMinimum(value);
        setValue(value);
    }
};

} // namespace

/// OxaProgressBar, without the block that it shares with other classes.
class tst_OxaProgressBar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_stores.reset(); }

    void startsWithItsMeasures();
    void fillsAsManyBarsAsItsValueSays_data();
    void fillsAsManyBarsAsItsValueSays();
    void takesItsValueAsAPercentageOfAnyRange();
    void paintsTheIdleBarsOfANewOne();
    void paintsBarsOfItsMeasures();
    void leavesItsTextAndItsStyleOut();
    void paintsTranslucentBarsOverEachOther();
    void paintsBarsWiderThanItself_data();
    void paintsBarsWiderThanItself();

    void beginsAtTheRightInARightToLeftApplication();
    void takesADirectionAtTheNextThemeTypeOnly();
    void looksItsColorsUpWhenTheThemeTypeChanges();
    void takesColorsByNameAtOnce();
    void keepsTheNamesThroughThemeTypes();
    void paintsNothingInSetsThatDoNotExist();

    void repaintsForEachNewValue_data();
    void repaintsForEachNewValue();
    void repaintsForNewMeasuresAndColors();

    void boundsItsWork_data();
    void boundsItsWork();
    void leavesOutOnlyBarsThatChangeNoPixel_data();
    void leavesOutOnlyBarsThatChangeNoPixel();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaProgressBar::init()
{
    m_stores = std::make_unique<StoreGuard>(storeOf("#ff0000", "#a0a0a4"),
                                            storeOf("#00ff00", "#008000"));
}

void tst_OxaProgressBar::startsWithItsMeasures()
{
    QWidget parent;
    const OxaProgressBar bar(&parent, 10);
    QCOMPARE(bar.parentWidget(), &parent);
    QCOMPARE(bar.property("barWidth").toInt(), 2);
    QCOMPARE(bar.property("barHeight").toInt(), 8);
    QCOMPARE(bar.property("idleBarHeight").toInt(), 6);
}

void tst_OxaProgressBar::fillsAsManyBarsAsItsValueSays_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("bars");
    const auto add = [](const char *name, int count, int value, const char *bars) {
        QTest::newRow(name) << count << value << QString::fromLatin1(bars);
    };
    add("idle ones alone at 0", 5, 0, "T0 T24 T48 T72 T96");
    add("filled ones alone at 100", 5, 100, "F0 F24 F48 F72 F96");
    add("half a bar is idle", 5, 50, "F0 F24 T48 T72 T96");
    add("just below a bar", 5, 19, "T0 T24 T48 T72 T96");
    add("just a bar", 5, 20, "F0 T24 T48 T72 T96");
    add("a step that leaves nothing over", 8, 100, "F0 F14 F28 F42 F56 F70 F84 F98");
    add("a single bar, idle", 1, 0, "T0");
    add("a single bar, filled", 1, 100, "F0");
    add("above 100, where there is room for more", 20, 115,
        "F0 F5 F10 F15 F20 F25 F30 F35 F40 F45 F50 F55 F60 F65 F70 F75 F80 F85 F90 F95");
    add("above 100, with bars beyond the last one", 30, 110,
        "F0 F3 F6 F9 F12 F15 F18 F21 F24 F27 F30 F33 F36 F39 F42 F45 F48 F51 F54 F57 F60 F63 F66 "
        "F69 F72 F75 F78 F81 F84 F87 F90 F93 F96");
    add("a second bar beyond a single one", 1, 200, "F0 F98");
    add("below 0, as at 0", 5, -50, "T0 T24 T48 T72 T96");
    add("none", 0, 50, "");
    add("fewer than none", -5, 50, "");
}

void tst_OxaProgressBar::fillsAsManyBarsAsItsValueSays()
{
    QFETCH(const int, count);
    QFETCH(const int, value);
    Bar bar(count, value);
    QTEST(barsIn(Pixels::render(bar)), "bars");
}

void tst_OxaProgressBar::takesItsValueAsAPercentageOfAnyRange()
{
    Bar bar(5);
    bar.setRange(0, 1000);
    bar.setValue(40);
    QCOMPARE(barsIn(Pixels::render(bar)), QStringLiteral("F0 F24 T48 T72 T96"));
    bar.setRange(40, 41);
    QCOMPARE(barsIn(Pixels::render(bar)), QStringLiteral("F0 F24 T48 T72 T96"));
}

void tst_OxaProgressBar::paintsTheIdleBarsOfANewOne()
{
    Bar bar(1000);
    QCOMPARE(bar.value(), -1);
    QCOMPARE(barsIn(Pixels::render(bar)), QStringLiteral("T0"));
}

void tst_OxaProgressBar::paintsBarsOfItsMeasures()
{
    Bar bar(5, 40);
    bar.setProperty("barWidth", 4);
    bar.setProperty("barHeight", 13);
    bar.setProperty("idleBarHeight", 5);
    QCOMPARE(bar.getBarWidth(), 4);
    QCOMPARE(bar.getBarHeight(), 13);
    QCOMPARE(bar.getIdleBarHeight(), 5);
    const QImage expected = drawn([](QPainter *painter) {
        for (const int x : { 0, 24 })
            painter->fillRect(x, 4, 4, 13, Qt::red);
        for (const int x : { 48, 72, 96 })
            painter->fillRect(x, 8, 4, 5, Qt::gray);
    });
    QCOMPARE(Pixels::render(bar), expected);
}

void tst_OxaProgressBar::leavesItsTextAndItsStyleOut()
{
    Bar bar(1, 100);
    bar.setFormat(QStringLiteral("%p%"));
    bar.setTextVisible(true);
    bar.setCSS(QStringLiteral("background: green; border: 1px solid blue;"));
    const QImage expected = drawn(
            [](QPainter *painter) { painter->fillRect(0, 6, 2, 8, Qt::red); });
    QCOMPARE(Pixels::render(bar), expected);
}

void tst_OxaProgressBar::paintsTranslucentBarsOverEachOther()
{
    const StoreGuard stores(storeOf("#80ff0000", "#400000ff"));
    Bar bar(3, 70);
    bar.setBarWidth(60);
    const QImage expected = drawn([](QPainter *painter) {
        painter->fillRect(0, 6, 60, 8, QColor(255, 0, 0, 0x80));
        painter->fillRect(20, 6, 60, 8, QColor(255, 0, 0, 0x80));
        painter->fillRect(40, 7, 60, 6, QColor(0, 0, 255, 0x40));
    });
    QCOMPARE(Pixels::render(bar), expected);
}

void tst_OxaProgressBar::paintsBarsWiderThanItself_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void tst_OxaProgressBar::paintsBarsWiderThanItself()
{
    QFETCH(const Qt::LayoutDirection, direction);
    const LayoutDirectionGuard guard(direction);
    Bar bar(3, 40);
    bar.setBarWidth(150);
    const QImage expected = drawn([](QPainter *painter) {
        painter->fillRect(0, 6, 100, 8, Qt::red);
        painter->fillRect(0, 7, 100, 6, Qt::gray);
    });
    QCOMPARE(Pixels::render(bar), expected);
}

void tst_OxaProgressBar::beginsAtTheRightInARightToLeftApplication()
{
    const LayoutDirectionGuard guard(Qt::RightToLeft);
    Bar bar(5, 40);
    QCOMPARE(barsIn(Pixels::render(bar)), QStringLiteral("T2 T26 T50 F74 F98"));
    Bar single(1, 100);
    QCOMPARE(barsIn(Pixels::render(single)), QStringLiteral("F98"));
}

void tst_OxaProgressBar::takesADirectionAtTheNextThemeTypeOnly()
{
    Bar bar(5, 40);
    const QString leftToRight = QStringLiteral("F0 F24 T48 T72 T96");
    const QString rightToLeft = QStringLiteral("T2 T26 T50 F74 F98");
    const LayoutDirectionGuard guard(Qt::RightToLeft);
    QCOMPARE(barsIn(Pixels::render(bar)), leftToRight);
    bar.setThemeType(QStringLiteral("global"));
    QCOMPARE(barsIn(Pixels::render(bar)), rightToLeft);
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(barsIn(Pixels::render(bar)), rightToLeft);
    bar.setThemeType(QStringLiteral("global"));
    QCOMPARE(barsIn(Pixels::render(bar)), leftToRight);
}

void tst_OxaProgressBar::looksItsColorsUpWhenTheThemeTypeChanges()
{
    OxaWidget window;
    auto *bar = new OxaProgressBar(&window, 2);
    bar->resize(barSize);
    bar->setValue(50);
    window.setThemeType(QStringLiteral("inverted"));
    const QImage expected = drawn([](QPainter *painter) {
        painter->fillRect(0, 6, 2, 8, QColor(0, 255, 0));
        painter->fillRect(98, 7, 2, 6, QColor(0, 128, 0));
    });
    QCOMPARE(Pixels::render(*bar), expected);
}

void tst_OxaProgressBar::takesColorsByNameAtOnce()
{
    Bar bar(2, 50);
    bar.setBarColorSetName("other");
    bar.setTrackColorSetName(barSet);
    const QImage expected = drawn([](QPainter *painter) {
        painter->fillRect(0, 6, 2, 8, QColor(0, 0, 255));
        painter->fillRect(98, 7, 2, 6, QColor(255, 0, 0));
    });
    QCOMPARE(Pixels::render(bar), expected);
}

void tst_OxaProgressBar::keepsTheNamesThroughThemeTypes()
{
    Bar bar(2, 50);
    bar.setBarColorSetName(trackSet);
    bar.setThemeType(QStringLiteral("inverted"));
    bar.setTrackColorSetName(barSet);
    const QImage expected = drawn([](QPainter *painter) {
        painter->fillRect(0, 6, 2, 8, QColor(0, 128, 0));
        painter->fillRect(98, 7, 2, 6, QColor(0, 255, 0));
    });
    QCOMPARE(Pixels::render(bar), expected);
}

void tst_OxaProgressBar::paintsNothingInSetsThatDoNotExist()
{
    Bar bar(2, 50);
    for (int i = 0; i < 2; ++i)
        QTest::ignoreMessage(QtWarningMsg, "ColorSet name does not exist!  \"missing\"");
    bar.setBarColorSetName("missing");
    bar.setTrackColorSetName("missing");
    QCOMPARE(Pixels::render(bar), Pixels::paper(barSize));
}

void tst_OxaProgressBar::repaintsForEachNewValue_data()
{
    QTest::addColumn<bool>("hasText");
    QTest::newRow("with a text") << true;
    QTest::newRow("without a text, whose change Qt would repaint for") << false;
}

void tst_OxaProgressBar::repaintsForEachNewValue()
{
    QFETCH(const bool, hasText);
    Bar bar(100, 50);
    bar.setTextVisible(hasText);
    PaintCounter paints(bar);
    for (const int value : { 2, 3, 90, 1, 0, 100 }) {
        bar.setValue(value);
        QVERIFY2(paints.take() > 0, QByteArray::number(value).constData());
    }
}

void tst_OxaProgressBar::repaintsForNewMeasuresAndColors()
{
    Bar bar(5, 50);
    PaintCounter paints(bar);
    for (const char *name : { "barWidth", "barHeight", "idleBarHeight" }) {
        QVERIFY(bar.setProperty(name, 3));
        QCOMPARE(paints.take(), 1);
    }
    bar.setBarColorSetName("other");
    QCOMPARE(paints.take(), 1);
    bar.setTrackColorSetName("other");
    QCOMPARE(paints.take(), 1);
}

void tst_OxaProgressBar::boundsItsWork_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("value");
    QTest::addColumn<QVector<int>>("measures"); // Width, height and height of idle bars.
    const QVector<int> usual = { 2, 8, 6 };
    const QVector<int> large = { highest, highest, highest };
    for (const int count : { highest, lowest, 1, 2, 0 }) {
        for (const int value : { highest, lowest, 0, 50, 100 }) {
            for (const QVector<int> &measures :
                 { usual, large, QVector<int>(3, lowest), QVector<int>(3, 0), QVector<int>(3, 1) })
                QTest::addRow("%d bars at %d, %d wide", count, value, measures[0])
                        << count << value << measures;
        }
    }
}

/// A test that takes too long is stopped; the sanitizers find sums that do not fit.
void tst_OxaProgressBar::boundsItsWork()
{
    QFETCH(const int, count);
    QFETCH(const int, value);
    QFETCH(const QVector<int>, measures);
    Bar bar(count, value);
    bar.setBarWidth(measures[0]);
    bar.setBarHeight(measures[1]);
    bar.setIdleBarHeight(measures[2]);
    const bool isVisible = measures[0] > 0 && (count > 0 || (count < 0 && value < 0));
    for (const Qt::LayoutDirection direction : { Qt::LeftToRight, Qt::RightToLeft }) {
        const LayoutDirectionGuard guard(direction);
        bar.setThemeType(QStringLiteral("global"));
        QCOMPARE(Pixels::render(bar) != Pixels::paper(barSize), isVisible);
    }
}

void tst_OxaProgressBar::leavesOutOnlyBarsThatChangeNoPixel_data()
{
    QTest::addColumn<QColor>("color");
    for (const int alpha : { 1, 2, 3, 10, 128, 254 })
        QTest::addRow("%d of 255", alpha) << QColor(200, 100, 50, alpha);
}

void tst_OxaProgressBar::leavesOutOnlyBarsThatChangeNoPixel()
{
    QFETCH(const QColor, color);
    const StoreGuard stores(storeOf(color.name(QColor::HexArgb).toLatin1().constData(), "#ffffff"));
    Bar bar(1000, 100);
    const QImage expected = drawn([&color](QPainter *painter) {
        for (int i = 0; i < 1000; ++i)
            painter->fillRect(0, 6, 2, 8, color);
    });
    QCOMPARE(Pixels::render(bar), expected);
}

UIELEMENTS_TEST_MAIN(tst_OxaProgressBar)
#include "tst_oxaprogressbar.moc"
