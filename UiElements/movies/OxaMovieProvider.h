// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/movies/OxaMovie.h>

#include <QPointer>

class IOxaMovieProviderSource;

/// Asks the application's source for a movie, and tells QML what to show: nothing yet, the movie,
/// or a picture in its place.
///
/// It keeps the latest movie only. What is shown stays until the next answer. A slot of its signals
/// may delete it.
///
/// All providers hear all answers of their source. Each one whose latest name is the answered one
/// takes the answer, also if it had one before. They share the movie: the one that was made last
/// owns it, and deletes it with itself or after its next movie. `movie` of the others is null then,
/// without a signal. Where that matters, give each provider a name of its own.
///
/// A movie is not started: call QMovie::start() in a slot of movieChanged().
class UIELEMENTS_EXPORT OxaMovieProvider : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int stackIndex READ getStackIndex NOTIFY stackIndexChanged)
    Q_PROPERTY(QMovie *movie READ getMovie NOTIFY movieChanged)
    Q_PROPERTY(QString fallbackSource READ getFallbackSource NOTIFY fallbackSourceChanged)

public:
    /// Makes a provider with the application's source at this time. Without an IOxaApplication, or
    /// if that has none, the provider never gets an answer.
    OxaMovieProvider();
    ~OxaMovieProvider() override;

    /// Returns what to show: 0 nothing yet, 1 the movie, 2 the picture at fallbackSource.
    int getStackIndex() const { return m_stackIndex; }

    /// Returns the latest movie, which a failure keeps. Null at first.
    QMovie *getMovie() const { return m_movie; }

    /// Returns the picture of the latest failure, which a later movie keeps. Empty at first.
    QString getFallbackSource() const { return m_fallbackSource; }

    /// Asks for the movie called \a source. The answers to earlier calls are dropped from now on,
    /// unless they are for the same name. Changes no property by itself.
    Q_INVOKABLE void fetch(const QString &source);

Q_SIGNALS:
    /// There was an answer that sets stackIndex, possibly to the same value.
    void stackIndexChanged();

    /// There is a new movie. stackIndexChanged() follows.
    void movieChanged();

    /// A fetch failed and a picture is to be shown, possibly the same. stackIndexChanged() follows.
    void fallbackSourceChanged();

private Q_SLOTS:
    void onMovieFetched(OxaMovie *movie, const QString &source);
    void onMovieFetchFailed(const QString &fallbackSource, const QString &source);

private:
    void setStackIndex(int index);

    int m_stackIndex = 0;
    QPointer<QMovie> m_movie;
    QString m_fallbackSource;
    QString m_requestedSource;
    QPointer<IOxaMovieProviderSource> m_movieSource;
};
