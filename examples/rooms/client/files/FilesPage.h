// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

class Backend;

/// The million files of the server. A file can be dragged onto a conversation.
class FilesPage : public OxaWidget
{
    Q_OBJECT

public:
    /// Shows the files of \a backend.
    explicit FilesPage(Backend *backend, QWidget *parent = nullptr);

private:
    void drag(const QString &name);
};
