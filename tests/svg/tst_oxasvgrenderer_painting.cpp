// SPDX-License-Identifier: Apache-2.0
#include "support/Pixels.h"
#include "support/SvgFiles.h"
#include "support/TestMain.h"

#include <UiElements/svg/OxaSvgRenderer.h>

#include <QPainter>

#include <functional>

namespace {

const QColor red(Qt::red);
const QByteArray wide = "viewBox='0 0 16 8'";
const QByteArray wideShape = "<path d='M0 0H16V8H0Z'/>";
/// Two nodes that fill a wide document: the left half in blue, the right one in black.
const QByteArray wideHalves = "<path d='M0 0H8V8H0Z' fill='#00f'/><path d='M8 0H16V8H8Z'/>";

constexpr QSize paperSize(32, 32);

QImage paper(const QSize &size = paperSize) { return Pixels::paper(size); }

QImage drawing(const std::function<void(QPainter *)> &draw)
{
    return Pixels::drawing(paperSize, draw);
}

QImage filled(const QRect &rect, const QColor &color)
{
    return drawing([&](QPainter *painter) { painter->fillRect(rect, color); });
}

QImage halves(const QRect &left, const QRect &right)
{
    return drawing([&](QPainter *painter) {
        painter->fillRect(left, Qt::blue);
        painter->fillRect(right, Qt::black);
    });
}

} // namespace

/// What a renderer paints, directly and by QSvgRenderer.
class tst_OxaSvgRendererPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void paintsOneNodeInTheColor_data();
    void paintsOneNodeInTheColor();
    void keepsTheColorsOfOtherFiles_data();
    void keepsTheColorsOfOtherFiles();
    void leavesColorsOfTheFileToTheirShapes();
    void appliesTheOpacityToOneNodeOnly();
    void fitsThePictureIntoTheRectangle_data();
    void fitsThePictureIntoTheRectangle();
    void paintsNothingOfAnEmptyDocument();
    void paintsNothingAndWarnsWithoutAFile();
    void paintsASecondTimeTheSame();

    void scalesOtherFilesToTheHeight();
    void scalesNothingOfOneNode();

    void rendersAPixmapOfTheSize_data();
    void rendersAPixmapOfTheSize();
    void centresTheIconInThePixmap();
    void placesTheIconInThePixmap();
    void warnsOfAnIconLargerThanThePixmap_data();
    void warnsOfAnIconLargerThanThePixmap();
    void rendersOtherFilesInTheirColors();

    void rendersAnIconForOnAndOff();
    void paintsTheOnPictureTwiceWithoutAnOffName();
    void rendersNothingForNamesThatFail();

private:
    SvgFiles m_files;
};

void tst_OxaSvgRendererPainting::paintsOneNodeInTheColor_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QByteArray>("attributes");
    const QByteArray square = "viewBox='0 0 16 16'";
    const QByteArray shape = "<path d='M0 0H16V16H0Z'/>";
    QTest::newRow("a path") << shape << square;
    QTest::newRow("a rectangle") << QByteArray("<rect width='16' height='16'/>") << square;
    QTest::newRow("a group") << "<g>" + shape + shape + "</g>" << square;
    QTest::newRow("a shape with a comment and a title")
            << "<!-- x --><title>x</title>" + shape << square;
    QTest::newRow("a view box away from the origin")
            << QByteArray("<path d='M100 -50H116V-34H100Z'/>")
            << QByteArray("viewBox='100 -50 16 16'");
    QTest::newRow("no view box") << shape << QByteArray();
    QTest::newRow("a size that differs from the view box")
            << shape << square + " width='100' height='7'";
    QTest::newRow("a fill of the document does not count") << shape << square + " fill='#00f'";
}

void tst_OxaSvgRendererPainting::paintsOneNodeInTheColor()
{
    QFETCH(const QByteArray, body);
    QFETCH(const QByteArray, attributes);
    const OxaSvgRenderer renderer(
            m_files.write(QStringLiteral("file.svg"), SvgFiles::document(body, attributes)));
    for (const QColor &color : { red, QColor(Qt::darkGreen), QColor(1, 2, 3) }) {
        QCOMPARE(drawing([&](QPainter *painter) {
                     renderer.draw(painter, QRectF(4, 6, 16, 16), color, 1.0);
                 }),
                 filled(QRect(4, 6, 16, 16), color));
    }
}

void tst_OxaSvgRendererPainting::keepsTheColorsOfOtherFiles_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::newRow("two shapes") << wideHalves;
    QTest::newRow("definitions beside a group") << "<defs/><g>" + wideHalves + "</g>";
    QTest::newRow("an empty group beside a group") << "<g>" + wideHalves + "</g><g/>";
}

