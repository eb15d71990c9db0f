// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ChatHistory.h"

#include <UiElements/widgets/OxaWidget.h>

class ReactionButton;
class WrappedEmojiLabel;
struct ChatLook;

/// The widget of a message: the author's initial, name and time where a group of messages begins,
/// the text, and the reactions as buttons. There is a new one each time a message comes into view,
/// so that it paints itself what needs no widget.
class ChatRow : public OxaWidget
{
    Q_OBJECT

public:
    /// Shows \a message, which begins \a start, at once in \a size. The message, in which the
    /// user's reactions are stored, and \a look must outlive the row.
    ChatRow(ChatMessage &message, ChatStart start, const ChatLook &look, const QSize &size,
            QWidget *parent);

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void makeReactions();
    void place();
    void paintDay(QPainter &painter, const QRect &rect) const;
    void paintHead(QPainter &painter, const QRect &avatar, const QRect &head) const;
    QRect onScreen(const QRect &rect) const;

    ChatMessage &m_message;
    const ChatStart m_start;
    const ChatLook &m_look;
    WrappedEmojiLabel *m_text = nullptr;
    std::vector<ReactionButton *> m_reactions;
};
