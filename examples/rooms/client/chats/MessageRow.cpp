// SPDX-License-Identifier: Apache-2.0
#include "MessageRow.h"

#include "GifView.h"
#include "MessageBody.h"
#include "ReactionBar.h"
#include "TimeTexts.h"
#include "people/Avatar.h"
#include "people/PersonCards.h"
#include "shell/Looks.h"

#include <UiElements/svg/OxaSvgLabel.h>
#include <UiElements/svg/OxaSvgPushButton.h>
#include <UiElements/svg/OxaSvgRenderer.h>
#include <UiElements/widgets/OxaLabel.h>

#include <QPainter>

namespace {

constexpr int bubbleRadius = 10;

} // namespace

void MessageRow::setMessage(const Message &message, const Person &author, const RowLook &look,
                            const QSize &size, PersonCards *cards,
                            std::unique_ptr<QTextDocument> *laidOut)
{
    const bool isOtherContent = message.kind != m_message.kind || message.text != m_message.text;
    m_message = message;
    m_look = look;
    m_size = size;
    if (isOtherContent)
        delete m_content;
    if (message.kind == Message::Kind::Text)
        showText(laidOut);
    else
        showContent();
    showAuthor(author, cards);
    showFailure();
    if (!m_reactions && !message.reactions.isEmpty()) {
        m_reactions = new ReactionBar(this);
        connect(m_reactions, &ReactionBar::toggled, this, &MessageRow::reactionToggled);
    }
    if (m_reactions) {
        m_reactions->setReactions(message.reactions);
        m_reactions->setVisible(!message.reactions.isEmpty());
    }
    setToolTip(QLocale().toString(message.at.toLocalTime(), QLocale::LongFormat));
    place();
}

void MessageRow::showText(std::unique_ptr<QTextDocument> *laidOut)
{
    if (!m_body)
        m_body = new MessageBody(this);
    const QColor color = Looks::color(m_look.isOwn ? "bubble-own-text" : "bubble-other-text");
    if (laidOut)
        m_body->swapText(laidOut, m_size.width(), color);
    else
        m_body->setText(m_message.text, m_size.width(), color);
}

void MessageRow::showContent()
{
    if (m_content)
        return;
    if (m_message.kind == Message::Kind::Gif) {
        m_content = new GifView(m_message.text, this);
    } else {
        auto *file = new OxaSvgLabel(m_message.text, this);
        file->setFontToken(OxaFont::Token::BodySecondary);
        file->setSvgIcon(OxaSvgRenderer::resourcePath(QStringLiteral("file")));
        file->setSvgIconSize({ 20, 20 });
        file->setSvgIconPadding(QMargins(12, 0, 8, 0));
        file->setTextRightPadding(12);
        file->setTextHorAlign(OxaEnum::HorAlign::LeftAlign);
        file->setCSS(QStringLiteral("$textColors: text-primary; $borderColors: panel-border; "
                                    "$backgroundColors: panel; $borders: all; $borderWidth: 1; "
                                    "$borderRadius: 8;"));
        m_content = file;
    }
}

void MessageRow::showAuthor(const Person &author, PersonCards *cards)
{
    const bool isShown = m_look.isGroupStart && !m_look.isOwn;
    if (isShown && !m_avatar) {
        m_avatar = new Avatar(RowLayout::avatarSize, this);
        m_name = new OxaLabel(this);
        m_name->setFontToken(OxaFont::Token::BodyTertiary);
        cards->watch(m_avatar, author.id);
        cards->watch(m_name, author.id);
    }
    if (m_avatar) {
        m_avatar->setPerson(author, false);
        m_avatar->setVisible(isShown);
        m_name->setText(author.name);
        m_name->setVisible(isShown);
    }
}

void MessageRow::showFailure()
{
    const bool isFailed = m_message.state == Message::State::Failed;
    if (isFailed && !m_retry) {
        m_retry = Looks::makeButton(tr("Not sent. Try again"), Looks::Button::Quiet, this);
        m_retry->setFontToken(OxaFont::Token::BodyTertiary);
        m_retry->setMinimumHeight(0);
        m_retry->setCSS(
                Looks::buttonStyle(Looks::Button::Quiet)
                        .replace(QLatin1String("quiet-button-text"), QLatin1String("field-error")));
        connect(m_retry, &OxaSvgPushButton::clicked, this, &MessageRow::retryRequested);
    }
    if (m_retry)
        m_retry->setVisible(isFailed);
}

void MessageRow::place()
{
    m_layout = RowLayout::of(m_look, m_message, m_size, width());
    QWidget *content = m_message.kind == Message::Kind::Text ? m_body : m_content.data();
    content->setGeometry(mirrored(m_layout.content));
    if (m_avatar) {
        m_avatar->setGeometry(mirrored(m_layout.avatar));
        QRect name = m_layout.head;
        name.setWidth(qMin(name.width() / 2, m_name->sizeHint().width()));
        m_name->setGeometry(mirrored(name));
    }
    if (m_reactions)
        m_reactions->setGeometry(mirrored(m_layout.reactions));
    if (m_retry) {
        QRect button = m_layout.failure;
        button.setLeft(button.right() - m_retry->sizeHint().width());
        m_retry->setGeometry(mirrored(button));
    }
    update();
}

void MessageRow::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_look.hasDay)
        paintLine(&painter, m_layout.day, TimeTexts::day(m_message.at.toLocalTime().date()),
                  "divider", "text-secondary");
    if (m_look.isFirstUnread)
        paintLine(&painter, m_layout.unread, tr("New messages"), "unread-line", "unread-line");
    if (m_message.kind == Message::Kind::Text) {
        painter.setPen(Looks::color("bubble-border"));
        painter.setBrush(Looks::color(m_look.isOwn ? "bubble-own" : "bubble-other"));
        painter.setOpacity(m_message.state == Message::State::Waiting ? 0.6 : 1);
        painter.drawRoundedRect(QRectF(mirrored(m_layout.bubble)).adjusted(0.5, 0.5, -0.5, -0.5),
                                bubbleRadius, bubbleRadius);
        painter.setOpacity(1);
    }
    if (!m_look.isGroupStart)
        return;
    QString time = TimeTexts::time(m_message.at);
    if (m_message.state == Message::State::Waiting)
        time = tr("Sending\u2026");
    QRect rest = m_layout.head;
    if (!m_look.isOwn)
        rest.setLeft(rest.left() + m_name->width() + 8);
    painter.setFont(OxaFont(OxaFont::Token::RadioButtonLabelSecondary));
    painter.setPen(Looks::color("text-secondary"));
    painter.drawText(mirrored(rest),
                     int(m_look.isOwn ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter, time);
}

void MessageRow::paintLine(QPainter *painter, const QRect &line, const QString &text,
                           const char *lineColor, const char *textColor) const
{
    painter->setFont(OxaFont(OxaFont::Token::BodyTertiary));
    const int textWidth = painter->fontMetrics().horizontalAdvance(text) + 24;
    painter->setPen(Looks::color(lineColor));
    const int y = line.center().y();
    const int half = (line.width() - textWidth) / 2;
    painter->drawLine(line.left(), y, line.left() + half, y);
    painter->drawLine(line.right() - half, y, line.right(), y);
    painter->setPen(Looks::color(textColor));
    painter->drawText(line, Qt::AlignCenter, text);
}

QRect MessageRow::mirrored(const QRect &rect) const
{
    return QStyle::visualRect(layoutDirection(), this->rect(), rect);
}

void MessageRow::resizeEvent(QResizeEvent *event)
{
    OxaWidget::resizeEvent(event);
    if (m_body || m_content)
        place();
}
