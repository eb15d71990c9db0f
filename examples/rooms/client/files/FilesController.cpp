// SPDX-License-Identifier: Apache-2.0
#include "FilesController.h"

#include "data/Backend.h"
#include "data/PagedFiles.h"

#include <QLocale>

void FilesController::setBackend(Backend *backend)
{
    m_backend = backend;
    Q_EMIT backendChanged();
}

QObject *FilesController::files() const { return m_backend ? m_backend->files() : nullptr; }

void FilesController::scrollTo(int index)
{
    if (m_backend)
        m_backend->files()->setScrolledIndex(index);
}

QString FilesController::personName(const QString &id) const
{
    return m_backend ? m_backend->person(id).name : QString();
}

QString FilesController::sizeText(qint64 bytes) const
{
    return QLocale().formattedDataSize(bytes, 1, QLocale::DataSizeTraditionalFormat);
}
