// SPDX-License-Identifier: Apache-2.0
#pragma once

class OxaSeparator;
class OxaSplitter;
class QWidget;

/// The lines between parts of the gallery.
namespace Dividers {

/// Returns a line between what is above it and what is below.
OxaSeparator *line(QWidget *parent = nullptr);

/// Returns a splitter for parts side by side, with a line between them that the user can move.
OxaSplitter *splitter(QWidget *parent = nullptr);

} // namespace Dividers
