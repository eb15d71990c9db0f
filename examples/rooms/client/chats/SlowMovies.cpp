// SPDX-License-Identifier: Apache-2.0
#include "SlowMovies.h"

#include <QDir>
#include <QTimer>

namespace {

constexpr int lateMs = 250;

} // namespace

SlowMovies::SlowMovies(QObject *parent) : IOxaMovieProviderSource(parent) { }

QStringList SlowMovies::names()
{
    QStringList names = QDir(QStringLiteral(":/gifs")).entryList();
    names.replaceInStrings(QStringLiteral(".gif"), QString());
    return names;
}

void SlowMovies::fetchMovie(const QString &source)
{
    QTimer::singleShot(lateMs, this, [this, source] { answer(source); });
}

void SlowMovies::answer(const QString &source)
{
    // Names come from strangers: only those of images that there are.
    const QString name = source.section(QLatin1Char('#'), 0, 0);
    if (!names().contains(name)) {
        Q_EMIT movieFetchFailed(QStringLiteral(":/Resources/picture.svg"), source);
        return;
    }
    const QPointer<OxaMovie> movie(
            new OxaMovie(QStringLiteral(":/gifs/%1.gif").arg(name), "gif", this));
    Q_EMIT movieFetched(movie, source);
    if (movie && movie->parent() == this)
        delete movie; // Whoever asked for it is gone.
}
