// SPDX-License-Identifier: Apache-2.0
#include "GalleryTest.h"

#include <QPainter>

#include <support/Pixels.h>
#include <widgets/ItemDelegate.h>

Q_DECLARE_METATYPE(QStyle::State)

namespace {

constexpr QRect itemRect(0, 0, 120, 40);

/// A delegate that paints the common parts of items, in the colours of the gallery.
class PlainDelegate : public ItemDelegate
{
public:
    PlainDelegate() { refresh(OxaThemeUtils::AppThemeType::Global); }

    using ItemDelegate::badgeSize;
    using ItemDelegate::look;

    /// Returns the picture of an item in \a state with \a text, in an interface of \a direction.
    QImage picture(QStyle::State state, const QString &text = QString(),
                   Qt::LayoutDirection direction = Qt::LeftToRight) const
    {
        QImage image(itemRect.size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::magenta);
        QStyleOptionViewItem option;
        option.rect = itemRect;
        option.state = state;
        QPainter painter(&image);
        paintGround(&painter, option);
        painter.setPen(Qt::green);
        drawElided(&painter, itemRect, text, direction);
        return image;
    }

    QImage badge(QStyle::State state) const
    {
        QImage image(itemRect.size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::magenta);
        QPainter painter(&image);
        paintBadge(&painter, QRect(QPoint(), badgeSize(QStringLiteral("7"))), QStringLiteral("7"),
                   state);
        return image;
    }
};

} // namespace

/// ItemDelegate: the common parts of items.
class tst_ItemDelegate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void paintsTheBackgroundOfItsState_data();
    void paintsTheBackgroundOfItsState();
    void drawsALineBelowItself();
    void marksTheFocus();
    void beginsTextsWhereLinesDo();
    void invertsTheBadgeOfAChosenItem();
    void hasRoundBadgesForOneDigit();
};

void tst_ItemDelegate::paintsTheBackgroundOfItsState_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QColor>("color");
    const OxaColorSet ground = PlainDelegate().look().ground;
    QTest::newRow("normal") << QStyle::State(QStyle::State_Enabled) << ground.normal;
    QTest::newRow("under the pointer") << QStyle::State(QStyle::State_MouseOver) << ground.hovered;
    QTest::newRow("chosen") << QStyle::State(QStyle::State_Selected) << ground.checked;
    QTest::newRow("chosen, under the pointer")
            << (QStyle::State_Selected | QStyle::State_MouseOver) << ground.checked;
}

void tst_ItemDelegate::paintsTheBackgroundOfItsState()
{
    QFETCH(const QStyle::State, state);
    const QImage image = PlainDelegate().picture(state);
    QTEST(image.pixelColor(itemRect.center()), "color");
    QTEST(image.pixelColor(itemRect.topLeft()), "color");
}

void tst_ItemDelegate::drawsALineBelowItself()
{
    const PlainDelegate delegate;
    const QImage image = delegate.picture(QStyle::State_Enabled);
    QCOMPARE(Pixels::boundsNear(image, delegate.look().line.normal, 0),
             QRect(0, itemRect.bottom(), itemRect.width(), 1));
}

void tst_ItemDelegate::marksTheFocus()
{
    const PlainDelegate delegate;
    const QColor color = delegate.look().focusBorder.normal;
    QCOMPARE(Pixels::countNear(delegate.picture(QStyle::State_Enabled), color, QRect(), 0), 0);
    // The line below the item stays visible.
    QCOMPARE(Pixels::boundsNear(delegate.picture(QStyle::State_HasFocus), color, 0),
             itemRect.adjusted(0, 0, 0, -1));
}

void tst_ItemDelegate::beginsTextsWhereLinesDo()
{
    const PlainDelegate delegate;
    const auto boundsIn = [&delegate](Qt::LayoutDirection direction) {
        return Pixels::boundsNear(delegate.picture(QStyle::State_Enabled, QStringLiteral("ab."),
                                                   direction),
                                  Qt::green);
    };
    const QRect fromLeft = boundsIn(Qt::LeftToRight);
    const QRect fromRight = boundsIn(Qt::RightToLeft);
    QVERIFY(fromLeft.right() < itemRect.center().x());
    QVERIFY(fromRight.left() > itemRect.center().x());
    // The full stop stays behind the letters: the same picture at another position.
    QCOMPARE(fromLeft.size(), fromRight.size());
}

void tst_ItemDelegate::invertsTheBadgeOfAChosenItem()
{
    const PlainDelegate delegate;
    const QColor plain = delegate.look().badgeGround.normal;
    const QColor chosen = delegate.look().text.checked;
    QVERIFY(Pixels::countNear(delegate.badge(QStyle::State_Enabled), plain, QRect(), 0) > 50);
    QVERIFY(Pixels::countNear(delegate.badge(QStyle::State_Selected), chosen, QRect(), 0) > 50);
}

void tst_ItemDelegate::hasRoundBadgesForOneDigit()
{
    const PlainDelegate delegate;
    const QSize one = delegate.badgeSize(QStringLiteral("7"));
    QCOMPARE(one.width(), one.height());
    QVERIFY(delegate.badgeSize(QStringLiteral("777")).width() > one.width());
}

GALLERY_TEST_MAIN(tst_ItemDelegate)
#include "tst_itemdelegate.moc"
