// SPDX-License-Identifier: Apache-2.0
#include "FilesPage.h"

#include "data/Backend.h"
#include "protocol/Literal.h"
#include "shell/Looks.h"
#include "shell/RoomsApplication.h"

#include <UiElements/drag/DragEvent.h>
#include <UiElements/qml/OxaQmlEngine.h>
#include <UiElements/qml/OxaQuickWidget.h>

#include <QDrag>
#include <QLocale>
#include <QMimeData>
#include <QQmlContext>
#include <QUrl>
#include <QVBoxLayout>

#include <memory>

FilesPage::FilesPage(Backend *backend, QWidget *parent) : OxaWidget(parent), m_backend(backend)
{
    setObjectName(u"files"_s);
    // A drag has an event loop of its own, which QML's handler must not wait for.
    connect(this, &FilesPage::dragRequested, this, &FilesPage::drag, Qt::QueuedConnection);
    RoomsApplication::get()->getQmlEngine()->rootContext()->setContextProperty(u"files"_s, this);
    m_view = OxaQmlEngine::createQmlWidget(u"rooms/Files.qml"_s, this, {}, {});
    m_view->setResizeMode(QQuickWidget::SizeRootObjectToView);
    m_view->setCustomAccessibilityEnabled(true);
    m_view->setFocusPolicy(Qt::StrongFocus);
    m_view->setAccessibleName(tr("Files"));
    Looks::makeColumn(this)->addWidget(m_view);
}

FilesPage::~FilesPage() { delete m_view; }

PagedFiles *FilesPage::model() const { return m_backend->files(); }

QString FilesPage::personName(const QString &id) const { return m_backend->person(id).name; }

QString FilesPage::sizeText(qint64 bytes) const
{
    return QLocale().formattedDataSize(bytes, 1, QLocale::DataSizeTraditionalFormat);
}

void FilesPage::drag(const QString &name)
{
    // A list of JavaScript would be one of variants, in which the record finds no URLs.
    const QList<QUrl> urls { QUrl(u"rooms:/files/"_s + name) };
    const QVariantMap values { { u"urls"_s, QVariant::fromValue(urls) } };
    // The record owns the mime data, and outlives the drag that takes it.
    const auto record = std::make_shared<DragEvent>(values);
    auto *drag = new QDrag(this);
    drag->setMimeData(record->toMimeData());
    connect(drag, &QObject::destroyed, this, [record] { Q_UNUSED(record) });
    drag->exec(Qt::CopyAction);
}
