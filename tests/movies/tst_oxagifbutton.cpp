// SPDX-License-Identifier: Apache-2.0
#include "support/ColorSets.h"
#include "support/GifFiles.h"
#include "support/Guards.h"
#include "support/SvgFiles.h"
#include "support/TestApplication.h"

#include <UiElements/movies/OxaGifButton.h>
#include <UiElements/widgets/OxaLabel.h>

#include <QLayout>
#include <QMovie>
#include <QSignalSpy>

#include <malloc.h>

namespace {

constexpr QSize imageSize(24, 24);
constexpr QSize gifSize(32, 32);
const QString gray = QStringLiteral("#a0a0a4");
const QString red = QStringLiteral("#ff0000");
const QString blue = QStringLiteral("#0000ff");

/// The picture and the animated image of a button.
struct Files
{
    Files()
    {
        QImage picture(48, 24, QImage::Format_RGB32);
        picture.fill(Qt::gray);
        if (!picture.save(image))
            qFatal("Cannot write %s.", qPrintable(image));
        writeGif({ { Qt::red, Qt::blue }, QSize(16, 16), 20, GifFiles::endless });
    }

    void writeGif(const GifFiles::Gif &content)
    {
        folder.write(QStringLiteral("a.gif"), GifFiles::bytes(content));
    }

    const SvgFiles folder;
    const QString image = folder.path(QStringLiteral("a.png"));
    const QString gif = folder.path(QStringLiteral("a.gif"));
};

/// An OxaGifButton on a screen of any ratio.
class GifButton : public OxaGifButton
{
public:
    explicit GifButton(const Files &files, qreal ratio = 1.0)
        : GifButton(files.image, files.gif, ratio)
    {
    }
    GifButton(const QString &image, const QString &gif, qreal ratio = 1.0)
        : OxaGifButton(nullptr, image, imageSize, gif, gifSize), m_ratio(ratio)
    {
        resize(60, 40);
    }

    using OxaGifButton::setButtonIcon;

    const OxaLabel &innerLabel() const { return *findChild<OxaLabel *>(); }
    QPixmap picture() const { return innerLabel().pixmap(Qt::ReturnByValue); }
    QMovie *movie() const { return findChild<QMovie *>(); }

    /// Returns the colour that is shown and the size of the inner label: "#ff0000 32".
    QString shown() const
    {
        const QImage image = picture().toImage();
        return (image.isNull() ? QStringLiteral("nothing") : image.pixelColor(3, 3).name())
                + QLatin1Char(' ') + QString::number(innerLabel().width());
    }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        return metric == PdmDevicePixelRatioScaled ? qRound(m_ratio * devicePixelRatioFScale())
                                                   : OxaGifButton::metric(metric);
    }

private:
    const qreal m_ratio;
};

void send(QWidget &widget, QEvent::Type type)
{
    if (type == QEvent::Enter) {
        QEnterEvent event({}, {}, {});
        QCoreApplication::sendEvent(&widget, &event);
    } else if (type == QEvent::Leave) {
        QEvent event(type);
        QCoreApplication::sendEvent(&widget, &event);
    } else {
        QFocusEvent event(type);
        QCoreApplication::sendEvent(&widget, &event);
    }
}

void deleteLaterNow() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

} // namespace

Q_DECLARE_METATYPE(QEvent::Type)

/// OxaGifButton, without inherited members.
class tst_OxaGifButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_stores.reset(); }

    void showsItsPicture();
    void fitsPicturesIntoTheirSizes_data();
    void fitsPicturesIntoTheirSizes();
    void playsFromEventToEvent_data();
    void playsFromEventToEvent();
    void playsInALoopWithEachFrameRead();
    void goesOnPlayingAtASecondReason();
    void startsAnImageAgainThatEnded();
    void startsBeforeTheBaseClassHandlesTheEvent();
    void showsFramesOnlyWhilePlaying();
    void showsNothingForFilesThatCannotBeRead_data();
    void showsNothingForFilesThatCannotBeRead();
    void isClickedOnItsPicture();
    void stopsWhenItIsHidden();
    void survivesItsDeletionWhilePlaying();
    void keepsItsMemoryOverManyCycles();

private:
    Files m_files;
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaGifButton::initTestCase()
{
    m_stores = std::make_unique<StoreGuard>(ColorSets::storeOf(
            { OxaColorSet(QStringLiteral("button-hyperlink-text"), Qt::black) }));
}

