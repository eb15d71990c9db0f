// SPDX-License-Identifier: Apache-2.0
#include "KeyDeeds.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTextEdit>

namespace {

using Type = std::function<void(const char *)>;

/// Types \a key, then, if the property or value has changed, \a back. Returns whether it has.
template <typename Value>
bool changes(const Value &value, const Type &type, const char *key, const char *back)
{
    const auto before = value();
    type(key);
    if (value() == before)
        return false;
    type(back);
    return true;
}

template <typename Value>
bool changesEitherWay(const Value &value, const Type &type, const char *key, const char *back)
{
    return changes(value, type, key, back) || changes(value, type, back, key);
}

bool scrolls(const QAbstractScrollArea &area, const Type &type)
{
    const QScrollBar *bar = area.verticalScrollBar();
    return changesEitherWay([bar] { return bar->value(); }, type, "Page_Down", "Page_Up");
}

template <typename Edit>
bool workText(Edit &edit, const Type &type)
{
    if (!edit.isReadOnly()) {
        type("ctrl+End");
        return changes([&edit] { return edit.toPlainText(); }, type, "x", "BackSpace");
    }
    if (edit.document()->isEmpty())
        return true;
    return changes([&edit] { return edit.textCursor().hasSelection(); }, type, "ctrl+a", "ctrl+c");
}

bool workLine(QLineEdit &field, const Type &type)
{
    if (field.isReadOnly())
        return changes([&field] { return field.cursorPosition(); }, type, "End", "Home");
    type("End");
    return changes([&field] { return field.text(); }, type, "x", "BackSpace");
}

bool workList(QAbstractItemView &view, const Type &type)
{
    return view.model()->rowCount() < 2
            || changesEitherWay([&view] { return view.currentIndex(); }, type, "Down", "Up")
            || changesEitherWay([&view] { return view.currentIndex(); }, type, "Right", "Left");
}

bool workLabel(QLabel &label, const Type &type)
{
    int followed = 0;
    QObject context;
    QObject::connect(&label, &QLabel::linkActivated, &context, [&followed] { ++followed; });
    if (label.metaObject()->indexOfSignal("clicked()") >= 0) {
        const QSignalSpy clicked(&label, SIGNAL(clicked()));
        type("space");
        return clicked.size() == 1;
    }
    type("Return");
    if (followed == 0) {
        type("Tab");
        type("Return");
    }
    return followed == 1;
}

} // namespace

bool KeyDeeds::isField(const QWidget &widget)
{
    return qobject_cast<const QLineEdit *>(&widget) || qobject_cast<const QTextEdit *>(&widget)
            || qobject_cast<const QPlainTextEdit *>(&widget);
}

bool KeyDeeds::hasParts(const QWidget &widget)
{
    return qobject_cast<const QLabel *>(&widget) || qobject_cast<const QTextEdit *>(&widget)
            || qobject_cast<const QAbstractSpinBox *>(&widget);
}

bool KeyDeeds::work(QWidget &widget, const Type &type)
{
    if (auto *slider = qobject_cast<QAbstractSlider *>(&widget))
        return changesEitherWay([slider] { return slider->value(); }, type, "Right", "Left");
    if (auto *box = qobject_cast<QAbstractSpinBox *>(&widget))
        return changesEitherWay([box] { return box->text(); }, type, "Up", "Down");
    if (auto *combo = qobject_cast<QComboBox *>(&widget))
        return changesEitherWay([combo] { return combo->currentIndex(); }, type, "Down", "Up");
    if (auto *field = qobject_cast<QLineEdit *>(&widget))
        return workLine(*field, type);
    if (auto *edit = qobject_cast<QTextEdit *>(&widget))
        return workText(*edit, type);
    if (auto *edit = qobject_cast<QPlainTextEdit *>(&widget))
        return workText(*edit, type);
    if (auto *view = qobject_cast<QAbstractItemView *>(&widget))
        return workList(*view, type);
    if (auto *area = qobject_cast<QAbstractScrollArea *>(&widget))
        return scrolls(*area, type);
    if (auto *label = qobject_cast<QLabel *>(&widget))
        return workLabel(*label, type);
    // What moves itself, or hands the focus on.
    const auto place = [&widget] { return qMakePair(widget.pos(), QApplication::focusWidget()); };
    return changesEitherWay(place, type, "Right", "Left");
}
