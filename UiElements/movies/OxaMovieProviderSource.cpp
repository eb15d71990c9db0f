// SPDX-License-Identifier: Apache-2.0
#include "OxaMovieProviderSource.h"

OxaMovieProviderSource::OxaMovieProviderSource(QObject *parent)
    : IOxaMovieProviderSource(parent) { }

void OxaMovieProviderSource::fetchMovie(const QString &) { }