void tst_OxaSvgRendererPainting::keepsTheColorsOfOtherFiles()
{
    QFETCH(const QByteArray, body);
    const OxaSvgRenderer renderer(
            m_files.write(QStringLiteral("file.svg"), SvgFiles::document(body, wide)));
    QCOMPARE(drawing([&](QPainter *painter) {
                 renderer.draw(painter, QRectF(4, 6, 16, 8), red, 0.5);
             }),
             halves(QRect(4, 6, 8, 8), QRect(12, 6, 8, 8)));
}

void tst_OxaSvgRendererPainting::leavesColorsOfTheFileToTheirShapes()
{
    const OxaSvgRenderer renderer(m_files.write(
            QStringLiteral("file.svg"),
            SvgFiles::document("<g><path d='M0 0H8V8H0Z' fill='#00f'/><path d='M8 0H16V8H8Z'/></g>",
                               wide)));
    const QImage image = drawing(
            [&](QPainter *painter) { renderer.draw(painter, QRectF(0, 0, 16, 8), red, 1.0); });
    QImage expected = filled(QRect(8, 0, 8, 8), red);
    QPainter(&expected).fillRect(0, 0, 8, 8, Qt::blue);
    QCOMPARE(image, expected);
}

void tst_OxaSvgRendererPainting::appliesTheOpacityToOneNodeOnly()
{
    const OxaSvgRenderer renderer(
            m_files.write(QStringLiteral("file.svg"), SvgFiles::document(wideShape, wide)));
    const QImage image = drawing(
            [&](QPainter *painter) { renderer.draw(painter, QRectF(0, 0, 32, 16), red, 0.5); });
    const QImage expected = drawing([](QPainter *painter) {
        painter->setOpacity(0.5);
        painter->fillRect(0, 0, 32, 16, red);
    });
    QCOMPARE(image, expected);
}

void tst_OxaSvgRendererPainting::fitsThePictureIntoTheRectangle_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<QRect>("left");
    QTest::addColumn<QRect>("right");
    QTest::newRow("a square") << QRectF(0, 0, 32, 32) << QRect(0, 8, 16, 16)
                              << QRect(16, 8, 16, 16);
    QTest::newRow("a wider one") << QRectF(0, 4, 32, 8) << QRect(8, 4, 8, 8) << QRect(16, 4, 8, 8);
    QTest::newRow("one of its own size, away from the origin")
            << QRectF(3, 5, 16, 8) << QRect(3, 5, 8, 8) << QRect(11, 5, 8, 8);
}

void tst_OxaSvgRendererPainting::fitsThePictureIntoTheRectangle()
{
    QFETCH(const QRectF, rect);
    QFETCH(const QRect, left);
    QFETCH(const QRect, right);
    const OxaSvgRenderer oneNode(
            m_files.write(QStringLiteral("one.svg"), SvgFiles::document(wideShape, wide)));
    QCOMPARE(drawing([&](QPainter *painter) { oneNode.draw(painter, rect, red, 1.0); }),
             filled(left | right, red));
    const OxaSvgRenderer twoNodes(
            m_files.write(QStringLiteral("two.svg"), SvgFiles::document(wideHalves, wide)));
    QCOMPARE(drawing([&](QPainter *painter) { twoNodes.draw(painter, rect, red, 1.0); }),
             halves(left, right));
}

void tst_OxaSvgRendererPainting::paintsNothingOfAnEmptyDocument()
{
    for (const QByteArray &attributes : { wide, QByteArray() }) {
        const QString path = m_files.write(QStringLiteral("empty.svg"),
                                           SvgFiles::document(QByteArray(), attributes));
        const OxaSvgRenderer renderer(path);
        QVERIFY(renderer.isLoaded());
        QCOMPARE(drawing([&](QPainter *painter) {
                     renderer.draw(painter, QRectF(0, 0, 16, 16), red, 1.0);
                 }),
                 paper());
    }
}

void tst_OxaSvgRendererPainting::paintsNothingAndWarnsWithoutAFile()
{
    const OxaSvgRenderer renderer;
    QTest::ignoreMessage(QtWarningMsg, "SVG node does not exist!");
    QCOMPARE(drawing([&](QPainter *painter) {
                 renderer.draw(painter, QRectF(0, 0, 16, 16), red, 1.0);
                 renderer.drawScalingHeight(painter, QRectF(0, 0, 16, 16));
             }),
             paper());
}

