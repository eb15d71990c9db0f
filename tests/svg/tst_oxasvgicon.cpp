// SPDX-License-Identifier: Apache-2.0
#include "support/Faces.h"
#include "support/Pixels.h"
#include "support/SvgFiles.h"
#include "support/TestMain.h"

#include <UiElements/svg/OxaSvgIcon.h>

#include <QPainter>
#include <QSignalSpy>

#include <functional>

namespace {

constexpr QStyle::State enabled = QStyle::State_Enabled;
const OxaColorSet outerColors = Faces::colors(QStringLiteral("outer"), 220);
const OxaColorSet innerColors = Faces::colors(QStringLiteral("inner"), 110);

/// Returns what \a draw paints on white paper, with the origin at (8, 8).
QImage drawing(const std::function<void(QPainter *)> &draw)
{
    return Pixels::drawing(QSize(32, 32), [&](QPainter *painter) {
        painter->translate(8, 8);
        draw(painter);
    });
}

QImage drawing(const OxaSvgIcon &icon, QStyle::State state = enabled)
{
    return drawing([&](QPainter *painter) { icon.draw(painter, state); });
}

QImage filled(const QRect &outer, const QColor &outerColor, const QRect &inner = QRect(),
              const QColor &innerColor = QColor())
{
    return drawing([&](QPainter *painter) {
        painter->fillRect(outer, outerColor);
        painter->fillRect(inner, innerColor);
    });
}

QImage paper()
{
    return drawing([](QPainter *) {});
}

} // namespace

using SetUp = std::function<void(OxaSvgIcon &)>;

Q_DECLARE_METATYPE(QStyle::State)
Q_DECLARE_METATYPE(SetUp)

class tst_OxaSvgIcon : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithoutPictures();
    void startsValidWithAPath();
    void staysValidAndWarnsAtEachPaintWhenItsConstructorFails();
    void makesTheOuterPictureWhenFirstSet_data();
    void makesTheOuterPictureWhenFirstSet();
    void losesAVisibilityThatWasSetTooEarly();
    void keepsItsSizeWhileInvisible();
    void keepsThePathOfAFileThatFails();
    void loadsAgainAfterAFailure();
    void dropsThePictureForAnEmptyPath();
    void keepsTheInnerPictureApart();
    void keepsTheInnerSizeWhileInvisible();

    void paintsInTheColorOfTheState_data();
    void paintsInTheColorOfTheState();
    void centresTheInnerPicture_data();
    void centresTheInnerPicture();
    void paintsTheInnerPictureAlone();
    void paintsNothing_data();
    void paintsNothing();
    void leavesThePainterAsItWas();
    void survivesASizeOfZero();

    void asksForARepaintForFramesOfEitherPicture();
    void asksForNoRepaintWhenItIsSet();

private:
    SvgFiles m_files;
};

void tst_OxaSvgIcon::startsWithoutPictures()
{
    const OxaSvgIcon icon;
    QVERIFY(!icon.isValid());
    QVERIFY(!icon.isVisible());
    QCOMPARE(icon.getFilePath(), QString());
    QCOMPARE(icon.getIconSize(), QSize(-1, -1));
    QCOMPARE(icon.getColorSet(), OxaColorSet());
    QCOMPARE(icon.getInnerFilePath(), QString());
    QCOMPARE(icon.getInnerIconSize(), QSize(-1, -1));
    QCOMPARE(icon.getInnerColorSet(), OxaColorSet());
}

void tst_OxaSvgIcon::startsValidWithAPath()
{
    const QString path = m_files.square();
    const OxaSvgIcon icon(path);
    QVERIFY(icon.isValid());
    QVERIFY(icon.isVisible());
    QCOMPARE(icon.getFilePath(), path);
    QCOMPARE(icon.getIconSize(), QSize(16, 16));
    QCOMPARE(icon.getColorSet(), OxaColorSet());
}

