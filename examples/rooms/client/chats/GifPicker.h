// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

/// The moving pictures that can be sent.
class GifPicker : public OxaWidget
{
    Q_OBJECT

public:
    explicit GifPicker(QWidget *parent = nullptr);

Q_SIGNALS:
    void picked(const QString &name);
};
