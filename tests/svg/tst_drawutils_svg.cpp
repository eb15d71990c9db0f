// SPDX-License-Identifier: Apache-2.0
#include "support/Pixels.h"
#include "support/SvgFiles.h"
#include "support/TestMain.h"

#include <UiElements/svg/DrawUtils.h>

#include <QPainter>
#include <QPicture>
#include <qsvggraphics_p.h>
#include <qsvgtinydocument_p.h>

#include <functional>
#include <memory>
#include <tuple>

namespace {

const QColor red(Qt::red);

std::unique_ptr<QSvgTinyDocument> parse(const QByteArray &body,
                                        const QByteArray &attributes = "viewBox='0 0 16 16'")
{
    return std::unique_ptr<QSvgTinyDocument>(
            QSvgTinyDocument::load(SvgFiles::document(body, attributes)));
}

QPainterPath square(const QRectF &rect)
{
    QPainterPath path;
    path.addRect(rect);
    return path;
}

/// Returns what \a draw paints on white paper of 32 by 32.
QImage drawing(const std::function<void(QPainter *)> &draw)
{
    return Pixels::drawing(QSize(32, 32), draw);
}

QImage drawing(QSvgNode *node, const QRectF &rect)
{
    return drawing([&](QPainter *painter) {
        QSvgExtraStates states;
        DrawUtils::drawSVG(painter, node, states, rect, red, 1.0);
    });
}

QImage filled(const QRect &rect, const QColor &color = red)
{
    return drawing([&](QPainter *painter) { painter->fillRect(rect, color); });
}

/// What drawing may change of a painter.
struct PainterState
{
    explicit PainterState(const QPainter &painter)
        : values(painter.pen(), painter.brush(), painter.opacity(), painter.worldTransform(),
                 painter.worldMatrixEnabled(), int(painter.renderHints()), painter.font(),
                 painter.compositionMode(), painter.clipRegion())
    {
    }
    bool operator==(const PainterState &other) const { return values == other.values; }

    std::tuple<QPen, QBrush, double, QTransform, bool, int, QFont, QPainter::CompositionMode,
               QRegion>
            values;
};

/// A node without a document that records the painter's state, and paints nothing.
class RecordingNode : public QSvgNode
{
public:
    explicit RecordingNode(const QRectF &bounds) : m_bounds(bounds) { }

    QTransform transform;
    QPen pen;
    QBrush brush;
    double opacity = 0.0;
    QPainter::RenderHints hints;

    Type type() const override { return PATH; }
    QRectF bounds(QPainter *, QSvgExtraStates &) const override { return m_bounds; }
    void draw(QPainter *painter, QSvgExtraStates &) override
    {
        transform = painter->transform();
        pen = painter->pen();
        brush = painter->brush();
        opacity = painter->opacity();
        hints = painter->renderHints();
    }

private:
    const QRectF m_bounds;
};

} // namespace

/// The painting of a node of Qt SVG.
class tst_DrawUtilsSvg : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void paintsADocumentsNodeByItsViewBox_data();
    void paintsADocumentsNodeByItsViewBox();
    void paintsANodeWithoutADocumentByItsBounds();
    void paintsIntoAllOfTheDeviceWithoutARectangle_data();
    void paintsIntoAllOfTheDeviceWithoutARectangle();
    void paintsInTheNodesSizeWhereTheDeviceHasNone();
    void mapsBoxToRectangleUnlessTheyAreTheSame_data();
    void mapsBoxToRectangleUnlessTheyAreTheSame();
    void paintsNothingThatCannotBePainted();
    void paintsAHiddenNodeAllTheSame();
    void strokesOnlyWhatHasAStroke();
    void keepsThePaintersScale();
    void setsTheOpacity();
    void setsThePainterUpForTheNode();
    void leavesThePainterAsItWas_data();
    void leavesThePainterAsItWas();
    void survivesRectanglesAndBoxesWithoutASize_data();
    void survivesRectanglesAndBoxesWithoutASize();

    void rendersAPixmapOnABackground();
    void rendersAPixmapAtItsRatio();
    void rendersNoPixmapWithoutANode();
};

