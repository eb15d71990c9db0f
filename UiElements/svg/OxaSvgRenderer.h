// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <QIcon>
#include <QObject>
#include <QPixmap>
#include <QPointer>

#include <memory>

class QSvgNode;
class QSvgRenderer;
class QSvgTinyDocument;

/// One SVG file, painted in any colour.
///
/// A file whose document has exactly one top-level node is painted directly: the painter's brush is
/// set to the wanted colour, and a shape without a fill of its own takes it. QSvgRenderer paints
/// any other file in its own colours; only such a file can be animated.
///
/// Nothing that was painted is cached, and files are read once: changes on disk are not noticed.
/// GUI thread only.
class UIELEMENTS_EXPORT OxaSvgRenderer : public QObject
{
    Q_OBJECT

public:
    /// Makes an empty renderer.
    explicit OxaSvgRenderer(QObject *parent = nullptr);

    /// Makes a renderer and loads \a path. When that fails the renderer stays empty.
    explicit OxaSvgRenderer(const QString &path, QObject *parent = nullptr);
    ~OxaSvgRenderer() override;

    /// Returns the resource path of the icon called \a name: ":/Resources/NAME.svg".
    static QString resourcePath(const QString &name);

    /// Makes a renderer that \a parent owns, loaded with the icon resource called \a name if that
    /// is not empty. A null \a parent logs a warning; the caller then owns the renderer.
    static OxaSvgRenderer *loadIconResource(const QString &name, QObject *parent);

    /// Loads the file at \a path, which may begin with "qrc:/". Returns false, logs a warning and
    /// leaves the renderer empty when there is no such file, or no SVG in it. A path that is
    /// already loaded is not read again.
    bool load(const QString &path);

    /// Loads the icon resource called \a name. An empty name returns false and changes nothing.
    bool updateIconResource(const QString &name);

    /// True when a file is loaded.
    bool isLoaded() const;

    /// Returns the path that was loaded, as it was given. Empty when nothing is loaded.
    QString getLoadedPath() const;

    /// True when the file is animated: repaintNeeded() is emitted for each of its frames.
    bool isAnimated() const;

    /// Paints the picture into \a rect, as large as its proportions allow and centred, in \a color
    /// and with \a opacity (0 to 1). A file that keeps its own colours ignores both.
    void draw(QPainter *painter, const QRectF &rect, const QColor &color, double opacity) const;

    /// Paints a file that keeps its own colours at the painter's origin, as high as its view box
    /// and as wide as its proportions give for the height of \a rect. The position of \a rect does
    /// not count, and a file that takes a colour is not painted at all.
    void drawScalingHeight(QPainter *painter, const QRectF &rect) const;

    /// Returns a transparent pixmap of \a size device pixels with the picture in \a color.
    QPixmap renderPixmap(const QSize &size, double devicePixelRatio, const QColor &color) const;

    /// Returns a pixmap of \a pixmapSize device pixels, filled with \a backgroundColor, with the
    /// picture of \a iconSize in \a color at its centre.
    QPixmap renderPixmap(const QSize &iconSize, const QSize &pixmapSize, double devicePixelRatio,
                         const QColor &color, const QColor &backgroundColor) const;

    /// Returns a pixmap of \a pixmapSize device pixels, filled with \a backgroundColor, with the
    /// picture in \a color inside \a iconRect. A rectangle larger than the pixmap logs a warning. A
    /// file that keeps its own colours is painted on an unfilled pixmap.
    QPixmap renderPixmap(const QRectF &iconRect, const QSize &pixmapSize, double devicePixelRatio,
                         const QColor &color, const QColor &backgroundColor) const;

    /// Returns an icon with the resource \a onName for QIcon::On and \a offName for QIcon::Off,
    /// both for \a mode. A name that is empty or fails to load shows whatever is loaded at that
    /// moment; afterwards \a offName is loaded.
    QIcon renderIcon(const QString &onName, const QString &offName, const QSize &size,
                     double devicePixelRatio, const QColor &color, QIcon::Mode mode);

Q_SIGNALS:
    /// An animated file shows its next frame.
    void repaintNeeded();

private:
    void clear();
    bool loadDocument(const QString &path, const QString &fileName);
    bool loadRenderer(const QString &path, const QString &fileName);
    QSvgNode *getSvgNode() const;

    std::unique_ptr<QSvgTinyDocument> m_document;
    QSvgNode *m_node = nullptr; ///< The only one of the document.
    QPointer<QSvgRenderer> m_renderer;
    QString m_loadedPath;
};
