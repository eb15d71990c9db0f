// SPDX-License-Identifier: Apache-2.0
#include "MovieProviderCard.h"

#include "MovieFiles.h"
#include "MovieLabels.h"
#include "StagedMovieSource.h"
#include "looks/Metrics.h"
#include "shell/GalleryApplication.h"
#include "widgets/Buttons.h"
#include "widgets/CodeEdit.h"
#include "widgets/ControlRow.h"
#include "widgets/Fields.h"
#include "widgets/Labels.h"
#include "widgets/WrapLayout.h"

#include <UiElements/widgets/OxaComboBox.h>
#include <UiElements/widgets/OxaLabel.h>

#include <QMovie>
#include <QVBoxLayout>

namespace {

constexpr int logLines = 6;
constexpr int linesToKeep = 200;

} // namespace

MovieProviderCard::MovieProviderCard(QWidget *parent)
    : Card(tr("OxaMovieProvider"),
           tr("Asks the application's source for a movie, and tells what to show. Only the answer "
              "to its last request counts."),
           parent),
      m_source(qobject_cast<StagedMovieSource *>(
              GalleryApplication::get()->getMovieProviderSource())),
      m_stage(MovieLabels::make(tr("What the provider shows"), this)),
      m_log(new CodeEdit(this))
{
    m_log->setReadOnly(true);
    m_log->setAccessibleName(tr("Requests, answers and signals"));
    m_log->setMaximumBlockCount(linesToKeep);
    m_log->setMinimumLines(logLines);
    m_log->setMaximumHeight(m_log->minimumHeight());
    auto *row = new QHBoxLayout;
    row->setSpacing(Metrics::spacing);
    row->addWidget(m_stage, 0, Qt::AlignTop);
    row->addWidget(m_log, 1);
    body()->addWidget(makeStories());
    body()->addLayout(makeRequests());
    body()->addLayout(row);

    connect(m_source, &StagedMovieSource::logged, this, &MovieProviderCard::log);
    makeProvider();
    fetch(MovieFiles::ball);
}

QWidget *MovieProviderCard::makeStories()
{
    // In the order of the stories.
    const QStringList texts = { tr("At once"),
                                tr("Late"),
                                tr("Late, the second request first"),
                                tr("Late, and once more"),
                                tr("Not at all"),
                                tr("With a failure and a picture"),
                                tr("With a failure alone") };
    auto *stories = Fields::combo(tr("The source answers"), texts);
    const auto tell = [source = m_source](int story) {
        source->setStory(StagedMovieSource::Story(story));
    };
    connect(stories, QOverload<int>::of(&QComboBox::currentIndexChanged), m_source, tell);
    tell(0);
    return new ControlRow(tr("The source answers"), stories, this);
}

QLayout *MovieProviderCard::makeRequests()
{
    using Act = std::function<void()>;
    const std::pair<QString, Act> requests[] = {
        { tr("Fetch the ball"), [this] { fetch(MovieFiles::ball); } },
        { tr("Fetch the heart"), [this] { fetch(MovieFiles::heart); } },
        { tr("Fetch both"),
          [this] {
              fetch(MovieFiles::ball);
              fetch(MovieFiles::heart);
          } },
        { tr("Replace the provider"), [this] { makeProvider(); } },
    };
    auto *row = new WrapLayout(Metrics::small);
    for (const auto &[text, act] : requests) {
        auto *button = Buttons::make(text, this);
        connect(button, &OxaPushButton::clicked, this, act);
        row->addWidget(button);
    }
    return row;
}

void MovieProviderCard::makeProvider()
{
    m_provider = std::make_unique<OxaMovieProvider>();
    const OxaMovieProvider *provider = m_provider.get();
    connect(provider, &OxaMovieProvider::movieChanged, this,
            [this] { log(QStringLiteral("movieChanged()")); });
    connect(provider, &OxaMovieProvider::fallbackSourceChanged, this,
            [this] { log(QStringLiteral("fallbackSourceChanged()")); });
    connect(provider, &OxaMovieProvider::stackIndexChanged, this, [this, provider] {
        log(QStringLiteral("stackIndexChanged(): %1").arg(provider->getStackIndex()));
        show();
    });
    log(tr("a new provider"));
    show();
}

void MovieProviderCard::fetch(const QString &source)
{
    log(QStringLiteral("fetch(\"%1\")").arg(source));
    m_provider->fetch(source);
}

void MovieProviderCard::show()
{
    switch (m_provider->getStackIndex()) {
    case 1:
        m_stage->setMovie(m_provider->getMovie());
        if (m_stage->isVisible())
            m_provider->getMovie()->start();
        break;
    case 2:
        m_stage->setPixmap(MovieLabels::picture(m_provider->getFallbackSource()));
        break;
    default:
        m_stage->setText(tr("Nothing yet"));
    }
}

void MovieProviderCard::log(const QString &line) { m_log->appendPlainText(line); }
