// SPDX-License-Identifier: Apache-2.0
#include "Toast.h"

#include "Looks.h"
#include "RoomsApplication.h"
#include "protocol/Literal.h"

#include <UiElements/widgets/OxaLabel.h>

#include <QEvent>
#include <QHBoxLayout>

void Toast::show(const QString &text, QWidget *parent)
{
    qDeleteAll(parent->findChildren<Toast *>(QString(), Qt::FindDirectChildrenOnly));
    auto *toast = new Toast(text, parent);
    toast->place();
    toast->OxaNotification::show();
    toast->raise();
    toast->start();
}

Toast::Toast(const QString &text, QWidget *parent) : OxaNotification(parent)
{
    setObjectName(u"toast"_s);
    setCSS(u"$backgroundColors: toast; $borderRadius: 8;"_s);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_DeleteOnClose);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(16, 8, 16, 8);
    row->addWidget(Looks::makeLabel(text, OxaFont::Token::BodySecondary, u"toast-text"_s, this));
    setShowTimeout(4000);
    setFadeOutDuration(RoomsApplication::get()->animationsDisabled() ? 1 : 300);
    connect(this, &OxaNotification::fadeOutCompleted, this, &QWidget::close);
    parent->installEventFilter(this);
}

bool Toast::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        place();
    return OxaNotification::eventFilter(watched, event);
}

void Toast::place()
{
    const QSize around = parentWidget()->size();
    const QSize size = sizeHint().boundedTo(around);
    setGeometry({ { (around.width() - size.width()) / 2, around.height() - size.height() - 24 },
                  size });
}
