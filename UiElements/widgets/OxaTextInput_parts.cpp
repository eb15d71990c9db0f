// SPDX-License-Identifier: Apache-2.0

// What a field hands on to its parts. A client may have deleted any of them.

#include "OxaTextInput.h"

#include "OxaLabel.h"
#include "OxaLineEdit.h"
#include "TextInputParts_p.h"

#include <UiElements/svg/OxaSvgPushButton.h>

namespace {

constexpr QMargins searchMargins(12, 3, 12, 3);

void setSquare(OxaSvgPushButton *button, int size)
{
    if (!button)
        return;
    button->setFixedSize(size, size);
    button->setSvgIconSize(QSize(size, size));
}

} // namespace

QString OxaTextInput::text() const { return m_lineEdit ? m_lineEdit->text() : QString(); }

void OxaTextInput::setText(const QString &text)
{
    if (m_lineEdit)
        m_lineEdit->setText(text);
}

QString OxaTextInput::placeholderText() const
{
    return m_lineEdit ? m_lineEdit->placeholderText() : QString();
}

void OxaTextInput::setPlaceholderText(const QString &text)
{
    if (m_lineEdit)
        m_lineEdit->setPlaceholderText(text);
}

void OxaTextInput::setPlaceholderColorSetName(const QString &name)
{
    if (m_lineEdit)
        m_lineEdit->setPlaceholderColorSetName(name);
}

int OxaTextInput::maxLength() const
{
    return m_lineEdit ? m_lineEdit->maxLength() : TextInputParts::unlimitedLength;
}

void OxaTextInput::setMaxLength(int length)
{
    const QPointer<OxaTextInput> self(this);
    if (m_lineEdit)
        m_lineEdit->setMaxLength(length);
    if (!self)
        return;
    m_displayMaxLength = length;
    showOrHideActionButtons();
}

bool OxaTextInput::isCounterShown() const { return m_counterLabel && m_counterLabel->isVisible(); }

int OxaTextInput::getDisplayMaxLength() const { return m_displayMaxLength; }

void OxaTextInput::setDisplayMaxLength(int length) { m_displayMaxLength = length; }

bool OxaTextInput::isReadOnly() const { return m_lineEdit && m_lineEdit->isReadOnly(); }

void OxaTextInput::setReadOnly(bool readOnly)
{
    if (m_lineEdit)
        m_lineEdit->setReadOnly(readOnly);
    showOrHideActionButtons();
}

bool OxaTextInput::getValidateErrorWhenEmpty() const { return m_validateErrorWhenEmpty; }

void OxaTextInput::setValidateErrorWhenEmpty(bool validate) { m_validateErrorWhenEmpty = validate; }

void OxaTextInput::setValidator(const QValidator *validator)
{
    if (m_lineEdit)
        m_lineEdit->setValidator(validator);
}

void OxaTextInput::setAlignment(Qt::Alignment alignment)
{
    if (m_lineEdit)
        m_lineEdit->setAlignment(alignment);
}

int OxaTextInput::cursorPosition() const { return m_lineEdit ? m_lineEdit->cursorPosition() : 0; }

void OxaTextInput::setCursorPosition(int position)
{
    if (m_lineEdit)
        m_lineEdit->setCursorPosition(position);
}

bool OxaTextInput::hasFocus() const { return m_lineEdit && m_lineEdit->hasFocus(); }

void OxaTextInput::setFocus()
{
    if (m_lineEdit)
        m_lineEdit->setFocus(Qt::OtherFocusReason);
}

void OxaTextInput::setIcon(const QString &path)
{
    const QPointer<OxaSvgPushButton> button = m_clearButton;
    if (button)
        button->setSvgIcon(path);
    TextInputParts::setIconSizes(button, TextInputParts::actionIconSize);
}

void OxaTextInput::setSearchIcon(const QString &path)
{
    setLayoutContentsMargins(searchMargins);
    const QPointer<OxaSvgPushButton> icon = m_searchIconButton;
    if (icon)
        icon->setSvgIcon(path);
    if (icon)
        icon->show();
}

void OxaTextInput::updateFontToken(OxaFont::Token token)
{
    if (m_lineEdit)
        m_lineEdit->setFontToken(token);
}

void OxaTextInput::updateIconSizes(int searchSize, int clearSize)
{
    const QPointer<OxaSvgPushButton> clearButton = m_clearButton;
    setSquare(m_searchIconButton, searchSize);
    setSquare(clearButton, clearSize);
}

void OxaTextInput::toggleClearButtonFocus(bool canFocus)
{
    if (m_clearButton)
        m_clearButton->setFocusPolicy(canFocus ? Qt::StrongFocus : Qt::NoFocus);
}

void OxaTextInput::setTextInputAccessibleText(const QString &name)
{
    if (m_lineEdit)
        m_lineEdit->setAccessibleName(name);
}

void OxaTextInput::setButtonAccessibleText(const QString &name)
{
    if (m_clearButton)
        m_clearButton->setAccessibleName(name);
}

OxaLineEdit *OxaTextInput::getLineEdit() const { return m_lineEdit; }

QPointer<OxaSvgPushButton> OxaTextInput::getPasswordActionButton() const
{
    return m_passwordButton;
}
