// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "data/PagedFiles.h"

#include <UiElements/widgets/OxaWidget.h>

#include <QPointer>

class Backend;
class OxaQuickWidget;

/// The million files of the server. A file can be dragged onto a conversation. Its QML knows it as
/// "files".
class FilesPage : public OxaWidget
{
    Q_OBJECT
    Q_PROPERTY(PagedFiles *model READ model CONSTANT)

public:
    /// Shows the files of \a backend.
    explicit FilesPage(Backend *backend, QWidget *parent = nullptr);

    /// Deletes the view first, which uses this object.
    ~FilesPage() override;

    PagedFiles *model() const;

    /// The row \a index came into view.
    Q_INVOKABLE void scrollTo(int index) { model()->setScrolledIndex(index); }

    Q_INVOKABLE QString personName(const QString &id) const;
    Q_INVOKABLE QString sizeText(qint64 bytes) const;

Q_SIGNALS:
    /// The user drags the file called \a name.
    void dragRequested(const QString &name);

private:
    void drag(const QString &name);

    Backend *const m_backend;
    QPointer<OxaQuickWidget> m_view;
};
