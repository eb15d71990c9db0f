// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/movies/IOxaMovieProviderSource.h>

/// The source of an application that has no other: it never answers, so that providers show
/// nothing.
class UIELEMENTS_EXPORT OxaMovieProviderSource : public IOxaMovieProviderSource
{
    Q_OBJECT

public:
    /// Makes a source.
    explicit OxaMovieProviderSource(QObject *parent = nullptr);

    /// Does nothing.
    void fetchMovie(const QString &source) override;
};