void tst_OxaSvgIcon::staysValidAndWarnsAtEachPaintWhenItsConstructorFails()
{
    const QString missing = m_files.path(QStringLiteral("missing.svg"));
    SvgFiles::ignoreMissing(missing);
    const OxaSvgIcon icon(missing);
    QVERIFY(icon.isValid());
    QCOMPARE(icon.getFilePath(), missing);
    for (int i = 0; i < 2; ++i) {
        QTest::ignoreMessage(QtWarningMsg, "SVG node does not exist!");
        QCOMPARE(drawing(icon), paper());
    }
}

void tst_OxaSvgIcon::makesTheOuterPictureWhenFirstSet_data()
{
    QTest::addColumn<SetUp>("setUp");
    QTest::addColumn<QSize>("size");
    QTest::newRow("by its path") << SetUp([](OxaSvgIcon &icon) { icon.setFilePath(QString()); })
                                 << QSize(16, 16);
    QTest::newRow("by its size") << SetUp([](OxaSvgIcon &icon) { icon.setIconSize(QSize(3, 4)); })
                                 << QSize(3, 4);
    QTest::newRow("by its colors")
            << SetUp([](OxaSvgIcon &icon) { icon.setColorSet(outerColors); }) << QSize(16, 16);
}

void tst_OxaSvgIcon::makesTheOuterPictureWhenFirstSet()
{
    QFETCH(const SetUp, setUp);
    OxaSvgIcon icon;
    setUp(icon);
    QVERIFY(!icon.isValid());
    QVERIFY(icon.isVisible());
    QTEST(icon.getIconSize(), "size");
}

void tst_OxaSvgIcon::losesAVisibilityThatWasSetTooEarly()
{
    OxaSvgIcon icon;
    icon.setVisible(true);
    QVERIFY(!icon.isVisible());
    icon.setVisible(false);
    icon.setInnerIconSize(QSize(4, 4));
    QVERIFY(!icon.isVisible());
    icon.setIconSize(QSize(4, 4));
    QVERIFY(icon.isVisible());
}

void tst_OxaSvgIcon::keepsItsSizeWhileInvisible()
{
    OxaSvgIcon icon(m_files.square());
    icon.setIconSize(QSize(20, 10));
    icon.setVisible(false);
    QCOMPARE(icon.getIconSize(), QSize(-1, -1));
    QVERIFY(icon.isValid());
    icon.setVisible(true);
    QCOMPARE(icon.getIconSize(), QSize(20, 10));
}

void tst_OxaSvgIcon::keepsThePathOfAFileThatFails()
{
    const QString missing = m_files.path(QStringLiteral("missing.svg"));
    OxaSvgIcon icon(m_files.square());
    SvgFiles::ignoreMissing(missing);
    icon.setFilePath(missing);
    QVERIFY(!icon.isValid());
    QVERIFY(icon.isVisible());
    QCOMPARE(icon.getFilePath(), missing);
    QCOMPARE(drawing(icon), paper());
}

void tst_OxaSvgIcon::loadsAgainAfterAFailure()
{
    const QString late = m_files.path(QStringLiteral("late.svg"));
    OxaSvgIcon icon;
    SvgFiles::ignoreMissing(late);
    icon.setFilePath(late);
    icon.setColorSet(outerColors);
    m_files.square(QStringLiteral("late.svg"));
    icon.setFilePath(late);
    QVERIFY(icon.isValid());
    QCOMPARE(drawing(icon), filled(QRect(0, 0, 16, 16), outerColors.normal));
}

void tst_OxaSvgIcon::dropsThePictureForAnEmptyPath()
{
    OxaSvgIcon icon(m_files.square());
    icon.setFilePath(QString());
    QVERIFY(!icon.isValid());
    QVERIFY(icon.isVisible());
    QCOMPARE(icon.getFilePath(), QString());
    QCOMPARE(icon.getIconSize(), QSize(16, 16));
    QCOMPARE(drawing(icon), paper());
}

