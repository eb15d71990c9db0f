// SPDX-License-Identifier: Apache-2.0
#pragma once

// Longer than headers are here: the field shows what its line edit shows, and more.

#include <UiElements/UiElementsExport.h>
#include <UiElements/theme/OxaCSSData.h>
#include <UiElements/widgets/OxaWidget.h>

#include <QPointer>

#include <functional>

class OxaLabel;
class OxaLineEdit;
class OxaSvgPushButton;
class QValidator;

/// A field around an OxaLineEdit, with an optional search icon, a counter, a button that clears it,
/// and one that shows a password. It looks normal, focused or in error.
///
/// Made by an OxaTextInputFactory, which also fills the three looks; the class is final in effect,
/// since its constructor is private. The parts are children with the object names "textInput",
/// "textInputCounterLabel", "clearInputButton", "passwordActionButton" and "searchIcon".
///
/// - Each change of look replaces style text and style sheet: what is to stay belongs into the
///   looks. With a space in its object name, the field loses its style.
/// - The *icons* take the text colours of the factory's normal look, unless the client calls
///   OxaSvgPushButton::setSvgIconColorSet() of a part.
/// - In a layout, the field takes the height that is left: end a column with `addStretch(1)`.
/// - The *error* look comes with the focus, when it goes, and while typing only where the validator
///   was set so. An empty text is in error only with validateErrorWhenEmpty, and then only as the
///   focus comes and goes.
/// - The *counter* shows with a maximum length, while the text is empty or the field has the focus.
///   A field that is read-only has neither counter nor clear button.
/// - A *password field* has a button that shows and hides the text instead of the clear button.
///   While the text is masked, it can be neither copied nor cut, and assistive technology is not
///   told it.
///
/// A slot of the field's signals, or the validator, may delete the field, and a client any of its
/// parts; a slot of the line edit's own signals may do so by deleteLater() only, as with QLineEdit.
class UIELEMENTS_EXPORT OxaTextInput : public OxaWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(QString placeholderText READ placeholderText WRITE setPlaceholderText)
    Q_PROPERTY(int maxLength READ maxLength WRITE setMaxLength)
    Q_PROPERTY(int displayMaxLength READ getDisplayMaxLength WRITE setDisplayMaxLength)
    Q_PROPERTY(bool readOnly READ isReadOnly WRITE setReadOnly)
    Q_PROPERTY(bool validateErrorWhenEmpty READ getValidateErrorWhenEmpty WRITE
                       setValidateErrorWhenEmpty)

