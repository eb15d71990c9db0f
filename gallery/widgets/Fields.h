// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QSize>
#include <QStringList>

class OxaCheckBox;
class OxaComboBox;
class OxaDateTimeEdit;
class OxaLineEdit;
class OxaRadioButton;
class OxaSlider;
class OxaTextBrowser;
class OxaTextEdit;
class OxaTextInput;
class OxaTimeEdit;
class QDateTime;
class QTime;
class QWidget;

/// The gallery's controls for forms, and their looks.
///
/// A control is known to assistive technology by the \a name that it is made with.
namespace Fields {

/// Returns the style text of a field whose class is \a className.
QString look(const char *className, const QSize &padding,
             const char *background = "gallery-field-background");

/// Returns a field for one line of text.
OxaLineEdit *line(QWidget *parent = nullptr);

/// Returns a field with a button that clears it.
OxaTextInput *input(const QString &name, QWidget *parent = nullptr);

/// Returns a field for a password, with a button that shows it.
OxaTextInput *password(const QString &name, QWidget *parent = nullptr);

/// Returns a field for searching a list. Its \a hint says what is searched, and Escape clears it.
OxaTextInput *search(const QString &hint, QWidget *parent = nullptr);

/// Returns the first field for searching inside of \a parent, or null.
OxaTextInput *searchIn(const QWidget &parent);

/// Clears \a field and gives it the focus.
void clear(OxaTextInput *field);

/// Returns a choice between \a texts.
OxaComboBox *combo(const QString &name, const QStringList &texts, QWidget *parent = nullptr);

/// Returns a check box with \a text.
OxaCheckBox *checkBox(const QString &text, QWidget *parent = nullptr);

/// Returns a radio button with \a text.
OxaRadioButton *radioButton(const QString &text, QWidget *parent = nullptr);

/// Returns a horizontal slider from \a minimum to \a maximum, at \a value.
OxaSlider *slider(int minimum, int maximum, int value, QWidget *parent = nullptr);

/// Returns a field for a date and a time, which shows \a moment.
OxaDateTimeEdit *dateTime(const QString &name, const QDateTime &moment, QWidget *parent = nullptr);

/// Returns a field for a time, which shows \a moment.
OxaTimeEdit *time(const QString &name, const QTime &moment, QWidget *parent = nullptr);

/// Returns a field for rich text.
OxaTextEdit *edit(const QString &name, QWidget *parent = nullptr);

/// Returns a reader of rich text.
OxaTextBrowser *browser(const QString &name, QWidget *parent = nullptr);

} // namespace Fields
