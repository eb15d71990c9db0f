// SPDX-License-Identifier: Apache-2.0
#pragma once

// The form of docs/forms.md, which quotes all that follows.

#include <UiElements/widgets/OxaCheckBox.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaLineEdit.h>
#include <UiElements/widgets/OxaPushButton.h>
#include <UiElements/widgets/OxaTextInput.h>
#include <UiElements/widgets/OxaTextInputFactory.h>

#include <QVBoxLayout>

/// All fields of this client look so.
inline OxaTextInputFactory clientFields()
{
    OxaCSSData normal;
    normal.backgroundColorSetName = QStringLiteral("field-background");
    normal.borderColorSetName = QStringLiteral("field-border");
    normal.textColorSetName = QStringLiteral("field-text"); // For its icons.
    normal.borderTop = normal.borderRight = normal.borderBottom = normal.borderLeft = true;
    normal.borderRadius = 4;
    OxaCSSData focused = normal;
    focused.borderColorSetName = QStringLiteral("field-focus-border");
    OxaCSSData error = normal;
    error.borderColorSetName = QStringLiteral("field-error");
    return OxaTextInputFactory({ normal, focused, error });
}

/// Makes a field called \a name.
inline OxaTextInput *makeField(const QString &name, QWidget *parent)
{
    OxaTextInput *field = clientFields().make(parent);
    field->setPlaceholderText(name);
    field->setPlaceholderColorSetName(QStringLiteral("field-placeholder"));
    field->setTextInputAccessibleText(name);
    field->setIcon(QStringLiteral(":/Resources/clear_14.svg"));
    field->toggleClearButtonFocus(false); // Tab goes from field to field.
    // The line edit inside has a background and a frame of its own.
    field->getLineEdit()->setCSS(QStringLiteral("$textColors: field-text;"
                                                "OxaLineEdit { background: transparent;"
                                                " border: none; }"));
    return field;
}

/// Asks for a mail address and a password.
class SignInForm : public OxaWidget
{
    Q_OBJECT

public:
    explicit SignInForm(QWidget *parent = nullptr) : OxaWidget(parent)
    {
        auto *mail = makeField(tr("Mail address"), this);
        mail->setInputValidator([](const QString &text) { return text.contains(QLatin1Char('@')); },
                                false);
        auto *error = new OxaLabel(tr("Enter an address with an @."), this,
                                   QAccessible::AlertMessage);
        error->setBuddy(mail); // A screen reader reads it with the field.
        error->setCSS(QStringLiteral("$textColors: field-error;"));
        error->hide();
        connect(mail, &OxaTextInput::showErrorLabel, error, &OxaLabel::setVisible);

        auto *password = makeField(tr("Password"), this);
        password->setPasswordIcons(QStringLiteral(":/Resources/eye-off_13.svg"),
                                   QStringLiteral(":/Resources/eye_13.svg"));
        password->setPasswordField(true);
        auto *remember = new OxaCheckBox(this);
        remember->setText(tr("Remember me"));
        remember->setWordWrap(false);
        auto *signIn = new OxaPushButton(tr("Sign in"), this);
        connect(signIn, &OxaPushButton::clicked, this, [this, mail, password, remember] {
            if (mail->isValidInput())
                Q_EMIT submitted(mail->text(), password->text(), remember->isChecked());
            else
                mail->setFocus();
        });
        connect(password, &OxaTextInput::returnPressed, signIn, &OxaPushButton::click);

        auto *column = new QVBoxLayout(this);
        column->addWidget(mail);
        column->addWidget(error);
        column->addWidget(password);
        column->addWidget(remember);
        column->addWidget(signIn);
        column->addStretch(1); // Else the fields take the height that is left.
    }

Q_SIGNALS:
    void submitted(const QString &mail, const QString &password, bool remember);
};

inline OxaTextInput *makeSearchField(QWidget *parent)
{
    OxaTextInput *search = makeField(QObject::tr("Search"), parent);
    search->setSearchIcon(QStringLiteral(":/Resources/search_12.svg"));
    return search;
}

inline OxaTextInput *makeTitleField(QWidget *parent)
{
    OxaTextInput *title = makeField(QObject::tr("Title"), parent);
    title->setMaxLength(80);
    return title;
}
