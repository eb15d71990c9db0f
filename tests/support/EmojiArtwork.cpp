// SPDX-License-Identifier: Apache-2.0
#include "EmojiArtwork.h"

#include <QFile>
#include <QProcess>
#include <QResource>

namespace {

const QString pictureName = QStringLiteral("picture.svg");
const QString listName = QStringLiteral("emojis.qrc");
const QString resourceName = QStringLiteral("emojis.rcc");

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QFile::WriteOnly) || file.write(content) != content.size())
        qFatal("Cannot write %s.", qPrintable(path));
}

/// Returns a resource list in which one picture is the file of each of \a stems.
QByteArray listOf(const QStringList &stems)
{
    QByteArray list = "<RCC><qresource prefix='/emojis'>";
    for (const QString &stem : stems)
        list += "<file alias='" + stem.toUtf8() + ".svg'>" + pictureName.toUtf8() + "</file>";
    return list + "</qresource></RCC>";
}

} // namespace

EmojiArtwork::EmojiArtwork(const QStringList &stems, const QByteArray &svg)
{
    write(m_folder.filePath(pictureName), svg);
    write(m_folder.filePath(listName), listOf(stems));
    const QString resource = m_folder.filePath(resourceName);
    const int status = QProcess::execute(QStringLiteral(RCC_PROGRAM),
                                         { QStringLiteral("--binary"), QStringLiteral("-o"),
                                           resource, m_folder.filePath(listName) });
    if (status != 0 || !QResource::registerResource(resource))
        qFatal("Cannot make %s.", qPrintable(resource));
}

EmojiArtwork::~EmojiArtwork() { QResource::unregisterResource(m_folder.filePath(resourceName)); }

QByteArray EmojiArtwork::square(const QByteArray &color)
{
    return "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 16 16'>"
           "<path fill='"
            + color + "' d='M0 0H16V16H0Z'/></svg>";
}
