// SPDX-License-Identifier: Apache-2.0
#include "LabelPictures.h"
#include "support/Guards.h"
#include "support/PaintCounter.h"
#include "support/Pixels.h"
#include "support/RecordingStyle.h"
#include "support/TestApplication.h"
#include "support/Windows.h"

#include <QScreen>

using namespace LabelPictures;

namespace {

const QString longText = QStringLiteral("A text that is much longer than its label is wide");

/// Returns the picture of \a text written once into \a area.
QImage written(const OxaLabel &label, const QRect &area, int alignment, const QString &text)
{
    QImage image = paper(label);
    QPainter painter(&image);
    takePen(painter, label);
    painter.drawText(area, alignment, text);
    painter.end();
    return image;
}

/// Returns on which side of the wide \a label its text is.
QString sideOfText(OxaLabel &label)
{
    const QColor ink = label.palette().color(QPalette::WindowText);
    const QRect text = Pixels::boundsNear(Pixels::render(label), ink);
    if (text.isNull())
        return QStringLiteral("no text");
    return text.center().x() < label.width() / 2 ? QStringLiteral("left") : QStringLiteral("right");
}

} // namespace

/// How OxaLabel paints its frame and its text, in each of its ways.
class tst_OxaLabelPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_stores = std::make_unique<StoreGuard>(store()); }
    void cleanupTestCase() { m_stores.reset(); }

    void paintsTheFrameOfItsStyleText_data() { addPaths(); }
    void paintsTheFrameOfItsStyleText();
    void paintsATranslucentBackgroundOnce_data() { addPaths(); }
    void paintsATranslucentBackgroundOnce();
    void paintsNoFrameWithoutAStyleText_data() { addPaths(); }
    void paintsNoFrameWithoutAStyleText();
    void asksTheStyleForTheFrameWhereQtDoesNot_data();
    void asksTheStyleForTheFrameWhereQtDoesNot();

    void paintsTheTextInTheColorOfItsState_data();
    void paintsTheTextInTheColorOfItsState();
    void paintsTheTextInThePalettesColorWithoutAColorSet_data();
    void paintsTheTextInThePalettesColorWithoutAColorSet();

    void paintsAsQLabelDoesWithoutAnElideMode_data();
    void paintsAsQLabelDoesWithoutAnElideMode();
    void elidesOneLineByItsElideMode_data();
    void elidesOneLineByItsElideMode();
    void shrinksTheElidedLineByMarginPaddingAndIndent();
    void putsTheTextOnItsSide_data();
    void putsTheTextOnItsSide();

    void paintsAsQLabelDoesWhileTextIsSelected_data();
    void paintsAsQLabelDoesWhileTextIsSelected();
    void elidesAgainWhenTheSelectionIsGone();
    void elidesAnotherTextThatTakesTheSelectionAway();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaLabelPainting::paintsTheFrameOfItsStyleText()
{
    QFETCH(const Path, path);
    OxaLabel label;
    label.resize(60, 40);
    use(path, label);
    label.setCSS(
            QStringLiteral("$backgroundColors: ground; $borderColors: line; $borderWidth: 3;"));

    QImage expected = paper(label);
    QPainter painter(&expected);
    painter.fillRect(label.rect(), line);
    painter.fillRect(label.rect().adjusted(3, 3, -3, -3), ground);
    painter.end();
    QCOMPARE(Pixels::render(label), expected);
}

void tst_OxaLabelPainting::paintsATranslucentBackgroundOnce()
{
    QFETCH(const Path, path);
    OxaLabel label;
    label.resize(60, 40);
    use(path, label);
    label.setCSS(QStringLiteral("$backgroundColors: thin ground;"));

    QImage expected = paper(label);
    QPainter(&expected).fillRect(label.rect(), thinGround);
    QCOMPARE(Pixels::render(label), expected);
}

void tst_OxaLabelPainting::paintsNoFrameWithoutAStyleText()
{
    QFETCH(const Path, path);
    OxaLabel label;
    label.resize(60, 40);
    use(path, label);
    QCOMPARE(Pixels::render(label), paper(label));
}

