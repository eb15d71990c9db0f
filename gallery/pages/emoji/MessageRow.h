// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

class QLayout;
class QVBoxLayout;
struct Message;

/// A message: an avatar, the author's name, the time, the text, and the reactions as buttons.
class MessageRow : public OxaWidget
{
    Q_OBJECT

public:
    /// Shows \a message with the avatar colour of \a number.
    MessageRow(const Message &message, int number, QWidget *parent = nullptr);

private:
    QWidget *makeAvatar(const QString &author, int number);
    QLayout *makeHead(const Message &message);
    QLayout *makeReactions(const Message &message);
};
