// SPDX-License-Identifier: Apache-2.0
#include "OxaSvgRenderer.h"

#include <UiElements/svg/DrawUtils.h>

#include <QDebug>
#include <QPainter>
#include <QSvgRenderer>
#include <qsvgtinydocument_p.h>

namespace {

constexpr char noParentWarning[] =
        "OxaSvgRenderer::loadIconResource - the parent object should not be null";
constexpr char unreadableFileWarning[] = "Unable to load SVG file: ";
constexpr char invalidFileWarning[] = "Invalid svg file: ";
constexpr char noNodeWarning[] = "SVG node does not exist!";
constexpr char largeIconWarning[] = "Icon size should be less or equal than the pixmap size";

/// The state that nodes pass on to each other while they paint. Painting restores it, so that one
/// object serves all renderers.
QSvgExtraStates &sharedStates()
{
    static QSvgExtraStates states;
    return states;
}

QString fileNameOf(const QString &path)
{
    return path.startsWith(QLatin1String("qrc:/")) ? path.mid(3) : path;
}

bool isLargerThan(const QRectF &rect, const QSize &size)
{
    return rect.width() > size.width() || rect.height() > size.height();
}

} // namespace

OxaSvgRenderer::OxaSvgRenderer(QObject *parent) : QObject(parent) { }

OxaSvgRenderer::OxaSvgRenderer(const QString &path, QObject *parent) : QObject(parent)
{
    load(path);
}

OxaSvgRenderer::~OxaSvgRenderer() { clear(); }

QString OxaSvgRenderer::resourcePath(const QString &name)
{
    return QLatin1String(":/Resources/") + name + QLatin1String(".svg");
}

OxaSvgRenderer *OxaSvgRenderer::loadIconResource(const QString &name, QObject *parent)
{
    if (!parent)
        QMessageLogger().warning() << noParentWarning;
    return name.isEmpty() ? new OxaSvgRenderer(parent)
                          : new OxaSvgRenderer(resourcePath(name), parent);
}

bool OxaSvgRenderer::load(const QString &path)
{
    if (path == m_loadedPath)
        return true;
    clear();
    const QString fileName = fileNameOf(path);
    const bool isLoaded = loadDocument(path, fileName);
    m_loadedPath = isLoaded ? path : QString();
    return isLoaded;
}

bool OxaSvgRenderer::updateIconResource(const QString &name)
{
    return !name.isEmpty() && load(resourcePath(name));
}

bool OxaSvgRenderer::isLoaded() const { return !m_loadedPath.isEmpty(); }

QString OxaSvgRenderer::getLoadedPath() const { return m_loadedPath; }

bool OxaSvgRenderer::isAnimated() const { return m_renderer && m_renderer->animated(); }

void OxaSvgRenderer::draw(QPainter *painter, const QRectF &rect, const QColor &color,
                          double opacity) const
{
    if (!m_renderer) {
        DrawUtils::drawSVG(painter, getSvgNode(), sharedStates(), rect, color, opacity);
        return;
    }
    const QRectF viewBox = m_renderer->viewBoxF();
    QRectF target = rect;
    DrawUtils::fitRectangle(target, viewBox.width() / viewBox.height());
    m_renderer->render(painter, target);
}

void OxaSvgRenderer::drawScalingHeight(QPainter *painter, const QRectF &rect) const
{
    if (!m_renderer)
        return;
    // Only the width follows the rectangle; the height is the view box's, as the header says.
    const QRectF viewBox = m_renderer->viewBoxF();
    m_renderer->render(painter,
                       QRectF(0.0, 0.0, rect.height() / viewBox.height() * viewBox.width(),
                              viewBox.height()));
}

QPixmap OxaSvgRenderer::renderPixmap(const QSize &size, double devicePixelRatio,
                                     const QColor &color) const
{
    return renderPixmap(QRectF(QPointF(), size), size, devicePixelRatio, color, Qt::transparent);
}

QPixmap OxaSvgRenderer::renderPixmap(const QSize &iconSize, const QSize &pixmapSize,
                                     double devicePixelRatio, const QColor &color,
                                     const QColor &backgroundColor) const
{
    QRectF iconRect(QPointF(), iconSize);
    iconRect.moveCenter(QPointF(pixmapSize.width() * 0.5, pixmapSize.height() * 0.5));
    return renderPixmap(iconRect, pixmapSize, devicePixelRatio, color, backgroundColor);
}

QPixmap OxaSvgRenderer::renderPixmap(const QRectF &iconRect, const QSize &pixmapSize,
                                     double devicePixelRatio, const QColor &color,
                                     const QColor &backgroundColor) const
{
    if (isLargerThan(iconRect, pixmapSize))
        QMessageLogger().warning() << largeIconWarning;
    if (!m_renderer) {
        return DrawUtils::renderPixmap(getSvgNode(), iconRect, pixmapSize, devicePixelRatio, color,
                                       backgroundColor);
    }
    QPixmap pixmap(pixmapSize);
    pixmap.setDevicePixelRatio(devicePixelRatio);
    QPainter painter(&pixmap);
    draw(&painter, iconRect, Qt::black, 1.0);
    return pixmap;
}

QIcon OxaSvgRenderer::renderIcon(const QString &onName, const QString &offName, const QSize &size,
                                 double devicePixelRatio, const QColor &color, QIcon::Mode mode)
{
    QIcon icon;
    updateIconResource(onName);
    icon.addPixmap(renderPixmap(size, devicePixelRatio, color), mode, QIcon::On);
    updateIconResource(offName);
    icon.addPixmap(renderPixmap(size, devicePixelRatio, color), mode, QIcon::Off);
    return icon;
}

void OxaSvgRenderer::clear()
{
    m_node = nullptr;
    m_document.reset();
    delete m_renderer;
}

bool OxaSvgRenderer::loadDocument(const QString &path, const QString &fileName)
{
    m_document.reset(QSvgTinyDocument::load(fileName));
    if (!m_document) {
        QMessageLogger().warning() << unreadableFileWarning << path;
        return false;
    }
    const QList<QSvgNode *> nodes = m_document->renderers();
    if (nodes.size() != 1)
        return loadRenderer(path, fileName);
    m_node = nodes.constFirst();
    return true;
}

bool OxaSvgRenderer::loadRenderer(const QString &path, const QString &fileName)
{
    clear();
    m_renderer = new QSvgRenderer(fileName, nullptr);
    if (!m_renderer->isValid()) {
        delete m_renderer;
        QMessageLogger().warning() << invalidFileWarning << path;
        return false;
    }
    if (m_renderer->animated())
        connect(m_renderer, &QSvgRenderer::repaintNeeded, this, &OxaSvgRenderer::repaintNeeded);
    return true;
}

QSvgNode *OxaSvgRenderer::getSvgNode() const
{
    if (!m_node)
        QMessageLogger().warning() << noNodeWarning;
    return m_node;
}
