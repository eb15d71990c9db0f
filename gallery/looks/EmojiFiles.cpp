// SPDX-License-Identifier: Apache-2.0
#include "EmojiFiles.h"

#include <QDir>
#include <QResource>

namespace {

const QString fileName = QStringLiteral("emojis.rcc");

} // namespace

/// Qt's macro has to stand outside of any namespace.
static void dropOwnEmojis() { Q_CLEANUP_RESOURCE(emojis); }

void EmojiFiles::load(const QString &folder)
{
    if (QResource::registerResource(QDir(folder).filePath(fileName)))
        dropOwnEmojis();
}
