// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/theme/OxaCSSData.h>

class OxaTextInput;
class QWidget;

/// Makes text inputs, and gives them their looks: an OxaTextInput is made in no other way, so that
/// all fields of a client look alike.
///
///     OxaTextInputFactory fields({ normal, focused, error });
///     OxaTextInput *name = fields.make(this);
class UIELEMENTS_EXPORT OxaTextInputFactory
{
public:
    /// The three looks of a field.
    struct Looks
    {
        OxaCSSData normal;  ///< Without the focus. Its text colours are those of the icons.
        OxaCSSData focused; ///< With the focus, and after clearing.
        OxaCSSData error;   ///< While its validator rejects the text.
    };

    /// Makes fields that look like \a looks.
    explicit OxaTextInputFactory(Looks looks);

    /// Returns a new field, which \a parent owns, in its normal look.
    OxaTextInput *make(QWidget *parent) const;

    /// Gives \a field the looks of this factory, and shows the one that fits. Call it also after
    /// OxaTextInput::setText(), which makes the field look focused. Icons keep the colours that
    /// they have.
    void apply(OxaTextInput *field) const;

private:
    Looks m_looks;
};
