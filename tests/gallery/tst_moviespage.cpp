// SPDX-License-Identifier: Apache-2.0
#include "Controls.h"
#include "GalleryTest.h"

#include <UiElements/movies/OxaGifButton.h>
#include <UiElements/movies/OxaGifLabel.h>
#include <UiElements/movies/OxaMovie.h>
#include <UiElements/widgets/OxaComboBox.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaSlider.h>

#include <QSignalSpy>

#include <pages/movies/MovieFiles.h>
#include <pages/movies/MovieProviderCard.h>
#include <pages/movies/StagedMovieSource.h>
#include <pages/widgets/Pages.h>
#include <shell/Page.h>
#include <widgets/CodeEdit.h>

namespace {

constexpr int delay = 20;

StagedMovieSource *source()
{
    return qobject_cast<StagedMovieSource *>(GalleryApplication::get()->getMovieProviderSource());
}

/// A card with a provider, whose log is empty, in a window that is shown.
struct Shown
{
    Shown()
    {
        source()->setDelay(delay);
        window.resize(600, 500);
        card->resize(window.size());
        window.show();
        log->clear();
    }

    void tell(const char *story) const
    {
        auto *stories = Controls::called<OxaComboBox>(*card, "The source answers");
        stories->setCurrentIndex(stories->findText(QLatin1String(story)));
    }

    void press(const char *button) const { Controls::withText<>(*card, button)->click(); }

    QString lines() const
    {
        return log->toPlainText().replace(QLatin1Char('\n'), QLatin1String(" | "));
    }

    const OxaLabel &stage() const
    {
        return *Controls::called<OxaLabel>(*card, "What the provider shows");
    }

    QWidget window;
    QPointer<MovieProviderCard> card = new MovieProviderCard(&window);
    CodeEdit *log = card->findChild<CodeEdit *>();
};

/// The page in a window that is shown.
struct MoviesWindow
{
    MoviesWindow()
    {
        window.resize(1200, 1500);
        page->resize(window.size());
        window.show();
    }

    template <typename Widget>
    Widget *called(const char *name) const
    {
        return Controls::called<Widget>(*page, name);
    }

    int playing() const
    {
        const auto labels = page->findChildren<OxaLabel *>();
        return int(std::count_if(labels.begin(), labels.end(), [](const OxaLabel *label) {
            const auto *gif = qobject_cast<const OxaGifLabel *>(label);
            const QMovie *movie = label->movie();
            return (gif && gif->isGifPlaying()) || (movie && movie->state() == QMovie::Running);
        }));
    }

    QWidget window;
    Page *page = Pages::makeMovies(&window);
};

/// What happens before an answer comes.
using Leave = void (*)(Shown &shown);

} // namespace

Q_DECLARE_METATYPE(Leave)

/// The page "Movies".
class tst_MoviesPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsEachStory_data();
    void tellsEachStory();
    void showsWhatTheProviderSays();
    void dropsAnAnswerThatNobodyWaitsFor_data();
    void dropsAnAnswerThatNobodyWaitsFor();
    void playsNothingWhileItIsHidden();
    void playsAnotherFile();
    void showsWhatCanBeReadOfOddFiles();
    void playsAButtonUnderThePointer();
    void playsTheSameFromMemory();
    void setsStateAndSpeedOfAllMovies();
};