void tst_OxaGifButton::showsItsPicture()
{
    QWidget parent;
    const OxaGifButton child(&parent, m_files.image, imageSize, m_files.gif, gifSize);
    QCOMPARE(child.parent(), &parent);
    QCOMPARE(child.getAccessibleRole(), QAccessible::PushButton);

    const GifButton button(m_files);
    QCOMPARE(button.shown(), gray + QStringLiteral(" 24"));
    QCOMPARE(button.innerLabel().size(), imageSize);
    QCOMPARE(button.layout()->spacing(), 0);
    QCOMPARE(button.layout()->contentsMargins(), QMargins());
    QVERIFY(!button.movie());
}

void tst_OxaGifButton::fitsPicturesIntoTheirSizes_data()
{
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<QSize>("image");
    QTest::addColumn<QSize>("gif");
    QTest::newRow("on a plain screen") << 1.0 << QSize(24, 12) << QSize(32, 32);
    QTest::newRow("on a fine screen") << 2.0 << QSize(48, 24) << QSize(64, 64);
    QTest::newRow("between") << 1.25 << QSize(30, 15) << QSize(40, 40);
}

void tst_OxaGifButton::fitsPicturesIntoTheirSizes()
{
    QFETCH(const qreal, ratio);
    GifButton button(m_files, ratio);
    send(button, QEvent::Enter);
    QTEST(button.picture().size(), "gif");
    QCOMPARE(button.picture().devicePixelRatio(), ratio);
    QCOMPARE(button.innerLabel().size(), gifSize);
    send(button, QEvent::Leave);
    QTEST(button.picture().size(), "image");
    QCOMPARE(button.picture().devicePixelRatio(), ratio);
    QCOMPARE(button.innerLabel().size(), imageSize);
}

void tst_OxaGifButton::playsFromEventToEvent_data()
{
    QTest::addColumn<QEvent::Type>("start");
    QTest::addColumn<QEvent::Type>("stop");
    QTest::newRow("the pointer") << QEvent::Enter << QEvent::Leave;
    QTest::newRow("the focus") << QEvent::FocusIn << QEvent::FocusOut;
    QTest::newRow("leaving it while it has the focus") << QEvent::FocusIn << QEvent::Leave;
    QTest::newRow("losing the focus under the pointer") << QEvent::Enter << QEvent::FocusOut;
}

void tst_OxaGifButton::playsFromEventToEvent()
{
    QFETCH(const QEvent::Type, start);
    QFETCH(const QEvent::Type, stop);
    GifButton button(m_files);
    send(button, start);
    QVERIFY(button.movie());
    QCOMPARE(button.movie()->state(), QMovie::Running);
    QCOMPARE(button.shown(), red + QStringLiteral(" 32"));
    QTRY_COMPARE(button.shown(), blue + QStringLiteral(" 32"));

    const QPointer<QMovie> movie = button.movie();
    send(button, stop);
    QCOMPARE(button.shown(), gray + QStringLiteral(" 24"));
    QCOMPARE(movie->state(), QMovie::NotRunning);
    deleteLaterNow();
    QVERIFY(!movie);
    // The picture is read again, also when nothing plays.
    send(button, stop);
    QCOMPARE(button.shown(), gray + QStringLiteral(" 24"));
}

void tst_OxaGifButton::playsInALoopWithEachFrameRead()
{
    GifButton button(m_files);
    send(button, QEvent::Enter);
    QCOMPARE(button.movie()->cacheMode(), QMovie::CacheAll);
    QCOMPARE(button.movie()->fileName(), m_files.gif);
    QTRY_COMPARE(button.shown(), blue + QStringLiteral(" 32"));
    QTRY_COMPARE(button.shown(), red + QStringLiteral(" 32"));
}

void tst_OxaGifButton::goesOnPlayingAtASecondReason()
{
    GifButton button(m_files);
    send(button, QEvent::Enter);
    QTRY_COMPARE(button.shown(), blue + QStringLiteral(" 32"));
    const QMovie *movie = button.movie();
    send(button, QEvent::FocusIn);
    QCOMPARE(button.movie(), movie);
    QCOMPARE(button.shown(), blue + QStringLiteral(" 32"));
}

void tst_OxaGifButton::startsAnImageAgainThatEnded()
{
    Files files;
    files.writeGif({ { Qt::red, Qt::blue } });
    GifButton button(files);
    send(button, QEvent::Enter);
    QTRY_COMPARE(button.movie()->state(), QMovie::NotRunning);
    QCOMPARE(button.shown(), blue + QStringLiteral(" 32"));
    send(button, QEvent::FocusIn);
    QCOMPARE(button.shown(), red + QStringLiteral(" 32"));
}

