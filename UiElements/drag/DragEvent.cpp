// SPDX-License-Identifier: Apache-2.0
#include "DragEvent.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QMimeData>

#include <cmath>
#include <limits>

namespace {

int truncated(double value)
{
    using Limits = std::numeric_limits<int>;
    return std::isnan(value) ? 0 : int(qBound(double(Limits::min()), value, double(Limits::max())));
}

/// Returns the picture in the file \a path. The path comes from outside, and opening a pipe or a
/// device may block for ever: only a regular file is opened.
QImage pictureIn(const QString &path)
{
    QImage picture;
    QFile file(path);
    // Loaded from the open file: given a name, QImage tries other names if it cannot be opened.
    if (QFileInfo(file).isFile() && file.open(QIODevice::ReadOnly))
        picture.load(&file, nullptr);
    return picture;
}

} // namespace

DragEvent::DragEvent(const QMap<QString, QVariant> &values)
    : m_x(values.value(QStringLiteral("x")).toReal()),
      m_y(values.value(QStringLiteral("y")).toReal()),
      m_html(values.value(QStringLiteral("html")).toString()),
      m_urls(values.value(QStringLiteral("urls")).value<QList<QUrl>>()),
      m_data(values.value(QStringLiteral("data")).toByteArray())
{
}

DragEvent::DragEvent(const DragEvent &other) = default;

DragEvent &DragEvent::operator=(const DragEvent &other)
{
    if (m_mimeData != other.m_mimeData)
        delete m_mimeData;
    m_x = other.m_x;
    m_y = other.m_y;
    m_html = other.m_html;
    m_urls = other.m_urls;
    m_data = other.m_data;
    m_mimeData = other.m_mimeData;
    return *this;
}

DragEvent::~DragEvent() { delete m_mimeData; }

QPoint DragEvent::position() const { return QPoint(truncated(m_x), truncated(m_y)); }

QMimeData *DragEvent::toMimeData()
{
    if (!m_mimeData)
        m_mimeData = new QMimeData;
    if (!m_html.isEmpty())
        m_mimeData->setHtml(m_html);
    if (!m_urls.isEmpty())
        m_mimeData->setUrls(m_urls);

    const QUrl url(QString::fromUtf8(m_data));
    if (url.isValid() && url.isLocalFile() && m_mimeData->hasHtml()) {
        const QImage image = pictureIn(url.toLocalFile().trimmed());
        if (!image.isNull())
            m_mimeData->setImageData(image);
    }
    return m_mimeData;
}