void tst_OxaSvgIcon::keepsTheInnerPictureApart()
{
    OxaSvgIcon icon;
    const QString path = m_files.square();
    icon.setInnerFilePath(path);
    QCOMPARE(icon.getInnerFilePath(), path);
    QCOMPARE(icon.getInnerIconSize(), QSize(16, 16));
    icon.setInnerIconSize(QSize(3, 4));
    QCOMPARE(icon.getInnerIconSize(), QSize(3, 4));
    icon.setInnerColorSet(innerColors);
    QCOMPARE(icon.getInnerColorSet(), innerColors);
    QVERIFY(!icon.isValid());
    QVERIFY(!icon.isVisible());
    QCOMPARE(icon.getIconSize(), QSize(-1, -1));
    const QString missing = m_files.path(QStringLiteral("missing.svg"));
    SvgFiles::ignoreMissing(missing);
    icon.setInnerFilePath(missing);
    QCOMPARE(icon.getInnerFilePath(), missing);
    icon.setInnerFilePath(QString());
    QCOMPARE(icon.getInnerFilePath(), QString());
    QCOMPARE(icon.getInnerIconSize(), QSize(3, 4));
}

void tst_OxaSvgIcon::keepsTheInnerSizeWhileInvisible()
{
    OxaSvgIcon icon(m_files.square());
    icon.setInnerIconSize(QSize(3, 4));
    icon.setVisible(false);
    QCOMPARE(icon.getInnerIconSize(), QSize(3, 4));
}

void tst_OxaSvgIcon::paintsInTheColorOfTheState_data()
{
    using Faces::Face;
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<Face>("face");
    QTest::newRow("normal") << enabled << Face::Normal;
    QTest::newRow("hovered") << (enabled | QStyle::State_MouseOver) << Face::Hovered;
    QTest::newRow("pressed") << (enabled | QStyle::State_Sunken) << Face::Pressed;
    QTest::newRow("checked") << (enabled | QStyle::State_On) << Face::Checked;
    QTest::newRow("disabled") << QStyle::State() << Face::Disabled;
    QTest::newRow("focused") << (enabled | QStyle::State_HasFocus) << Face::Focused;
}

void tst_OxaSvgIcon::paintsInTheColorOfTheState()
{
    QFETCH(const QStyle::State, state);
    QFETCH(const Faces::Face, face);
    OxaSvgIcon icon(m_files.square());
    icon.setColorSet(outerColors);
    icon.setInnerFilePath(m_files.square());
    icon.setInnerIconSize(QSize(8, 8));
    icon.setInnerColorSet(innerColors);
    QCOMPARE(drawing(icon, state),
             filled(QRect(0, 0, 16, 16), Faces::colorOf(outerColors, face), QRect(4, 4, 8, 8),
                    Faces::colorOf(innerColors, face)));
}

void tst_OxaSvgIcon::centresTheInnerPicture_data()
{
    QTest::addColumn<QSize>("outer");
    QTest::addColumn<QSize>("inner");
    QTest::addColumn<QRect>("place");
    QTest::newRow("smaller") << QSize(16, 16) << QSize(6, 6) << QRect(5, 5, 6, 6);
    QTest::newRow("as large") << QSize(16, 16) << QSize(16, 16) << QRect(0, 0, 16, 16);
    QTest::newRow("larger hangs over") << QSize(8, 8) << QSize(16, 16) << QRect(-4, -4, 16, 16);
    QTest::newRow("in an outer one that is not square")
            << QSize(16, 8) << QSize(4, 4) << QRect(6, 2, 4, 4);
}

void tst_OxaSvgIcon::centresTheInnerPicture()
{
    QFETCH(const QSize, outer);
    QFETCH(const QSize, inner);
    OxaSvgIcon icon(m_files.square());
    icon.setIconSize(outer);
    icon.setColorSet(outerColors);
    icon.setInnerFilePath(m_files.square());
    icon.setInnerIconSize(inner);
    icon.setInnerColorSet(innerColors);
    QTEST(Pixels::boundsNear(drawing(icon), innerColors.normal).translated(-8, -8), "place");
}

