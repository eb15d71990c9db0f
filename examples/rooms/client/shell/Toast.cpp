// SPDX-License-Identifier: Apache-2.0
#include "Toast.h"

#include "Looks.h"
#include "RoomsApplication.h"

#include <UiElements/widgets/OxaLabel.h>

#include <QEvent>
#include <QHBoxLayout>

namespace {

constexpr int shownMs = 4000;
constexpr int fadeMs = 300;
constexpr int withoutFadeMs = 1;
constexpr int distance = 24;

} // namespace

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
    setObjectName(QStringLiteral("toast"));
    setCSS(QStringLiteral("$backgroundColors: toast; $borderRadius: 8;"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(16, 8, 16, 8);
    row->addWidget(Looks::makeLabel(text, OxaFont::Token::BodySecondary,
                                    QStringLiteral("toast-text"), this));
    setShowTimeout(shownMs);
    setFadeOutDuration(RoomsApplication::get()->animationsDisabled() ? withoutFadeMs : fadeMs);
    connect(this, &OxaNotification::fadeOutCompleted, this, &QObject::deleteLater);
    connect(this, &OxaNotification::fadeOutCompleted, this, &QWidget::hide);
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
    const QSize size = sizeHint().boundedTo(parentWidget()->size());
    resize(size);
    move((parentWidget()->width() - size.width()) / 2,
         parentWidget()->height() - size.height() - distance);
}
