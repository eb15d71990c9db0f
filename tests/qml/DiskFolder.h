// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QUrl>

/// A temporary folder of QML files, whose name has spaces and percent signs. An engine that reads
/// from disk finds its files by their path relative to the folder of all QML files.
class DiskFolder
{
public:
    DiskFolder() { QDir(m_folder.path()).mkdir(QStringLiteral("100% %20 free")); }

    /// Writes \a text as the content of the file \a name. Returns false where that fails.
    bool write(const QString &name, const QByteArray &text) const
    {
        QFile file(path(name));
        return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
    }

    bool remove(const QString &name) const { return QFile::remove(path(name)); }

    QString sourceOf(const QString &name) const
    {
        return QDir(QStringLiteral(UIELEMENTS_QML_SOURCE_DIR)).relativeFilePath(path(name));
    }

    QUrl urlOf(const QString &name) const { return QUrl::fromLocalFile(path(name)); }

private:
    QString path(const QString &name) const
    {
        return m_folder.filePath(QStringLiteral("100% %20 free/")) + name;
    }

    QTemporaryDir m_folder;
};
