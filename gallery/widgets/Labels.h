// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

class OxaLabel;
class QWidget;

/// The kinds of text in the gallery.
namespace Labels {

/// Returns the title of a page.
OxaLabel *title(const QString &text, QWidget *parent = nullptr);

/// Returns the heading of a card.
OxaLabel *heading(const QString &text, QWidget *parent = nullptr);

/// Returns body text on one line.
OxaLabel *line(const QString &text, QWidget *parent = nullptr);

/// Returns body text on one line, which is elided if there is no room.
OxaLabel *elidedLine(const QString &text, QWidget *parent = nullptr);

/// Returns body text that wraps.
OxaLabel *paragraph(const QString &text, QWidget *parent = nullptr);

/// Returns a small, muted text on one line.
OxaLabel *caption(const QString &text, QWidget *parent = nullptr);

/// Returns a small text in a rounded box.
OxaLabel *chip(const QString &text, QWidget *parent = nullptr);

} // namespace Labels