public:
    ~OxaTextInput() override;

    /// Returns the text.
    QString text() const;

    /// Sets the text. textChanged() and showErrorLabel() follow where it differs. The field then
    /// looks focused, or in error while it validates, until its focus comes or goes, or
    /// OxaTextInputFactory::apply() shows the look that fits.
    void setText(const QString &text);

    /// Returns what shows in place of an empty text.
    QString placeholderText() const;

    /// Sets what shows in place of an empty text.
    void setPlaceholderText(const QString &text);

    /// Colours the placeholder, as OxaLineEdit::setPlaceholderColorSetName().
    void setPlaceholderColorSetName(const QString &name);

    /// Returns the most UTF-16 units that the text can have. 32767 at first, which is no limit: the
    /// counter does not show.
    int maxLength() const;

    /// Sets the most UTF-16 units that the text can have, also as the counter's total.
    void setMaxLength(int length);

    /// Returns the total that the counter shows. 0 at first.
    int getDisplayMaxLength() const;

    /// Stores the total that the counter shows with its next text, where it is to differ from the
    /// true limit.
    void setDisplayMaxLength(int length);

    /// True when the user cannot change the text.
    bool isReadOnly() const;

    /// Sets whether the user can only read the text.
    void setReadOnly(bool readOnly);

    /// True when the validator is asked about an empty text too. Off by default.
    bool getValidateErrorWhenEmpty() const;

    /// Stores whether the validator is asked about an empty text too, as the focus comes and goes.
    void setValidateErrorWhenEmpty(bool validate);

    /// Sets the function that tells whether a text is valid; an empty one, the default, accepts
    /// all. With \a validateWhileTyping it is asked at each change too. It is asked once as the
    /// focus comes and at Return, and twice as the focus goes, so it has to be fast. With
    /// validateErrorWhenEmpty set, the field shows the answer at once.
    void setInputValidator(const std::function<bool(const QString &)> &validator,
                           bool validateWhileTyping);

    /// True when the validator accepts the text, or there is none.
    bool isValidInput() const;

    /// Returns what showErrorLabel() has said last: true while the message of an error is to be
    /// shown.
    bool isErrorShown() const { return m_isErrorShown; }

    /// True while the field shows the counter.
    bool isCounterShown() const;

    /// Sets what the user can type, as QLineEdit::setValidator(). It does not own \a validator.
    void setValidator(const QValidator *validator);

    /// Sets the alignment of the text.
    void setAlignment(Qt::Alignment alignment);

    /// Returns the cursor's position, in UTF-16 units.
    int cursorPosition() const;

    /// Moves the cursor to \a position.
    void setCursorPosition(int position);

    /// True when the line edit has the focus.
    bool hasFocus() const;

    /// Gives the line edit the focus, for no reason that would show a keyboard frame.
    void setFocus();

    /// Sets the clear button's icon to the SVG file at \a path, 14 by 14. It has none at first.
    void setIcon(const QString &path);

    /// Shows the SVG file at \a path, 12 by 12, in front of the text, with more room before it.
    void setSearchIcon(const QString &path);

    /// Sets the SVG files on the button of a password field: \a shownIcon while the text is shown,
    /// 13 by 13, and \a maskedIcon while it is masked, 13 by 8.
    void setPasswordIcons(const QString &shownIcon, const QString &maskedIcon);

    /// Masks the text and offers the button that shows it, or neither.
    void setPasswordField(bool isPasswordField);

    /// Sets the font token of the text.
    void updateFontToken(OxaFont::Token token);

    /// Sets the sizes of the search icon and of the clear button in pixels, both square.
    void updateIconSizes(int searchSize, int clearSize);

    /// Sets whether the clear button is a stop of Tab, as it is by default.
    void toggleClearButtonFocus(bool canFocus);

    /// Sets the text's accessible name, "Text input field" at first.
    void setTextInputAccessibleText(const QString &name);

    /// Sets the clear button's accessible name, "Clear Input" at first.
    void setButtonAccessibleText(const QString &name);

    /// Returns the line edit, which the field owns.
    OxaLineEdit *getLineEdit() const;

    /// Returns the button that shows and hides a password, which the field owns.
    QPointer<OxaSvgPushButton> getPasswordActionButton() const;

Q_SIGNALS:
    /// The text changed, by whatever means.
    void textChanged(const QString &text);

    /// The user changed the text, or cleared it by the button.
    void textEdited();

    /// The message of an error is to be shown, or hidden: in spite of its name \a isValid is true
    /// where it is to be shown. Comes at each check, also when nothing differs: true twice as the
    /// focus goes. False also comes without a check: at each change of the text without validation
    /// while typing, as an empty field is left, and from the clear button.
    void showErrorLabel(bool isValid);

    /// Return or Enter was pressed in the text.
    void returnPressed();

    /// A key other than Tab and Backtab was pressed in the text, which has not had it yet.
    void keyPressed(int key);

protected:
    /// Shows the look that fits focus and validator. The factory calls it after it has changed the
    /// looks; clients call OxaTextInputFactory::apply().
    void cssUpdated();

    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    friend class OxaTextInputFactory;

    class LineEditCall;

    explicit OxaTextInput(QWidget *parent);

    void makeParts();
    void makeConnections();
    bool onFocusChanged(bool hasCome);
    bool onKeyPressed(int key);
    void onEditingFinished();
    void tellError(bool isError);
    void onTextChanged(const QString &text);
    void showTypingLook(const OxaCSSData &css);
    void clearAndFocusInput();
    void passwordActionPressed();
    void showPasswordIcon(const QString &name, const QString &icon, const QSize &size);
    void colorIcons(const QString &colorSetName);
    void updateCSS(const OxaCSSData &css);
    void updateMaxLengthCounter();
    void showOrHideActionButtons();
    void showOrHideMaxLengthCounter();

    OxaCSSData m_cssNormal;
    OxaCSSData m_cssFocused;
    OxaCSSData m_cssError;
    std::function<bool(const QString &)> m_inputValidator;
    QPointer<OxaLineEdit> m_lineEdit;
    QPointer<OxaLabel> m_counterLabel;
    QPointer<OxaSvgPushButton> m_clearButton;
    QPointer<OxaSvgPushButton> m_passwordButton;
    QPointer<OxaSvgPushButton> m_searchIconButton;
    bool m_validateWhileTyping = false;
    bool m_isPasswordField = false;
    bool m_validateErrorWhenEmpty = false;
    QString m_passwordIconMasked;
    QString m_passwordIconShown;
    int m_displayMaxLength = 0;
    int m_lineEditCalls = 0;
    bool m_isTypingLookShown = false;
    bool m_isErrorShown = false;
};
