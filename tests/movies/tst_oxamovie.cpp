// SPDX-License-Identifier: Apache-2.0
#include "support/GifFiles.h"
#include "support/SvgFiles.h"
#include "support/TestApplication.h"

#include <UiElements/movies/OxaMovie.h>

#include <QBuffer>
#include <QSignalSpy>

namespace {

const GifFiles::Gif redAndBlue { { Qt::red, Qt::blue } };

/// Returns the names of the colours of the frames that \a movie plays until it stops by itself.
QString framesOf(QMovie &movie)
{
    QStringList names;
    const auto connection = QObject::connect(&movie, &QMovie::frameChanged, [&] {
        names += movie.currentImage().pixelColor(3, 3).name();
    });
    const QSignalSpy finished(&movie, &QMovie::finished);
    movie.start();
    if (!QTest::qWaitFor([&finished] { return !finished.isEmpty(); }))
        names += QStringLiteral("no end");
    QObject::disconnect(connection);
    return names.join(QLatin1Char(' '));
}

} // namespace

/// OxaMovie: a movie of bytes in memory.
class tst_OxaMovie : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void playsBytesInMemory_data();
    void playsBytesInMemory();
    void readsTheCallersBytesUnlessItCopiesThem_data() { playsBytesInMemory_data(); }
    void readsTheCallersBytesUnlessItCopiesThem();
    void playsAFile_data();
    void playsAFile();
    void startsWithoutAPicture();
    void takesItsParent();
    void staysSilentAboutBytesThatAreNoPicture_data();
    void staysSilentAboutBytesThatAreNoPicture();
    void playsWhatThereIsOfATruncatedFile_data();
    void playsWhatThereIsOfATruncatedFile();
    void releasesItsBufferWhilePlaying();
    void survivesTheDeletionOfItsBuffer();
    void destroysWhatAnotherMovieReads();
};

void tst_OxaMovie::playsBytesInMemory_data()
{
    QTest::addColumn<bool>("copy");
    QTest::newRow("copied") << true;
    QTest::newRow("the caller's") << false;
}

void tst_OxaMovie::playsBytesInMemory()
{
    QFETCH(const bool, copy);
    const QByteArray bytes = GifFiles::bytes(redAndBlue);
    OxaMovie movie(nullptr, bytes.constData(), bytes.size(), copy);
    QVERIFY(movie.isValid());
    QCOMPARE(movie.frameCount(), 2);
    QCOMPARE(framesOf(movie), QStringLiteral("#ff0000 #0000ff"));
    // Once more, from the buffer's start.
    QCOMPARE(framesOf(movie), QStringLiteral("#ff0000 #0000ff"));
}

void tst_OxaMovie::readsTheCallersBytesUnlessItCopiesThem()
{
    QFETCH(const bool, copy);
    QByteArray bytes = GifFiles::bytes(redAndBlue);
    OxaMovie movie(nullptr, bytes.data(), bytes.size(), copy);
    const QByteArray others = GifFiles::bytes({ { Qt::green, Qt::black } });
    QCOMPARE(others.size(), bytes.size());
    std::copy(others.cbegin(), others.cend(), bytes.begin());
    QCOMPARE(framesOf(movie),
             copy ? QStringLiteral("#ff0000 #0000ff") : QStringLiteral("#00ff00 #000000"));
}

void tst_OxaMovie::playsAFile_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::newRow("of a format that Qt finds out") << QByteArray();
    QTest::newRow("of a given format") << QByteArrayLiteral("gif");
}

void tst_OxaMovie::playsAFile()
{
    QFETCH(const QByteArray, format);
    const SvgFiles folder;
    const QString path = folder.write(QStringLiteral("a.gif"), GifFiles::bytes(redAndBlue));
    OxaMovie movie(path, format);
    QCOMPARE(movie.fileName(), path);
    QCOMPARE(movie.format(), QByteArrayLiteral("gif"));
    QCOMPARE(framesOf(movie), QStringLiteral("#ff0000 #0000ff"));
}

