// SPDX-License-Identifier: Apache-2.0
#include "AccessibleButton_p.h"
#include "AccessibleClasses_p.h"
#include "AccessibleLineEdit_p.h"
#include "AccessibleQuick_p.h"
#include "AccessibleTexts_p.h"
#include "AccessibleWidget_p.h"

#include <UiElements/emoji/OxaEmojiPushButton.h>
#include <UiElements/movies/OxaGifLabel.h>
#include <UiElements/qml/OxaQuickView.h>
#include <UiElements/qml/OxaQuickWidget.h>
#include <UiElements/svg/OxaSvgLabel.h>
#include <UiElements/widgets/AlertBanner.h>
#include <UiElements/widgets/ContainerWidget.h>
#include <UiElements/widgets/OxaCheckBox.h>
#include <UiElements/widgets/OxaComboBox.h>
#include <UiElements/widgets/OxaDateTimeEdit.h>
#include <UiElements/widgets/OxaDialog.h>
#include <UiElements/widgets/OxaFrame.h>
#include <UiElements/widgets/OxaLineEdit.h>
#include <UiElements/widgets/OxaListView.h>
#include <UiElements/widgets/OxaListWidget.h>
#include <UiElements/widgets/OxaMainWindow.h>
#include <UiElements/widgets/OxaNotification.h>
#include <UiElements/widgets/OxaProgressBar.h>
#include <UiElements/widgets/OxaPushButton.h>
#include <UiElements/widgets/OxaRadioButton.h>
#include <UiElements/widgets/OxaSeparator.h>
#include <UiElements/widgets/OxaSlider.h>
#include <UiElements/widgets/OxaSplitter.h>
#include <UiElements/widgets/OxaStackedWidget.h>
#include <UiElements/widgets/OxaTabBar.h>
#include <UiElements/widgets/OxaTextBrowser.h>
#include <UiElements/widgets/OxaTextEdit.h>
#include <UiElements/widgets/OxaTextInput.h>
#include <UiElements/widgets/OxaTimeEdit.h>
#include <UiElements/widgets/OxaTreeView.h>
#include <UiElements/widgets/OxaVMenu.h>
#include <UiElements/widgets/PopupWidget.h>

#include <QKeyEvent>
#include <QLayout>
#include <QListView>
#include <QScrollArea>

