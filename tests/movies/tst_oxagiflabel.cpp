// SPDX-License-Identifier: Apache-2.0
#include "support/ColorSets.h"
#include "support/GifFiles.h"
#include "support/Guards.h"
#include "support/Pixels.h"
#include "support/SvgFiles.h"
#include "support/TestApplication.h"

#include <UiElements/movies/OxaGifLabel.h>

#include <QMovie>
#include <QSignalSpy>

#include <utility>

namespace {

/// An OxaGifLabel on a screen of any ratio.
class GifLabel : public OxaGifLabel
{
public:
    explicit GifLabel(qreal ratio = 1.0) : m_ratio(ratio) { resize(60, 60); }

    /// Returns the picture that the label shows; null for none.
    QPixmap picture() const { return pixmap(Qt::ReturnByValue); }

    /// Returns the name of the colour of that picture; empty for none.
    QString color() const
    {
        const QImage image = picture().toImage();
        return image.isNull() ? QString() : image.pixelColor(3, 3).name();
    }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        return metric == PdmDevicePixelRatioScaled ? qRound(m_ratio * devicePixelRatioFScale())
                                                   : OxaGifLabel::metric(metric);
    }

private:
    const qreal m_ratio;
};

GifFiles::Gif loopingGif()
{
    return { { Qt::red, Qt::blue }, QSize(16, 16), 20, GifFiles::endless };
}

} // namespace

/// OxaGifLabel, without inherited members.
class tst_OxaGifLabel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_stores.reset(); }

    void startsWithoutAnImage();
    void playsUntilTheLastFrame();
    void emitsFinishedBeforeItShowsTheLastFrame();
    void emitsFinishedAtEachPass_data();
    void emitsFinishedAtEachPass();
    void fitsFramesIntoItselfLessTenPixels_data();
    void fitsFramesIntoItselfLessTenPixels();
    void paintsThePicture();
    void staysSilentAboutFilesThatAreNoPicture_data();
    void staysSilentAboutFilesThatAreNoPicture();
    void showsWhatThereIsOfATruncatedFile();
    void stopsAtItsFrameAndStartsFromTheFirst();
    void playsWhileItIsHidden();
    void keepsItsPictureForANewPath();
    void showsNoMoreFramesForANewPathUntilItIsStopped();
    void letsASlotStopOrRestartIt_data();
    void letsASlotStopOrRestartIt();
    void survivesItsDeletionAtTheLastFrame_data();
    void survivesItsDeletionAtTheLastFrame();

private:
    QString gif(const GifFiles::Gif &gif) const
    {
        return m_folder.write(QLatin1String(QTest::currentTestFunction()), GifFiles::bytes(gif));
    }

    SvgFiles m_folder;
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaGifLabel::initTestCase()
{
    m_stores = std::make_unique<StoreGuard>(ColorSets::storeOf(
            { OxaColorSet(QStringLiteral("button-hyperlink-text"), Qt::black) }));
}

void tst_OxaGifLabel::startsWithoutAnImage()
{
    QWidget parent;
    const OxaGifLabel label(&parent);
    QCOMPARE(label.parent(), &parent);
    QCOMPARE(label.getGifPath(), QString());
    QVERIFY(!label.isGifPlaying());
    QCOMPARE(label.findChildren<QMovie *>().size(), 1);
}

void tst_OxaGifLabel::playsUntilTheLastFrame()
{
    const QString path = gif({ { Qt::red, Qt::green, Qt::blue } });
    GifLabel label;
    label.setGifPath(path);
    QCOMPARE(label.getGifPath(), path);
    QVERIFY(!label.isGifPlaying());
    QCOMPARE(label.color(), QString());

    const QSignalSpy finished(&label, &OxaGifLabel::finishedPlaying);
    label.startPlaying();
    QVERIFY(label.isGifPlaying());
    QCOMPARE(label.color(), QStringLiteral("#ff0000"));
    QTRY_VERIFY(!label.isGifPlaying());
    QCOMPARE(label.color(), QStringLiteral("#0000ff"));
    QCOMPARE(finished.size(), 1);
}

void tst_OxaGifLabel::emitsFinishedBeforeItShowsTheLastFrame()
{
    GifLabel label;
    label.setGifPath(gif({ { Qt::red, Qt::blue } }));
    QStringList shown;
    connect(&label, &OxaGifLabel::finishedPlaying, this, [&] {
        shown += label.color();
        QVERIFY(label.isGifPlaying());
    });
    label.startPlaying();
    QTRY_VERIFY(!label.isGifPlaying());
    shown += label.color();
    QCOMPARE(shown.join(QLatin1Char(' ')), QStringLiteral("#ff0000 #0000ff"));
}

