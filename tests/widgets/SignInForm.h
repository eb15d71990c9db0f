// SPDX-License-Identifier: Apache-2.0
#pragma once

// The form of docs/forms.md, which quotes it.

#include <UiElements/svg/OxaSvgPushButton.h>
#include <UiElements/widgets/OxaCheckBox.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaLineEdit.h>
#include <UiElements/widgets/OxaTextInput.h>
#include <UiElements/widgets/OxaTextInputFactory.h>

#include <QVBoxLayout>

/// All fields of this client look so.
inline OxaTextInputFactory clientFields()
{
    OxaCSSData normal;
    normal.backgroundColorSetName = QStringLiteral("field-background");
    normal.borderColorSetName = QStringLiteral("field-border");
    normal.borderTop = normal.borderRight = normal.borderBottom = normal.borderLeft = true;
    normal.borderRadius = 4;
    OxaCSSData focused = normal;
    focused.borderColorSetName = QStringLiteral("field-focus-border");
    OxaCSSData error = normal;
    error.borderColorSetName = QStringLiteral("field-error");
    return OxaTextInputFactory({ normal, focused, error });
}

/// Asks for a mail address and a password.
class SignInForm : public OxaWidget
{
    Q_OBJECT

public:
    explicit SignInForm(QWidget *parent = nullptr) : OxaWidget(parent)
    {
        auto *column = new QVBoxLayout(this);
        OxaTextInput *mail = addField(column, tr("Mail address"));
        mail->setInputValidator([](const QString &text) { return text.contains(QLatin1Char('@')); },
                                false);
        auto *error = new OxaLabel(tr("Enter an address with an @."), this);
        error->setCSS(QStringLiteral("$textColors: field-error;"));
        error->hide();
        connect(mail, &OxaTextInput::showErrorLabel, error, &OxaLabel::setVisible);
        column->addWidget(error);

        OxaTextInput *password = addField(column, tr("Password"));
        password->setPasswordIcons(QStringLiteral(":/Resources/eye-off_13.svg"),
                                   QStringLiteral(":/Resources/eye_13.svg"));
        password->setPasswordField(true);

        auto *remember = new OxaCheckBox(this);
        remember->setText(tr("Remember me"));
        column->addWidget(remember);
        auto *signIn = new OxaPushButton(tr("Sign in"), this);
        column->addWidget(signIn);
        connect(signIn, &OxaPushButton::clicked, this, [this, mail, password, remember] {
            if (mail->isValidInput())
                Q_EMIT submitted(mail->text(), password->text(), remember->isChecked());
        });
        connect(password, &OxaTextInput::returnPressed, signIn, &OxaPushButton::click);
    }

Q_SIGNALS:
    void submitted(const QString &mail, const QString &password, bool remember);

private:
    OxaTextInput *addField(QVBoxLayout *column, const QString &name)
    {
        OxaTextInput *field = clientFields().make(this);
        field->setPlaceholderText(name);
        field->setTextInputAccessibleText(name);
        field->getLineEdit()->setCSS(QStringLiteral("$textColors: field-text;"
                                                    "OxaLineEdit { background: transparent;"
                                                    " border: none; }"));
        column->addWidget(field);
        return field;
    }
};
