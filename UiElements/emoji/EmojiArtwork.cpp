// SPDX-License-Identifier: Apache-2.0
#include "EmojiArtwork_p.h"

#include <QCache>
#include <QHash>
#include <QPainter>
#include <QResource>
#include <QSvgRenderer>

namespace {

/// Room for all emoji that a screen of text shows, at twice the usual size.
constexpr int pictureCacheBytes = 8 * 1024 * 1024;

/// How many files are checked again for each text. A check takes a microsecond.
constexpr int checksPerText = 64;

/// Tells whether a resource has changed. Its address alone does not: a file that is registered
/// after another was unregistered is likely to get the same one.
struct Fingerprint
{
    explicit Fingerprint(const QResource &resource)
        : data(resource.data()),
          size(resource.size()),
          hash(data ? qHashBits(data, std::size_t(size)) : 0)
    {
    }

    bool operator==(const Fingerprint &other) const
    {
        return data == other.data && size == other.size && hash == other.hash;
    }

    const uchar *data;
    qint64 size;
    uint hash;
};

/// A valid file, and the number of the text for which it was last checked.
struct KnownFile
{
    QString path;
    Fingerprint fingerprint;
    quint64 text;
};

/// What is remembered of the files.
struct Memory
{
    QHash<QString, KnownFile> files;
    quint64 text = 0;
    int checksLeft = 0;
};

Memory &memory()
{
    static Memory memory;
    return memory;
}

/// Returns whether \a file must be checked before it is used for the current text.
bool needsCheck(const KnownFile &file)
{
    return file.text != memory().text && memory().checksLeft > 0;
}

/// Checks \a file and returns whether it is unchanged.
bool isUnchanged(KnownFile &file)
{
    --memory().checksLeft;
    file.text = memory().text;
    return Fingerprint(QResource(file.path)) == file.fingerprint;
}

/// A picture of a file at an edge length in pixels.
using PictureKey = QPair<Fingerprint, int>;

uint qHash(const Fingerprint &fingerprint, uint seed) { return fingerprint.hash ^ seed; }

QImage render(const QResource &resource, int edge)
{
    QImage image(edge, edge, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    // Loaded from the data: given a path, the renderer would warn about a broken file.
    QSvgRenderer renderer(resource.uncompressedData());
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}

} // namespace

void EmojiArtwork::beginText()
{
    ++memory().text;
    memory().checksLeft = checksPerText;
}

QString EmojiArtwork::pathOf(const QString &stem)
{
    const auto known = memory().files.find(stem);
    if (known != memory().files.end()) {
        if (!needsCheck(*known) || isUnchanged(*known))
            return known->path;
        memory().files.clear(); // The others are likely to have changed as well.
    }
    QString path = QLatin1String(":/emojis/") + stem + QLatin1String(".svg");
    const QResource resource(path);
    if (!resource.data() || !QSvgRenderer(resource.uncompressedData()).isValid())
        return {};
    // The stem is copied: the caller's text may hold more memory than it needs.
    memory().files.insert(QString(stem.constData(), stem.size()),
                          { path, Fingerprint(resource), memory().text });
    return path;
}

QImage EmojiArtwork::picture(const QString &path, int edge)
{
    if (edge < 1)
        return {};
    const QResource resource(path);
    static QCache<PictureKey, QImage> pictures(pictureCacheBytes);
    const PictureKey key(Fingerprint(resource), edge);
    if (const QImage *known = pictures.object(key))
        return *known;

    QImage image = render(resource, edge);
    pictures.insert(key, new QImage(image), int(image.sizeInBytes()));
    return image;
}
