// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaNotification.h>

/// A short message over the lower part of a window, which fades and is gone after some seconds.
class Toast : public OxaNotification
{
    Q_OBJECT

public:
    /// Shows \a text over \a parent. It takes the place of the one that is there.
    static void show(const QString &text, QWidget *parent);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Toast(const QString &text, QWidget *parent);
    void place();
};
