// SPDX-License-Identifier: Apache-2.0
#include "FilesPage.h"

#include "FilesController.h"
#include "data/Backend.h"

#include <UiElements/drag/DragEvent.h>
#include <UiElements/qml/OxaQmlEngine.h>
#include <UiElements/qml/OxaQuickWidget.h>

#include <QDrag>
#include <QMimeData>
#include <QUrl>
#include <QVBoxLayout>

#include <memory>

FilesPage::FilesPage(Backend *backend, QWidget *parent) : OxaWidget(parent)
{
    setObjectName(QStringLiteral("files"));
    setCSS(QStringLiteral("$backgroundColors: window;"));
    qmlRegisterType<FilesController>("Rooms", 1, 0, "FilesController");
    const auto start = [this, backend](OxaQmlController *controller) {
        auto *files = qobject_cast<FilesController *>(controller);
        files->setBackend(backend);
        // A drag has an event loop of its own, which QML's handler must not wait for.
        connect(files, &FilesController::dragRequested, this, &FilesPage::drag,
                Qt::QueuedConnection);
    };
    const QPointer<OxaQuickWidget> view = OxaQmlEngine::createQmlWidget(QStringLiteral(
                                                                                "rooms/Files.qml"),
                                                                        this, {}, start);
    if (!view)
        return;
    view->setResizeMode(QQuickWidget::SizeRootObjectToView);
    view->setCustomAccessibilityEnabled(true);
    view->setFocusPolicy(Qt::StrongFocus);
    view->setAccessibleName(tr("Files"));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(view);
}

void FilesPage::drag(const QString &name)
{
    // A list of JavaScript would be one of variants, in which the record finds no URLs.
    const QList<QUrl> urls { QUrl(QStringLiteral("rooms:/files/") + name) };
    const QVariantMap values { { QStringLiteral("urls"), QVariant::fromValue(urls) } };
    // The record owns the mime data, and outlives the drag that takes it.
    const auto record = std::make_shared<DragEvent>(values);
    auto *drag = new QDrag(this);
    drag->setMimeData(record->toMimeData());
    connect(drag, &QObject::destroyed, this, [record] { Q_UNUSED(record) });
    drag->exec(Qt::CopyAction);
}
