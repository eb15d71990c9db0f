// SPDX-License-Identifier: Apache-2.0
#include "OxaTextInput.h"

#include "OxaLabel.h"
#include "OxaLineEdit.h"
#include "TextInputParts_p.h"
#include "WidgetParts_p.h"

#include <UiElements/svg/OxaSvgPushButton.h>

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QStyle>

namespace {

constexpr QSize maskedIconSize(13, 8);
constexpr QSize shownIconSize(13, 13);
constexpr QMargins plainMargins(5, 3, 12, 3);

/// Shows or hides a part that a client may have deleted.
void setShown(QWidget *part, bool isVisible)
{
    if (part)
        part->setVisible(isVisible);
}

} // namespace

/// Tells whether a slot has deleted the field while its line edit sends it an event or a signal.
/// QLineEdit uses itself after that, so while one lives the line edit outlives the field.
class OxaTextInput::LineEditCall
{
    Q_DISABLE_COPY_MOVE(LineEditCall)

public:
    explicit LineEditCall(OxaTextInput *field) : m_field(field) { ++field->m_lineEditCalls; }
    ~LineEditCall()
    {
        if (m_field)
            --m_field->m_lineEditCalls;
    }

    bool isFieldAlive() const { return !m_field.isNull(); }

    /// True when the line edit can have the event that it has sent.
    bool isLineEditAlive() const { return m_field && m_field->m_lineEdit; }

private:
    const QPointer<OxaTextInput> m_field;
};

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

OxaTextInput::~OxaTextInput()
{
    if (!m_lineEdit)
        return;
    // It loses the focus in ~QWidget(), and would tell a field that is gone.
    m_lineEdit->disconnect(this);
    m_lineEdit->removeEventFilter(this);
    if (m_lineEditCalls == 0)
        return;
    m_lineEdit->blockSignals(true);
    m_lineEdit->setParent(nullptr);
    m_lineEdit->deleteLater();
}

void OxaTextInput::setInputValidator(const std::function<bool(const QString &)> &validator,
                                     bool validateWhileTyping)
{
    m_inputValidator = validator;
    m_validateWhileTyping = validateWhileTyping;
    if (m_validateErrorWhenEmpty)
        cssUpdated();
}

bool OxaTextInput::isValidInput() const
{
    const auto validator = m_inputValidator; // It may delete the field, or set another one.
    return !validator || validator(text());
}

void OxaTextInput::setPasswordIcons(const QString &shownIcon, const QString &maskedIcon)
{
    m_passwordIconMasked = maskedIcon;
    m_passwordIconShown = shownIcon;
    const QPointer<OxaTextInput> self(this);
    showPasswordIcon(tr("Show password"), m_passwordIconMasked, maskedIconSize);
    if (self)
        showOrHideActionButtons();
}

void OxaTextInput::setPasswordField(bool isPasswordField)
{
    m_isPasswordField = isPasswordField;
    const QPointer<OxaTextInput> self(this);
    showOrHideActionButtons();
    if (self && m_lineEdit)
        m_lineEdit->setEchoMode(isPasswordField ? QLineEdit::Password : QLineEdit::Normal);
    // It may have been shown before.
    if (self && isPasswordField)
        showPasswordIcon(tr("Show password"), m_passwordIconMasked, maskedIconSize);
}

void OxaTextInput::cssUpdated()
{
    const QPointer<OxaTextInput> self(this);
    updateCSS(hasFocus() ? m_cssFocused : m_cssNormal);
    if (self)
        colorIcons(m_cssNormal.textColorSetName);
    if (!self)
        return;
    style()->unpolish(this);
    style()->polish(this);
}

bool OxaTextInput::eventFilter(QObject *watched, QEvent *event)
{
    // While it is destroyed, a line edit loses the focus and is only a QWidget.
    const auto *lineEdit = qobject_cast<OxaLineEdit *>(watched);
    if (!lineEdit || lineEdit != m_lineEdit)
        return OxaWidget::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::FocusOut:
        return onFocusChanged(false);
    case QEvent::FocusIn:
        return onFocusChanged(true);
    case QEvent::KeyPress:
        return onKeyPressed(static_cast<QKeyEvent *>(event)->key());
    default:
        return OxaWidget::eventFilter(watched, event);
    }
}

