// SPDX-License-Identifier: Apache-2.0
#include "IconDiagnosis.h"

#include "looks/WarningCollector.h"

#include <UiElements/svg/DrawUtils.h>

#include <QCoreApplication>
#include <QImage>
#include <QPainter>

#include <memory>
// The library decides by Qt's document of a file, which is private.
#include <qsvgnode_p.h>
#include <qsvgstyle_p.h>
#include <qsvgtinydocument_p.h>

namespace {

using Outcome = IconDiagnosis::Outcome;
using Painter = IconDiagnosis::Painter;

constexpr int probeSize = 32;

QString tr(const char *text) { return QCoreApplication::translate("IconDiagnosis", text); }

/// Returns the name of the element that \a node was made of.
QString elementOf(const QSvgNode &node)
{
    // In the order of QSvgNode::Type.
    static const char *const names[] = {
        "svg",     "g",        "defs",  "switch", "animation", "arc",      "circle",
        "ellipse", "image",    "line",  "path",   "polygon",   "polyline", "rect",
        "text",    "textArea", "tspan", "use",    "video",
    };
    return QLatin1Char('<') + QLatin1String(names[node.type()]) + QLatin1Char('>');
}

QString elementsOf(const QList<QSvgNode *> &nodes)
{
    QStringList names;
    for (const QSvgNode *node : nodes)
        names += elementOf(*node);
    constexpr int most = 4;
    if (names.size() > most)
        names = names.mid(0, most) << QStringLiteral("…");
    return names.join(QLatin1String(", "));
}

QImage painted(QSvgNode *node, const QColor &color)
{
    QImage image(probeSize, probeSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgExtraStates states;
    DrawUtils::drawSVG(&painter, node, states, image.rect(), color, 1.0);
    return image;
}

/// Paints \a node in two colours: it takes the colour where the pictures differ.
Outcome probe(QSvgNode *node)
{
    const QImage red = painted(node, Qt::red);
    const QImage blue = painted(node, Qt::blue);
    bool hasTaken = false;
    bool hasKept = false;
    for (int y = 0; y < probeSize; ++y) {
        const auto *redLine = reinterpret_cast<const QRgb *>(red.constScanLine(y));
        const auto *blueLine = reinterpret_cast<const QRgb *>(blue.constScanLine(y));
        for (int x = 0; x < probeSize; ++x) {
            hasTaken = hasTaken || redLine[x] != blueLine[x];
            hasKept = hasKept || (redLine[x] == blueLine[x] && qAlpha(redLine[x]) > 0);
        }
    }
    if (hasTaken)
        return hasKept ? Outcome::TakesSome : Outcome::TakesColor;
    return hasKept ? Outcome::KeepsColors : Outcome::PaintsNothing;
}

/// True when the svg element itself has a fill or stroke, which only QSvgRenderer applies.
bool hasOwnStyle(const QSvgTinyDocument &document)
{
    return document.styleProperty(QSvgStyleProperty::FILL)
            || document.styleProperty(QSvgStyleProperty::STROKE);
}

/// Describes what has no effect when a node is painted directly.
QString ignoredParts(const QSvgTinyDocument &document)
{
    QString text;
    if (hasOwnStyle(document)) {
        text += QLatin1Char(' ')
                + tr("The fill and stroke of the <svg> element itself are left out then.");
    }
    if (document.animated())
        text += QLatin1Char(' ') + tr("Its animation is not shown.");
    return text;
}

IconDiagnosis diagnosisOfNode(const QSvgTinyDocument &document, QSvgNode *node)
{
    IconDiagnosis diagnosis { probe(node), Painter::Node, QString(), QString() };
    const QString start = tr("Its one top-level node, %1, is painted directly")
                                  .arg(elementOf(*node));
    const QString withoutFills = tr("take the fills and strokes out of its shapes.");
    switch (diagnosis.outcome) {
    case Outcome::TakesColor:
        diagnosis.reason = tr("%1, with the state's colour as the brush.").arg(start);
        break;
    case Outcome::TakesSome:
        diagnosis.reason =
                tr("%1, and some of its shapes have a fill or stroke of their own, which "
                   "overrides the state's colour.")
                        .arg(start);
        diagnosis.advice = withoutFills;
        break;
    case Outcome::KeepsColors:
        diagnosis.reason =
                tr("%1, but it has a fill or stroke of its own, which overrides the state's "
                   "colour.")
                        .arg(start);
        diagnosis.advice = withoutFills;
        break;
    default:
        diagnosis.reason = tr("%1, but nothing of it is visible.").arg(start);
    }
    diagnosis.reason += ignoredParts(document);
    return diagnosis;
}

IconDiagnosis diagnosisOfNodes(const QSvgTinyDocument &document, const QList<QSvgNode *> &nodes)
{
    if (nodes.isEmpty()) {
        return {
            Outcome::PaintsNothing, Painter::Renderer,
            tr("The document has no node at all. It is left to QSvgRenderer, which has nothing "
               "to paint."),
            QString()
        };
    }
    const QString start =
            tr("It has %1 top-level nodes: %2. Only a single one can be painted in the "
               "state's colour.")
                    .arg(QString::number(nodes.size()), elementsOf(nodes));
    const QString advice = tr(
            "join the shapes to one path, or put all of it into one <g>, and leave "
            "out fills and strokes.");
    if (document.animated()) {
        return { Outcome::Animated, Painter::Renderer,
                 tr("%1 QSvgRenderer paints this file, in the file's own colours, and asks for a "
                    "repaint at each frame.")
                         .arg(start),
                 advice };
    }
    return { Outcome::KeepsColors, Painter::Renderer,
             tr("%1 QSvgRenderer paints this file, in the file's own colours.").arg(start),
             advice };
}

} // namespace

IconDiagnosis IconDiagnosis::of(const QString &path)
{
    const WarningCollector warnings;
    const std::unique_ptr<QSvgTinyDocument> document(QSvgTinyDocument::load(path));
    if (!document) {
        return { Outcome::Unreadable, Painter::Nothing,
                 tr("Qt cannot read it, and says: %1")
                         .arg(warnings.texts().join(QLatin1Char(' ')).trimmed()),
                 QString() };
    }
    const QList<QSvgNode *> nodes = document->renderers();
    return nodes.size() == 1 ? diagnosisOfNode(*document, nodes.constFirst())
                             : diagnosisOfNodes(*document, nodes);
}

QString IconDiagnosis::title() const
{
    switch (outcome) {
    case Outcome::TakesColor:
        return tr("Takes the colour");
    case Outcome::TakesSome:
        return tr("Takes it in part");
    case Outcome::KeepsColors:
        return tr("Keeps its colours");
    case Outcome::Animated:
        return tr("Animated");
    case Outcome::PaintsNothing:
        return tr("Paints nothing");
    case Outcome::Unreadable:
        break;
    }
    return tr("Unreadable");
}

QString IconDiagnosis::painterText() const
{
    switch (painter) {
    case Painter::Node:
        return tr("painted directly");
    case Painter::Renderer:
        return tr("by QSvgRenderer");
    case Painter::Nothing:
        break;
    }
    return tr("not painted");
}
