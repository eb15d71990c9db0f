// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

/// SVG files for tests, in a folder that is deleted with the object.
class SvgFiles
{
    Q_DISABLE_COPY_MOVE(SvgFiles)

public:
    SvgFiles() = default;

    /// Returns a document with \a body, 16 by 16 unless \a attributes says otherwise.
    static QByteArray document(const QByteArray &body,
                               const QByteArray &attributes = "viewBox='0 0 16 16'")
    {
        return "<svg xmlns='http://www.w3.org/2000/svg' "
               "xmlns:xlink='http://www.w3.org/1999/xlink' "
                + attributes + '>' + body + "</svg>";
    }

    /// Returns the folder's path.
    QString folder() const { return m_folder.path(); }

    /// Returns the path of the file called \a name, which need not exist.
    QString path(const QString &name) const { return m_folder.filePath(name); }

    /// Writes \a content into the file called \a name and returns its path.
    QString write(const QString &name, const QByteArray &content) const
    {
        QFile file(path(name));
        if (!file.open(QFile::WriteOnly | QFile::Truncate) || file.write(content) < 0)
            qFatal("Cannot write %s.", qPrintable(file.fileName()));
        return file.fileName();
    }

    /// Writes an icon that fills all of its 16 by 16 view box and takes any colour.
    QString square(const QString &name = QStringLiteral("square.svg")) const
    {
        return write(name, document("<path d='M0 0H16V16H0Z'/>"));
    }

    /// Writes an icon of two rotating shapes in black.
    QString animated(const QString &name = QStringLiteral("animated.svg")) const
    {
        const QByteArray shape = "<rect width='9' height='9'><animateTransform "
                                 "attributeName='transform' type='rotate' from='0' to='90' "
                                 "dur='1s' repeatCount='indefinite'/></rect>";
        return write(name, document(shape + shape));
    }

    /// Announces the warnings about a missing file at \a path.
    static void ignoreMissing(const QString &path)
    {
        const QString reason = QStringLiteral("Cannot open file '%1', because: No such file or "
                                              "directory");
        QTest::ignoreMessage(QtWarningMsg, qPrintable(reason.arg(path)));
        QTest::ignoreMessage(QtWarningMsg,
                             qPrintable(
                                     QStringLiteral("Unable to load SVG file:  \"%1\"").arg(path)));
    }

private:
    QTemporaryDir m_folder;
};
