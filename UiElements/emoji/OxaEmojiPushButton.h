// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/emoji/OxaEmojiLabel.h>

/// An OxaEmojiLabel that is a button: it is clicked by the left button, Space, Return and Enter,
/// whatever its text interaction flags are.
///
/// All other keys end here: they reach no parent. It takes focus only if the focus policy is set.
class UIELEMENTS_EXPORT OxaEmojiPushButton : public OxaEmojiLabel
{
    Q_OBJECT

public:
    using OxaEmojiLabel::OxaEmojiLabel;

protected Q_SLOTS:
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
};