void tst_OxaSvgRendererPainting::paintsASecondTimeTheSame()
{
    // The states of a styled node must not leak through QSvgExtraStates, which all renderers share.
    const OxaSvgRenderer styled(
            m_files.write(QStringLiteral("styled.svg"),
                          SvgFiles::document(
                                  "<g fill-opacity='0.5' stroke='#0f0' stroke-opacity='0.3' "
                                  "fill-rule='evenodd'><path d='M2 2H14V14H2Z'/></g>")));
    const OxaSvgRenderer plain(m_files.square());
    const auto draw = [](const OxaSvgRenderer &renderer) {
        return drawing(
                [&](QPainter *painter) { renderer.draw(painter, QRectF(0, 0, 32, 32), red, 1.0); });
    };
    const QImage first = draw(styled);
    QVERIFY(first != filled(QRect(4, 4, 24, 24), red));
    QCOMPARE(draw(plain), filled(QRect(0, 0, 32, 32), red));
    QCOMPARE(draw(styled), first);
}

void tst_OxaSvgRendererPainting::scalesOtherFilesToTheHeight()
{
    const OxaSvgRenderer renderer(
            m_files.write(QStringLiteral("two.svg"), SvgFiles::document(wideHalves, wide)));
    // Only the rectangle's height is used, not its position and its width.
    QCOMPARE(drawing([&](QPainter *painter) {
                 renderer.drawScalingHeight(painter, QRectF(5, 7, 3, 8));
             }),
             halves(QRect(0, 0, 8, 8), QRect(8, 0, 8, 8)));
    const QImage half = drawing(
            [&](QPainter *painter) { renderer.drawScalingHeight(painter, QRectF(0, 0, 3, 4)); });
    // Eight pixels wide and still eight high: stretched.
    QCOMPARE(half, halves(QRect(0, 0, 4, 8), QRect(4, 0, 4, 8)));
}

void tst_OxaSvgRendererPainting::scalesNothingOfOneNode()
{
    const OxaSvgRenderer renderer(
            m_files.write(QStringLiteral("one.svg"), SvgFiles::document(wideShape, wide)));
    QCOMPARE(drawing([&](QPainter *painter) {
                 renderer.drawScalingHeight(painter, QRectF(0, 0, 16, 8));
             }),
             paper());
}

void tst_OxaSvgRendererPainting::rendersAPixmapOfTheSize_data()
{
    QTest::addColumn<double>("ratio");
    QTest::newRow("ratio 1") << 1.0;
    QTest::newRow("ratio 2: a quarter is left of what does not fit") << 2.0;
}

void tst_OxaSvgRendererPainting::rendersAPixmapOfTheSize()
{
    QFETCH(const double, ratio);
    const OxaSvgRenderer renderer(QStringLiteral(":/Resources/half.svg"));
    const QPixmap pixmap = renderer.renderPixmap(QSize(16, 16), ratio, red);
    QCOMPARE(pixmap.size(), QSize(16, 16));
    QCOMPARE(pixmap.devicePixelRatio(), ratio);
    QImage expected(16, 16, QImage::Format_ARGB32_Premultiplied);
    expected.fill(Qt::transparent);
    QPainter(&expected).fillRect(0, 0, int(8 * ratio), 16, red);
    QImage image = pixmap.toImage();
    image.setDevicePixelRatio(1.0);
    QCOMPARE(image, expected);
}

void tst_OxaSvgRendererPainting::centresTheIconInThePixmap()
{
    const OxaSvgRenderer renderer(QStringLiteral(":/Resources/square.svg"));
    const QPixmap pixmap = renderer.renderPixmap(QSize(8, 4), QSize(32, 32), 1.0, red,
                                                 QColor(Qt::white));
    QCOMPARE(pixmap.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied),
             filled(QRect(14, 14, 4, 4), red));
}

void tst_OxaSvgRendererPainting::placesTheIconInThePixmap()
{
    const OxaSvgRenderer renderer(QStringLiteral(":/Resources/square.svg"));
    const QPixmap pixmap = renderer.renderPixmap(QRectF(3, 5, 8, 8), QSize(32, 32), 1.0, red,
                                                 QColor(Qt::white));
    QCOMPARE(pixmap.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied),
             filled(QRect(3, 5, 8, 8), red));
}