void tst_OxaMovie::startsWithoutAPicture()
{
    OxaMovie movie;
    QVERIFY(!movie.device());
    QVERIFY(!movie.isValid());
    QCOMPARE(movie.fileName(), QString());
}

void tst_OxaMovie::takesItsParent()
{
    QObject parent;
    QCOMPARE((new OxaMovie(&parent))->parent(), &parent);
    QCOMPARE((new OxaMovie(&parent, "abc", 3, true))->parent(), &parent);
    QCOMPARE((new OxaMovie(QStringLiteral("a.gif"), QByteArray(), &parent))->parent(), &parent);
}

void tst_OxaMovie::staysSilentAboutBytesThatAreNoPicture_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("no bytes") << QByteArray();
    QTest::newRow("a text") << QByteArrayLiteral("This is no picture.");
    QTest::newRow("a header alone") << GifFiles::bytes(redAndBlue).left(6);
    QTest::newRow("frames without an end of the table") << GifFiles::bytes(redAndBlue).left(100);
}

void tst_OxaMovie::staysSilentAboutBytesThatAreNoPicture()
{
    QFETCH(const QByteArray, bytes);
    OxaMovie movie(nullptr, bytes.constData(), bytes.size(), true);
    QCOMPARE(framesOf(movie), QString());
    QCOMPARE(movie.state(), QMovie::NotRunning);
    QVERIFY(movie.currentPixmap().isNull());
}

void tst_OxaMovie::playsWhatThereIsOfATruncatedFile_data()
{
    QTest::addColumn<int>("missing");
    QTest::addColumn<QString>("frames");
    const int frame = GifFiles::bytes(redAndBlue).size() - GifFiles::bytes({ { Qt::red } }).size();
    QTest::newRow("without its last byte") << 1 << "#ff0000 #0000ff";
    QTest::newRow("without half of the second frame") << frame / 2 << "#ff0000 #0000ff";
    QTest::newRow("without the second frame") << frame + 1 << "#ff0000";
}

void tst_OxaMovie::playsWhatThereIsOfATruncatedFile()
{
    QFETCH(const int, missing);
    QByteArray bytes = GifFiles::bytes(redAndBlue);
    bytes.chop(missing);
    OxaMovie movie(nullptr, bytes.constData(), bytes.size(), true);
    QTEST(framesOf(movie), "frames");
}

void tst_OxaMovie::releasesItsBufferWhilePlaying()
{
    const QByteArray bytes = GifFiles::bytes(
            { { Qt::red, Qt::blue }, QSize(16, 16), 20, GifFiles::endless });
    auto *movie = new OxaMovie(nullptr, bytes.constData(), bytes.size(), true);
    const QPointer<QIODevice> buffer = movie->device();
    QCOMPARE(buffer->parent(), movie);
    movie->start();
    QCOMPARE(movie->state(), QMovie::Running);
    delete movie;
    QVERIFY(!buffer);
}

void tst_OxaMovie::survivesTheDeletionOfItsBuffer()
{
    auto *movie = new OxaMovie(nullptr, "abc", 3, true);
    delete movie->device();
    delete movie;
}

void tst_OxaMovie::destroysWhatAnotherMovieReads()
{
    auto *bytes = new QByteArray(GifFiles::bytes(redAndBlue));
    QMovie movie;
    const QPointer<QBuffer> buffer = new QBuffer(bytes);
    movie.setDevice(buffer);
    movie.start();
    QCOMPARE(movie.state(), QMovie::Running);
    OxaMovie::destroy(&movie, bytes, buffer);
    QCOMPARE(movie.state(), QMovie::NotRunning);
    QVERIFY(!movie.device());
    QVERIFY(!buffer);

    movie.start();
    OxaMovie::destroy(&movie, nullptr, nullptr);
    QCOMPARE(movie.state(), QMovie::NotRunning);
}

UIELEMENTS_TEST_MAIN(tst_OxaMovie)
#include "tst_oxamovie.moc"
