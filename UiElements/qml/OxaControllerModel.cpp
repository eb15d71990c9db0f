// SPDX-License-Identifier: Apache-2.0
#include "OxaControllerModel.h"

static QObject *objectIn(const QVariant &value)
{
    return value.canConvert<QObject *>() ? value.value<QObject *>() : nullptr;
}

QVariant OxaControllerModel::value() const
{
    const bool died = m_holdsObject && !m_object;
    return died ? QVariant() : m_value;
}

bool OxaControllerModel::setValue(const QVariant &value)
{
    // Compared with what is left of a dead model: a new object may be where the old one was.
    if (this->value() == value)
        return false;
    m_value = value;
    m_object = objectIn(value);
    m_holdsObject = !m_object.isNull();
    return true;
}

void OxaControllerModel::deleteLater()
{
    if (m_object)
        m_object->deleteLater();
}