void tst_DrawUtilsSvg::paintsADocumentsNodeByItsViewBox_data()
{
    QTest::addColumn<QByteArray>("box");
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<QRect>("painted");
    // The node is the square from (4, 4) to (8, 8).
    QTest::newRow("as it is") << QByteArray("0 0 16 16") << QRectF(0, 0, 16, 16)
                              << QRect(4, 4, 4, 4);
    QTest::newRow("moved") << QByteArray("0 0 16 16") << QRectF(5, 6, 16, 16) << QRect(9, 10, 4, 4);
    QTest::newRow("twice as large")
            << QByteArray("0 0 16 16") << QRectF(0, 0, 32, 32) << QRect(8, 8, 8, 8);
    QTest::newRow("centred in a wide rectangle")
            << QByteArray("0 0 16 16") << QRectF(0, 0, 32, 16) << QRect(12, 4, 4, 4);
    QTest::newRow("centred in a high rectangle")
            << QByteArray("0 0 16 16") << QRectF(0, 0, 16, 32) << QRect(4, 12, 4, 4);
    QTest::newRow("from a box away from the origin")
            << QByteArray("4 4 8 8") << QRectF(0, 0, 16, 16) << QRect(0, 0, 8, 8);
    QTest::newRow("from a box away from the origin, moved and scaled")
            << QByteArray("2 4 8 4") << QRectF(0, 8, 16, 8) << QRect(4, 8, 8, 8);
}

void tst_DrawUtilsSvg::paintsADocumentsNodeByItsViewBox()
{
    QFETCH(const QByteArray, box);
    QFETCH(const QRectF, rect);
    QFETCH(const QRect, painted);
    const auto document = parse("<path d='M4 4H8V8H4Z'/>", "viewBox='" + box + '\'');
    QCOMPARE(drawing(document->renderers().constFirst(), rect), filled(painted));
}

void tst_DrawUtilsSvg::paintsANodeWithoutADocumentByItsBounds()
{
    QSvgPath node(nullptr, square(QRectF(100, 200, 8, 4)));
    QCOMPARE(drawing(&node, QRectF(0, 0, 16, 16)), filled(QRect(0, 4, 16, 8)));
}

void tst_DrawUtilsSvg::paintsIntoAllOfTheDeviceWithoutARectangle_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::newRow("without a width") << QRectF(3, 3, 0, 8);
    QTest::newRow("without a height") << QRectF(3, 3, 8, 0);
}

void tst_DrawUtilsSvg::paintsIntoAllOfTheDeviceWithoutARectangle()
{
    QFETCH(const QRectF, rect);
    const auto document = parse("<path d='M4 4H8V8H4Z'/>");
    QCOMPARE(drawing(document->renderers().constFirst(), rect), filled(QRect(8, 8, 8, 8)));
}

void tst_DrawUtilsSvg::paintsInTheNodesSizeWhereTheDeviceHasNone()
{
    RecordingNode node(QRectF(4, 8, 16, 16));
    QPicture picture; // It has the size of what was painted so far.
    QPainter painter(&picture);
    QSvgExtraStates states;
    DrawUtils::drawSVG(&painter, &node, states, QRectF(3, 3, 0, 8), red, 1.0);
    QCOMPARE(node.transform, QTransform::fromTranslate(-4, -8));
}

void tst_DrawUtilsSvg::mapsBoxToRectangleUnlessTheyAreTheSame_data()
{
    QTest::addColumn<QRectF>("box");
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<bool>("isMapped");
    const QRectF rect(4, 8, 16, 16);
    QTest::newRow("the same") << rect << rect << false;
    QTest::newRow("moved by less than a trillionth")
            << rect << QRectF(4 + 2e-12, 8 - 4e-12, 16, 16) << false;
    QTest::newRow("more than a trillionth to the right")
            << rect << QRectF(4 + 8e-12, 8, 16, 16) << true;
    QTest::newRow("more than a trillionth below") << rect << QRectF(4, 8 + 16e-12, 16, 16) << true;
    QTest::newRow("more than a trillionth larger")
            << rect << QRectF(4, 8, 16 + 32e-12, 16 + 32e-12) << true;
    QTest::newRow("a box without a size") << QRectF(4, 8, 0, 0) << rect << false;
}

