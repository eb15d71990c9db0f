// SPDX-License-Identifier: Apache-2.0
#include "WidgetTriggers.h"

#include <UiElements/svg/OxaSvgPushButton.h>
#include <UiElements/widgets/OxaCheckBox.h>
#include <UiElements/widgets/OxaComboBox.h>
#include <UiElements/widgets/OxaLineEdit.h>
#include <UiElements/widgets/OxaRadioButton.h>
#include <UiElements/widgets/OxaTextBrowser.h>
#include <UiElements/widgets/OxaTextEdit.h>
#include <UiElements/widgets/OxaTextInput.h>

#include <QAbstractItemView>

namespace {

/// Makes the widget as small as it may be, so that its middle is what can be clicked.
template <typename Button>
void shrink(Button &button)
{
    button.resize(button.sizeHint());
}

void addCheckBoxRows(SignalTriggers &rows)
{
    addThemeRows<OxaCheckBox>(rows);
    addIconRows<OxaCheckBox>(rows);
    addAbstractButtonRows<OxaCheckBox, &shrink<OxaCheckBox>>(rows);
    rows.push_back(row<OxaCheckBox>("mouseEntered()", "the event", [](OxaCheckBox &box) {
        send(box, QEnterEvent(QPointF(), QPointF(), QPointF()));
    }));
    rows.push_back(row<OxaCheckBox>("mouseExited()", "the event",
                                    [](OxaCheckBox &box) { send(box, QEvent(QEvent::Leave)); }));
}

void name(OxaComboBox &box) { box.setObjectName(QStringLiteral("box")); }

/// Adds a row for each way in which a combo box with a name writes its style text.
void addComboStyleRows(SignalTriggers &rows)
{
    const std::pair<const char *, Act<OxaComboBox>> ways[] = {
        { "setSvgDropdownIcon()", [](OxaComboBox &box) { box.setSvgDropdownIcon({}); } },
        { "setSvgDropDownIconExpanded()",
          [](OxaComboBox &box) { box.setSvgDropDownIconExpanded({}); } },
        { "setSvgDropdownIconSize()",
          [](OxaComboBox &box) { box.setSvgDropdownIconSize(QSize(9, 9)); } },
        { "setSvgDropdownIconPaddingRight()",
          [](OxaComboBox &box) { box.setSvgDropdownIconPaddingRight(1); } },
        { "setItemViewBorderRadius()", [](OxaComboBox &box) { box.setItemViewBorderRadius(1); } },
        { "setItemViewDropdownOffset()",
          [](OxaComboBox &box) { box.setItemViewDropdownOffset(QPoint()); } },
        { "setLeftPadding()", [](OxaComboBox &box) { box.setLeftPadding(1); } },
        { "setEditable()", [](OxaComboBox &box) { box.setEditable(true); } },
        { "updateStyle()",
          [](OxaComboBox &box) {
              box.updateStyle({ "icon", "icon", "icon", 1, 1 });
          } },
        { "a theme type", [](OxaComboBox &box) { box.setThemeType(QStringLiteral("dark")); } },
        { "the event of show()", [](OxaComboBox &box) { send(box, QShowEvent()); } },
        { "the event of its list's show()",
          [](OxaComboBox &box) { send(*box.view(), QShowEvent()); } },
        { "the event of its list's hide()",
          [](OxaComboBox &box) { send(*box.view(), QHideEvent()); } },
    };
    for (const auto &[cause, run] : ways)
        rows.push_back(row<OxaComboBox>("cssChanged()", cause, run, &name));
}

void addComboBoxRows(SignalTriggers &rows)
{
    addThemeRows<OxaComboBox>(rows);
    addComboStyleRows(rows);
    rows.push_back(row<OxaComboBox>(
            "svgDropdownIconChanged(QString)", "setSvgDropdownIcon()",
            [](OxaComboBox &box) { box.setSvgDropdownIcon(QString()); }, &name));
    rows.push_back(row<OxaComboBox>(
            "svgDropdownIconExpandedChanged(QString)", "setSvgDropDownIconExpanded()",
            [](OxaComboBox &box) { box.setSvgDropDownIconExpanded(QString()); }, &name));
    rows.push_back(row<OxaComboBox>(
            "svgDropdownIconSizeChanged(QSize)", "setSvgDropdownIconSize()",
            [](OxaComboBox &box) { box.setSvgDropdownIconSize(QSize(9, 9)); }, &name));
    rows.push_back(row<OxaComboBox>(
            "svgDropdownIconPaddingChanged(int)", "setSvgDropdownIconPaddingRight()",
            [](OxaComboBox &box) { box.setSvgDropdownIconPaddingRight(1); }, &name));
    rows.push_back(row<OxaComboBox>("contentAreaClicked(QMouseEvent*)", "a press",
                                    [](OxaComboBox &box) { press(box); }));
    rows.push_back(row<OxaComboBox>(
            "contentAreaClicked(QMouseEvent*)", "a key in the list of a box that opens none",
            [](OxaComboBox &box) { sendKey(*box.view(), QEvent::KeyPress, Qt::Key_A); },
            [](OxaComboBox &box) { box.setShowPopupEnabled(false); }));
    rows.push_back(row<OxaComboBox>(
            "activated(int)", "Space in the list",
            [](OxaComboBox &box) { sendKey(*box.view(), QEvent::KeyPress, Qt::Key_Space); },
            [](OxaComboBox &box) { box.addItem(QStringLiteral("row")); }));
}

void addLineEditRows(SignalTriggers &rows)
{
    addThemeRows<OxaLineEdit>(rows);
    for (const auto type : { QEvent::HoverEnter, QEvent::HoverLeave }) {
        rows.push_back({ &OxaLineEdit::staticMetaObject,
                         "hoveredChanged(bool)",
                         type == QEvent::HoverEnter ? "HoverEnter" : "HoverLeave",
                         {},
                         [type](QObject *object) {
                             send(*static_cast<QWidget *>(object),
                                  QHoverEvent(type, QPointF(), QPointF()));
                         } });
    }
}

void reject(OxaTextInput &input)
{
    input.setText(QStringLiteral("text"));
    input.setInputValidator([](const QString &) { return false; }, false);
}

/// Adds a row for each way in which a field shows one of its looks.
void addTextInputLookRows(SignalTriggers &rows)
{
    using Input = OxaTextInput;
    const auto focusIn = [](Input &input) {
        send(*input.getLineEdit(), QFocusEvent(QEvent::FocusIn));
    };
    const auto focusOut = [](Input &input) {
        send(*input.getLineEdit(), QFocusEvent(QEvent::FocusOut));
    };
    const auto validate = [](Input &input) {
        input.setInputValidator([](const QString &) { return false; }, false);
    };
    const auto whenEmpty = [](Input &input) { input.setValidateErrorWhenEmpty(true); };
    for (const char *signal : { "showErrorLabel(bool)", "cssChanged()" }) {
        rows.push_back(row<Input>(signal, "the event of focus", focusIn, &reject));
        rows.push_back(row<Input>(signal, "the event of lost focus", focusOut, &reject));
        rows.push_back(row<Input>(signal, "setInputValidator()", validate, whenEmpty));
    }
}

void addTextInputRows(SignalTriggers &rows)
{
    using Input = OxaTextInput;
    addTextInputLookRows(rows);
    const auto setText = [](Input &input) { input.setText(QStringLiteral("other")); };
    const auto erase = [](Input &input) {
        sendKey(*input.getLineEdit(), QEvent::KeyPress, Qt::Key_Backspace);
    };
    const auto clear = [](Input &input) {
        input.findChild<OxaSvgPushButton *>(QStringLiteral("clearInputButton"))->click();
    };
    for (const char *signal : { "textChanged(QString)", "showErrorLabel(bool)", "cssChanged()" }) {
        rows.push_back(row<Input>(signal, "setText()", setText));
        rows.push_back(row<Input>(signal, "a key that changes the text", erase, &reject));
        rows.push_back(row<Input>(signal, "its button", clear, &reject));
    }
    rows.push_back(row<Input>("textEdited()", "a key that changes the text", erase, &reject));
    rows.push_back(row<Input>("textEdited()", "its button", clear));
    const auto pressReturn = [](Input &input) {
        sendKey(*input.getLineEdit(), QEvent::KeyPress, Qt::Key_Return);
    };
    for (const char *signal : { "returnPressed()", "showErrorLabel(bool)", "keyPressed(int)" })
        rows.push_back(row<Input>(signal, "Return", pressReturn, &reject));
}

} // namespace

void addFormTriggers(SignalTriggers &rows)
{
    addCheckBoxRows(rows);
    addThemeRows<OxaRadioButton>(rows);
    addAbstractButtonRows<OxaRadioButton, &shrink<OxaRadioButton>>(rows);
    addComboBoxRows(rows);
    addLineEditRows(rows);
    addTextInputRows(rows);
    addThemeRows<OxaTextEdit>(rows);
    addThemeRows<OxaTextBrowser>(rows);
}

bool isNeverEmitted(const QMetaMethod &signal)
{
    return signal == QMetaMethod::fromSignal(&OxaComboBox::svgDropdownBorderRadiusChanged)
            || signal == QMetaMethod::fromSignal(&OxaComboBox::svgDropdownBorderWidthChanged);
}
