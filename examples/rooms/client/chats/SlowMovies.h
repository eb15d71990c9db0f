// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/movies/IOxaMovieProviderSource.h>

#include <QStringList>

/// The client's animated images, which arrive as late as over a network. A name is that of the
/// image, then "#" and anything: each provider has a movie of its own by that.
class SlowMovies : public IOxaMovieProviderSource
{
    Q_OBJECT

public:
    explicit SlowMovies(QObject *parent = nullptr);

    /// The names of all images.
    static QStringList names();

    void fetchMovie(const QString &source) override;

private:
    void answer(const QString &source);
};
