// SPDX-License-Identifier: Apache-2.0
#include "EmojiFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QResource>

namespace {

const QString fileName = QStringLiteral("emojis.rcc");

} // namespace

/// Qt's macro has to stand outside of any namespace.
static void dropOwnEmojis() { Q_CLEANUP_RESOURCE(emojis); }

void EmojiFiles::load()
{
    const QDir folder(QCoreApplication::applicationDirPath());
    if (QResource::registerResource(folder.filePath(fileName)))
        dropOwnEmojis();
}
