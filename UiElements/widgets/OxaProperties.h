// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPointer>

/// Values that stand for parts of a widget, for the caller to set their properties.
namespace OxaProperties {

/// Stands for one button that a widget has made and owns. \a Button must be complete where the
/// button is used; the header that returns such a value only declares it.
template <typename Button>
class SvgPushButtonWidget
{
public:
    /// Stands for \a button.
    explicit SvgPushButtonWidget(Button *button) : m_button(button) { }

    /// Returns the button, or null once it is deleted.
    Button *get() const { return m_button; }

    /// Gives access to the button, which must not be deleted.
    Button *operator->() const { return m_button; }

private:
    QPointer<Button> m_button;
};

} // namespace OxaProperties
