// SPDX-License-Identifier: Apache-2.0
#include "IOxaMovieProviderSource.h"

IOxaMovieProviderSource::IOxaMovieProviderSource(QObject *parent) : QObject(parent) { }

IOxaMovieProviderSource::~IOxaMovieProviderSource() = default;