void tst_OxaGifLabel::emitsFinishedAtEachPass_data()
{
    QTest::addColumn<int>("loops");
    QTest::addColumn<int>("frames");
    QTest::newRow("of one") << 0 << 2;
    QTest::newRow("of three") << 2 << 2;
    QTest::newRow("of three, with a single frame") << 2 << 1;
}

void tst_OxaGifLabel::emitsFinishedAtEachPass()
{
    QFETCH(const int, loops);
    QFETCH(const int, frames);
    GifFiles::Gif image { { Qt::red, Qt::blue }, QSize(16, 16), 20, loops };
    image.frames.resize(std::size_t(frames));
    GifLabel label;
    label.setGifPath(gif(image));
    const QSignalSpy finished(&label, &OxaGifLabel::finishedPlaying);
    label.startPlaying();
    QTRY_VERIFY(!label.isGifPlaying());
    QCOMPARE(finished.size(), loops + 1);
}

void tst_OxaGifLabel::fitsFramesIntoItselfLessTenPixels_data()
{
    QTest::addColumn<QSize>("frame");
    QTest::addColumn<QSize>("label");
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<QSize>("picture");
    QTest::newRow("a square") << QSize(16, 16) << QSize(60, 60) << 1.0 << QSize(50, 50);
    QTest::newRow("wider than the label")
            << QSize(400, 200) << QSize(60, 60) << 1.0 << QSize(50, 25);
    QTest::newRow("higher than the label")
            << QSize(200, 400) << QSize(60, 60) << 1.0 << QSize(25, 50);
    QTest::newRow("smaller than the label")
            << QSize(4, 2) << QSize(110, 60) << 1.0 << QSize(100, 50);
    QTest::newRow("a fine screen") << QSize(16, 16) << QSize(60, 60) << 2.0 << QSize(100, 100);
    QTest::newRow("each length is rounded")
            << QSize(16, 16) << QSize(61, 71) << 1.5 << QSize(77, 77); // 76.5
    QTest::newRow("a label of the free pixels alone")
            << QSize(16, 16) << QSize(10, 60) << 1.0 << QSize();
    QTest::newRow("a label of less") << QSize(16, 16) << QSize(4, 3) << 1.0 << QSize();
}

void tst_OxaGifLabel::fitsFramesIntoItselfLessTenPixels()
{
    QFETCH(const QSize, frame);
    QFETCH(const QSize, label);
    QFETCH(const qreal, ratio);
    QFETCH(const QSize, picture);
    GifLabel tested(ratio);
    tested.resize(label);
    tested.setGifPath(gif({ { Qt::red }, frame }));
    tested.startPlaying();
    QCOMPARE(tested.picture().isNull(), picture.isNull() || !picture.isValid());
    if (picture.isValid()) {
        QCOMPARE(tested.picture().size(), picture);
        QCOMPARE(tested.picture().devicePixelRatio(), ratio);
    }
}

void tst_OxaGifLabel::paintsThePicture()
{
    GifLabel label;
    label.setGifPath(gif({ { Qt::red } }));
    label.startPlaying();
    QCOMPARE(Pixels::countNear(Pixels::render(label), Qt::red), 50 * 50);
}

void tst_OxaGifLabel::staysSilentAboutFilesThatAreNoPicture_data()
{
    QTest::addColumn<QString>("path");
    const QByteArray bytes = GifFiles::bytes({ { Qt::red } });
    const auto file = [this](const char *name, const QByteArray &content) {
        return m_folder.write(QString::fromLatin1(name), content);
    };
    QTest::newRow("no path") << QString();
    QTest::newRow("no file") << m_folder.path(QStringLiteral("none.gif"));
    QTest::newRow("a folder") << m_folder.folder();
    QTest::newRow("an empty file") << file("empty.gif", QByteArray());
    QTest::newRow("a text") << file("text.gif", "This is no picture.");
    QTest::newRow("a header alone") << file("header.gif", bytes.left(6));
    QByteArray huge = bytes.left(415);
    huge.replace(6, 4, QByteArray(4, '\xff'));
    QTest::newRow("65,535 pixels square, without a pixel") << file("huge.gif", huge);
    QTest::newRow("an image without pixels") << file("short.gif", bytes.left(415));
}

void tst_OxaGifLabel::staysSilentAboutFilesThatAreNoPicture()
{
    QFETCH(const QString, path);
    GifLabel label;
    const QSignalSpy finished(&label, &OxaGifLabel::finishedPlaying);
    label.setGifPath(path);
    label.startPlaying();
    QVERIFY(!label.isGifPlaying());
    QVERIFY(label.picture().isNull());
    QCOMPARE(finished.size(), 0);
}

