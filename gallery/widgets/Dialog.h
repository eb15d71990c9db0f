// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaDialog.h>

class OxaPushButton;
class QHBoxLayout;
class QVBoxLayout;

/// A dialog with a row of buttons below its contents.
class Dialog : public OxaDialog
{
    Q_OBJECT

public:
    Dialog(const QString &title, QWidget *parent);

    /// Returns the column of the contents.
    QVBoxLayout *body() const { return m_body; }

    /// Adds a button that does \a action. It is no default button: Return may mean another thing.
    OxaPushButton *addButton(const QString &text, void (QDialog::*action)());

private:
    QVBoxLayout *m_body;
    QHBoxLayout *m_buttons;
};
