// SPDX-License-Identifier: Apache-2.0
#include "support/Guards.h"
#include "support/TestMain.h"

#include <UiElements/svg/DrawUtils.h>

#include <QMargins>
#include <QTest>

using OxaEnum::Alignment;

namespace {

const QSize iconSize(10, 20);
const QMargins iconMargins(1, 2, 4, 8); // The icon takes 15 by 30.
const QMargins textMargins(3, 7, 5, 9); // A text of 40 by 12 takes 48 by 28.

} // namespace

Q_DECLARE_METATYPE(QMargins)

/// The positions of an icon and a text relative to each other.
class tst_DrawUtilsIconText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void placesIconAndTextAroundEachOther_data();
    void placesIconAndTextAroundEachOther();
    void countsAnAbsentIconAsMinusOne_data();
    void countsAnAbsentIconAsMinusOne();
    void calculatesInSinglePrecision();
};

void tst_DrawUtilsIconText::placesIconAndTextAroundEachOther_data()
{
    QTest::addColumn<Alignment>("alignment");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QSize>("textSize");
    QTest::addColumn<QPointF>("icon");
    QTest::addColumn<QPointF>("text");
    QTest::addColumn<QPointF>("total");
    const auto addRow = [](const char *name, Alignment alignment, Qt::LayoutDirection direction,
                           const QSize &textSize, QPointF icon, QPointF text, QPointF total) {
        QTest::newRow(name) << alignment << direction << textSize << icon << text << total;
    };
    const QSize low(40, 12);
    const QSize high(40, 60);  // 48 by 76
    const QSize narrow(1, 12); // 9 by 28
    addRow("icon left of a low text", Alignment::Left, Qt::LeftToRight, low, { 1, 0 }, { 18, 1 },
           { 63, 30 });
    addRow("icon left of a high text", Alignment::Left, Qt::LeftToRight, high, { 1, 23 }, { 18, 0 },
           { 63, 76 });
    addRow("icon right of a low text", Alignment::Right, Qt::LeftToRight, low, { 49, 0 }, { 3, 1 },
           { 63, 30 });
    addRow("icon right of a high text", Alignment::Right, Qt::LeftToRight, high, { 49, 23 },
           { 3, 0 }, { 63, 76 });
    addRow("icon above a wide text", Alignment::Top, Qt::LeftToRight, low, { 16.5, 2 }, { 0, 37 },
           { 48, 58 });
    addRow("icon above a narrow text", Alignment::Top, Qt::LeftToRight, narrow, { 0, 2 }, { 3, 37 },
           { 15, 58 });
    addRow("icon below a wide text", Alignment::Bottom, Qt::LeftToRight, low, { 16.5, 30 },
           { 0, 7 }, { 48, 58 });
    addRow("icon below a narrow text", Alignment::Bottom, Qt::LeftToRight, narrow, { 0, 30 },
           { 3, 7 }, { 15, 58 });
    // Right to left the icon at the left comes last, and the right margins lead either way.
    addRow("icon left, right to left", Alignment::Left, Qt::RightToLeft, low, { 52, 0 }, { 5, 1 },
           { 63, 30 });
    addRow("icon right, right to left, comes first", Alignment::Right, Qt::RightToLeft, low,
           { 4, 0 }, { 20, 1 }, { 63, 30 });
    addRow("icon above, right to left", Alignment::Top, Qt::RightToLeft, low, { 16.5, 2 },
           { 0, 37 }, { 48, 58 });
    addRow("icon below, right to left", Alignment::Bottom, Qt::RightToLeft, low, { 16.5, 30 },
           { 0, 7 }, { 48, 58 });
}

void tst_DrawUtilsIconText::placesIconAndTextAroundEachOther()
{
    QFETCH(const Alignment, alignment);
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const QSize, textSize);
    const LayoutDirectionGuard layoutDirection(direction);
    const auto [icon, text, total] = DrawUtils::calculateIconTextOffset(iconSize, textSize,
                                                                        textMargins, iconMargins,
                                                                        alignment);
    QTEST(icon, "icon");
    QTEST(text, "text");
    QTEST(total, "total");
}

void tst_DrawUtilsIconText::countsAnAbsentIconAsMinusOne_data()
{
    QTest::addColumn<Alignment>("alignment");
    QTest::addColumn<QPointF>("icon");
    QTest::addColumn<QPointF>("text");
    QTest::addColumn<QPointF>("total");
    QTest::newRow("left") << Alignment::Left << QPointF(0, 6.5) << QPointF(-1, 0)
                          << QPointF(39, 12);
    QTest::newRow("right") << Alignment::Right << QPointF(40, 6.5) << QPointF(0, 0)
                           << QPointF(39, 12);
    QTest::newRow("above") << Alignment::Top << QPointF(20.5, 0) << QPointF(0, -1)
                           << QPointF(40, 11);
    QTest::newRow("below") << Alignment::Bottom << QPointF(20.5, 12) << QPointF(0, 0)
                           << QPointF(40, 11);
}

void tst_DrawUtilsIconText::countsAnAbsentIconAsMinusOne()
{
    QFETCH(const Alignment, alignment);
    const auto [icon, text, total] = DrawUtils::calculateIconTextOffset(QSize(), QSize(40, 12),
                                                                        QMargins(), QMargins(),
                                                                        alignment);
    QTEST(icon, "icon");
    QTEST(text, "text");
    QTEST(total, "total");
}

void tst_DrawUtilsIconText::calculatesInSinglePrecision()
{
    // The first whole number that single precision lacks.
    const auto [icon, text, total] = DrawUtils::calculateIconTextOffset(QSize(16777217, 1),
                                                                        QSize(0, 0), QMargins(),
                                                                        QMargins(),
                                                                        Alignment::Left);
    QCOMPARE(total, QPointF(16777216, 1));
    QCOMPARE(text, QPointF(16777216, 0.5));
    QCOMPARE(icon, QPointF(0, 0));
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_DrawUtilsIconText)
#include "tst_drawutils_icontext.moc"