void tst_OxaSvgRendererPainting::warnsOfAnIconLargerThanThePixmap_data()
{
    QTest::addColumn<QRectF>("iconRect");
    QTest::addColumn<bool>("warns");
    QTest::newRow("as large") << QRectF(0, 0, 32, 32) << false;
    QTest::newRow("partly outside of it") << QRectF(20, 20, 32, 32) << false;
    QTest::newRow("wider") << QRectF(0, 0, 32.5, 32) << true;
    QTest::newRow("higher") << QRectF(0, 0, 32, 33) << true;
}

void tst_OxaSvgRendererPainting::warnsOfAnIconLargerThanThePixmap()
{
    QFETCH(const QRectF, iconRect);
    QFETCH(const bool, warns);
    for (const char *body : { "<path d='M0 0H16V16H0Z'/>", "<path d='M0 0H16V16H0Z'/><g/>" }) {
        const OxaSvgRenderer renderer(
                m_files.write(QStringLiteral("file.svg"), SvgFiles::document(body)));
        if (warns) {
            QTest::ignoreMessage(QtWarningMsg,
                                 "Icon size should be less or equal than the pixmap size");
        }
        const QPixmap pixmap = renderer.renderPixmap(iconRect, QSize(32, 32), 1.0, Qt::black,
                                                     Qt::white);
        QCOMPARE(pixmap.toImage().pixelColor(25, 25), QColor(Qt::black));
    }
}

void tst_OxaSvgRendererPainting::rendersOtherFilesInTheirColors()
{
    const OxaSvgRenderer renderer(
            m_files.write(QStringLiteral("two.svg"), SvgFiles::document(wideHalves, wide)));
    const QPixmap pixmap = renderer.renderPixmap(QRectF(0, 0, 16, 8), QSize(32, 16), 2.0, red, red);
    QCOMPARE(pixmap.size(), QSize(32, 16));
    QCOMPARE(pixmap.devicePixelRatio(), 2.0);
    QCOMPARE(pixmap.toImage().pixelColor(5, 5), QColor(Qt::blue));
    QCOMPARE(pixmap.toImage().pixelColor(25, 5), QColor(Qt::black));
}

void tst_OxaSvgRendererPainting::rendersAnIconForOnAndOff()
{
    OxaSvgRenderer renderer;
    const QIcon icon = renderer.renderIcon(QStringLiteral("square"), QStringLiteral("half"),
                                           QSize(16, 16), 1.0, red, QIcon::Disabled);
    const QImage on = icon.pixmap(QSize(16, 16), QIcon::Disabled, QIcon::On).toImage();
    const QImage off = icon.pixmap(QSize(16, 16), QIcon::Disabled, QIcon::Off).toImage();
    QCOMPARE(on.pixelColor(12, 8), red);
    QCOMPARE(off.pixelColor(4, 8), red);
    QCOMPARE(off.pixelColor(12, 8).alpha(), 0);
    QCOMPARE(icon.availableSizes(QIcon::Disabled, QIcon::On), { QSize(16, 16) });
    QCOMPARE(icon.availableSizes(QIcon::Disabled, QIcon::Off), { QSize(16, 16) });
    QCOMPARE(renderer.getLoadedPath(), QStringLiteral(":/Resources/half.svg"));
}

void tst_OxaSvgRendererPainting::paintsTheOnPictureTwiceWithoutAnOffName()
{
    OxaSvgRenderer renderer;
    const QIcon icon = renderer.renderIcon(QStringLiteral("half"), QString(), QSize(16, 16), 1.0,
                                           red, QIcon::Normal);
    const QImage on = icon.pixmap(QSize(16, 16), QIcon::Normal, QIcon::On).toImage();
    QCOMPARE(icon.pixmap(QSize(16, 16), QIcon::Normal, QIcon::Off).toImage(), on);
    QCOMPARE(on.pixelColor(4, 8), red);
    QCOMPARE(renderer.getLoadedPath(), QStringLiteral(":/Resources/half.svg"));
}

void tst_OxaSvgRendererPainting::rendersNothingForNamesThatFail()
{
    OxaSvgRenderer renderer;
    SvgFiles::ignoreMissing(QStringLiteral(":/Resources/missing.svg"));
    QTest::ignoreMessage(QtWarningMsg, "SVG node does not exist!");
    const QIcon icon = renderer.renderIcon(QStringLiteral("missing"), QStringLiteral("square"),
                                           QSize(16, 16), 1.0, red, QIcon::Normal);
    QVERIFY(icon.availableSizes(QIcon::Normal, QIcon::On).isEmpty());
    QCOMPARE(icon.availableSizes(QIcon::Normal, QIcon::Off), { QSize(16, 16) });
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_OxaSvgRendererPainting)
#include "tst_oxasvgrenderer_painting.moc"
