// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPixmap>

class OxaLabel;
class QWidget;

/// Labels that show the gallery's movies.
namespace MovieLabels {

/// The width and height of labels.
constexpr int side = 112;

/// Gives \a label the size and the frame of all of them, and \a name for assistive technology.
void setUp(OxaLabel *label, const QString &name);

/// Returns a label called \a name, whose QMovie plays only while the label is visible.
OxaLabel *make(const QString &name, QWidget *parent = nullptr);

/// Returns \a widget with \a caption above it.
QWidget *captioned(const QString &caption, QWidget *widget);

/// Returns the picture at \a path, as large as a label has room for.
QPixmap picture(const QString &path);

} // namespace MovieLabels
