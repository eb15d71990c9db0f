// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <QPointer>
#include <QVariant>

/// The model of a controller: a list, a number, an object, or whatever else QML takes as a model.
/// An object that dies leaves an invalid value behind, never a pointer to where it was.
class UIELEMENTS_EXPORT OxaControllerModel
{
public:
    /// Returns the model. Invalid by default, and after the death of the object that was set.
    QVariant value() const;

    /// Stores \a value. Returns false if it is the same. The previous model is not deleted.
    bool setValue(const QVariant &value);

    /// Has the model deleted when control returns to the event loop, if it is an object.
    void deleteLater();

private:
    QVariant m_value;
    QPointer<QObject> m_object;
    bool m_holdsObject = false;
};
