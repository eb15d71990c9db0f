// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStyleOptionButton>

/// A button that looks as if it were in a state, and answers to nobody.
///
/// Style sheets know it by the name of \a ButtonClass: it has no meta-object of its own.
template <typename ButtonClass>
class FrozenButton : public ButtonClass
{
public:
    /// Makes a button whose style option has \a state beside what it has anyway.
    explicit FrozenButton(QStyle::State state) : m_state(state)
    {
        this->setAttribute(Qt::WA_TransparentForMouseEvents);
        this->setFocusPolicy(Qt::NoFocus);
    }

protected:
    void initButtonStyleOption(QStyleOptionButton *option) const override
    {
        ButtonClass::initButtonStyleOption(option);
        option->state |= m_state;
    }

private:
    const QStyle::State m_state;
};
