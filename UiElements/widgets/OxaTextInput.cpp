// SPDX-License-Identifier: Apache-2.0
#include "OxaTextInput.h"

#include "OxaLabel.h"
#include "OxaLineEdit.h"

#include <UiElements/svg/OxaSvgPushButton.h>

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QStyle>

namespace {

constexpr int unlimitedLength = 32767;
constexpr int actionButtonSize = 14;
constexpr int searchIconSize = 12;
constexpr QSize maskedIconSize(13, 8);
constexpr QSize shownIconSize(13, 13);
constexpr QMargins plainMargins(5, 3, 12, 3);
constexpr QMargins searchMargins(12, 3, 12, 3);

/// Sets both sizes that a button knows, Qt's and the one that its SVG icon is painted in.
void setIconSizes(OxaSvgPushButton *button, const QSize &size)
{
    button->resize(size);
    button->setIconSize(size);
    button->setSvgIconSize(size);
}

OxaSvgPushButton *makeActionButton(const QString &name, QWidget *parent)
{
    auto *button = new OxaSvgPushButton(parent);
    button->setObjectName(name);
    button->hide();
    button->setFixedSize(actionButtonSize, actionButtonSize);
    OxaCSSData round;
    round.borderTop = round.borderRight = round.borderBottom = round.borderLeft = true;
    round.borderRadius = static_cast<quint8>(button->height() / 2);
    button->setCSS(OxaThemeUtils::convertToOxaCSS(round));
    return button;
}

} // namespace

OxaTextInput::OxaTextInput(QWidget *parent) : OxaWidget(parent)
{
    setObjectName(QStringLiteral("OxaTextInput"));
    setFocusPolicy(Qt::ClickFocus);
    makeParts();
    makeConnections();
    m_lineEdit->setAccessibleName(tr("Text input field"));
    m_clearButton->setAccessibleName(tr("Clear Input"));
    showOrHideActionButtons();
}

QString OxaTextInput::text() const { return m_lineEdit->text(); }

void OxaTextInput::setText(const QString &text) { m_lineEdit->setText(text); }

QString OxaTextInput::placeholderText() const { return m_lineEdit->placeholderText(); }

void OxaTextInput::setPlaceholderText(const QString &text) { m_lineEdit->setPlaceholderText(text); }

void OxaTextInput::setPlaceholderColorSetName(const QString &name)
{
    m_lineEdit->setPlaceholderColorSetName(name);
}

int OxaTextInput::maxLength() const { return m_lineEdit->maxLength(); }

void OxaTextInput::setMaxLength(int length)
{
    m_lineEdit->setMaxLength(length);
    m_displayMaxLength = length;
    showOrHideActionButtons();
}

int OxaTextInput::getDisplayMaxLength() const { return m_displayMaxLength; }

void OxaTextInput::setDisplayMaxLength(int length) { m_displayMaxLength = length; }

bool OxaTextInput::isReadOnly() const { return m_lineEdit->isReadOnly(); }

void OxaTextInput::setReadOnly(bool readOnly)
{
    m_lineEdit->setReadOnly(readOnly);
    showOrHideActionButtons();
}

bool OxaTextInput::getValidateErrorWhenEmpty() const { return m_validateErrorWhenEmpty; }

void OxaTextInput::setValidateErrorWhenEmpty(bool validate) { m_validateErrorWhenEmpty = validate; }

void OxaTextInput::setInputValidator(const std::function<bool(const QString &)> &validator,
                                     bool validateWhileTyping)
{
    m_inputValidator = validator;
    m_validateWhileTyping = validateWhileTyping;
    if (m_validateErrorWhenEmpty)
        cssUpdated();
}

bool OxaTextInput::isValidInput() const { return !m_inputValidator || m_inputValidator(text()); }

void OxaTextInput::setValidator(const QValidator *validator)
{
    m_lineEdit->setValidator(validator);
}

void OxaTextInput::setAlignment(Qt::Alignment alignment) { m_lineEdit->setAlignment(alignment); }

int OxaTextInput::cursorPosition() const { return m_lineEdit->cursorPosition(); }

void OxaTextInput::setCursorPosition(int position) { m_lineEdit->setCursorPosition(position); }

bool OxaTextInput::hasFocus() const { return m_lineEdit->hasFocus(); }

void OxaTextInput::setFocus() { m_lineEdit->setFocus(Qt::OtherFocusReason); }

void OxaTextInput::setIcon(const QString &path)
{
    m_clearButton->setSvgIcon(path);
    setIconSizes(m_clearButton, QSize(actionButtonSize, actionButtonSize));
}

void OxaTextInput::setSearchIcon(const QString &path)
{
    setLayoutContentsMargins(searchMargins);
    m_searchIconButton->setSvgIcon(path);
    m_searchIconButton->show();
}

