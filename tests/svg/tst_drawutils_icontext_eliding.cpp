// SPDX-License-Identifier: Apache-2.0
#include "support/Faces.h"
#include "support/Guards.h"
#include "support/TestApplication.h"

#include <UiElements/svg/DrawUtils.h>
#include <UiElements/svg/OxaSvgIcon.h>
#include <UiElements/svg/OxaSvgLabel.h>

#include <QPainter>
#include <QStyleOption>

#include <functional>

using OxaEnum::Alignment;
using OxaEnum::HorAlign;

namespace {

const QRect area(10, 20, 200, 60);
const QString longText = QStringLiteral("A text that is too long for what is left");
const OxaColorSet textColors = Faces::colors(QStringLiteral("text"), 130);

/// Returns what \a draw paints on white paper in the font of \a widget.
QImage drawing(const QWidget &widget, const std::function<void(QPainter *)> &draw)
{
    return Pixels::drawing(QSize(320, 100), [&](QPainter *painter) {
        painter->setFont(widget.font());
        draw(painter);
    });
}

/// Returns what \a label paints into \a rect without an icon.
QImage drawing(const OxaSvgLabel &label, const QRect &rect)
{
    QStyleOption option;
    option.rect = rect;
    option.state = QStyle::State_Enabled;
    const std::unique_ptr<OxaSvgIcon> none;
    return drawing(label, [&](QPainter *painter) {
        DrawUtils::drawSvgIconText(painter, &label, option, none, textColors);
    });
}

/// Returns \a elided painted into \a width pixels from the left edge of the area. Without an icon,
/// whose width then counts as -1, the text begins a pixel further left, and may be a pixel wider.
QImage drawing(const OxaSvgLabel &label, const QString &elided, int width)
{
    const int height = label.fontMetrics().height();
    const QPoint place = QPointF(area.x(), area.y() + (area.height() - height) * 0.5).toPoint();
    return drawing(label, [&](QPainter *painter) {
        painter->translate(place + QPoint(-1, 0));
        painter->setPen(textColors.normal);
        painter->drawText(QRectF(0, 0, width + 1, height), elided, QTextOption());
    });
}

} // namespace

/// Which texts are elided beside an icon, and where.
class tst_DrawUtilsIconTextEliding : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_stores.reset(); }

    void elidesAtTheEndOfALine_data();
    void elidesAtTheEndOfALine();
    void elidesWhatQtWouldElide_data();
    void elidesWhatQtWouldElide();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_DrawUtilsIconTextEliding::initTestCase()
{
    // Labels ask for the colours of links.
    m_stores = std::make_unique<StoreGuard>(ColorSets::storeOf(
            { ColorSets::make(QStringLiteral("button-hyperlink-text"), { "#0000ff" }) }));
}

void tst_DrawUtilsIconTextEliding::elidesAtTheEndOfALine_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<Qt::TextElideMode>("mode");
    QTest::addColumn<Qt::TextElideMode>("used");
    QTest::newRow("right") << Qt::LeftToRight << Qt::ElideRight << Qt::ElideRight;
    QTest::newRow("left is replaced by right")
            << Qt::LeftToRight << Qt::ElideLeft << Qt::ElideRight;
    QTest::newRow("middle") << Qt::LeftToRight << Qt::ElideMiddle << Qt::ElideMiddle;
    QTest::newRow("none") << Qt::LeftToRight << Qt::ElideNone << Qt::ElideNone;
    QTest::newRow("right is replaced by left, right to left")
            << Qt::RightToLeft << Qt::ElideRight << Qt::ElideLeft;
    QTest::newRow("left, right to left") << Qt::RightToLeft << Qt::ElideLeft << Qt::ElideLeft;
    QTest::newRow("middle, right to left") << Qt::RightToLeft << Qt::ElideMiddle << Qt::ElideMiddle;
    QTest::newRow("none, right to left") << Qt::RightToLeft << Qt::ElideNone << Qt::ElideNone;
}

void tst_DrawUtilsIconTextEliding::elidesAtTheEndOfALine()
{
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const Qt::TextElideMode, mode);
    QFETCH(const Qt::TextElideMode, used);
    const LayoutDirectionGuard layoutDirection(direction);
    OxaSvgLabel label(longText);
    label.setElideMode(mode);
    label.setElidePadding(30);
    label.setTextHorAlign(direction == Qt::LeftToRight ? HorAlign::LeftAlign
                                                       : HorAlign::RightAlign);
    label.setSvgIconAlignment(direction == Qt::LeftToRight ? Alignment::Left : Alignment::Right);
    const int available = area.width() - 30;
    const QString elided = label.fontMetrics().elidedText(longText, used, available + 1);
    QCOMPARE(elided == longText, used == Qt::ElideNone);
    QCOMPARE(drawing(label, area), drawing(label, elided, available));
}

void tst_DrawUtilsIconTextEliding::elidesWhatQtWouldElide_data()
{
    QTest::addColumn<QString>("text");
    const QChar separator(0x9c);
    QTest::newRow("a text") << QStringLiteral("Some words");
    QTest::newRow("a text whose first variant fits")
            << QStringLiteral("Words") + separator + QStringLiteral("W");
    QTest::newRow("a text whose second variant fits")
            << longText + separator + QStringLiteral("Words");
    QTest::newRow("a text with a line break") << QStringLiteral("Some\nwords");
    QTest::newRow("no text") << QString();
}

void tst_DrawUtilsIconTextEliding::elidesWhatQtWouldElide()
{
    QFETCH(const QString, text);
    OxaSvgLabel label(text);
    label.setElideMode(Qt::ElideRight);
    label.setTextHorAlign(HorAlign::LeftAlign);
    const QFontMetrics metrics = label.fontMetrics();
    const int natural = metrics.horizontalAdvance(text);
    for (int width = natural - 40; width < natural + 4; ++width) {
        const QString elided = metrics.elidedText(text, Qt::ElideRight, width + 1);
        QCOMPARE(drawing(label, QRect(area.topLeft(), QSize(width, area.height()))),
                 drawing(label, elided, width));
    }
}

UIELEMENTS_TEST_MAIN(tst_DrawUtilsIconTextEliding)
#include "tst_drawutils_icontext_eliding.moc"
