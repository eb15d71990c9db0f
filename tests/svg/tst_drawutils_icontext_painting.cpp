// SPDX-License-Identifier: Apache-2.0
#include "IconTextPictures.h"
#include "support/Guards.h"
#include "support/SvgFiles.h"
#include "support/TestApplication.h"

#include <UiElements/svg/DrawUtils.h>
#include <UiElements/svg/OxaSvgLabel.h>
#include <UiElements/svg/OxaSvgPushButton.h>

using OxaEnum::Alignment;
using OxaEnum::HorAlign;
using namespace IconTextPictures;

namespace {

const QString longText = QStringLiteral("A text that is too long for what is left");

/// Returns the rectangle of a block of \a size in the area.
QRect placed(double x, const QSizeF &size)
{
    const double y = area.height() * 0.5 + area.y() - size.height() * 0.5;
    return { QPointF(x, y).toPoint(), QSize(int(size.width()), int(size.height())) };
}

} // namespace

/// Painting an icon and a text for labels and buttons.
class tst_DrawUtilsIconTextPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_stores.reset(); }

    void placesTheBlock_data();
    void placesTheBlock();
    void warnsOfAnAlignmentThatItDoesNotKnow();
    void paintsTheIconBesideTheText_data();
    void paintsTheIconBesideTheText();
    void countsAnInvisibleIconAsAbsent();
    void keepsPaddingsFreeOfText();
    void paintsInTheColorsOfTheState();
    void leavesThePainterAsItWas();

private:
    SvgFiles m_files;
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_DrawUtilsIconTextPainting::initTestCase()
{
    // Labels ask for the colours of links.
    m_stores = std::make_unique<StoreGuard>(ColorSets::storeOf(
            { ColorSets::make(QStringLiteral("button-hyperlink-text"), { "#0000ff" }) }));
}

void tst_DrawUtilsIconTextPainting::placesTheBlock_data()
{
    QTest::addColumn<HorAlign>("align");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<double>("part"); // The share of the free space that is before the block.
    QTest::newRow("left") << HorAlign::LeftAlign << Qt::LeftToRight << 0.0;
    QTest::newRow("centre") << HorAlign::CenterAlign << Qt::LeftToRight << 0.5;
    QTest::newRow("right") << HorAlign::RightAlign << Qt::LeftToRight << 1.0;
    QTest::newRow("left, right to left") << HorAlign::LeftAlign << Qt::RightToLeft << 1.0;
    QTest::newRow("centre, right to left") << HorAlign::CenterAlign << Qt::RightToLeft << 0.5;
    QTest::newRow("right, right to left") << HorAlign::RightAlign << Qt::RightToLeft << 0.0;
}

void tst_DrawUtilsIconTextPainting::placesTheBlock()
{
    QFETCH(const HorAlign, align);
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const double, part);
    const LayoutDirectionGuard layoutDirection(direction);
    OxaSvgLabel label(QStringLiteral("abc"));
    label.setTextHorAlign(align);
    OxaSvgPushButton button(QStringLiteral("abc"));
    button.setTextHorAlign(align);
    const QFontMetrics metrics = label.fontMetrics();
    const QSizeF size(16 + metrics.horizontalAdvance(QStringLiteral("abc")), metrics.height());
    const QRect expected = placed(area.x() + (area.width() - size.width()) * part, size);
    const auto icon = makeIcon(m_files.square());
    drawing(label, [&](QPainter *painter) {
        QCOMPARE(DrawUtils::drawSvgIconText(painter, &label, optionFor(), icon, textColors),
                 expected);
        QCOMPARE(DrawUtils::drawSvgIconText(painter, &button, nullptr, optionFor(), icon,
                                            textColors),
                 expected);
    });
}

void tst_DrawUtilsIconTextPainting::warnsOfAnAlignmentThatItDoesNotKnow()
{
    OxaSvgLabel label(QStringLiteral("abc"));
    label.setTextHorAlign(HorAlign(3));
    const auto icon = makeIcon(m_files.square());
    QTest::ignoreMessage(QtWarningMsg, "Unsupported OxaEnum::HorAlign!");
    QRect block;
    const QImage image = drawing(label, [&](QPainter *painter) {
        block = DrawUtils::drawSvgIconText(painter, &label, optionFor(), icon, textColors);
    });
    QCOMPARE(block.topLeft(), QPoint(0, 0));
    QVERIFY(block.width() > 16);
    QCOMPARE(Pixels::boundsNear(image, iconColors.normal).left(), 0);
}

void tst_DrawUtilsIconTextPainting::paintsTheIconBesideTheText_data()
{
    QTest::addColumn<Alignment>("alignment");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<bool>("isVertical");
    QTest::addColumn<bool>("isIconFirst");
    QTest::newRow("left") << Alignment::Left << Qt::LeftToRight << false << true;
    QTest::newRow("right") << Alignment::Right << Qt::LeftToRight << false << false;
    QTest::newRow("above") << Alignment::Top << Qt::LeftToRight << true << true;
    QTest::newRow("below") << Alignment::Bottom << Qt::LeftToRight << true << false;
    QTest::newRow("left, right to left") << Alignment::Left << Qt::RightToLeft << false << false;
    QTest::newRow("right, right to left") << Alignment::Right << Qt::RightToLeft << false << true;
    QTest::newRow("above, right to left") << Alignment::Top << Qt::RightToLeft << true << true;
    QTest::newRow("below, right to left") << Alignment::Bottom << Qt::RightToLeft << true << false;
}