void OxaTextInput::setPasswordIcons(const QString &shownIcon, const QString &maskedIcon)
{
    m_passwordIconMasked = maskedIcon;
    m_passwordIconShown = shownIcon;
    m_passwordButton->setAccessibleName(tr("Show password"));
    showPasswordIcon(m_passwordIconMasked, maskedIconSize);
    showOrHideActionButtons();
}

void OxaTextInput::setPasswordField(bool isPasswordField)
{
    m_isPasswordField = isPasswordField;
    showOrHideActionButtons();
    m_lineEdit->setEchoMode(isPasswordField ? QLineEdit::Password : QLineEdit::Normal);
}

void OxaTextInput::updateFontToken(OxaFont::Token token) { m_lineEdit->setFontToken(token); }

void OxaTextInput::updateIconSizes(int searchSize, int clearSize)
{
    m_searchIconButton->setFixedSize(searchSize, searchSize);
    m_searchIconButton->setSvgIconSize(QSize(searchSize, searchSize));
    m_clearButton->setFixedSize(clearSize, clearSize);
    m_clearButton->setSvgIconSize(QSize(clearSize, clearSize));
}

void OxaTextInput::toggleClearButtonFocus(bool canFocus)
{
    m_clearButton->setFocusPolicy(canFocus ? Qt::StrongFocus : Qt::NoFocus);
}

void OxaTextInput::setTextInputAccessibleText(const QString &name)
{
    m_lineEdit->setAccessibleName(name);
}

void OxaTextInput::setButtonAccessibleText(const QString &name)
{
    m_clearButton->setAccessibleName(name);
}

OxaLineEdit *OxaTextInput::getLineEdit() const { return m_lineEdit; }

QPointer<OxaSvgPushButton> OxaTextInput::getPasswordActionButton() const
{
    return m_passwordButton;
}

void OxaTextInput::cssUpdated()
{
    if (!updateCSS(hasFocus() ? m_cssFocused : m_cssNormal))
        return;
    style()->unpolish(this);
    style()->polish(this);
}

bool OxaTextInput::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_lineEdit)
        return false;
    switch (event->type()) {
    case QEvent::FocusOut:
        return onFocusChanged(m_cssNormal);
    case QEvent::FocusIn:
        return onFocusChanged(m_cssFocused);
    case QEvent::KeyPress:
        return onKeyPressed(static_cast<QKeyEvent *>(event)->key());
    default:
        return false;
    }
}

void OxaTextInput::makeParts()
{
    m_lineEdit = new OxaLineEdit(this);
    m_lineEdit->setObjectName(QStringLiteral("textInput"));
    m_lineEdit->setFocusPolicy(Qt::StrongFocus);
    m_lineEdit->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_lineEdit->installEventFilter(this);
    setFocusProxy(m_lineEdit);

    m_counterLabel = new OxaLabel(this);
    m_counterLabel->setObjectName(QStringLiteral("textInputCounterLabel"));
    m_counterLabel->hide();
    m_counterLabel->setFocusPolicy(Qt::NoFocus);

    m_clearButton = makeActionButton(QStringLiteral("clearInputButton"), this);
    m_passwordButton = makeActionButton(QStringLiteral("passwordActionButton"), this);

    m_searchIconButton = new OxaSvgPushButton(this);
    m_searchIconButton->setObjectName(QStringLiteral("searchIcon"));
    m_searchIconButton->hide();
    m_searchIconButton->setFocusPolicy(Qt::NoFocus);
    m_searchIconButton->setFixedSize(searchIconSize, searchIconSize);
    m_searchIconButton->setSvgIconSize(QSize(searchIconSize, searchIconSize));

    auto *row = new QHBoxLayout(this);
    row->setSpacing(4);
    setLayoutContentsMargins(plainMargins);
    row->addWidget(m_searchIconButton);
    row->addWidget(m_lineEdit);
    row->addWidget(m_counterLabel);
    row->addWidget(m_clearButton);
    row->addWidget(m_passwordButton);
}

void OxaTextInput::makeConnections()
{
    connect(m_lineEdit, &QLineEdit::textEdited, this, &OxaTextInput::textEdited);
    connect(m_lineEdit, &QLineEdit::textChanged, this, &OxaTextInput::onTextChanged);
    connect(m_lineEdit, &QLineEdit::returnPressed, this, &OxaTextInput::returnPressed);
    connect(m_lineEdit, &QLineEdit::editingFinished, this, &OxaTextInput::onEditingFinished);
    connect(m_counterLabel, &OxaLabel::onVisibilityChanged, this, [this](bool isVisible) {
        if (isVisible)
            updateMaxLengthCounter();
    });
    connect(m_clearButton, &OxaSvgPushButton::clicked, this, &OxaTextInput::clearAndFocusInput);
    connect(m_passwordButton, &OxaSvgPushButton::clicked, this,
            &OxaTextInput::passwordActionPressed);
}

