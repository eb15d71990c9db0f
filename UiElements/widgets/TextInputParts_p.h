// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPointer>
#include <QSize>

class OxaLabel;
class OxaLineEdit;
class OxaSvgPushButton;
class QWidget;

/// The parts of an OxaTextInput, as it makes them.
namespace TextInputParts {

/// QLineEdit's own limit, which counts as none.
constexpr int unlimitedLength = 32767;

constexpr QSize actionIconSize(14, 14);

OxaLineEdit *makeLineEdit(QWidget *parent);
OxaLabel *makeCounter(QWidget *parent);

/// Makes a round button that is hidden at first.
OxaSvgPushButton *makeActionButton(const QString &objectName, QWidget *parent);

/// Makes a button that is a picture: it takes no focus, and its accessible role says so.
OxaSvgPushButton *makeSearchIcon(QWidget *parent);

/// Sets both sizes that \a button knows, Qt's and the one that its SVG icon is painted in.
void setIconSizes(const QPointer<OxaSvgPushButton> &button, const QSize &size);

} // namespace TextInputParts
