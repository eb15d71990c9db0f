// SPDX-License-Identifier: Apache-2.0
#include "EmojiArtwork_p.h"

#include <QCache>
#include <QFile>
#include <QHash>
#include <QPainter>
#include <QSvgRenderer>

namespace {

/// Room for all emoji that a screen of text shows, at twice the usual size.
constexpr int pictureCacheBytes = 8 * 1024 * 1024;

/// Reads the file at \a path by itself: given a path, the renderer would warn about a broken file.
QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

QImage render(const QString &path, int edge)
{
    QImage image(edge, edge, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QSvgRenderer renderer(contentOf(path));
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}

} // namespace

QString EmojiArtwork::pathOf(const QString &stem)
{
    static QHash<QString, QString> foundPaths;
    const auto found = foundPaths.constFind(stem);
    if (found != foundPaths.constEnd())
        return *found;

    QString path = QLatin1String(":/emojis/") + stem + QLatin1String(".svg");
    if (!QFile::exists(path) || !QSvgRenderer(contentOf(path)).isValid())
        return {};
    // The stem's characters are copied: the caller's text may hold more memory than it needs.
    foundPaths.insert(QString(stem.constData(), stem.size()), path);
    return path;
}

QImage EmojiArtwork::picture(const QString &path, int edge)
{
    if (edge < 1)
        return {};
    static QCache<QPair<QString, int>, QImage> pictures(pictureCacheBytes);
    const QPair<QString, int> key(path, edge);
    if (const QImage *known = pictures.object(key))
        return *known;

    QImage image = render(path, edge);
    pictures.insert(key, new QImage(image), int(image.sizeInBytes()));
    return image;
}