/// Answers whether the line edit must not see the event: it is gone when a slot deleted the field.
bool OxaTextInput::onFocusChanged(const OxaCSSData &css)
{
    const QPointer<OxaTextInput> self(this);
    if (!updateCSS(css))
        return true;
    if (&css == &m_cssFocused)
        m_lineEdit->setFocus(Qt::OtherFocusReason);
    if (self)
        showOrHideActionButtons();
    return self.isNull();
}

/// Answers whether the line edit must not see the key.
bool OxaTextInput::onKeyPressed(int key)
{
    if (key == Qt::Key_Tab) {
        focusNextChild();
        return true;
    }
    if (key == Qt::Key_Backtab) {
        focusPreviousChild();
        return true;
    }
    const QPointer<OxaTextInput> self(this);
    Q_EMIT keyPressed(key);
    return self.isNull();
}

void OxaTextInput::onEditingFinished()
{
    if (text().isEmpty())
        Q_EMIT showErrorLabel(false);
    else if (m_inputValidator)
        Q_EMIT showErrorLabel(!isValidInput());
}

void OxaTextInput::onTextChanged(const QString &text)
{
    const QPointer<OxaTextInput> self(this);
    showOrHideActionButtons();
    const bool isError = m_validateWhileTyping && !isValidInput() && !text.isEmpty();
    setCSS(OxaThemeUtils::convertToOxaCSS(isError ? m_cssError : m_cssFocused));
    if (!self)
        return;
    updateMaxLengthCounter();
    Q_EMIT textChanged(text);
    if (self)
        Q_EMIT showErrorLabel(isError);
}

void OxaTextInput::clearAndFocusInput()
{
    const QPointer<OxaTextInput> self(this);
    m_clearButton->hide();
    m_lineEdit->clear();
    if (self)
        m_lineEdit->setFocus(Qt::OtherFocusReason);
    if (self)
        setCSS(OxaThemeUtils::convertToOxaCSS(m_cssFocused));
    if (self)
        Q_EMIT textEdited();
    if (self)
        Q_EMIT showErrorLabel(false);
}

void OxaTextInput::passwordActionPressed()
{
    if (m_lineEdit->echoMode() != QLineEdit::Password) {
        m_passwordButton->setAccessibleName(tr("Show password"));
        m_lineEdit->setEchoMode(QLineEdit::Password);
        showPasswordIcon(m_passwordIconMasked, maskedIconSize);
    } else {
        m_passwordButton->setAccessibleName(tr("Hide password"));
        m_lineEdit->setEchoMode(QLineEdit::Normal);
        showPasswordIcon(m_passwordIconShown, shownIconSize);
    }
    m_lineEdit->setFocus(Qt::OtherFocusReason);
}

void OxaTextInput::showPasswordIcon(const QString &icon, const QSize &size)
{
    m_passwordButton->setSvgIcon(icon);
    setIconSizes(m_passwordButton, size);
}

/// Shows \a css, or the error look where the validator rejects the text. Returns whether the field
/// is still there: a slot may delete it.
bool OxaTextInput::updateCSS(const OxaCSSData &css)
{
    const QPointer<OxaTextInput> self(this);
    const bool isChecked = m_inputValidator && (!text().isEmpty() || m_validateErrorWhenEmpty);
    const bool isError = isChecked && !isValidInput();
    // Written before the signal, since a slot may delete the field and its looks.
    const QString styleText = OxaThemeUtils::convertToOxaCSS(isError ? m_cssError : css);
    if (isError)
        Q_EMIT showErrorLabel(true);
    if (self)
        setCSS(styleText);
    return !self.isNull();
}

void OxaTextInput::updateMaxLengthCounter()
{
    if (m_counterLabel->isVisible())
        m_counterLabel->setText(QStringLiteral("%1/%2").arg(QString::number(text().size()),
                                                            QString::number(m_displayMaxLength)));
}

void OxaTextInput::showOrHideActionButtons()
{
    showOrHideMaxLengthCounter();
    const bool hasText = !text().isEmpty();
    const bool counterStandsThere = m_counterLabel->isVisible() && m_lineEdit->hasFocus();
    m_clearButton->setVisible(!m_isPasswordField && hasText && !isReadOnly()
                              && !counterStandsThere);
    m_passwordButton->setVisible(m_isPasswordField && hasText);
}

void OxaTextInput::showOrHideMaxLengthCounter()
{
    const bool isLimited = maxLength() != unlimitedLength;
    m_counterLabel->setVisible(isLimited && !isReadOnly()
                               && (text().isEmpty() || m_lineEdit->hasFocus()));
}
