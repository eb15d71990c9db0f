// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/emoji/OxaEmojiPushButton.h>

/// An emoji and the number of people who gave it. A click adds or removes the user.
class ReactionButton : public OxaEmojiPushButton
{
    Q_OBJECT

public:
    /// Shows that \a count others have given \a emoji, and the user if \a isMine is true.
    ReactionButton(const QString &emoji, int count, QWidget *parent = nullptr, bool isMine = false);

    QSize sizeHint() const override;

private:
    void toggle();
    void showCount();

    const QString m_emoji;
    int m_count;
    bool m_isMine;
};