void tst_DrawUtilsSvg::mapsBoxToRectangleUnlessTheyAreTheSame()
{
    QFETCH(const QRectF, box);
    QFETCH(const QRectF, rect);
    QFETCH(const bool, isMapped);
    RecordingNode node(box);
    drawing(&node, rect);
    // Compared exactly, which QTransform does not.
    const QTransform &transform = node.transform;
    const bool isIdentity = transform.m11() == 1.0 && transform.m22() == 1.0
            && transform.dx() == 0.0 && transform.dy() == 0.0;
    QCOMPARE(!isIdentity, isMapped);
}

void tst_DrawUtilsSvg::paintsNothingThatCannotBePainted()
{
    const QRectF rect(0, 0, 16, 16);
    const QImage paper = drawing([](QPainter *) {});
    QCOMPARE(drawing(nullptr, rect), paper);
    const auto document = parse("<path d='M4 4H8V8H4Z' display='none'/>");
    QCOMPARE(drawing(document->renderers().constFirst(), rect), paper);
    const auto shown = parse("<path d='M4 4H8V8H4Z'/>");
    QSvgExtraStates states;
    DrawUtils::drawSVG(nullptr, shown->renderers().constFirst(), states, rect, red, 1.0);
}

void tst_DrawUtilsSvg::paintsAHiddenNodeAllTheSame()
{
    // Only "display" is respected.
    const auto document = parse("<path d='M4 4H8V8H4Z' visibility='hidden'/>");
    QCOMPARE(drawing(document->renderers().constFirst(), QRectF(0, 0, 16, 16)),
             filled(QRect(4, 4, 4, 4)));
}

void tst_DrawUtilsSvg::strokesOnlyWhatHasAStroke()
{
    const auto document = parse("<path d='M4 4H8V8H4Z' stroke='#00f' stroke-width='2'/>");
    const QImage image = drawing(document->renderers().constFirst(), QRectF(0, 0, 16, 16));
    QImage expected = filled(QRect(3, 3, 6, 6), Qt::blue);
    QPainter(&expected).fillRect(5, 5, 2, 2, red);
    QCOMPARE(image, expected);
}

void tst_DrawUtilsSvg::keepsThePaintersScale()
{
    const auto document = parse("<path d='M4 4H8V8H4Z'/>");
    QCOMPARE(drawing([&](QPainter *painter) {
                 painter->translate(2, 0);
                 painter->scale(2, 1);
                 QSvgExtraStates states;
                 DrawUtils::drawSVG(painter, document->renderers().constFirst(), states,
                                    QRectF(0, 0, 8, 8), red, 1.0);
             }),
             filled(QRect(6, 2, 4, 2)));
}

void tst_DrawUtilsSvg::setsTheOpacity()
{
    const auto document = parse("<path d='M4 4H8V8H4Z'/>");
    const QImage image = drawing([&](QPainter *painter) {
        // It replaces the painter's own.
        painter->setOpacity(0.1);
        QSvgExtraStates states;
        DrawUtils::drawSVG(painter, document->renderers().constFirst(), states,
                           QRectF(0, 0, 16, 16), red, 0.5);
    });
    QCOMPARE(image, drawing([](QPainter *painter) {
                 painter->setOpacity(0.5);
                 painter->fillRect(4, 4, 4, 4, red);
             }));
}

void tst_DrawUtilsSvg::setsThePainterUpForTheNode()
{
    RecordingNode node(QRectF(0, 0, 16, 16));
    drawing([&node](QPainter *painter) {
        painter->setPen(QPen(Qt::blue, 7.0));
        painter->setBrush(Qt::green);
        QSvgExtraStates states;
        DrawUtils::drawSVG(painter, &node, states, QRectF(0, 0, 32, 32), red, 0.25);
    });
    QPen pen(QBrush(Qt::NoBrush), 1.0, Qt::SolidLine, Qt::FlatCap, Qt::SvgMiterJoin);
    pen.setMiterLimit(4.0);
    QCOMPARE(node.pen, pen);
    QCOMPARE(node.brush, QBrush(red, Qt::SolidPattern));
    QCOMPARE(node.opacity, 0.25);
    QVERIFY(node.hints.testFlag(QPainter::Antialiasing));
    QVERIFY(node.hints.testFlag(QPainter::SmoothPixmapTransform));
}