void tst_OxaLabelPainting::asksTheStyleForTheFrameWhereQtDoesNot_data()
{
    QTest::addColumn<Path>("path");
    QTest::addColumn<bool>("isPaintedByQt");
    QTest::addColumn<int>("optionType");
    forEachPath([](const char *name, Path path) {
        if (path != Path::Qts)
            QTest::addRow("%s", name) << path << false << int(QStyleOption::SO_Frame);
        QTest::addRow("%s, over Qt's", name) << path << true << int(QStyleOption::SO_Default);
    });
}

void tst_OxaLabelPainting::asksTheStyleForTheFrameWhereQtDoesNot()
{
    QFETCH(const Path, path);
    QFETCH(const bool, isPaintedByQt);
    const ApplicationStyleGuard style;
    OxaLabel label(QStringLiteral("text"));
    use(path, label);
    label.resize(60, 40);
    label.setAttribute(Qt::WA_StyledBackground, isPaintedByQt);
    Pixels::render(label);
    QCOMPARE(style.calls().size(), std::size_t(1));
    const RecordingStyle::Call &call = style.calls().front();
    QCOMPARE(call.element, QStyle::PE_Widget);
    QTEST(call.optionType, "optionType");
    QCOMPARE(call.rect, QRect(0, 0, 60, 40));
    QCOMPARE(call.widget, &label);
}

void tst_OxaLabelPainting::paintsTheTextInTheColorOfItsState_data()
{
    QTest::addColumn<Path>("path");
    QTest::addColumn<bool>("isHovered");
    QTest::addColumn<bool>("isEnabled");
    QTest::addColumn<QColor>("color");
    forEachPath([](const char *name, Path path) {
        QTest::addRow("normal, %s", name) << path << false << true << QColor(0xf0, 0x00, 0xa8);
        QTest::addRow("hovered, %s", name) << path << true << true << QColor(0x00, 0xa8, 0xf0);
        QTest::addRow("disabled, %s", name) << path << false << false << QColor(0x90, 0x00, 0xf0);
        QTest::addRow("hovered when disabled, %s", name)
                << path << true << false << QColor(0x90, 0x00, 0xf0);
    });
}

void tst_OxaLabelPainting::paintsTheTextInTheColorOfItsState()
{
    QFETCH(const Path, path);
    QFETCH(const bool, isHovered);
    QFETCH(const bool, isEnabled);
    QFETCH(const QColor, color);
    OxaLabel label(QStringLiteral("text"));
    use(path, label);
    label.setFontToken(OxaFont::Token::Display);
    label.resize(200, 80);
    label.setCSS(QStringLiteral("$textColors: ink;"));
    label.setAttribute(Qt::WA_UnderMouse, isHovered);
    label.setEnabled(isEnabled);
    const QImage image = Pixels::render(label);
    QVERIFY(Pixels::countNear(image, color, QRect(), 4) > 0);
    for (const char *other : { "#f000a8", "#00a8f0", "#a87800", "#9000f0", "#f07800", "#007848" }) {
        if (QColor(QLatin1String(other)) != color)
            QCOMPARE(Pixels::countNear(image, QColor(QLatin1String(other)), QRect(), 4), 0);
    }
}

void tst_OxaLabelPainting::paintsTheTextInThePalettesColorWithoutAColorSet_data()
{
    QTest::addColumn<Path>("path");
    QTest::addColumn<QString>("styleText");
    forEachPath([](const char *name, Path path) {
        QTest::addRow("without a style text, %s", name) << path << QString();
        QTest::addRow("with a background only, %s", name)
                << path << QStringLiteral("$backgroundColors: ground;");
    });
}

