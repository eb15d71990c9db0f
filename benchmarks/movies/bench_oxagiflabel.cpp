// SPDX-License-Identifier: Apache-2.0
#include "support/Comparison.h"
#include "support/GifFiles.h"
#include "support/Stores.h"

#include <UiElements/movies/OxaGifLabel.h>
#include <UiElements/theme/OxaThemeUtils.h>

#include <QMovie>
#include <QTemporaryFile>

namespace {

constexpr QSize pictureSize(200, 150);

/// What a label that nobody sees costs at each frame of 480 by 270 pixels.
void frameOfAHiddenLabel(benchmark::State &state)
{
    OxaThemeUtils::setAppOxaColorSets(Stores::make(0));
    QTemporaryFile file;
    if (!file.open())
        return state.SkipWithError("There is no temporary file.");
    file.write(GifFiles::bytes({ { Qt::red, Qt::blue }, QSize(480, 270), 100, GifFiles::endless }));
    file.flush();

    OxaGifLabel label;
    label.resize(pictureSize + QSize(10, 10));
    label.setGifPath(file.fileName());
    auto *labelsMovie = label.findChild<QMovie *>();
    QMovie movie(file.fileName());
    QPixmap picture;
    const auto ours = [labelsMovie] { labelsMovie->jumpToNextFrame(); };
    const auto peer = [&movie, &picture] {
        movie.jumpToNextFrame();
        picture = movie.currentPixmap().scaled(pictureSize, Qt::KeepAspectRatio,
                                               Qt::SmoothTransformation);
    };
    ours();
    peer();
    if (label.pixmap(Qt::ReturnByValue).toImage() != picture.toImage())
        return state.SkipWithError("The pictures differ.");

    Comparison comparison(state);
    for (auto _ : state)
        comparison.round(ours, peer, 10);
    comparison.ratioAtMost(1.05);
}

BENCHMARK(frameOfAHiddenLabel)
        ->Name("a frame of a hidden OxaGifLabel/decoding and scaling it")
        ->Iterations(50)
        ->UseManualTime();

} // namespace