void tst_OxaGifButton::startsBeforeTheBaseClassHandlesTheEvent()
{
    GifButton button(m_files);
    QStringList shown;
    const auto note = [&] { shown += button.shown(); };
    connect(&button, &OxaPushButton::mouseEntered, this, note);
    connect(&button, &OxaPushButton::mouseExited, this, note);
    connect(&button, &OxaPushButton::onFocusIn, this, note);
    connect(&button, &OxaPushButton::onFocusOut, this, note);
    for (const auto type : { QEvent::Enter, QEvent::Leave, QEvent::FocusIn, QEvent::FocusOut })
        send(button, type);
    QCOMPARE(shown.join(QLatin1Char('|')),
             QStringLiteral("#ff0000 32|#a0a0a4 24|#ff0000 32|#a0a0a4 24"));
}

void tst_OxaGifButton::showsFramesOnlyWhilePlaying()
{
    GifButton button(m_files);
    button.setButtonIcon();
    QCOMPARE(button.shown(), gray + QStringLiteral(" 24"));
}

void tst_OxaGifButton::showsNothingForFilesThatCannotBeRead_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("no path") << QString();
    QTest::newRow("no file") << m_files.folder.path(QStringLiteral("none"));
    QTest::newRow("a folder") << m_files.folder.folder();
    QTest::newRow("a text") << m_files.folder.write(QStringLiteral("text.gif"), "no picture");
    const QByteArray gif = GifFiles::bytes({ { Qt::red } });
    QTest::newRow("a header") << m_files.folder.write(QStringLiteral("header.gif"), gif.left(6));
}

void tst_OxaGifButton::showsNothingForFilesThatCannotBeRead()
{
    QFETCH(const QString, path);
    GifButton withoutGif(m_files.image, path);
    send(withoutGif, QEvent::Enter);
    QCOMPARE(withoutGif.shown(), gray + QStringLiteral(" 24"));
    send(withoutGif, QEvent::Leave);
    QCOMPARE(withoutGif.shown(), gray + QStringLiteral(" 24"));

    GifButton withoutImage(path, m_files.gif);
    QCOMPARE(withoutImage.shown(), QStringLiteral("nothing 24"));
    send(withoutImage, QEvent::Enter);
    QCOMPARE(withoutImage.shown(), red + QStringLiteral(" 32"));
    send(withoutImage, QEvent::Leave);
    QCOMPARE(withoutImage.shown(), QStringLiteral("nothing 24"));
}

void tst_OxaGifButton::isClickedOnItsPicture()
{
    QWidget window;
    auto *button = new OxaGifButton(&window, m_files.image, imageSize, m_files.gif, gifSize);
    button->resize(60, 40);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QSignalSpy clicked(button, &QAbstractButton::clicked);
    const QRect picture = button->findChild<OxaLabel *>()->geometry();
    QVERIFY(!button->childAt(picture.center())); // What is there takes no events.
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, picture.center());
    QCOMPARE(clicked.size(), 1);
}

void tst_OxaGifButton::stopsWhenItIsHidden()
{
    QWidget window;
    auto *button = new OxaGifButton(&window, m_files.image, imageSize, m_files.gif, gifSize);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    button->setFocus();
    QVERIFY(button->findChild<QMovie *>());
    button->hide();
    deleteLaterNow();
    QVERIFY(!button->findChild<QMovie *>());
}

void tst_OxaGifButton::survivesItsDeletionWhilePlaying()
{
    auto button = std::make_unique<GifButton>(m_files);
    send(*button, QEvent::Enter);
    const QPointer<QMovie> movie = button->movie();
    button.reset();
    QVERIFY(!movie);
}

void tst_OxaGifButton::keepsItsMemoryOverManyCycles()
{
    GifButton button(m_files);
    const auto cycle = [&button](int count) {
        for (int i = 0; i < count; ++i) {
            send(button, QEvent::Enter);
            send(button, QEvent::Leave);
            QCoreApplication::processEvents();
            deleteLaterNow();
        }
    };
    cycle(100);
    const auto before = mallinfo2().uordblks;
    cycle(10000);
    // A QMovie with its reader and its frames takes more than 1,000 bytes.
    QVERIFY2(mallinfo2().uordblks < before + 100000,
             qPrintable(QString::number(mallinfo2().uordblks - before)));
    QCOMPARE(button.findChildren<QObject *>().size(), 2); // The layout and the label.
}

UIELEMENTS_TEST_MAIN(tst_OxaGifButton)
#include "tst_oxagifbutton.moc"
