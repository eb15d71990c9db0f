// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "widgets/Card.h"

#include <UiElements/movies/OxaMovieProvider.h>

#include <memory>

class CodeEdit;
class OxaLabel;
class QLayout;
class StagedMovieSource;

/// An OxaMovieProvider: what it shows, requests to it, and a log of them, the source's answers and
/// its signals.
class MovieProviderCard : public Card
{
    Q_OBJECT

public:
    explicit MovieProviderCard(QWidget *parent = nullptr);

private:
    QWidget *makeStories();
    QLayout *makeRequests();
    void makeProvider();
    void fetch(const QString &source);
    void show();
    void log(const QString &line);

    StagedMovieSource *const m_source;
    std::unique_ptr<OxaMovieProvider> m_provider;
    OxaLabel *m_stage;
    CodeEdit *m_log;
};
