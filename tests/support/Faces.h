// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Windows.h"
#include "support/ColorSets.h"
#include "support/Pixels.h"

#include <QAbstractButton>
#include <QMouseEvent>
#include <QTest>

/// The six states that a widget is painted in, and colour sets that tell them apart.
namespace Faces {

enum class Face { Normal, Hovered, Pressed, Checked, Disabled, Focused };

constexpr std::pair<Face, const char *> all[] = {
    { Face::Normal, "normal" },   { Face::Hovered, "hovered" },   { Face::Pressed, "pressed" },
    { Face::Checked, "checked" }, { Face::Disabled, "disabled" }, { Face::Focused, "focused" },
};

/// Adds a row for each face and layout direction, under the columns "face" and "direction". Without
/// \a isButton the faces of buttons are left out.
inline void addRows(bool isButton = true)
{
    QTest::addColumn<Face>("face");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    for (const auto &[face, name] : all) {
        if (!isButton && (face == Face::Pressed || face == Face::Checked))
            continue;
        QTest::addRow("%s", name) << face << Qt::LeftToRight;
        QTest::addRow("%s, right to left", name) << face << Qt::RightToLeft;
    }
}

/// Shows the window of \a widget and gives it keyboard focus. Returns whether that worked.
inline bool focusByKeyboard(QWidget &widget)
{
    QWidget *window = widget.window();
    if (!Windows::activate(*window))
        return false;
    window->setAttribute(Qt::WA_KeyboardFocusChange);
    widget.setFocus(Qt::TabFocusReason);
    return QTest::qWaitFor([&widget] { return widget.hasFocus(); });
}

/// Makes \a widget behave as under the pointer. A button does so from the first move on.
inline void hover(QWidget &widget)
{
    widget.ensurePolished();
    widget.setAttribute(Qt::WA_UnderMouse);
    const QPointF centre = widget.rect().center();
    QMouseEvent move(QEvent::MouseMove, centre, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &move);
}

/// Brings \a widget into the state \a face. Returns whether that worked.
inline bool put(QWidget &widget, Face face)
{
    auto *button = qobject_cast<QAbstractButton *>(&widget);
    switch (face) {
    case Face::Normal:
        break;
    case Face::Hovered:
        hover(widget);
        break;
    case Face::Pressed:
        button->setDown(true);
        break;
    case Face::Checked:
        button->setCheckable(true);
        button->setChecked(true);
        break;
    case Face::Disabled:
        widget.setEnabled(false);
        break;
    case Face::Focused:
        return focusByKeyboard(widget);
    }
    return true;
}

/// Returns a set called \a name of six colours that are far from each other, none of them grey:
/// \a light is their strongest channel. Sets whose values differ by 50 can be told apart too.
inline OxaColorSet colors(const QString &name, int light)
{
    OxaColorSet set(name, QColor(light, 0, 0));
    set.hovered = QColor(0, light, 0);
    set.pressed = QColor(0, 0, light);
    set.disabled = QColor(light, light, 0);
    set.focused = QColor(light, 0, light);
    set.checked = QColor(0, light, light);
    return set;
}

/// Returns the colour of \a set for \a face.
inline QColor colorOf(const OxaColorSet &set, Face face)
{
    switch (face) {
    case Face::Normal:
        return set.normal;
    case Face::Hovered:
        return set.hovered;
    case Face::Pressed:
        return set.pressed;
    case Face::Checked:
        return set.checked;
    case Face::Disabled:
        return set.disabled;
    case Face::Focused:
        return set.focused;
    }
    return {};
}

/// Returns the faces whose colours of \a set are in \a image: "hovered", or "" for none.
inline QString facesIn(const QImage &image, const OxaColorSet &set, const QRect &area = QRect())
{
    QStringList found;
    for (const auto &[face, name] : all) {
        if (Pixels::countNear(image, colorOf(set, face), area) > 0)
            found += QLatin1String(name);
    }
    return found.join(QLatin1Char(' '));
}

/// Returns the name of \a face.
inline QString nameOf(Face face)
{
    for (const auto &[other, name] : all) {
        if (other == face)
            return QLatin1String(name);
    }
    return {};
}

} // namespace Faces

Q_DECLARE_METATYPE(Faces::Face)
