// SPDX-License-Identifier: Apache-2.0
#include "OxaQmlDialogController.h"

OxaQmlDialogController::OxaQmlDialogController(QObject *parent) : OxaQmlController(parent) { }

OxaQmlDialogController::~OxaQmlDialogController()
{
    if (m_takesModelOwnership)
        m_model.deleteLater();
}

void OxaQmlDialogController::setModel(const QVariant &model)
{
    if (m_model.setValue(model))
        Q_EMIT modelChanged();
}

QVariant OxaQmlDialogController::_model() const { return m_model.value(); }
