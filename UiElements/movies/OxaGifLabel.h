// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/widgets/OxaLabel.h>

class QMovie;

/// A label that plays an animated image, scaled with its aspect ratio into a size that is 10 pixels
/// less than the label's in each direction.
///
/// Give it a fixed size: its size hint is that of the picture, so that a layout which follows the
/// hint makes label and picture smaller with each frame.
///
/// A hidden label plays on, so that finishedPlaying() is emitted, and costs as much processor time
/// as decoding and scaling its frames: about 2 ms for one of 480 by 270 pixels, which is 4 % of a
/// core at 20 frames a second (measured, see benchmarks/movies). Call stopPlaying() when
/// onVisibilityChanged() says that nobody sees it.
class UIELEMENTS_EXPORT OxaGifLabel : public OxaLabel
{
    Q_OBJECT

public:
    /// Makes a label without an image.
    explicit OxaGifLabel(QWidget *parent = nullptr);

    /// Stops the image.
    ~OxaGifLabel() override;

    /// Sets the file that is played. The label keeps its picture, and does not play by itself. Stop
    /// a playing label before: it would show no more frames until stopPlaying() and startPlaying().
    void setGifPath(const QString &path);

    /// Returns the path of the file. Empty by default.
    QString getGifPath() const;

    /// Plays the image from its start; does nothing while it plays. A file that can't be read plays
    /// nothing, without a message.
    void startPlaying();

    /// Stops the image at its frame.
    void stopPlaying();

    /// True while the image plays.
    bool isGifPlaying() const;

Q_SIGNALS:
    /// The image comes to its last frame, which the label does not show yet. Emitted at each pass
    /// of an image that repeats. A slot may delete the label.
    void finishedPlaying();

protected:
    /// Shows the current frame; for the last one, finishedPlaying() is emitted before.
    void frameChanged(int frame);

private:
    QMovie *const m_movie;
    bool m_isEmittingFinished = false;
};
