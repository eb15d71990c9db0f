// SPDX-License-Identifier: Apache-2.0
#include "MessageBody.h"

#include "MessageText.h"
#include "shell/Looks.h"

#include <QAbstractTextDocumentLayout>
#include <QDesktopServices>
#include <QMouseEvent>
#include <QPainter>

MessageBody::MessageBody(QWidget *parent) : QWidget(parent) { setMouseTracking(true); }

void MessageBody::setText(const QString &text, int width, const QColor &color)
{
    m_color = color;
    const QColor link = Looks::color("button-hyperlink-text");
    MessageText::layOut(m_document.get(), text, width, link, devicePixelRatioF());
    update();
}

void MessageBody::swapText(std::unique_ptr<QTextDocument> *document, int width, const QColor &color)
{
    m_color = color;
    m_document.swap(*document);
    m_document->setTextWidth(width); // Lines at the right end there.
    update();
}

void MessageBody::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = event->rect();
    context.palette.setColor(QPalette::Text, m_color);
    m_document->documentLayout()->draw(&painter, context);
}

void MessageBody::mouseMoveEvent(QMouseEvent *event)
{
    const QString link = m_document->documentLayout()->anchorAt(event->localPos());
    setCursor(link.isEmpty() ? Qt::ArrowCursor : Qt::PointingHandCursor);
    setToolTip(link);
    event->ignore();
}

void MessageBody::mousePressEvent(QMouseEvent *event)
{
    const bool isLeft = event->button() == Qt::LeftButton;
    m_pressed = isLeft ? m_document->documentLayout()->anchorAt(event->localPos()) : QString();
    if (m_pressed.isEmpty())
        event->ignore(); // The list makes the row its current one.
}

void MessageBody::mouseReleaseEvent(QMouseEvent *event)
{
    const QString link = m_document->documentLayout()->anchorAt(event->localPos());
    if (!link.isEmpty() && link == m_pressed)
        QDesktopServices::openUrl(QUrl(link));
}
