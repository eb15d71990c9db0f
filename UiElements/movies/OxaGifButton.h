// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/widgets/OxaPushButton.h>

class OxaLabel;
class QMovie;

/// A button with a picture, which an animated image replaces while the pointer is on the button or
/// it has the focus. The first of the two that ends stops the image.
///
/// Give it a size: its size hint is that of a button without a text. Give it an accessible name,
/// too: it has nothing else to be read out. Files that can't be read show
/// nothing, without a message. A button that is hidden stops playing.
class UIELEMENTS_EXPORT OxaGifButton : public OxaPushButton
{
    Q_OBJECT

public:
    /// Makes a button that shows the picture at \a imagePath in \a imageSize, and plays the one at
    /// \a gifPath in \a gifSize. Both keep their aspect ratio.
    OxaGifButton(QWidget *parent, const QString &imagePath, const QSize &imageSize,
                 const QString &gifPath, const QSize &gifSize);

protected:
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void hideEvent(QHideEvent *event) override;

protected Q_SLOTS:
    /// Shows the current frame of the animated image, if it plays.
    void setButtonIcon();

private:
    void startGif();
    void stopGif();
    void showImage();
    void setPixmapForInnerLabel(const QPixmap &pixmap, const QSize &size);

    QString m_imagePath;
    QString m_gifPath;
    QSize m_imageSize;
    QSize m_gifSize;
    QMovie *m_gifMovie = nullptr;
    OxaLabel *m_innerLabel = nullptr;
};
