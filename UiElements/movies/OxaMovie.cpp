// SPDX-License-Identifier: Apache-2.0
#include "OxaMovie.h"

#include <QBuffer>

OxaMovie::OxaMovie(QObject *parent) : QMovie(parent) { }

OxaMovie::OxaMovie(const QString &fileName, const QByteArray &format, QObject *parent)
    : QMovie(fileName, format, parent)
{
}

OxaMovie::OxaMovie(QObject *parent, const char *data, int size, bool copy)
    : QMovie(parent),
      m_movieData(copy ? new QByteArray(data, size)
                       : new QByteArray(QByteArray::fromRawData(data, size))),
      m_movieBuffer(new QBuffer(m_movieData, this))
{
    setDevice(m_movieBuffer);
}

OxaMovie::~OxaMovie() { destroy(this, m_movieData, m_movieBuffer); }

void OxaMovie::destroy(QMovie *movie, QByteArray *data, QBuffer *buffer)
{
    movie->stop();
    if (buffer) {
        movie->setDevice(nullptr);
        buffer->close();
        delete buffer;
    }
    delete data;
}
