// SPDX-License-Identifier: Apache-2.0
#include "FileDrop.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace {

QStringList namesIn(const QMimeData &data)
{
    QStringList names;
    const QList<QUrl> urls = data.urls().mid(0, FileDrop::mostFiles);
    for (const QUrl &url : urls) {
        if (!url.fileName().isEmpty())
            names += url.fileName();
    }
    return names;
}

} // namespace

FileDrop::FileDrop(QWidget *target) : QObject(target)
{
    target->setAcceptDrops(true);
    target->installEventFilter(this);
}

bool FileDrop::eventFilter(QObject *watched, QEvent *event)
{
    const bool isDrop = event->type() == QEvent::Drop;
    if (!isDrop && event->type() != QEvent::DragEnter && event->type() != QEvent::DragMove)
        return QObject::eventFilter(watched, event);
    auto *drag = static_cast<QDropEvent *>(event);
    if (!drag->mimeData()->hasUrls())
        return QObject::eventFilter(watched, event);
    drag->setDropAction(Qt::CopyAction);
    drag->accept();
    const QStringList names = namesIn(*drag->mimeData());
    if (isDrop && !names.isEmpty())
        Q_EMIT dropped(names, drag->pos());
    return true;
}
