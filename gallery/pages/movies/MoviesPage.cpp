// SPDX-License-Identifier: Apache-2.0
#include "MovieFiles.h"
#include "MovieLabels.h"
#include "MovieProviderCard.h"
#include "looks/Metrics.h"
#include "pages/widgets/Pages.h"
#include "shell/Page.h"
#include "specimens/WidgetCard.h"
#include "widgets/Buttons.h"
#include "widgets/ColumnsLayout.h"
#include "widgets/SegmentedControl.h"
#include "widgets/WrapLayout.h"

#include <UiElements/movies/OxaGifButton.h>
#include <UiElements/movies/OxaGifLabel.h>
#include <UiElements/movies/OxaMovie.h>

#include <QFile>
#include <QVBoxLayout>

namespace {

using MovieFiles::path;

constexpr int narrowest = 48;
constexpr int widest = 240;
constexpr QSize stillSize(64, 64);
constexpr QSize playingSize(96, 96);

QString tr(const char *text) { return Page::tr(text); }

/// Returns a label that plays \a file while it is visible: a hidden one would go on.
OxaGifLabel *makeGifLabel(const QString &file)
{
    auto *label = new OxaGifLabel;
    MovieLabels::setUp(label, file);
    label->setGifPath(path(file));
    QObject::connect(label, &OxaLabel::onVisibilityChanged, label, [label](bool isVisible) {
        isVisible ? label->startPlaying() : label->stopPlaying();
    });
    return label;
}

void addGifLabel(Page &page)
{
    auto *controls = WidgetCard::add(
            page, tr("OxaGifLabel"),
            tr("Plays an animated image, scaled into the label. It ends at each pass of the last "
               "frame, also if the image repeats. The gallery stops what nobody sees."),
            [] { return makeGifLabel(MovieFiles::ball); });
    const auto setPath = [](QWidget *widget, const QVariant &file) {
        auto *label = qobject_cast<OxaGifLabel *>(widget);
        label->stopPlaying();
        label->setGifPath(path(file.toString()));
        label->startPlaying();
    };
    controls->addChoice(tr("setGifPath()"),
                        { { tr("Ball"), MovieFiles::ball },
                          { tr("Heart"), MovieFiles::heart },
                          { tr("Once"), MovieFiles::once } },
                        setPath);
    const auto play = [](QWidget *widget, const QVariant &plays) {
        auto *label = qobject_cast<OxaGifLabel *>(widget);
        plays.toBool() ? label->startPlaying() : label->stopPlaying();
    };
    controls->addChoice(tr("startPlaying()"), { { tr("Yes"), true }, { tr("No"), false } }, play);
    controls->addWidth(narrowest, widest);
    controls->addHeight(narrowest, widest);
    const auto *inUse = qobject_cast<OxaGifLabel *>(controls->front());
    controls->addReading(tr("isGifPlaying()"),
                         [inUse] { return inUse->isGifPlaying() ? tr("Yes") : tr("No"); });
}

Card *makeOddFiles()
{
    auto *card = new Card(tr("Odd files"),
                          tr("What can be read of a file is played. Of others nothing is shown, "
                             "and nothing is said."));
    auto *row = new WrapLayout(Metrics::spacing);
    const std::pair<QString, QString> files[] = { { tr("larger"), MovieFiles::waves },
                                                  { tr("cut off"), MovieFiles::cutOff },
                                                  { tr("no picture"), MovieFiles::text } };
    for (const auto &[caption, file] : files)
        row->addWidget(MovieLabels::captioned(caption, makeGifLabel(file)));
    card->body()->addLayout(row);
    card->body()->addStretch(1);
    return card;
}

Card *makeGifButtons()
{
    auto *card = new Card(tr("OxaGifButton"),
                          tr("Plays while the pointer is on it, or while it has the focus: move "
                             "over the buttons, or press Tab."));
    auto *row = new WrapLayout(Metrics::spacing);
    const std::pair<QString, QString> files[] = { { tr("repeats"), MovieFiles::heart },
                                                  { tr("plays once"), MovieFiles::once },
                                                  { tr("no picture"), MovieFiles::text } };
    for (const auto &[caption, file] : files) {
        // The picture is the first frame.
        auto *button = new OxaGifButton(nullptr, path(file), stillSize, path(file), playingSize);
        Buttons::setUp(*button);
        button->setFixedSize(MovieLabels::side, MovieLabels::side);
        button->setAccessibleName(file);
        row->addWidget(MovieLabels::captioned(caption, button));
    }
    card->body()->addLayout(row);
    card->body()->addStretch(1);
    return card;
}

/// Returns the same movie from a file, from a copy of its bytes, and from the bytes themselves.
QVector<OxaMovie *> makeMovies(QObject *parent)
{
    // They have to outlive the movies.
    static const QByteArray bytes = [] {
        QFile file(path(MovieFiles::ball));
        file.open(QIODevice::ReadOnly);
        return file.readAll();
    }();
    return { new OxaMovie(path(MovieFiles::ball), QByteArray(), parent),
             new OxaMovie(parent, bytes.constData(), bytes.size(), true),
             new OxaMovie(parent, bytes.constData(), bytes.size(), false) };
}

void addMovieControls(ControlPanel *controls, const QVector<OxaMovie *> &movies)
{
    const auto setState = [movies](int state) {
        for (OxaMovie *movie : movies) {
            if (state == 2)
                movie->stop();
            else
                movie->start();
            if (state == 1)
                movie->setPaused(true);
        }
    };
    controls->addChoice(tr("state()"), { tr("Running"), tr("Paused"), tr("Stopped") }, 0, setState);
    const auto setSpeed = [movies](int percent) {
        for (OxaMovie *movie : movies)
            movie->setSpeed(percent);
    };
    controls->addNumber(tr("setSpeed()"), 25, 400, 100, setSpeed);
    OxaLabel *number = controls->addValue(tr("currentFrameNumber()"));
    QObject::connect(movies.front(), &QMovie::frameChanged, number,
                     [number](int frame) { number->setText(QString::number(frame)); });
}

Card *makeMoviesCard()
{
    auto *card = new Card(tr("OxaMovie"),
                          tr("A QMovie that also plays from memory: from a copy of the bytes, or "
                             "from the bytes where they are."));
    const QString captions[] = { tr("a file"), tr("a copy"), tr("the bytes themselves") };
    auto *row = new WrapLayout(Metrics::spacing);
    const QVector<OxaMovie *> movies = makeMovies(card);
    for (int i = 0; i < movies.size(); ++i) {
        OxaLabel *label = MovieLabels::make(captions[i]);
        label->setMovie(movies[i]);
        row->addWidget(MovieLabels::captioned(captions[i], label));
    }
    auto *controls = new ControlPanel;
    addMovieControls(controls, movies);
    card->body()->addLayout(row);
    card->body()->addWidget(controls);
    card->body()->addStretch(1);
    return card;
}

} // namespace

Page *Pages::makeMovies(QWidget *parent)
{
    auto *page = new Page(tr("Movies"),
                          tr("Animated images from files, from memory, and from where the "
                             "application gets them."),
                          parent);
    addGifLabel(*page);
    ColumnsLayout *cards = page->makeColumns();
    cards->addWidget(makeOddFiles());
    cards->addWidget(makeGifButtons());
    cards->addWidget(makeMoviesCard());
    cards->addWidget(new MovieProviderCard);
    page->body()->addStretch(1);
    return page;
}
