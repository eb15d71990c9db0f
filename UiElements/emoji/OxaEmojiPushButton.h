// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/emoji/OxaEmojiLabel.h>

/// An OxaEmojiLabel that is a button: the left mouse button, Space, Return and Enter click it, with
/// any text interaction flags.
///
/// All other keys are consumed: they reach no parent. It takes focus only if the focus policy is
/// set.
class UIELEMENTS_EXPORT OxaEmojiPushButton : public OxaEmojiLabel
{
    Q_OBJECT

public:
    using OxaEmojiLabel::OxaEmojiLabel;

protected Q_SLOTS:
    /// Emits clicked() for the left button, and does nothing else.
    void mouseReleaseEvent(QMouseEvent *event) override;
    /// Emits clicked() for Space, Return and Enter, and does nothing else.
    void keyPressEvent(QKeyEvent *event) override;
};
