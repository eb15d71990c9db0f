// SPDX-License-Identifier: Apache-2.0
#include "GifView.h"

#include "shell/RoomsApplication.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int radius = 8;

QPixmap rounded(const QPixmap &picture, qreal pixelRatio)
{
    QPixmap result(picture.size() * pixelRatio);
    result.setDevicePixelRatio(pixelRatio);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    QPainterPath path;
    path.addRoundedRect(QRectF(QPointF(), picture.size()), radius, radius);
    painter.setClipPath(path);
    painter.drawPixmap(0, 0, picture);
    return result;
}

} // namespace

GifView::GifView(const QString &name, QWidget *parent)
    : OxaLabel(parent, QAccessible::Graphic), m_name(name)
{
    setFixedSize(movieSize());
    setAlignment(Qt::AlignCenter);
    setFontToken(OxaFont::Token::RadioButtonLabelSecondary);
    setWordWrap(true);
    setAccessibleName(tr("Moving picture: %1").arg(name));
    setToolTip(name);
    setCSS(QStringLiteral("$backgroundColors: placeholder-bar; $textColors: text-secondary; "
                          "$borderRadius: 8;"));
    setText(tr("Loading\u2026"));
    connect(&m_provider, &OxaMovieProvider::movieChanged, this, [this] {
        connect(m_provider.getMovie(), &QMovie::frameChanged, this, &GifView::showFrame);
        m_provider.getMovie()->jumpToFrame(0);
        play(underMouse());
    });
    connect(&m_provider, &OxaMovieProvider::fallbackSourceChanged, this,
            [this] { setText(tr("Not found: %1").arg(m_name)); });
    // A name of its own: providers of the same name share a movie, and lose it with its owner.
    static int number = 0;
    m_provider.fetch(QStringLiteral("%1#%2").arg(name).arg(++number));
}

bool GifView::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::Enter:
    case QEvent::FocusIn:
        play(true);
        break;
    case QEvent::Leave:
    case QEvent::FocusOut:
    case QEvent::Hide:
        play(false);
        break;
    default:
        break;
    }
    return OxaLabel::event(event);
}

void GifView::showFrame()
{
    if (const QMovie *movie = m_provider.getMovie())
        setPixmap(rounded(movie->currentPixmap(), devicePixelRatioF()));
}

void GifView::play(bool isPlaying)
{
    QMovie *movie = m_provider.getMovie();
    if (!movie)
        return;
    if (!isPlaying || RoomsApplication::get()->animationsDisabled())
        movie->setPaused(true);
    else if (movie->state() == QMovie::NotRunning)
        movie->start();
    else
        movie->setPaused(false);
}
