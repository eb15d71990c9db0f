// SPDX-License-Identifier: Apache-2.0
#include "OxaGifButton.h"

#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/WidgetParts_p.h>

#include <QHBoxLayout>
#include <QMovie>

OxaGifButton::OxaGifButton(QWidget *parent, const QString &imagePath, const QSize &imageSize,
                           const QString &gifPath, const QSize &gifSize)
    : OxaPushButton(parent, QAccessible::PushButton),
      m_imagePath(imagePath),
      m_gifPath(gifPath),
      m_imageSize(imageSize),
      m_gifSize(gifSize)
{
    showImage();
}

void OxaGifButton::enterEvent(QEvent *event)
{
    startGif();
    OxaPushButton::enterEvent(event);
}

void OxaGifButton::leaveEvent(QEvent *event)
{
    stopGif();
    OxaPushButton::leaveEvent(event);
}

void OxaGifButton::focusInEvent(QFocusEvent *event)
{
    startGif();
    OxaPushButton::focusInEvent(event);
}

void OxaGifButton::focusOutEvent(QFocusEvent *event)
{
    stopGif();
    OxaPushButton::focusOutEvent(event);
}

void OxaGifButton::hideEvent(QHideEvent *event)
{
    // The only widget of a window that can have the focus keeps it while it is hidden.
    if (m_gifMovie)
        stopGif();
    OxaPushButton::hideEvent(event);
}

void OxaGifButton::setButtonIcon()
{
    if (m_gifMovie)
        setPixmapForInnerLabel(m_gifMovie->currentPixmap(), m_gifSize);
}

void OxaGifButton::startGif()
{
    if (m_gifPath.isEmpty())
        return; // Qt would warn.
    if (!m_gifMovie) {
        m_gifMovie = new QMovie(m_gifPath, QByteArray(), this);
        m_gifMovie->setCacheMode(QMovie::CacheAll);
        connect(m_gifMovie, &QMovie::frameChanged, this, &OxaGifButton::setButtonIcon);
    }
    m_gifMovie->start();
}

void OxaGifButton::stopGif()
{
    if (m_gifMovie) {
        m_gifMovie->stop();
        m_gifMovie->deleteLater();
        m_gifMovie = nullptr;
    }
    showImage();
}

void OxaGifButton::showImage() { setPixmapForInnerLabel(QPixmap(m_imagePath), m_imageSize); }

void OxaGifButton::setPixmapForInnerLabel(const QPixmap &pixmap, const QSize &size)
{
    if (!m_innerLabel) {
        m_innerLabel = new OxaLabel(this);
        m_innerLabel->setAttribute(Qt::WA_TransparentForMouseEvents);
        auto *layout = new QHBoxLayout(this);
        layout->setSpacing(0);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(m_innerLabel);
    }
    m_innerLabel->setFixedSize(size);
    m_innerLabel->setPixmap(WidgetParts::fitted(pixmap, size, devicePixelRatioF()));
}
