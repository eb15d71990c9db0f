// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <QObject>

/// The common base of the library's classes that are objects but not widgets.
class UIELEMENTS_EXPORT OxaObject : public QObject
{
    Q_OBJECT

public:
    /// Makes an object that \a parent owns.
    explicit OxaObject(QObject *parent = nullptr);
};
