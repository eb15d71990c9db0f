// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaTextEdit.h>
#include <UiElements/widgets/OxaWidget.h>

class Backend;
class GifView;
class OxaSvgPushButton;

/// The field of the composer, which is as high as its text, up to six lines.
class ComposerField : public OxaTextEdit
{
    Q_OBJECT

public:
    explicit ComposerField(QWidget *parent);

Q_SIGNALS:
    void submitted();
    /// Up was pressed where there is nothing to go up in.
    void leftUpwards();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void insertFromMimeData(const QMimeData *source) override;

private:
    void fitHeight();
    void colorPlaceholder();
};

/// Where a message is written. What is not sent stays the conversation's draft.
class Composer : public OxaWidget
{
    Q_OBJECT

public:
    Composer(Backend *backend, QWidget *parent);

    /// Shows the draft of \a conversation.
    void setConversation(const QString &conversation, const QString &title);

    /// Begins with a quote of \a text by \a author.
    void quote(const QString &author, const QString &text);

    ComposerField *field() const { return m_field; }

Q_SIGNALS:
    void sent();
    void filesDropped(const QStringList &names);

private:
    void showFocus(bool hasFocus);
    void follow();
    void send();
    void pickEmoji();
    void pickGif();
    void sendGif(const GifView *movie);

    bool eventFilter(QObject *watched, QEvent *event) override;

    Backend *const m_backend;
    QString m_conversation;
    ComposerField *const m_field;
    OxaSvgPushButton *m_emoji = nullptr;
    OxaSvgPushButton *m_gif = nullptr;
    OxaSvgPushButton *m_send = nullptr;
};