namespace {

using Role = QAccessible::Role;

/// Returns the answer of a getter of \a Widget.
template <typename Widget, auto getter>
QString textOf(const QWidget &widget)
{
    return (static_cast<const Widget &>(widget).*getter)();
}

constexpr AccessibleClass::Text messageOf =
        textOf<ContainerWidget, &ContainerWidget::getAccessibleMessage>;

/// An icon without a text is a picture.
Role iconRole(const QWidget &label)
{
    const auto &svgLabel = static_cast<const OxaSvgLabel &>(label);
    const bool isPicture = svgLabel.text().isEmpty() && !svgLabel.getSvgIcon().isEmpty();
    return isPicture ? QAccessible::Graphic : QAccessible::NoRole;
}

/// A popup with a menu in it is one.
Role popupRole(const QWidget &popup)
{
    const bool isMenu = qobject_cast<const OxaVMenu *>(
            static_cast<const PopupWidget &>(popup).getRegisterWidget());
    return isMenu ? QAccessible::PopupMenu : QAccessible::NoRole;
}

void stepSlider(QWidget &slider, bool isUp)
{
    static_cast<QSlider &>(slider).triggerAction(isUp ? QSlider::SliderSingleStepAdd
                                                      : QSlider::SliderSingleStepSub);
}

/// Goes by key, so that a section that cannot go further stays as it is, as a field that is
/// read-only does.
void stepField(QWidget &field, bool isUp)
{
    QKeyEvent press(QEvent::KeyPress, isUp ? Qt::Key_Up : Qt::Key_Down, Qt::NoModifier);
    QCoreApplication::sendEvent(&field, &press);
}

template <typename Interface>
QAccessibleInterface *make(QWidget *widget, QAccessibleInterface *qts)
{
    return new Interface(widget, qts);
}

/// The usual case: a role at most, a text, a remark.
template <typename Widget>
constexpr AccessibleClass row(Role role = QAccessible::NoRole, AccessibleClass::Text name = nullptr,
                              AccessibleClass::Text remark = nullptr)
{
    return { &Widget::staticMetaObject, role, name, remark };
}

template <typename Label>
constexpr AccessibleClass label(Role role = QAccessible::NoRole,
                                AccessibleClass::ShownRole shownRole = nullptr)
{
    AccessibleClass label = row<Label>(role, AccessibleTexts::ofLabel);
    label.shownRole = shownRole;
    return label;
}

template <typename Button>
constexpr AccessibleClass button(AccessibleClass::Text remark = nullptr)
{
    AccessibleClass button = row<Button>(QAccessible::NoRole, AccessibleTexts::ofButton, remark);
    button.make = make<AccessibleButton>;
    return button;
}

constexpr AccessibleClass lineEdit()
{
    AccessibleClass edit = row<OxaLineEdit>(QAccessible::NoRole, nullptr,
                                            AccessibleTexts::counterOf);
    edit.make = make<AccessibleLineEdit>;
    return edit;
}

template <typename Bar>
constexpr AccessibleClass bar(Role role, Role memberRole, AccessibleClass::Text name = nullptr)
{
    AccessibleClass bar = row<Bar>(role, name);
    bar.memberRole = memberRole;
    return bar;
}

template <typename Field>
constexpr AccessibleClass stepper(AccessibleClass::Step step)
{
    AccessibleClass field = row<Field>();
    field.step = step;
    return field;
}

constexpr AccessibleClass qml()
{
    AccessibleClass qml = row<OxaQuickWidget>(QAccessible::Pane);
    qml.make = make<AccessibleQuickWidget>;
    return qml;
}

constexpr AccessibleClass popup()
{
    AccessibleClass popup = row<PopupWidget>(QAccessible::Dialog, AccessibleTexts::ofPopup);
    popup.shownRole = popupRole;
    return popup;
}

constexpr AccessibleClass classes[] = {
    // clang-format off
    // What is read.
    label<OxaLabel>(),
    label<OxaSvgLabel>(QAccessible::NoRole, iconRole),
    label<OxaGifLabel>(QAccessible::Graphic),
    label<OxaEmojiPushButton>(QAccessible::PushButton),
    row<OxaTextBrowser>(),
    row<OxaProgressBar>(),
    row<OxaSeparator>(QAccessible::Separator),
    row<AlertBanner>(QAccessible::AlertMessage, AccessibleTexts::ofLabelsIn),
    row<OxaNotification>(QAccessible::AlertMessage, AccessibleTexts::ofLabelsIn),

    // What is clicked.
    button<OxaPushButton>(AccessibleTexts::badgeOf),
    button<OxaCheckBox>(),
    button<OxaRadioButton>(),
    bar<OxaTabBar>(QAccessible::PageTabList, QAccessible::PageTab, messageOf),
    bar<OxaVMenu>(QAccessible::PopupMenu, QAccessible::MenuItem),

    // What is entered.
    row<OxaTextInput>(QAccessible::Grouping),
    lineEdit(),
    row<OxaTextEdit>(QAccessible::NoRole, nullptr,
                     textOf<OxaTextEdit, &QTextEdit::placeholderText>),
    row<OxaComboBox>(QAccessible::NoRole, nullptr, AccessibleTexts::choiceOf),
    stepper<OxaSlider>(stepSlider),
    stepper<OxaDateTimeEdit>(stepField),
    stepper<OxaTimeEdit>(stepField),

    // What has others in it.
    row<OxaWidget>(QAccessible::Pane),
    row<OxaFrame>(QAccessible::Pane),
    row<ContainerWidget>(QAccessible::Grouping, messageOf),
    row<OxaListView>(),
    row<OxaListWidget>(),
    row<OxaTreeView>(),
    row<OxaSplitter>(),
    row<OxaStackedWidget>(),
    row<OxaMainWindow>(),
    row<OxaDialog>(),
    popup(),
    qml(),
    row<OxaQuickView>(), // The one that is no widget.

    // What clients derive from. Qt tells of fillers, which are passed over even with the focus.
    row<QListView>(), // That of a combo box, too, which is hidden until it opens.
    row<QScrollArea>(QAccessible::Pane),
    row<QAbstractScrollArea>(QAccessible::Pane),
    row<QWidget>(),
    // clang-format on
};

/// Qt asks for one class after the other, from that of \a object to its base classes, and other
/// factories for each: the row is given for its own class, so that theirs can come before it.
QAccessibleInterface *makeInterface(const QString &className, QObject *object)
{
    if (QtsInterface::isBeingMade(object))
        return nullptr;
    const AccessibleClass *row = AccessibleClasses::rowOf(*object);
    if (!row || className != QLatin1String(row->metaObject->className()))
        return nullptr;
    if (!object->isWidgetType())
        return new AccessibleQuickWindow(static_cast<OxaQuickView *>(object));
    QAccessibleInterface *qts = QtsInterface::make(object);
    if (!qts)
        return nullptr;
    auto *widget = static_cast<QWidget *>(object);
    return row->make ? row->make(widget, qts) : new AccessibleWidget(widget, qts);
}

} // namespace

void AccessibleClasses::install() { QAccessible::installFactory(makeInterface); }

void AccessibleClasses::remove() { QAccessible::removeFactory(makeInterface); }

const AccessibleClass *AccessibleClasses::rowOf(const QObject &object)
{
    for (const QMetaObject *each = object.metaObject(); each; each = each->superClass()) {
        for (const AccessibleClass &row : classes) {
            if (row.metaObject == each)
                return &row;
        }
    }
    return nullptr;
}

QAccessible::Role AccessibleClasses::memberRole(QWidget *widget)
{
    const QWidget *parent = widget->parentWidget();
    if (!parent || !parent->layout() || parent->layout()->indexOf(widget) < 0)
        return QAccessible::NoRole;
    const AccessibleClass *row = rowOf(*parent);
    return row ? row->memberRole : QAccessible::NoRole;
}