void tst_DrawUtilsIconTextPainting::paintsTheIconBesideTheText()
{
    QFETCH(const Alignment, alignment);
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const bool, isVertical);
    QFETCH(const bool, isIconFirst);
    const LayoutDirectionGuard layoutDirection(direction);
    OxaSvgLabel label(QStringLiteral("abc"));
    label.setSvgIconAlignment(alignment);
    const auto icon = makeIcon(m_files.square());
    QRect block;
    const QImage image = drawing(label, [&](QPainter *painter) {
        block = DrawUtils::drawSvgIconText(painter, &label, optionFor(), icon, textColors);
    });
    const QRect iconRect = Pixels::boundsNear(image, iconColors.normal);
    const QRect textRect = Pixels::boundsNear(image, textColors.normal);
    QVERIFY(block.contains(textRect));
    QVERIFY(iconRect.size().width() >= 15 && iconRect.size().height() >= 15);
    if (isVertical) {
        QCOMPARE(isIconFirst ? iconRect.top() : iconRect.bottom(),
                 isIconFirst ? block.top() : block.bottom());
        QCOMPARE(iconRect.bottom() < textRect.top(), isIconFirst);
        QCOMPARE(iconRect.top() > textRect.bottom(), !isIconFirst);
    } else {
        QCOMPARE(isIconFirst ? iconRect.left() : iconRect.right(),
                 isIconFirst ? block.left() : block.right());
        QCOMPARE(iconRect.right() < textRect.left(), isIconFirst);
        QCOMPARE(iconRect.left() > textRect.right(), !isIconFirst);
    }
}

void tst_DrawUtilsIconTextPainting::countsAnInvisibleIconAsAbsent()
{
    OxaSvgLabel label(QStringLiteral("abc"));
    const auto icon = makeIcon(m_files.square());
    icon->setVisible(false);
    const std::unique_ptr<OxaSvgIcon> none;
    QRect withIcon;
    QRect withoutIcon;
    const QImage image = drawing(label, [&](QPainter *painter) {
        withIcon = DrawUtils::drawSvgIconText(painter, &label, optionFor(), icon, textColors);
    });
    QCOMPARE(drawing(label,
                     [&](QPainter *painter) {
                         withoutIcon = DrawUtils::drawSvgIconText(painter, &label, optionFor(),
                                                                  none, textColors);
                     }),
             image);
    QCOMPARE(withIcon, withoutIcon);
    // One pixel narrower than the text alone.
    QCOMPARE(withoutIcon.width(), label.fontMetrics().horizontalAdvance(label.text()) - 1);
    QCOMPARE(Faces::facesIn(image, iconColors), QString());
}

void tst_DrawUtilsIconTextPainting::keepsPaddingsFreeOfText()
{
    OxaSvgPushButton button(longText);
    button.setTextHorAlign(HorAlign::LeftAlign);
    button.setTextLeftPadding(11);
    button.setTextRightPadding(7);
    button.setSvgIconPadding(QMargins(5, 1, 3, 2));
    button.setElidePadding(20);
    const auto icon = makeIcon(m_files.square());
    QRect block;
    const QImage image = drawing(button, [&](QPainter *painter) {
        block = DrawUtils::drawSvgIconText(painter, &button, nullptr, optionFor(), icon,
                                           textColors);
    });
    const QFontMetrics metrics = button.fontMetrics();
    const int available = area.width() - 20 - 3 - 5 - (11 + 7) - 16;
    const QString elided = metrics.elidedText(longText, Qt::ElideRight, available);
    QVERIFY(elided != longText);
    QCOMPARE(block.width(), 5 + 16 + 3 + 11 + metrics.horizontalAdvance(elided) + 7);
    QCOMPARE(Pixels::boundsNear(image, iconColors.normal).left(), area.left() + 5);
    const QRect textRect = Pixels::boundsNear(image, textColors.normal);
    QVERIFY(textRect.left() >= area.left() + 5 + 16 + 3 + 11);
    QVERIFY(textRect.right() <= area.right() - 20 - 7);
}

void tst_DrawUtilsIconTextPainting::paintsInTheColorsOfTheState()
{
    OxaSvgLabel label(QStringLiteral("abc"));
    const auto icon = makeIcon(m_files.square());
    const std::pair<QStyle::State, const char *> states[] = {
        { QStyle::State_None, "disabled" },
        { QStyle::State_Enabled, "normal" },
        { QStyle::State_Enabled | QStyle::State_MouseOver, "hovered" },
        { QStyle::State_Enabled | QStyle::State_On, "checked" },
    };
    for (const auto &[state, face] : states) {
        const QStyleOption option = optionFor(state);
        const QImage image = drawing(label, [&](QPainter *painter) {
            DrawUtils::drawSvgIconText(painter, &label, option, icon, textColors);
        });
        QCOMPARE(Faces::facesIn(image, iconColors), QLatin1String(face));
        QCOMPARE(Faces::facesIn(image, textColors), QLatin1String(face));
    }
}

void tst_DrawUtilsIconTextPainting::leavesThePainterAsItWas()
{
    OxaSvgPushButton button(QStringLiteral("abc"));
    const auto icon = makeIcon(m_files.square());
    drawing(button, [&](QPainter *painter) {
        painter->setPen(Qt::blue);
        DrawUtils::drawSvgIconText(painter, &button, nullptr, optionFor(), icon, textColors);
        QPixmap pixmap(8, 8);
        DrawUtils::drawPixmapIconText(painter, &button, nullptr, optionFor(), pixmap, textColors);
        QCOMPARE(painter->pen(), QPen(Qt::blue));
        QCOMPARE(painter->transform(), QTransform());
        QVERIFY(!painter->testRenderHint(QPainter::Antialiasing));
    });
}

UIELEMENTS_TEST_MAIN(tst_DrawUtilsIconTextPainting)
#include "tst_drawutils_icontext_painting.moc"
