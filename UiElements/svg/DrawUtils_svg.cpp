// SPDX-License-Identifier: Apache-2.0
#include "DrawUtils.h"

#include <UiElements/theme/StateColor_p.h>

#include <QPainter>
#include <QPixmap>
#include <qsvgnode_p.h>
#include <qsvgtinydocument_p.h>

namespace {

constexpr double miterLimit = 4.0;
constexpr QPainter::RenderHints smoothHints = QPainter::Antialiasing
        | QPainter::SmoothPixmapTransform;

QRectF sourceOf(const QSvgNode &node)
{
    const QSvgTinyDocument *document = node.document();
    return document ? document->viewBox() : node.transformedBounds();
}

bool isZeroSized(const QRectF &rect) { return rect.width() == 0.0 && rect.height() == 0.0; }

/// Returns the rectangle to paint into: \a target, or else the whole paint device, or else the
/// picture's own size.
QRectF paintableTarget(const QPainter &painter, const QRectF &target, const QRectF &source)
{
    if (!isZeroSized(target))
        return target;
    const QRectF device(0.0, 0.0, painter.device()->width(), painter.device()->height());
    return isZeroSized(device) ? QRectF(QPointF(), source.size()) : device;
}

bool isSame(const QRectF &a, const QRectF &b)
{
    return qFuzzyCompare(a.x(), b.x()) && qFuzzyCompare(a.y(), b.y())
            && qFuzzyCompare(a.width(), b.width()) && qFuzzyCompare(a.height(), b.height());
}

void mapSourceToTarget(QPainter &painter, const QRectF &source, const QRectF &wanted)
{
    const QRectF target = paintableTarget(painter, wanted, source);
    if (isZeroSized(source) || isSame(source, target))
        return;
    const double sx = target.width() / source.width();
    const double sy = target.height() / source.height();
    // In one step: each change of the matrix makes the paint engine process it again.
    painter.setTransform({ sx, 0.0, 0.0, sy, target.x() - source.x() * sx,
                           target.y() - source.y() * sy },
                         true);
}

/// Returns the pen that a file starts with: a shape without a stroke of its own has none. It is the
/// same for all files, and more expensive to make than to use.
const QPen &initialPen()
{
    static const QPen pen = [] {
        QPen made(QBrush(Qt::NoBrush), 1.0, Qt::SolidLine, Qt::FlatCap, Qt::SvgMiterJoin);
        made.setMiterLimit(miterLimit);
        return made;
    }();
    return pen;
}

} // namespace

void DrawUtils::drawSVG(QPainter *painter, QSvgNode *node, QSvgExtraStates &states,
                        const QRectF &rect, const QColor &color, double opacity)
{
    // A rectangle of size 0 has no proportions to fit: nothing is painted.
    if (!painter || !node || node->displayMode() == QSvgNode::NoneMode || isZeroSized(rect))
        return;

    const QRectF source = sourceOf(*node);
    QRectF target = rect;
    fitRectangle(target, source.width() / source.height());

    painter->save();
    mapSourceToTarget(*painter, source, target);
    painter->setPen(initialPen());
    painter->setBrush(QBrush(orTransparent(color), Qt::SolidPattern));
    painter->setOpacity(opacity);
    painter->setRenderHints(smoothHints);
    node->draw(painter, states);
    painter->restore();
}

QPixmap DrawUtils::renderPixmap(QSvgNode *node, const QRectF &iconRect, const QSize &pixmapSize,
                                double devicePixelRatio, const QColor &color,
                                const QColor &backgroundColor)
{
    if (!node)
        return {};
    QPixmap pixmap(pixmapSize);
    pixmap.setDevicePixelRatio(devicePixelRatio);
    pixmap.fill(orTransparent(backgroundColor));
    QPainter painter(&pixmap);
    QSvgExtraStates states;
    drawSVG(&painter, node, states, iconRect, color, 1.0);
    return pixmap;
}