void tst_OxaGifLabel::showsWhatThereIsOfATruncatedFile()
{
    QByteArray bytes = GifFiles::bytes({ { Qt::red, Qt::green, Qt::blue } });
    bytes.chop(200); // A part of the last frame.
    GifLabel label;
    label.setGifPath(m_folder.write(QStringLiteral("truncated.gif"), bytes));
    const QSignalSpy finished(&label, &OxaGifLabel::finishedPlaying);
    label.startPlaying();
    QTRY_VERIFY(!label.isGifPlaying());
    const QImage shown = label.picture().toImage();
    QCOMPARE(shown.pixelColor(3, 3), QColor(Qt::blue));
    QCOMPARE(shown.pixelColor(3, 46), QColor(Qt::green)); // Of the frame before.
    QCOMPARE(finished.size(), 1);
}

void tst_OxaGifLabel::stopsAtItsFrameAndStartsFromTheFirst()
{
    GifLabel label;
    label.setGifPath(gif(loopingGif()));
    label.startPlaying();
    QTRY_COMPARE(label.color(), QStringLiteral("#0000ff"));
    label.stopPlaying();
    QVERIFY(!label.isGifPlaying());
    QCOMPARE(label.color(), QStringLiteral("#0000ff"));
    label.startPlaying();
    QCOMPARE(label.color(), QStringLiteral("#ff0000"));
}

void tst_OxaGifLabel::playsWhileItIsHidden()
{
    GifLabel label;
    label.setGifPath(gif(loopingGif()));
    label.show();
    label.startPlaying();
    label.hide();
    const QSignalSpy finished(&label, &OxaGifLabel::finishedPlaying);
    QTRY_VERIFY(finished.size() > 1);
    QVERIFY(label.isGifPlaying());
}

void tst_OxaGifLabel::keepsItsPictureForANewPath()
{
    GifLabel label;
    label.setGifPath(gif({ { Qt::red } }));
    label.startPlaying();
    QTRY_VERIFY(!label.isGifPlaying());
    label.setGifPath(QString());
    QCOMPARE(label.getGifPath(), QString());
    QCOMPARE(label.color(), QStringLiteral("#ff0000"));
}

void tst_OxaGifLabel::showsNoMoreFramesForANewPathUntilItIsStopped()
{
    GifLabel label;
    label.setGifPath(gif(loopingGif()));
    label.startPlaying();
    label.setGifPath(
            m_folder.write(QStringLiteral("green.gif"), GifFiles::bytes({ { Qt::green } })));
    label.startPlaying();
    QVERIFY(label.isGifPlaying());
    QCOMPARE(label.color(), QStringLiteral("#ff0000"));
    label.stopPlaying();
    label.startPlaying();
    QCOMPARE(label.color(), QStringLiteral("#00ff00"));
}

void tst_OxaGifLabel::letsASlotStopOrRestartIt_data()
{
    QTest::addColumn<bool>("restarts");
    QTest::newRow("stop") << false;
    QTest::newRow("restart") << true;
}

void tst_OxaGifLabel::letsASlotStopOrRestartIt()
{
    QFETCH(const bool, restarts);
    GifLabel label;
    label.setGifPath(gif(loopingGif()));
    int passes = 0;
    connect(&label, &OxaGifLabel::finishedPlaying, this, [&] {
        ++passes;
        label.stopPlaying();
        if (restarts && passes < 3)
            label.startPlaying();
    });
    label.startPlaying();
    QTRY_VERIFY(!label.isGifPlaying());
    QCOMPARE(passes, restarts ? 3 : 1);
}

void tst_OxaGifLabel::survivesItsDeletionAtTheLastFrame_data()
{
    QTest::addColumn<int>("frames");
    QTest::addColumn<bool>("playsAgain");
    QTest::newRow("which a timer shows") << 2 << false;
    QTest::newRow("which startPlaying() shows") << 1 << false;
    QTest::newRow("which a slot has started again") << 1 << true;
}

void tst_OxaGifLabel::survivesItsDeletionAtTheLastFrame()
{
    QFETCH(const int, frames);
    QFETCH(bool, playsAgain);
    GifFiles::Gif image = loopingGif();
    image.frames.resize(std::size_t(frames));
    const QPointer<GifLabel> label = new GifLabel;
    const QPointer<QMovie> movie = label->findChild<QMovie *>();
    label->setGifPath(gif(image));
    bool isMovieThere = false;
    connect(label, &OxaGifLabel::finishedPlaying, this, [&] {
        if (std::exchange(playsAgain, false)) {
            label->stopPlaying();
            label->startPlaying();
        }
        if (label) {
            delete label;
            isMovieThere = movie;
        }
    });
    label->startPlaying();
    QTRY_VERIFY(!label);
    QVERIFY(isMovieThere); // QMovie uses itself after the frame.
    QTRY_VERIFY(!movie);
}

UIELEMENTS_TEST_MAIN(tst_OxaGifLabel)
#include "tst_oxagiflabel.moc"
