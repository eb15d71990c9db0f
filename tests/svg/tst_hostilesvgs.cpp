// SPDX-License-Identifier: Apache-2.0

// Feeds odd and hostile SVG files to the renderer. A file may fail to load, with a warning; it must
// not crash or hang the program, nor harm what is painted after it.
//
//     tst_hostilesvgs [ARGUMENT]...
//         feeds the files of HostileSvgs.h
//     tst_hostilesvgs FOLDER [ARGUMENT]...
//         feeds every *.svg and *.svgz below FOLDER instead, such as a whole icon theme, and prints
//         how many load
//
// Arguments are Qt Test's.
//
// A hang ends with Qt Test's own time limit (QTEST_FUNCTION_TIMEOUT, in milliseconds).
//
// Three kinds of files are not fed, because Qt SVG 5.15 itself does not survive them:
// - a picture that refers to itself by <image xlink:href>:
//   Qt loads it recursively until the stack overflows;
// - a "stroke-dashoffset" of more than 2^31 times the length of the dashes:
//   Qt goes through them dash by dash;
// - <use> of <use>, many levels deep, without a view box:
//   Qt limits the painting of such files, but not the measuring without a view box.
#include "HostileSvgs.h"

#include <UiElements/svg/OxaSvgRenderer.h>

#include <QApplication>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QPainter>

namespace {

QString folderToFeed;

/// Collects the messages that Qt and the library log, instead of Qt Test.
class MessageLog
{
    Q_DISABLE_COPY_MOVE(MessageLog)

public:
    MessageLog() : m_before(qInstallMessageHandler(&MessageLog::collect)) { s_messages.clear(); }
    ~MessageLog() { qInstallMessageHandler(m_before); }

    /// Returns what the renderer logged.
    static QStringList ofTheRenderer()
    {
        QStringList messages;
        for (const QString &message : qAsConst(s_messages)) {
            if (message.startsWith(QLatin1String("Unable to load SVG file"))
                || message.startsWith(QLatin1String("Invalid svg file"))
                || message.startsWith(QLatin1String("SVG node")))
                messages += message;
        }
        return messages;
    }

private:
    static void collect(QtMsgType, const QMessageLogContext &, const QString &message)
    {
        s_messages += message;
    }

    static QStringList s_messages;
    const QtMessageHandler m_before;
};

QStringList MessageLog::s_messages;

QImage drawing(const OxaSvgRenderer &renderer, const QRectF &rect)
{
    QImage image(64, 64, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    renderer.draw(&painter, rect, Qt::red, 0.5);
    renderer.drawScalingHeight(&painter, rect);
    return painter.transform().isIdentity() ? image : QImage();
}

/// Paints \a renderer in every way. Returns whether painters were left as they had been.
bool paint(const OxaSvgRenderer &renderer)
{
    bool isRestored = true;
    for (const int size : { 0, 1, 16, 64, 1000 })
        isRestored = isRestored && !drawing(renderer, QRectF(0, 0, size, size)).isNull();
    return isRestored && !renderer.renderPixmap(QSize(24, 24), 2.0, Qt::red).isNull();
}

} // namespace

class tst_HostileSvgs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void survivesTheFile_data();
    void survivesTheFile();
    void cleanupTestCase();

private:
    void addOwnFiles();
    static void addFilesBelow(const QString &folder);

    SvgFiles m_files;
    std::unique_ptr<OxaSvgRenderer> m_square;
    int m_loaded = 0;
    int m_failed = 0;
    qint64 m_slowestMs = 0;
    QString m_slowest;
};

void tst_HostileSvgs::initTestCase()
{
    m_square = std::make_unique<OxaSvgRenderer>(m_files.square());
}

void tst_HostileSvgs::survivesTheFile_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QVariant>("loads");
    if (folderToFeed.isEmpty())
        addOwnFiles();
    else
        addFilesBelow(folderToFeed);
}

void tst_HostileSvgs::survivesTheFile()
{
    QFETCH(const QString, path);
    QFETCH(const QVariant, loads);
    QElapsedTimer timer;
    timer.start();
    OxaSvgRenderer renderer;
    bool isLoaded = false;
    bool isRestored = true;
    QStringList messages;
    {
        const MessageLog log;
        isLoaded = renderer.load(path);
        if (isLoaded) {
            isRestored = paint(renderer);
            // Frames of an animated file come with the event loop.
            QCoreApplication::processEvents();
        }
        messages = log.ofTheRenderer();
    }
    if (timer.elapsed() > m_slowestMs) {
        m_slowestMs = timer.elapsed();
        m_slowest = path;
    }
    ++(isLoaded ? m_loaded : m_failed);

    QCOMPARE(renderer.isLoaded(), isLoaded);
    if (loads.isValid())
        QCOMPARE(isLoaded, loads.toBool());
    QVERIFY(isRestored);
    if (isLoaded) {
        QCOMPARE(messages, QStringList());
    } else {
        QCOMPARE(messages.size(), 1);
        const QString quoted = QStringLiteral("  \"%1\"").arg(path);
        QVERIFY(messages.constFirst() == QLatin1String("Unable to load SVG file:") + quoted
                || messages.constFirst() == QLatin1String("Invalid svg file:") + quoted);
    }
    // This file must not change what the next one looks like.
    QImage square(16, 16, QImage::Format_ARGB32_Premultiplied);
    square.fill(Qt::red);
    QCOMPARE(m_square->renderPixmap(QSize(16, 16), 1.0, Qt::red).toImage(), square);
}

void tst_HostileSvgs::cleanupTestCase()
{
    m_square.reset();
    qInfo().noquote() << QStringLiteral("%1 files load, %2 fail. The slowest took %3 ms: %4")
                                 .arg(m_loaded)
                                 .arg(m_failed)
                                 .arg(m_slowestMs)
                                 .arg(m_slowest);
    QVERIFY2(m_loaded + m_failed > 0, "There are no SVG files in the folder.");
}

void tst_HostileSvgs::addOwnFiles()
{
    int number = 0;
    for (const HostileSvg &file : HostileSvgs::all()) {
        const QString name = QStringLiteral("%1.%2").arg(++number).arg(QLatin1String(file.suffix));
        QTest::newRow(file.description)
                << m_files.write(name, file.content) << QVariant(file.loads);
    }
}

void tst_HostileSvgs::addFilesBelow(const QString &folder)
{
    QDirIterator files(folder, { QStringLiteral("*.svg"), QStringLiteral("*.svgz") }, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        QTest::addRow("%s", qPrintable(path)) << path << QVariant();
    }
}

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() > 1 && QFileInfo(arguments.at(1)).isDir())
        folderToFeed = arguments.takeAt(1);
    tst_HostileSvgs test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, arguments);
}

#include "tst_hostilesvgs.moc"
