// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/movies/OxaMovie.h>

/// Where movie providers get their movies from. The library downloads nothing: the outer
/// application derives a class of its own, and hands an object of it out by
/// OxaApplication::getMovieProviderSource().
class UIELEMENTS_EXPORT IOxaMovieProviderSource : public QObject
{
    Q_OBJECT

public:
    ~IOxaMovieProviderSource() override;

    /// Starts to fetch the movie called \a source, and returns at once. Exactly one of the signals
    /// below answers, at any time, also before this function returns.
    virtual void fetchMovie(const QString &source) = 0;

Q_SIGNALS:
    /// The movie called \a source is there. Each provider whose latest name is \a source takes it;
    /// the last of them to be made becomes the parent of \a movie. None of them starts it. A movie
    /// that none takes stays with the sender, which is the case of late answers.
    void movieFetched(OxaMovie *movie, const QString &source);

    /// There is no movie called \a source. The picture \a fallbackSource is to be shown instead; it
    /// should not be empty.
    void movieFetchFailed(const QString &fallbackSource, const QString &source);

protected:
    /// Makes a source.
    explicit IOxaMovieProviderSource(QObject *parent);
};