void tst_DrawUtilsSvg::leavesThePainterAsItWas_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<bool>("isTransformOn");
    const QByteArray path = "<path d='M4 4H8V8H4Z'/>";
    const QByteArray styled = "<g transform='rotate(30)' fill='blue' stroke='red' opacity='0.5' "
                              "font-size='20' comp-op='xor'>"
            + path + "<text x='2' y='9'>A</text></g>";
    QTest::newRow("a shape") << path << true;
    QTest::newRow("a shape, on a painter whose transform is switched off") << path << false;
    QTest::newRow("a group with all that styles can set") << styled << true;
    QTest::newRow("a group, on a painter whose transform is switched off") << styled << false;
}

void tst_DrawUtilsSvg::leavesThePainterAsItWas()
{
    QFETCH(const QByteArray, body);
    QFETCH(const bool, isTransformOn);
    const auto document = parse(body);
    drawing([&](QPainter *painter) {
        painter->translate(3.5, 2);
        painter->setWorldMatrixEnabled(isTransformOn);
        painter->setPen(Qt::blue);
        painter->setBrush(Qt::green);
        painter->setOpacity(0.25);
        painter->setClipRect(2, 2, 20, 20);
        const PainterState before(*painter);
        QSvgExtraStates states;
        DrawUtils::drawSVG(painter, document->renderers().constFirst(), states,
                           QRectF(0, 0, 32, 32), red, 1.0);
        QVERIFY(PainterState(*painter) == before);
        painter->setRenderHints(QPainter::Antialiasing);
        const PainterState withHint(*painter);
        DrawUtils::drawSVG(painter, document->renderers().constFirst(), states,
                           QRectF(0, 0, 32, 32), red, 1.0);
        QVERIFY(PainterState(*painter) == withHint);
    });
}

void tst_DrawUtilsSvg::survivesRectanglesAndBoxesWithoutASize_data()
{
    QTest::addColumn<QByteArray>("attributes");
    QTest::addColumn<QRectF>("rect");
    const QByteArray box = "viewBox='0 0 16 16'";
    QTest::newRow("no rectangle") << box << QRectF();
    QTest::newRow("a rectangle of negative size") << box << QRectF(0, 0, -16, -16);
    QTest::newRow("no width of the box")
            << QByteArray("viewBox='0 0 0 16'") << QRectF(0, 0, 16, 16);
    QTest::newRow("no height of the box")
            << QByteArray("viewBox='0 0 16 0'") << QRectF(0, 0, 16, 16);
}

void tst_DrawUtilsSvg::survivesRectanglesAndBoxesWithoutASize()
{
    QFETCH(const QByteArray, attributes);
    QFETCH(const QRectF, rect);
    const auto document = parse("<path d='M0 0H16V16H0Z'/>", attributes);
    bool isRestored = false;
    drawing([&](QPainter *painter) {
        QSvgExtraStates states;
        DrawUtils::drawSVG(painter, document->renderers().constFirst(), states, rect, red, 1.0);
        isRestored = painter->transform().isIdentity();
    });
    QVERIFY(isRestored);
}

void tst_DrawUtilsSvg::rendersAPixmapOnABackground()
{
    const auto document = parse("<path d='M4 4H8V8H4Z'/>");
    const QPixmap pixmap = DrawUtils::renderPixmap(document->renderers().constFirst(),
                                                   QRectF(8, 8, 16, 16), QSize(32, 32), 1.0, red,
                                                   Qt::white);
    QCOMPARE(pixmap.devicePixelRatio(), 1.0);
    QCOMPARE(pixmap.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied),
             filled(QRect(12, 12, 4, 4)));
}

void tst_DrawUtilsSvg::rendersAPixmapAtItsRatio()
{
    const auto document = parse("<path d='M4 4H8V8H4Z'/>");
    const QPixmap pixmap = DrawUtils::renderPixmap(document->renderers().constFirst(),
                                                   QRectF(0, 0, 16, 16), QSize(32, 32), 2.0, red,
                                                   Qt::white);
    QCOMPARE(pixmap.size(), QSize(32, 32));
    QCOMPARE(pixmap.devicePixelRatio(), 2.0);
    QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(1.0);
    QCOMPARE(image, filled(QRect(8, 8, 8, 8)));
}

void tst_DrawUtilsSvg::rendersNoPixmapWithoutANode()
{
    QVERIFY(DrawUtils::renderPixmap(nullptr, QRectF(0, 0, 16, 16), QSize(16, 16), 1.0, red,
                                    Qt::white)
                    .isNull());
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_DrawUtilsSvg)
#include "tst_drawutils_svg.moc"
