// SPDX-License-Identifier: Apache-2.0
#include "OxaGifLabel.h"

#include <UiElements/widgets/WidgetParts_p.h>

#include <QMovie>
#include <QPointer>

#include <utility>

namespace {

constexpr QSize unusedPixels(10, 10);

} // namespace

OxaGifLabel::OxaGifLabel(QWidget *parent) : OxaLabel(parent), m_movie(new QMovie(this))
{
    connect(m_movie, &QMovie::frameChanged, this, &OxaGifLabel::frameChanged);
}

OxaGifLabel::~OxaGifLabel()
{
    if (isGifPlaying())
        m_movie->stop();
    if (m_isEmittingFinished) {
        // A slot deletes the label. QMovie uses itself after the frame that it is announcing.
        m_movie->setParent(nullptr);
        m_movie->deleteLater();
    }
}

void OxaGifLabel::setGifPath(const QString &path) { m_movie->setFileName(path); }

QString OxaGifLabel::getGifPath() const { return m_movie->fileName(); }

void OxaGifLabel::startPlaying()
{
    if (!getGifPath().isEmpty()) // Qt would warn.
        m_movie->start();
}

void OxaGifLabel::stopPlaying() { m_movie->stop(); }

bool OxaGifLabel::isGifPlaying() const { return m_movie->state() == QMovie::Running; }

void OxaGifLabel::frameChanged(int frame)
{
    if (frame == m_movie->frameCount() - 1) {
        const QPointer<OxaGifLabel> self(this); // A slot may delete the label.
        const bool wasEmitting = std::exchange(m_isEmittingFinished, true);
        Q_EMIT finishedPlaying();
        if (!self)
            return;
        m_isEmittingFinished = wasEmitting; // A slot may have started the image again.
    }
    if (m_movie->isValid())
        setPixmap(WidgetParts::fitted(m_movie->currentPixmap(), size() - unusedPixels,
                                      devicePixelRatioF()));
}
