// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/movies/IOxaMovieProviderSource.h>

/// The gallery's source of movies, which answers as it is told to: to show what an OxaMovieProvider
/// makes of answers that are late, or not as expected.
class StagedMovieSource : public IOxaMovieProviderSource
{
    Q_OBJECT

public:
    /// How requests are answered.
    enum class Story {
        AtOnce,               ///< Before fetchMovie() returns.
        Late,                 ///< After the delay.
        OutOfOrder,           ///< Late, the second of two requests before the first.
        Twice,                ///< Late, with another movie once more.
        Never,                ///< Not at all.
        FailsWithFallback,    ///< Late, with a picture instead.
        FailsWithoutFallback, ///< Late, with nothing instead.
    };

    /// Makes a source that answers at once.
    explicit StagedMovieSource(QObject *parent) : IOxaMovieProviderSource(parent) { }

    /// Sets how requests from now on are answered.
    void setStory(Story story);

    /// Sets how late answers come, for requests from now on. 600 milliseconds at first.
    void setDelay(int milliseconds) { m_delay = milliseconds; }

    void fetchMovie(const QString &source) override;

    /// Returns the path of the picture that is shown instead of a movie.
    static QString fallback();

Q_SIGNALS:
    /// An answer follows, or has had a warning logged: \a line says which.
    void logged(const QString &line);

private:
    void send(const QString &source);
    void fail(const QString &source, const QString &fallback);
    void sendLater(const QString &source, int delays = 1);
    void failLater(const QString &source, const QString &fallback);

    Story m_story = Story::AtOnce;
    int m_delay = 600;
    bool m_isNextBefore = false; ///< In Story::OutOfOrder, the next answer overtakes the last one.
};
