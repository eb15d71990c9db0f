// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/app/OxaObject.h>

#include <QVariantMap>

/// The base of the one object through which a QML file and C++ meet.
///
/// A QML file that needs C++ declares one object of a subclass as a direct child of its root item.
/// OxaQmlEngine finds it when the file has loaded and calls init(). The callback that was given
/// with the file gets it next, and again each time that a popup is shown. The object belongs to the
/// view.
class UIELEMENTS_EXPORT OxaQmlController : public OxaObject
{
    Q_OBJECT

public:
    /// Makes a controller that \a parent owns.
    explicit OxaQmlController(QObject *parent = nullptr);

    /// Takes the properties that the view was made with. Called once when the file has loaded, and
    /// on the new controller after each reload, with the same properties. Does nothing by default;
    /// see OxaQmlControllerHelpers for what an override may call. QML may also call it without
    /// argument.
    Q_INVOKABLE virtual void init(const QVariantMap &initialProperties = QVariantMap());
};
