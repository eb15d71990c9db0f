// SPDX-License-Identifier: Apache-2.0
#include "OxaTextInputFactory.h"

#include "OxaTextInput.h"

#include <utility>

OxaTextInputFactory::OxaTextInputFactory(Looks looks) : m_looks(std::move(looks)) { }

OxaTextInput *OxaTextInputFactory::make(QWidget *parent) const
{
    auto *field = new OxaTextInput(parent);
    apply(field);
    return field;
}

void OxaTextInputFactory::apply(OxaTextInput *field) const
{
    field->m_cssNormal = m_looks.normal;
    field->m_cssFocused = m_looks.focused;
    field->m_cssError = m_looks.error;
    field->cssUpdated();
}
