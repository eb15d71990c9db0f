// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QPoint>
#include <QPointer>
#include <QString>
#include <QUrl>
#include <QVariant>

class QMimeData;

/// A drag that QML describes as a map of named values, for widget code, where a drop target expects
/// a QMimeData.
///
/// The record owns the mime data that it makes. Copy a record before toMimeData(): copies made
/// afterwards share the mime data, and the first of them to be destroyed deletes it for all. An
/// object that takes ownership of it, as QDrag does, must be destroyed before the record.
class UIELEMENTS_EXPORT DragEvent
{
public:
    /// Reads "x", "y", "html", "urls" (a list of URLs, or what QVariant converts to one) and "data"
    /// (bytes, which may be the text of a URL) from \a values. Missing values are 0 or empty.
    explicit DragEvent(const QMap<QString, QVariant> &values);

    /// Copies the values and shares the mime data.
    DragEvent(const DragEvent &other);

    /// Copies the values and shares the mime data. The record's own mime data is deleted if it is a
    /// different one.
    DragEvent &operator=(const DragEvent &other);

    /// Deletes the mime data.
    ~DragEvent();

    /// Returns the position, truncated to whole numbers and to the range of int. NaN is 0.
    QPoint position() const;

    /// Returns the drag as mime data, made on the first call and filled again on each: the HTML and
    /// the URLs, if there are any. If there is HTML and "data" is the URL of a local picture, the
    /// picture is added. Only regular files are opened.
    QMimeData *toMimeData();

private:
    double m_x = 0.0;
    double m_y = 0.0;
    QString m_html;
    QList<QUrl> m_urls;
    QByteArray m_data;
    // The first record to be destroyed deletes shared mime data; the others must notice that.
    QPointer<QMimeData> m_mimeData;
};
