// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <QColor>
#include <QMetaType>
#include <QString>

#include <string>
#include <unordered_map>

/// A named set of six colours, one for each interaction state of a control.
///
/// A plain value: copy it freely. A look-up that finds no set returns a default-made set, which is
/// not valid; its invalid colours don't paint. QML sees the fields as properties.
class UIELEMENTS_EXPORT OxaColorSet
{
    Q_GADGET
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QColor normal MEMBER normal)
    Q_PROPERTY(QColor hovered MEMBER hovered)
    Q_PROPERTY(QColor pressed MEMBER pressed)
    Q_PROPERTY(QColor disabled MEMBER disabled)
    Q_PROPERTY(QColor focused MEMBER focused)
    Q_PROPERTY(QColor checked MEMBER checked)
    Q_PROPERTY(bool isValid READ isValid)

public:
    /// Makes a set with an empty name and six invalid colours.
    OxaColorSet() = default;

    /// Makes a set called \a setName with \a color in all six states.
    OxaColorSet(const QString &setName, const QColor &color);

    /// True when the name is not empty and all six colours are valid.
    bool isValid() const;

    /// Returns the colour of the state called \a state: "normal", "hovered", "pressed", "disabled",
    /// "focused" or "checked", compared case-sensitively.
    ///
    /// Any other word logs a warning and gives an invalid colour.
    QColor colorForState(QStringView state) const;

    QString name;    ///< The set's name.
    QColor normal;   ///< Resting colour.
    QColor hovered;  ///< Colour under the pointer.
    QColor pressed;  ///< Colour while pressed.
    QColor disabled; ///< Colour of a disabled control.
    QColor focused;  ///< Colour of a focused control.
    QColor checked;  ///< Colour of a checked control.
};

Q_DECLARE_METATYPE(OxaColorSet)

/// True when \a a and \a b have the same name and the same six colours.
UIELEMENTS_EXPORT bool operator==(const OxaColorSet &a, const OxaColorSet &b);

/// True when \a a and \a b differ in their name or in a colour.
inline bool operator!=(const OxaColorSet &a, const OxaColorSet &b) { return !(a == b); }

/// Colours by name, as read from a colour document. Keys are UTF-8.
using OxaColorPalette = std::unordered_map<std::string, QColor>;

/// Colour sets by name: the type of the application's two stores. Keys are UTF-8.
using OxaColorSetMap = std::unordered_map<std::string, OxaColorSet>;

/// Names by number, carried for the outer application; nothing in the library interprets them.
using OxaColorTokenMap = std::unordered_map<int, std::string>;