void tst_OxaLabelPainting::paintsTheTextInThePalettesColorWithoutAColorSet()
{
    QFETCH(const Path, path);
    QFETCH(const QString, styleText);
    OxaLabel label(QStringLiteral("text"));
    use(path, label);
    label.setFontToken(OxaFont::Token::Display);
    label.resize(200, 80);
    label.setCSS(styleText);
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, Qt::magenta);
    label.setPalette(palette);
    QVERIFY(Pixels::countNear(Pixels::render(label), Qt::magenta, QRect(), 4) > 0);
}

void tst_OxaLabelPainting::paintsAsQLabelDoesWithoutAnElideMode_data()
{
    QTest::addColumn<bool>("wrap");
    QTest::addColumn<QTextOption::WrapMode>("wrapMode");
    QTest::newRow("in one line") << false << QTextOption::WordWrap;
    QTest::newRow("in wrapped lines") << true << QTextOption::WordWrap;
    QTest::newRow("in wrapped lines whatever the wrap mode") << true << QTextOption::WrapAnywhere;
}

void tst_OxaLabelPainting::paintsAsQLabelDoesWithoutAnElideMode()
{
    QFETCH(const bool, wrap);
    QFETCH(const QTextOption::WrapMode, wrapMode);
    OxaLabel label(longText);
    label.updateWrapMode(wrapMode);
    QLabel plain(longText);
    plain.setFont(label.font());
    for (QLabel *each : { static_cast<QLabel *>(&label), &plain }) {
        each->setWordWrap(wrap);
        each->setIndent(4);
        each->setMargin(3);
        each->resize(120, 60);
    }
    QCOMPARE(Pixels::render(label), Pixels::render(plain));
}

void tst_OxaLabelPainting::elidesOneLineByItsElideMode_data()
{
    QTest::addColumn<Qt::TextElideMode>("mode");
    QTest::addColumn<Qt::Alignment>("alignment");
    const Qt::Alignment leftMiddle = Qt::AlignLeft | Qt::AlignVCenter;
    QTest::newRow("at the right") << Qt::ElideRight << leftMiddle;
    QTest::newRow("in the middle") << Qt::ElideMiddle << leftMiddle;
    QTest::newRow("at the left") << Qt::ElideLeft << leftMiddle;
    QTest::newRow("in the corner")
            << Qt::ElideRight << Qt::Alignment(Qt::AlignRight | Qt::AlignBottom);
    QTest::newRow("at the top in the middle")
            << Qt::ElideRight << Qt::Alignment(Qt::AlignHCenter | Qt::AlignTop);
}

void tst_OxaLabelPainting::elidesOneLineByItsElideMode()
{
    QFETCH(const Qt::TextElideMode, mode);
    QFETCH(const Qt::Alignment, alignment);
    OxaLabel label(longText);
    label.resize(120, 60);
    label.setIndent(0);
    label.setElideMode(mode);
    label.setAlignment(alignment);
    const QString elided = label.fontMetrics().elidedText(longText, mode, 120);
    QVERIFY(elided != longText);
    QCOMPARE(Pixels::render(label), written(label, QRect(0, 0, 120, 60), int(alignment), elided));
}

void tst_OxaLabelPainting::shrinksTheElidedLineByMarginPaddingAndIndent()
{
    OxaLabel label(longText);
    label.resize(200, 60);
    label.setElideMode(Qt::ElideRight);
    label.setAlignment(Qt::AlignRight | Qt::AlignTop);
    label.setMargin(8);
    label.setIndent(20);
    label.setElidePadding(30);
    label.setContentsMargins(9, 9, 9, 9);
    const QString elided = label.fontMetrics().elidedText(longText, Qt::ElideRight,
                                                          200 - 30 - 2 * 8 - 20);
    // The indent makes the text narrower, but does not move it.
    QCOMPARE(Pixels::render(label),
             written(label, QRect(8, 8, 184, 44), Qt::AlignRight | Qt::AlignTop, elided));
}