void tst_OxaSvgIcon::paintsTheInnerPictureAlone()
{
    OxaSvgIcon icon;
    icon.setIconSize(QSize(16, 16));
    icon.setInnerFilePath(m_files.square());
    icon.setInnerIconSize(QSize(8, 8));
    icon.setInnerColorSet(innerColors);
    QCOMPARE(drawing(icon), filled(QRect(4, 4, 8, 8), innerColors.normal));
}

void tst_OxaSvgIcon::paintsNothing_data()
{
    QTest::addColumn<SetUp>("setUp");
    QTest::newRow("without pictures") << SetUp([](OxaSvgIcon &) {});
    QTest::newRow("without an outer picture")
            << SetUp([this](OxaSvgIcon &icon) { icon.setInnerFilePath(m_files.square()); });
    QTest::newRow("while invisible, the inner picture neither") << SetUp([this](OxaSvgIcon &icon) {
        icon.setFilePath(m_files.square());
        icon.setInnerFilePath(m_files.square());
        icon.setVisible(false);
    });
}

void tst_OxaSvgIcon::paintsNothing()
{
    QFETCH(const SetUp, setUp);
    OxaSvgIcon icon;
    setUp(icon);
    QCOMPARE(drawing(icon), paper());
}

void tst_OxaSvgIcon::leavesThePainterAsItWas()
{
    OxaSvgIcon icon(m_files.square());
    icon.setInnerFilePath(m_files.square());
    icon.setInnerIconSize(QSize(4, 4));
    icon.draw(nullptr, enabled);
    drawing([&icon](QPainter *painter) {
        painter->setPen(Qt::red);
        painter->setBrush(Qt::green);
        painter->setOpacity(0.5);
        icon.draw(painter, enabled);
        QCOMPARE(painter->pen(), QPen(Qt::red));
        QCOMPARE(painter->brush(), QBrush(Qt::green));
        QCOMPARE(painter->opacity(), 0.5);
        QCOMPARE(painter->transform(), QTransform::fromTranslate(8, 8));
        QVERIFY(!painter->testRenderHint(QPainter::Antialiasing));
    });
}

void tst_OxaSvgIcon::survivesASizeOfZero()
{
    OxaSvgIcon icon(m_files.square());
    icon.setColorSet(outerColors);
    icon.setIconSize(QSize(0, 0));
    QCOMPARE(drawing(icon), paper());
    icon.setFilePath(m_files.animated());
    drawing(icon);
}

void tst_OxaSvgIcon::asksForARepaintForFramesOfEitherPicture()
{
    const QString animated = m_files.animated();
    const OxaSvgIcon made(animated);
    OxaSvgIcon outer;
    outer.setFilePath(animated);
    OxaSvgIcon inner;
    inner.setInnerFilePath(animated);
    for (const OxaSvgIcon *icon : { &made, &qAsConst(outer), &qAsConst(inner) }) {
        QSignalSpy repaintNeeded(icon, &OxaSvgIcon::repaintNeeded);
        QTRY_VERIFY(repaintNeeded.size() >= 1);
    }
}

void tst_OxaSvgIcon::asksForNoRepaintWhenItIsSet()
{
    OxaSvgIcon icon;
    const QSignalSpy repaintNeeded(&icon, &OxaSvgIcon::repaintNeeded);
    icon.setFilePath(m_files.square());
    icon.setIconSize(QSize(3, 4));
    icon.setColorSet(outerColors);
    icon.setVisible(false);
    icon.setInnerFilePath(m_files.square());
    icon.setInnerIconSize(QSize(3, 4));
    icon.setInnerColorSet(innerColors);
    QCOMPARE(repaintNeeded.size(), 0);
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_OxaSvgIcon)
#include "tst_oxasvgicon.moc"