void OxaTextInput::changeEvent(QEvent *event)
{
    // What the sheet says may be covered now, until it is set again.
    const QEvent::Type type = event->type();
    if (type == QEvent::PaletteChange || type == QEvent::FontChange || type == QEvent::StyleChange)
        m_isTypingLookShown = false;
    OxaWidget::changeEvent(event);
}

void OxaTextInput::makeParts()
{
    m_lineEdit = TextInputParts::makeLineEdit(this);
    m_lineEdit->installEventFilter(this);
    setFocusProxy(m_lineEdit);
    m_counterLabel = TextInputParts::makeCounter(this);
    m_clearButton = TextInputParts::makeActionButton(QStringLiteral("clearInputButton"), this);
    m_passwordButton = TextInputParts::makeActionButton(QStringLiteral("passwordActionButton"),
                                                        this);
    m_searchIconButton = TextInputParts::makeSearchIcon(this);

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
    connect(m_lineEdit, &QLineEdit::textEdited, this, [this] {
        const LineEditCall call(this);
        Q_EMIT textEdited();
    });
    connect(m_lineEdit, &QLineEdit::textChanged, this, &OxaTextInput::onTextChanged);
    connect(m_lineEdit, &QLineEdit::returnPressed, this, [this] {
        const LineEditCall call(this);
        Q_EMIT returnPressed();
    });
    connect(m_lineEdit, &QLineEdit::editingFinished, this, &OxaTextInput::onEditingFinished);
    connect(m_counterLabel, &OxaLabel::onVisibilityChanged, this, [this](bool isVisible) {
        if (isVisible)
            updateMaxLengthCounter();
    });
    connect(m_clearButton, &OxaSvgPushButton::clicked, this, &OxaTextInput::clearAndFocusInput);
    connect(m_passwordButton, &OxaSvgPushButton::clicked, this,
            &OxaTextInput::passwordActionPressed);
}

/// Returns whether the line edit must not see the event.
bool OxaTextInput::onFocusChanged(bool hasCome)
{
    const LineEditCall call(this);
    updateCSS(hasCome ? m_cssFocused : m_cssNormal);
    if (hasCome && call.isLineEditAlive())
        m_lineEdit->setFocus(Qt::OtherFocusReason);
    if (call.isFieldAlive())
        showOrHideActionButtons();
    return !call.isLineEditAlive();
}

/// Returns whether the line edit must not see the key.
bool OxaTextInput::onKeyPressed(int key)
{
    const LineEditCall call(this);
    if (key == Qt::Key_Tab) {
        focusNextChild();
        return true;
    }
    if (key == Qt::Key_Backtab) {
        focusPreviousChild();
        return true;
    }
    Q_EMIT keyPressed(key);
    return !call.isLineEditAlive();
}

void OxaTextInput::onEditingFinished()
{
    const LineEditCall call(this);
    if (text().isEmpty()) {
        tellError(false);
    } else if (m_inputValidator) {
        const bool isError = !isValidInput();
        if (call.isFieldAlive())
            tellError(isError);
    }
}

/// Emits showErrorLabel(), whose slots show or hide the message. Assistive technology is told that
/// message with the text, after they have done so.
void OxaTextInput::tellError(bool isError)
{
    const bool isChange = m_isErrorShown != isError;
    m_isErrorShown = isError;
    const QPointer<OxaLineEdit> edit = m_lineEdit; // A slot may delete the field.
    Q_EMIT showErrorLabel(isError);
    if (isChange && edit)
        WidgetParts::tellAccessibility(edit, QAccessible::DescriptionChanged);
}

void OxaTextInput::onTextChanged(const QString &text)
{
    const LineEditCall call(this);
    showOrHideActionButtons();
    const bool isError = m_validateWhileTyping && !text.isEmpty() && !isValidInput();
    if (call.isFieldAlive())
        showTypingLook(isError ? m_cssError : m_cssFocused);
    if (call.isFieldAlive()) {
        updateMaxLengthCounter();
        Q_EMIT textChanged(text);
    }
    if (call.isFieldAlive())
        tellError(isError);
}

