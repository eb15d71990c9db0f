// SPDX-License-Identifier: Apache-2.0
#include "support/ColorSets.h"
#include "support/Guards.h"
#include "support/PaintCounter.h"
#include "support/Pixels.h"
#include "support/TestApplication.h"

#include <UiElements/widgets/OxaWidget.h>

#include <QHBoxLayout>
#include <QTemporaryDir>

namespace {

/// Returns a picture with a hard edge, which shows how it was scaled.
QPixmap twoColors()
{
    QPixmap pixmap(2, 1);
    pixmap.fill(Qt::red);
    QPainter(&pixmap).fillRect(1, 0, 1, 1, Qt::blue);
    return pixmap;
}

} // namespace

Q_DECLARE_METATYPE(QMargins)

/// OxaWidget, without the blocks that it shares with other classes.
class tst_OxaWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_stores.reset(); }

    void startsWithoutIdAndPicture();
    void takesParentAndWindowFlags();
    void storesItsElementId();

    void storesThePathOfAPictureThatIsNotThere();
    void stretchesThePictureSmoothlyOverAllOfItself();
    void paintsThePictureOverItsBackground();
    void dropsThePictureForAPathWithoutOne();
    void doesNotRepaintForAnotherPicture();

    void paintsTheBackgroundOfItsStyleText();
    void paintsNothingWithoutStyleText();

    void takesMarginsInReadingDirection_data();
    void takesMarginsInReadingDirection();
    void takesLayoutMarginsInReadingDirection_data() { takesMarginsInReadingDirection_data(); }
    void takesLayoutMarginsInReadingDirection();
    void ignoresLayoutMarginsWithoutALayout();
    void swapsItsMarginsWhenTheDirectionChanges();
    void leavesTheMarginsOfALayoutThatIsMadeLaterAlone();

private:
    QString picturePath() const { return m_folder.filePath(QStringLiteral("picture.png")); }

    QTemporaryDir m_folder;
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaWidget::initTestCase()
{
    m_stores = std::make_unique<StoreGuard>(
            ColorSets::storeOf({ ColorSets::make(QStringLiteral("panel"), { "#123456" }) }));
    QVERIFY(twoColors().save(picturePath()));
}

void tst_OxaWidget::startsWithoutIdAndPicture()
{
    const OxaWidget widget;
    QCOMPARE(widget.property("elementUniqueId"), QVariant(QString()));
    QCOMPARE(widget.property("pixmap"), QVariant(QString()));
}

void tst_OxaWidget::takesParentAndWindowFlags()
{
    QWidget parent;
    const OxaWidget child(&parent);
    QCOMPARE(child.parentWidget(), &parent);
    QVERIFY(!child.isWindow());
    const OxaWidget tool(&parent, Qt::Tool);
    QCOMPARE(tool.parentWidget(), &parent);
    QCOMPARE(tool.windowType(), Qt::Tool);
}

void tst_OxaWidget::storesItsElementId()
{
    OxaWidget widget;
    widget.setUniqueElementId(QStringLiteral("first"));
    QCOMPARE(widget.property("elementUniqueId").toString(), QStringLiteral("first"));
    QVERIFY(widget.setProperty("elementUniqueId", QStringLiteral("second")));
    QCOMPARE(widget.getUniqueElementId(), QStringLiteral("second"));
    QCOMPARE(widget.objectName(), QString());
}

void tst_OxaWidget::storesThePathOfAPictureThatIsNotThere()
{
    OxaWidget widget;
    widget.resize(20, 10);
    widget.setPixmapSrc(QStringLiteral(":/no/such/picture.png"));
    QCOMPARE(widget.getPixmapSrc(), QStringLiteral(":/no/such/picture.png"));
    QCOMPARE(Pixels::countNear(Pixels::render(widget, Qt::green), Qt::green), 20 * 10);
}

void tst_OxaWidget::stretchesThePictureSmoothlyOverAllOfItself()
{
    OxaWidget widget;
    widget.resize(40, 10);
    widget.setContentsMargins(5, 5, 5, 5);
    QVERIFY(widget.setProperty("pixmap", picturePath()));
    QCOMPARE(widget.getPixmapSrc(), picturePath());

    QImage expected(widget.size(), QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&expected);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(QRect(0, 0, 40, 10), twoColors());
    painter.end();
    QCOMPARE(Pixels::render(widget, Qt::green), expected);
    // Between the colours there are others: the edge is smoothed.
    QVERIFY(Pixels::countNear(expected, QColor(128, 0, 128), QRect(), 60) > 0);
}

void tst_OxaWidget::paintsThePictureOverItsBackground()
{
    OxaWidget widget;
    widget.resize(40, 10);
    widget.setCSS(QStringLiteral("$backgroundColors: panel;"));
    widget.setPixmapSrc(picturePath());
    const QImage image = Pixels::render(widget);
    QCOMPARE(Pixels::countNear(image, QColor(0x12, 0x34, 0x56), QRect(), 8), 0);
    QCOMPARE(image.pixelColor(1, 1), QColor(Qt::red));
    QCOMPARE(image.pixelColor(38, 8), QColor(Qt::blue));
}

