// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/widgets/OxaWidget.h>

class QTimer;

/// The base of a message that fades out by itself: start() waits for `showTimeout`, then fades for
/// `fadeOutDuration`, and then emits fadeOutCompleted().
///
/// Assistive technology is told of an alert when it appears, with the texts of its labels.
///
/// Hiding it stops nothing. After the fade it is visible and opaque again, if nobody has hidden or
/// deleted it.
class UIELEMENTS_EXPORT OxaNotification : public OxaWidget
{
    Q_OBJECT
    Q_PROPERTY(int showTimeout READ getShowTimeout WRITE setShowTimeout)
    Q_PROPERTY(int fadeOutDuration READ getFadeOutDuration WRITE setFadeOutDuration)

public:
    /// Makes a message that stays.
    explicit OxaNotification(QWidget *parent = nullptr);

    /// Starts the wait, or starts it again with the current time. With a `showTimeout` below 1 it
    /// ends the wait instead: the message then stays. A fade that runs goes on in both cases.
    void start();

    /// Returns how long the message is shown before it fades, in milliseconds. 0 by default.
    int getShowTimeout() const { return m_showTimeout; }

    /// Stores the time, for the next start().
    void setShowTimeout(int milliseconds) { m_showTimeout = milliseconds; }

    /// Returns how long the message fades, in milliseconds. 0 by default: it never does, and after
    /// each `showTimeout` it looks for another value.
    int getFadeOutDuration() const { return m_fadeOutDuration; }

    /// Stores the duration, for the next fade.
    void setFadeOutDuration(int milliseconds) { m_fadeOutDuration = milliseconds; }

Q_SIGNALS:
    /// The message is faded out: hide or delete it. It is shown opaque again after this signal. A
    /// slot may delete the message.
    void fadeOutCompleted();

protected:
    void showEvent(QShowEvent *event) override;

private Q_SLOTS:
    void onFadeOut();

private:
    void onFadeOutFinished();

    int m_fadeOutDuration = 0;
    int m_showTimeout = 0;
    QTimer *m_timer = nullptr;
};