void tst_MoviesPage::tellsEachStory_data()
{
    QTest::addColumn<QByteArray>("story");
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QString>("lines");
    const QString taken = QStringLiteral(" | movieChanged() | stackIndexChanged(): 1");
    const QString fetch = QStringLiteral("fetch(\"ball\") | ");
    const QString both = fetch + QStringLiteral("fetch(\"heart\") | ");
    const QString ball = QStringLiteral("answer: ball");
    const QString heart = QStringLiteral("answer: heart");
    QTest::newRow("at once") << QByteArray("At once") << QByteArray("Fetch the ball")
                             << fetch + ball + taken;
    QTest::newRow("two at once") << QByteArray("At once") << QByteArray("Fetch both")
                                 << fetch + ball + taken + QStringLiteral(" | fetch(\"heart\") | ")
                    + heart + taken;
    QTest::newRow("late") << QByteArray("Late") << QByteArray("Fetch the ball")
                          << fetch + ball + taken;
    QTest::newRow("two late, of which the second counts")
            << QByteArray("Late") << QByteArray("Fetch both")
            << both + ball + QStringLiteral(" | ") + heart + taken;
    QTest::newRow("out of order") << QByteArray("Late, the second request first")
                                  << QByteArray("Fetch both")
                                  << both + heart + taken + QStringLiteral(" | ") + ball;
    QTest::newRow("twice") << QByteArray("Late, and once more") << QByteArray("Fetch the ball")
                           << fetch + ball + taken + QStringLiteral(" | ") + ball + taken;
    QTest::newRow("a failure with a picture")
            << QByteArray("With a failure and a picture") << QByteArray("Fetch the ball")
            << fetch
                    + QStringLiteral("answer: no ball, but a picture | fallbackSourceChanged() | "
                                     "stackIndexChanged(): 2");
    QTest::newRow("a failure alone")
            << QByteArray("With a failure alone") << QByteArray("Fetch the ball")
            << fetch
                    + QStringLiteral("answer: no ball | warning: image download failed and empty "
                                     "fallbackImage source");
    QTest::newRow("not at all") << QByteArray("Not at all") << QByteArray("Fetch the ball")
                                << QStringLiteral("fetch(\"ball\")");
}

void tst_MoviesPage::tellsEachStory()
{
    QFETCH(const QByteArray, story);
    QFETCH(const QByteArray, button);
    QFETCH(const QString, lines);
    const Shown shown;
    shown.tell(story.constData());
    shown.press(button.constData());
    QTRY_COMPARE(shown.lines(), lines);
    // Nothing more comes before the answer to another request, which is later than any of these.
    source()->setDelay(4 * delay);
    shown.tell("Late");
    shown.press("Fetch the heart");
    QTRY_COMPARE(shown.lines(),
                 lines
                         + QStringLiteral(" | fetch(\"heart\") | answer: heart | movieChanged() | "
                                          "stackIndexChanged(): 1"));
}

void tst_MoviesPage::showsWhatTheProviderSays()
{
    const Shown shown;
    QVERIFY(shown.stage().movie());
    QCOMPARE(shown.stage().movie()->state(), QMovie::Running);
    QCOMPARE(shown.stage().movie()->fileName(), MovieFiles::path(MovieFiles::ball));
    shown.press("Fetch the heart");
    QCOMPARE(shown.stage().movie()->fileName(), MovieFiles::path(MovieFiles::heart));
    shown.tell("With a failure and a picture");
    shown.press("Fetch the ball");
    QTRY_VERIFY(!shown.stage().movie());
    QCOMPARE(shown.stage().pixmap(Qt::ReturnByValue).size(), QSize(160, 160));
    shown.press("Replace the provider");
    QCOMPARE(shown.stage().text(), QStringLiteral("Nothing yet"));
}

void tst_MoviesPage::dropsAnAnswerThatNobodyWaitsFor_data()
{
    QTest::addColumn<Leave>("leave");
    QTest::addColumn<QString>("lines");
    QTest::newRow("the page is left") << Leave([](Shown &shown) { shown.window.hide(); })
                                      << QStringLiteral("fetch(\"heart\") | answer: heart | "
                                                        "movieChanged() | stackIndexChanged(): 1");
    QTest::newRow("the page is deleted")
            << Leave([](Shown &shown) { delete shown.card; }) << QString();
    QTest::newRow("the provider is replaced")
            << Leave([](Shown &shown) { shown.press("Replace the provider"); })
            << QStringLiteral("fetch(\"heart\") | a new provider | answer: heart");
}

void tst_MoviesPage::dropsAnAnswerThatNobodyWaitsFor()
{
    QFETCH(const Leave, leave);
    QFETCH(const QString, lines);
    Shown shown;
    shown.tell("Late");
    shown.press("Fetch the heart");
    leave(shown);
    const QSignalSpy answers(source(), &StagedMovieSource::logged);
    QTRY_COMPARE(answers.size(), 1);
    QCOMPARE(source()->findChildren<OxaMovie *>().size(), 0);
    if (!shown.card)
        return;
    QCOMPARE(shown.lines(), lines);
    // A movie that comes while the page is hidden waits.
    if (shown.window.isHidden()) {
        QVERIFY(shown.stage().movie()->state() != QMovie::Running);
        shown.window.show();
        QCOMPARE(shown.stage().movie()->state(), QMovie::Running);
    }
}

