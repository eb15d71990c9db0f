// SPDX-License-Identifier: Apache-2.0
#include "OxaMovieProvider.h"

#include <UiElements/app/ApplicationObject_p.h>
#include <UiElements/app/IOxaApplication.h>
#include <UiElements/movies/IOxaMovieProviderSource.h>

#include <QDebug>

namespace {

constexpr char noFallbackWarning[] = "image download failed and empty fallbackImage source";

constexpr int movieIndex = 1;
constexpr int fallbackIndex = 2;

} // namespace

OxaMovieProvider::OxaMovieProvider()
{
    if (auto *application = ApplicationObject::find<IOxaApplication>())
        m_movieSource = application->getMovieProviderSource();
    if (!m_movieSource)
        return;
    connect(m_movieSource, &IOxaMovieProviderSource::movieFetched, this,
            &OxaMovieProvider::onMovieFetched);
    connect(m_movieSource, &IOxaMovieProviderSource::movieFetchFailed, this,
            &OxaMovieProvider::onMovieFetchFailed);
}

OxaMovieProvider::~OxaMovieProvider() = default;

void OxaMovieProvider::fetch(const QString &source)
{
    m_requestedSource = source;
    if (m_movieSource)
        m_movieSource->fetchMovie(source);
}

void OxaMovieProvider::onMovieFetched(OxaMovie *movie, const QString &source)
{
    // A movie that is null is no answer: there is nothing to show.
    if (!movie || source != m_requestedSource)
        return;
    const QPointer<OxaMovieProvider> self(this); // A slot may delete the provider.
    const QPointer<QMovie> before = m_movie;
    m_movie = movie;
    movie->setParent(this);
    Q_EMIT movieChanged();
    if (self)
        setStackIndex(movieIndex);
    // A source may send the same movie again, and another provider may own the old one.
    if (self && before && before != m_movie && before->parent() == this)
        before->deleteLater();
}

void OxaMovieProvider::onMovieFetchFailed(const QString &fallbackSource, const QString &source)
{
    if (source != m_requestedSource)
        return;
    if (fallbackSource.isEmpty()) {
        QMessageLogger().warning() << noFallbackWarning;
        return;
    }
    const QPointer<OxaMovieProvider> self(this); // A slot may delete the provider.
    m_fallbackSource = fallbackSource;
    Q_EMIT fallbackSourceChanged();
    if (self)
        setStackIndex(fallbackIndex);
}

void OxaMovieProvider::setStackIndex(int index)
{
    m_stackIndex = index;
    Q_EMIT stackIndexChanged();
}
