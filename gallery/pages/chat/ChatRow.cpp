// SPDX-License-Identifier: Apache-2.0
#include "ChatRow.h"

#include "ChatLook.h"
#include "looks/Metrics.h"
#include "pages/emoji/ReactionButton.h"
#include "pages/emoji/WrappedEmojiLabel.h"

#include <QPainter>
#include <QStyle>

ChatRow::ChatRow(ChatMessage &message, ChatStart start, const ChatLook &look, const QSize &size,
                 QWidget *parent)
    : OxaWidget(parent), m_message(message), m_start(start), m_look(look)
{
    resize(size);
    m_text = new WrappedEmojiLabel(QString(), this);
    m_text->setAttribute(Qt::WA_TransparentForMouseEvents);
    makeReactions();
    place();
}

void ChatRow::makeReactions()
{
    int bit = 1;
    for (const Reaction &reaction : ChatHistory::reactionsOf(m_message)) {
        const bool isOwn = m_message.ownReactions & bit;
        auto *button = new ReactionButton(reaction.emoji, reaction.count, this, isOwn);
        connect(button, &ReactionButton::clicked, this, [this, bit] {
            m_message.ownReactions ^= quint8(bit);
            place();
        });
        m_reactions.push_back(button);
        bit *= 2;
    }
}

void ChatRow::changeEvent(QEvent *event)
{
    OxaWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        place();
}

void ChatRow::resizeEvent(QResizeEvent *event)
{
    OxaWidget::resizeEvent(event);
    place();
}

void ChatRow::showEvent(QShowEvent *event)
{
    OxaWidget::showEvent(event);
    // Not before: the label lays out its text at each change, and has its size once it is shown.
    m_text->setText(ChatHistory::texts()[m_message.text]);
}

void ChatRow::paintEvent(QPaintEvent *)
{
    const ChatParts parts = m_look.partsOf(m_message, m_start, size());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_start == ChatStart::Day)
        paintDay(painter, parts.day);
    if (m_start != ChatStart::Nothing)
        paintHead(painter, onScreen(parts.avatar), parts.head);
}

void ChatRow::place()
{
    if (!m_text)
        return;
    const ChatParts parts = m_look.partsOf(m_message, m_start, size());
    m_text->setGeometry(onScreen(parts.text));
    QRect rect = parts.reactions;
    for (ReactionButton *button : m_reactions) {
        rect.setWidth(button->sizeHint().width());
        button->setGeometry(onScreen(rect));
        rect.moveLeft(rect.right() + 1 + Metrics::tight);
    }
}

/// Draws the day between two lines.
void ChatRow::paintDay(QPainter &painter, const QRect &rect) const
{
    const QString day = ChatHistory::dayOf(m_message);
    const int textWidth = QFontMetrics(m_look.item.captionFont).horizontalAdvance(day);
    const int lineWidth = (rect.width() - textWidth) / 2 - Metrics::small;
    const QRect line(rect.left(), rect.center().y(), lineWidth, 1);
    painter.fillRect(line, m_look.item.line.normal);
    painter.fillRect(line.translated(rect.width() - lineWidth, 0), m_look.item.line.normal);
    painter.setFont(m_look.item.captionFont);
    painter.setPen(m_look.item.captionText.normal);
    painter.drawText(rect, Qt::AlignCenter, day);
}

void ChatRow::paintHead(QPainter &painter, const QRect &avatar, const QRect &head) const
{
    const QString name = ChatHistory::authorOf(m_message);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_look.avatars[m_message.author % m_look.avatars.size()]);
    painter.drawEllipse(avatar);
    painter.setFont(m_look.item.headingFont);
    painter.setPen(m_look.avatarText);
    painter.drawText(avatar, Qt::AlignCenter, name.left(1));

    QRect rect = head;
    rect.setWidth(painter.fontMetrics().horizontalAdvance(name));
    painter.setPen(m_look.item.headingText.normal);
    painter.drawText(onScreen(rect), Qt::AlignCenter, name);
    rect.setLeft(rect.right() + 1 + Metrics::small);
    rect.setRight(head.right());
    painter.setFont(m_look.item.captionFont);
    painter.setPen(m_look.item.captionText.normal);
    painter.drawText(onScreen(rect),
                     int(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft)
                         | Qt::AlignAbsolute | Qt::AlignVCenter),
                     ChatHistory::timeOf(m_message));
}

QRect ChatRow::onScreen(const QRect &rect) const
{
    return QStyle::visualRect(layoutDirection(), this->rect(), rect);
}