/// Shows \a css. At most keys it is what Qt shows already: computing the styles of all parts again
/// would take longer than the rest of a key.
void OxaTextInput::showTypingLook(const OxaCSSData &css)
{
    const QString styleText = OxaThemeUtils::convertToOxaCSS(css);
    // The rest of a style text may select by properties, whose changes Qt does not notice.
    const bool isShown = m_isTypingLookShown && css.plainStyleSheet.isEmpty()
            && styleText == getCSS()
            && OxaThemeUtils::parseCSS(this, styleText, OxaThemeUtils::getAppOxaColorSets())
                            .expandedStyleSheet
                    == styleSheet();
    if (isShown) {
        Q_EMIT cssChanged();
        return;
    }
    const QPointer<OxaTextInput> self(this);
    setCSS(styleText);
    if (self)
        m_isTypingLookShown = true;
}

void OxaTextInput::clearAndFocusInput()
{
    const QPointer<OxaTextInput> self(this);
    setShown(m_clearButton, false);
    if (self && m_lineEdit)
        m_lineEdit->clear();
    if (self)
        setFocus();
    if (self)
        setCSS(m_cssFocused);
    if (self)
        Q_EMIT textEdited();
    if (self)
        tellError(false);
}

void OxaTextInput::passwordActionPressed()
{
    if (!m_lineEdit)
        return;
    const QPointer<OxaTextInput> self(this);
    const bool isShown = m_lineEdit->echoMode() != QLineEdit::Password;
    const QString name = isShown ? tr("Show password") : tr("Hide password");
    if (m_passwordButton)
        m_passwordButton->setAccessibleName(name); // Told before the text is shown or hidden.
    m_lineEdit->setEchoMode(isShown ? QLineEdit::Password : QLineEdit::Normal);
    if (isShown)
        showPasswordIcon(name, m_passwordIconMasked, maskedIconSize);
    else
        showPasswordIcon(name, m_passwordIconShown, shownIconSize);
    if (self)
        setFocus();
}

void OxaTextInput::showPasswordIcon(const QString &name, const QString &icon, const QSize &size)
{
    const QPointer<OxaSvgPushButton> button = m_passwordButton;
    if (!button)
        return;
    if (button->accessibleName() != name) // Qt would tell it again.
        button->setAccessibleName(name);
    button->setSvgIcon(icon);
    TextInputParts::setIconSizes(button, size);
}

/// Colours the icons for which the client has chosen no colours as the text.
void OxaTextInput::colorIcons(const QString &colorSetName)
{
    if (colorSetName.isEmpty())
        return;
    for (const QPointer<OxaSvgPushButton> &button :
         { m_searchIconButton, m_clearButton, m_passwordButton }) {
        if (button && button->getSvgIconColorSet().isEmpty())
            button->setSvgIconColorSet(colorSetName);
    }
}

/// Shows \a css, or the error look where the validator rejects the text.
void OxaTextInput::updateCSS(const OxaCSSData &css)
{
    const QPointer<OxaTextInput> self(this);
    OxaCSSData shown = css;
    if (m_inputValidator && (!text().isEmpty() || m_validateErrorWhenEmpty)) {
        const bool isError = !isValidInput();
        if (!self)
            return;
        if (isError) {
            shown = m_cssError;
            tellError(true);
        }
    }
    if (self)
        setCSS(shown);
}

void OxaTextInput::updateMaxLengthCounter()
{
    if (m_counterLabel && m_counterLabel->isVisible())
        m_counterLabel->setText(QStringLiteral("%1/%2").arg(QString::number(text().size()),
                                                            QString::number(m_displayMaxLength)));
}

void OxaTextInput::showOrHideActionButtons()
{
    showOrHideMaxLengthCounter();
    const bool hasText = !text().isEmpty();
    const bool isCounting = m_counterLabel && m_counterLabel->isVisible() && hasFocus();
    // A slot of a part's signals may delete the field.
    const bool isPassword = m_isPasswordField;
    const QPointer<OxaSvgPushButton> passwordButton = m_passwordButton;
    setShown(m_clearButton, !isPassword && hasText && !isReadOnly() && !isCounting);
    setShown(passwordButton, isPassword && hasText);
}

void OxaTextInput::showOrHideMaxLengthCounter()
{
    const bool isLimited = maxLength() != TextInputParts::unlimitedLength;
    setShown(m_counterLabel, isLimited && !isReadOnly() && (text().isEmpty() || hasFocus()));
}