void tst_MoviesPage::playsNothingWhileItIsHidden()
{
    MoviesWindow window;
    // Three specimens, two of three files, three movies, and the provider's.
    QCOMPARE(window.playing(), 9);
    window.window.hide();
    QCOMPARE(window.playing(), 0);
    window.window.show();
    QCOMPARE(window.playing(), 9);
}

void tst_MoviesPage::playsAnotherFile()
{
    const MoviesWindow window;
    const auto labels = window.page->findChildren<OxaGifLabel *>();
    Controls::choose(*window.page, "setGifPath()", "Once");
    for (const OxaGifLabel *label : labels.mid(0, 3)) {
        QCOMPARE(label->getGifPath(), MovieFiles::path(MovieFiles::once));
        QVERIFY(label->isGifPlaying());
    }
    const auto *log = window.called<CodeEdit>("What it emits");
    QTRY_VERIFY(log->toPlainText().endsWith(QLatin1String("finishedPlaying()")));
    QTRY_VERIFY(!labels.front()->isGifPlaying());
    Controls::choose(*window.page, "startPlaying()", "Yes");
    QVERIFY(labels.front()->isGifPlaying());
    Controls::choose(*window.page, "startPlaying()", "No");
    QCOMPARE(window.called<OxaLabel>("isGifPlaying()")->text(), QStringLiteral("No"));
}

void tst_MoviesPage::showsWhatCanBeReadOfOddFiles()
{
    const MoviesWindow window;
    const auto *larger = window.called<OxaGifLabel>("waves");
    QCOMPARE(larger->pixmap(Qt::ReturnByValue).size(), QSize(102, 57));
    const auto *cutOff = window.called<OxaGifLabel>("cut-off");
    QVERIFY(cutOff->isGifPlaying());
    QCOMPARE(cutOff->pixmap(Qt::ReturnByValue).size(), QSize(102, 102));
    const auto *noPicture = window.called<OxaGifLabel>("text");
    QVERIFY(!noPicture->isGifPlaying());
    QVERIFY(noPicture->pixmap(Qt::ReturnByValue).isNull());
}

void tst_MoviesPage::playsAButtonUnderThePointer()
{
    MoviesWindow window;
    auto *button = window.called<OxaGifButton>("heart");
    const auto picture = [button] {
        return button->findChild<OxaLabel *>()->pixmap(Qt::ReturnByValue).toImage();
    };
    const QImage still = picture();
    QVERIFY(!button->findChild<QMovie *>());
    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(button, &enter);
    QCOMPARE(button->findChild<QMovie *>()->state(), QMovie::Running);
    QTRY_COMPARE(picture().size(), QSize(96, 96));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(button, &leave);
    QCOMPARE(picture(), still);
    QTRY_VERIFY(!button->findChild<QMovie *>());
}

void tst_MoviesPage::playsTheSameFromMemory()
{
    const MoviesWindow window;
    Controls::choose(*window.page, "state()", "Stopped");
    QVector<QImage> frames;
    for (const char *name : { "a file", "a copy", "the bytes themselves" }) {
        QMovie *movie = window.called<OxaLabel>(name)->movie();
        while (movie->currentFrameNumber() != 7)
            QVERIFY(movie->jumpToNextFrame());
        frames += movie->currentImage();
    }
    QCOMPARE(frames[0].size(), QSize(96, 96));
    QCOMPARE(frames[1], frames[0]);
    QCOMPARE(frames[2], frames[0]);
}

void tst_MoviesPage::setsStateAndSpeedOfAllMovies()
{
    const MoviesWindow window;
    const auto *number = window.called<OxaLabel>("currentFrameNumber()");
    QTRY_VERIFY(number->text().toInt() > 2);
    Controls::choose(*window.page, "state()", "Paused");
    window.called<OxaSlider>("setSpeed()")->setValue(250);
    for (const char *name : { "a file", "a copy", "the bytes themselves" }) {
        const QMovie *movie = window.called<OxaLabel>(name)->movie();
        QCOMPARE(movie->state(), QMovie::Paused);
        QCOMPARE(movie->speed(), 250);
    }
    Controls::choose(*window.page, "state()", "Running");
    QCOMPARE(window.called<OxaLabel>("a copy")->movie()->state(), QMovie::Running);
}

GALLERY_TEST_MAIN(tst_MoviesPage)
#include "tst_moviespage.moc"
