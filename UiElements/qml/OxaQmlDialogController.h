// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/qml/OxaControllerModel.h>
#include <UiElements/qml/OxaQmlController.h>

/// The controller of a dialog: a controller with a model. QML knows it by its own name.
class UIELEMENTS_EXPORT OxaQmlDialogController : public OxaQmlController
{
    Q_OBJECT
    /// Whether the model is deleted with the controller. False by default.
    Q_PROPERTY(
            bool takesModelOwnership MEMBER m_takesModelOwnership NOTIFY takesModelOwnershipChanged)
    /// What the dialog shows. Invalid by default, and after the death of a model that is an object,
    /// of which no signal tells.
    Q_PROPERTY(QVariant model READ _model WRITE setModel NOTIFY modelChanged)

public:
    /// Makes a controller without a model.
    explicit OxaQmlDialogController(QObject *parent = nullptr);

    /// Deletes the model if it is owned, is an object and is alive, but only when control returns
    /// to the event loop.
    ~OxaQmlDialogController() override;

    /// Stores \a model and emits modelChanged(); does nothing if it is the same. The previous model
    /// is not deleted, even if it is owned.
    void setModel(const QVariant &model);

Q_SIGNALS:
    /// takesModelOwnership was set to another value.
    void takesModelOwnershipChanged();
    /// The model was set to another value.
    void modelChanged();

private:
    QVariant _model() const;

    bool m_takesModelOwnership = false;
    OxaControllerModel m_model;
};