void tst_OxaLabelPainting::putsTheTextOnItsSide_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<Qt::Alignment>("alignment");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("sides");
    const Qt::Alignment left = Qt::AlignLeft;
    const Qt::Alignment right = Qt::AlignRight;
    const QString latin = QStringLiteral("text");
    const QString hebrew = QStringLiteral("\u05e9\u05dc\u05d5\u05dd");
    // QLabel mirrors the alignment by the direction of the text; a single line and wrapped lines
    // are never mirrored.
    QTest::newRow("left") << Qt::LeftToRight << left << latin << QStringLiteral("left left left");
    QTest::newRow("right") << Qt::LeftToRight << right << latin
                           << QStringLiteral("right right right");
    QTest::newRow("left, in Hebrew")
            << Qt::LeftToRight << left << hebrew << QStringLiteral("right left left");
    QTest::newRow("left, right to left")
            << Qt::RightToLeft << left << latin << QStringLiteral("left left left");
    QTest::newRow("right, right to left")
            << Qt::RightToLeft << right << latin << QStringLiteral("right right right");
    QTest::newRow("left, right to left in Hebrew")
            << Qt::RightToLeft << left << hebrew << QStringLiteral("right left left");
    QTest::newRow("right, right to left in Hebrew")
            << Qt::RightToLeft << right << hebrew << QStringLiteral("left right right");
}

void tst_OxaLabelPainting::putsTheTextOnItsSide()
{
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const Qt::Alignment, alignment);
    QFETCH(const QString, text);
    const LayoutDirectionGuard guard(direction);
    OxaLabel label(text);
    label.resize(300, 40);
    label.setAlignment(alignment);
    QStringList sides;
    for (const Path path : { Path::Qts, Path::Line, Path::Lines }) {
        use(path, label);
        sides += sideOfText(label);
    }
    QTEST(sides.join(QLatin1Char(' ')), "sides");
}

void tst_OxaLabelPainting::paintsAsQLabelDoesWhileTextIsSelected_data()
{
    QTest::addColumn<Path>("path");
    forEachPath([](const char *name, Path path) {
        if (path != Path::Qts)
            QTest::newRow(name) << path;
    });
}

void tst_OxaLabelPainting::paintsAsQLabelDoesWhileTextIsSelected()
{
    QFETCH(const Path, path);
    OxaLabel label(longText);
    use(path, label);
    QLabel plain(longText);
    plain.setWordWrap(label.wordWrap());
    plain.setFont(label.font());
    for (QLabel *each : { static_cast<QLabel *>(&label), &plain }) {
        each->setTextInteractionFlags(Qt::TextSelectableByMouse);
        each->resize(120, 30);
    }
    QVERIFY(Pixels::render(label) != Pixels::render(plain));
    label.setSelection(0, 6);
    plain.setSelection(0, 6);
    QCOMPARE(Pixels::render(label), Pixels::render(plain));
}

void tst_OxaLabelPainting::elidesAgainWhenTheSelectionIsGone()
{
    OxaLabel label(longText);
    label.setTextInteractionFlags(Qt::TextSelectableByMouse);
    use(Path::Line, label);
    label.resize(120, 30);
    const QImage elided = Pixels::render(label);
    label.setSelection(0, 6);
    QVERIFY(Pixels::render(label) != elided);
    label.setSelection(0, 0);
    QCOMPARE(Pixels::render(label), elided);
}

void tst_OxaLabelPainting::elidesAnotherTextThatTakesTheSelectionAway()
{
    OxaLabel label(QStringLiteral("Other words that are wider than the label is, too"));
    label.setTextInteractionFlags(Qt::TextSelectableByMouse);
    use(Path::Line, label);
    label.resize(120, 30);
    PaintCounter paints(label);
    const QImage elided = Windows::onScreen(label);
    label.setText(longText);
    label.setSelection(0, 6);
    paints.take();
    QVERIFY(Windows::onScreen(label) != elided);
    label.setText(QStringLiteral("Other words that are wider than the label is, too"));
    paints.take();
    QCOMPARE(Windows::onScreen(label), elided);
}

UIELEMENTS_TEST_MAIN(tst_OxaLabelPainting)
#include "tst_oxalabel_painting.moc"