void tst_OxaWidget::dropsThePictureForAPathWithoutOne()
{
    OxaWidget widget;
    widget.resize(20, 10);
    widget.setPixmapSrc(picturePath());
    widget.setPixmapSrc(QString());
    QCOMPARE(widget.getPixmapSrc(), QString());
    QCOMPARE(Pixels::countNear(Pixels::render(widget, Qt::green), Qt::green), 20 * 10);
}

void tst_OxaWidget::doesNotRepaintForAnotherPicture()
{
    OxaWidget widget;
    PaintCounter paints(widget);
    widget.setPixmapSrc(picturePath());
    QCOMPARE(paints.take(), 0);
    widget.update();
    QCOMPARE(paints.take(), 1);
}

void tst_OxaWidget::paintsTheBackgroundOfItsStyleText()
{
    OxaWidget widget;
    widget.resize(20, 10);
    widget.setCSS(QStringLiteral("$backgroundColors: panel;"));
    const QColor panel(0x12, 0x34, 0x56);
    QCOMPARE(Pixels::countNear(Pixels::render(widget), panel, QRect(), 0), 20 * 10);
}

void tst_OxaWidget::paintsNothingWithoutStyleText()
{
    OxaWidget widget;
    widget.resize(20, 10);
    widget.setCSS(QStringLiteral("$backgroundColors: panel;"));
    widget.setCSS(QString());
    QCOMPARE(Pixels::countNear(Pixels::render(widget, Qt::green), Qt::green, QRect(), 0), 20 * 10);
}

void tst_OxaWidget::takesMarginsInReadingDirection_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QMargins>("onScreen");
    QTest::newRow("left to right") << Qt::LeftToRight << QMargins(1, 2, 3, 4);
    QTest::newRow("right to left") << Qt::RightToLeft << QMargins(3, 2, 1, 4);
}

void tst_OxaWidget::takesMarginsInReadingDirection()
{
    QFETCH(const Qt::LayoutDirection, direction);
    const LayoutDirectionGuard guard(direction);
    OxaWidget widget;
    QCOMPARE(widget.contentsMargins(), QMargins());
    widget.setContentsMargins(QMargins(1, 2, 3, 4));
    QTEST(widget.contentsMargins(), "onScreen");
    widget.setContentsMargins(0, 0, 0, 0);
    widget.setContentsMargins(1, 2, 3, 4);
    QTEST(widget.contentsMargins(), "onScreen");
}

void tst_OxaWidget::takesLayoutMarginsInReadingDirection()
{
    QFETCH(const Qt::LayoutDirection, direction);
    const LayoutDirectionGuard guard(direction);
    OxaWidget widget;
    const QHBoxLayout layout(&widget);
    widget.setLayoutContentsMargins(QMargins(1, 2, 3, 4));
    QTEST(layout.contentsMargins(), "onScreen");
    widget.setLayoutContentsMargins(0, 0, 0, 0);
    widget.setLayoutContentsMargins(1, 2, 3, 4);
    QTEST(layout.contentsMargins(), "onScreen");
    QCOMPARE(widget.contentsMargins(), QMargins());
}

void tst_OxaWidget::ignoresLayoutMarginsWithoutALayout()
{
    OxaWidget widget;
    widget.setLayoutContentsMargins(QMargins(1, 2, 3, 4));
    widget.setLayoutContentsMargins(1, 2, 3, 4);
    QCOMPARE(widget.contentsMargins(), QMargins());
}

void tst_OxaWidget::swapsItsMarginsWhenTheDirectionChanges()
{
    OxaWidget bare;
    bare.setContentsMargins(1, 2, 3, 4);
    OxaWidget widget;
    const QHBoxLayout layout(&widget);
    widget.setContentsMargins(1, 2, 3, 4);
    widget.setLayoutContentsMargins(5, 6, 7, 8);
    {
        const LayoutDirectionGuard guard(Qt::RightToLeft);
        QCOMPARE(bare.contentsMargins(), QMargins(3, 2, 1, 4));
        QCOMPARE(widget.contentsMargins(), QMargins(3, 2, 1, 4));
        QCOMPARE(layout.contentsMargins(), QMargins(7, 6, 5, 8));
    }
    QCOMPARE(bare.contentsMargins(), QMargins(1, 2, 3, 4));
    QCOMPARE(widget.contentsMargins(), QMargins(1, 2, 3, 4));
    QCOMPARE(layout.contentsMargins(), QMargins(5, 6, 7, 8));
}

void tst_OxaWidget::leavesTheMarginsOfALayoutThatIsMadeLaterAlone()
{
    const LayoutDirectionGuard guard(Qt::RightToLeft);
    OxaWidget widget;
    auto *layout = new QHBoxLayout;
    layout->setContentsMargins(1, 2, 3, 4);
    widget.setLayout(layout);
    QCOMPARE(layout->contentsMargins(), QMargins(1, 2, 3, 4));
}

UIELEMENTS_TEST_MAIN(tst_OxaWidget)
#include "tst_oxawidget.moc"
