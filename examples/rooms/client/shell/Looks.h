// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/fonts/OxaFont.h>
#include <UiElements/widgets/AlertBanner.h>

#include <QString>

#include <string>

class OxaLabel;
class OxaMenu;
class OxaSvgPushButton;
class OxaTextInput;
class OxaTextInputFactory;
class QColor;
class QPainter;
class QPushButton;
class QRect;
class QRectF;
class QVBoxLayout;
class QWidget;

/// How buttons, fields and labels of this client look.
namespace Looks {

/// What a button is for: the one thing to do, one of several (with or without an outline), one that
/// is switched on, and one that destroys or ends something.
enum class Button { Accent, Outline, Quiet, Chosen, Danger };

/// The colour of the set called \a name, for what is painted.
QColor color(const std::string &name);

/// Paints a frame just inside \a rect around what has the focus.
void paintFocus(QPainter *painter, const QRectF &rect, int radius = 6);

/// The style text of a button with rounded corners. A checked button changes its kind to
/// Button::Chosen.
QString buttonStyle(Button kind, int radius = 6);

/// A button with \a text, 32 high.
OxaSvgPushButton *makeButton(const QString &text, Button kind, QWidget *parent);

/// A quiet square button with the icon called \a icon. \a name is its tool tip and its name for
/// assistive technology.
OxaSvgPushButton *makeIconButton(const QString &icon, const QString &name, QWidget *parent,
                                 int size = 32);

/// Makes \a button checkable: while it is checked it looks as Button::Chosen, else as \a kind.
void makeCheckable(OxaSvgPushButton *button, Button kind, int radius = 6);

/// A label in the font of \a token and the colours of the set called \a colors. It may become
/// narrower than its text, which is elided then.
OxaLabel *makeLabel(const QString &text, OxaFont::Token token, const QString &colors,
                    QWidget *parent);

/// Shows the text of \a label in its middle, also when the direction changes.
void centre(OxaLabel *label);

/// The looks of all fields.
OxaTextInputFactory fields();

/// A field called \a name, which is also its placeholder.
OxaTextInput *makeField(const QString &name, QWidget *parent);

/// An empty menu.
OxaMenu *makeMenu(QWidget *parent);

/// Shows \a content in a popup above \a button, or below it; on the other side for want of room.
/// The popup deletes itself once it is hidden.
void popUp(QPushButton *button, QWidget *content, bool isAbove = true);

/// Likewise beside \a rect, on the screen.
void popUp(QWidget *parent, const QRect &rect, QWidget *content);

/// A banner with \a text, which is rich.
AlertBanner *makeBanner(AlertBanner::AlertType type, const QString &text, QWidget *parent);

/// The layout of \a widget: one thing below the other, without gaps.
QVBoxLayout *makeColumn(QWidget *widget);

/// The rules of horizontal sliders. They depend on the direction: Qt mirrors a slider, but not the
/// parts that rules name.
QString sliderRules();

/// The rules of lists without a frame and of their scroll bars.
QString listRules();

/// The rules of the hovered and the current row of lists whose delegate leaves that to the style.
QString rowRules();

} // namespace Looks
