// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <QMovie>
#include <QPointer>

class QBuffer;

/// A QMovie that can also play from bytes in memory.
class UIELEMENTS_EXPORT OxaMovie : public QMovie
{
    Q_OBJECT

public:
    /// Makes a movie without a picture.
    explicit OxaMovie(QObject *parent = nullptr);

    /// Makes a movie of the file at \a fileName. Without a \a format Qt finds it out.
    explicit OxaMovie(const QString &fileName, const QByteArray &format = QByteArray(),
                      QObject *parent = nullptr);

    /// Makes a movie of the \a size bytes at \a data. With \a copy the movie keeps a copy of them.
    /// Without, it reads them where they are: they must outlive the movie and must not change.
    OxaMovie(QObject *parent, const char *data, int size, bool copy);

    /// Stops the movie and releases its bytes.
    ~OxaMovie() override;

    /// Stops \a movie. With a \a buffer it also takes the device from the movie, and closes and
    /// deletes the buffer. Deletes \a data. Both may be null, \a movie may not.
    static void destroy(QMovie *movie, QByteArray *data, QBuffer *buffer);

private:
    QByteArray *m_movieData = nullptr;
    QPointer<QBuffer> m_movieBuffer;
};
