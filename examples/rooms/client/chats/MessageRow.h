// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "RowLayout.h"

#include <UiElements/widgets/OxaWidget.h>

#include <QPointer>

#include <memory>

class Avatar;
class MessageBody;
class OxaLabel;
class OxaSvgPushButton;
class PersonCards;
class QTextDocument;
class ReactionBar;

/// A message on screen, with who wrote it and what stands before it.
class MessageRow : public OxaWidget
{
    Q_OBJECT

public:
    using OxaWidget::OxaWidget;

    /// Shows \a message by \a author, whose content has \a size. Takes its text from \a laidOut, if
    /// that is not null.
    void setMessage(const Message &message, const Person &author, const RowLook &look,
                    const QSize &size, PersonCards *cards,
                    std::unique_ptr<QTextDocument> *laidOut = nullptr);

Q_SIGNALS:
    void reactionToggled(const QString &emoji);
    void retryRequested();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void showText(std::unique_ptr<QTextDocument> *laidOut);
    void showContent();
    void showAuthor(const Person &author, PersonCards *cards);
    void showFailure();
    void place();
    void paintLine(QPainter *painter, const QRect &line, const QString &text, const char *lineColor,
                   const char *textColor) const;
    QRect mirrored(const QRect &rect) const;

    Message m_message;
    RowLook m_look;
    QSize m_size;
    RowLayout m_layout;
    Avatar *m_avatar = nullptr;
    OxaLabel *m_name = nullptr;
    MessageBody *m_body = nullptr;
    QPointer<QWidget> m_content; ///< The picture or the file in place of a text.
    ReactionBar *m_reactions = nullptr;
    OxaSvgPushButton *m_retry = nullptr;
};
