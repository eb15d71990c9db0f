// SPDX-License-Identifier: Apache-2.0
#include "StagedMovieSource.h"

#include "MovieFiles.h"
#include "looks/WarningCollector.h"

#include <QTimer>

void StagedMovieSource::setStory(Story story)
{
    m_story = story;
    m_isNextBefore = false;
}

void StagedMovieSource::fetchMovie(const QString &source)
{
    switch (m_story) {
    case Story::AtOnce:
        send(source);
        break;
    case Story::Late:
        sendLater(source);
        break;
    case Story::OutOfOrder:
        sendLater(source, m_isNextBefore ? 1 : 3);
        m_isNextBefore = !m_isNextBefore;
        break;
    case Story::Twice:
        sendLater(source);
        sendLater(source, 2);
        break;
    case Story::Never:
        break;
    case Story::FailsWithFallback:
        failLater(source, fallback());
        break;
    case Story::FailsWithoutFallback:
        failLater(source, QString());
        break;
    }
}

QString StagedMovieSource::fallback() { return QStringLiteral(":/emojis/1f622.svg"); }

void StagedMovieSource::send(const QString &source)
{
    Q_EMIT logged(tr("answer: %1").arg(source));
    const QPointer<OxaMovie> movie(new OxaMovie(MovieFiles::path(source), QByteArray(), this));
    Q_EMIT movieFetched(movie, source);
    // Nobody takes an answer that is too late.
    if (movie && movie->parent() == this)
        delete movie;
}

void StagedMovieSource::fail(const QString &source, const QString &fallback)
{
    Q_EMIT logged(fallback.isEmpty() ? tr("answer: no %1").arg(source)
                                     : tr("answer: no %1, but a picture").arg(source));
    const WarningCollector warnings;
    Q_EMIT movieFetchFailed(fallback, source);
    const QStringList texts = warnings.texts();
    for (const QString &text : texts)
        Q_EMIT logged(tr("warning: %1").arg(text));
}

void StagedMovieSource::sendLater(const QString &source, int delays)
{
    QTimer::singleShot(delays * m_delay, this, [this, source] { send(source); });
}

void StagedMovieSource::failLater(const QString &source, const QString &fallback)
{
    QTimer::singleShot(m_delay, this, [this, source, fallback] { fail(source, fallback); });
}
