// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaProperties.h>
#include <UiElements/widgets/OxaWidget.h>

#include <functional>

class OxaSeparator;
class OxaSvgAnchorButton;
class OxaSvgLabel;
class OxaSvgPushButton;
class QVBoxLayout;

/// A vertical menu made of widgets, for places where it stays open: items that call a function,
/// buttons, titles and separators, one below the other. The menu owns all of them.
///
/// Assistive technology is told of a menu, and of its buttons as items. Each item is a stop for
/// Tab. Set the menu's maximum width before adding anything but items: buttons, titles and inset
/// separators take it over as it is then.
///
/// In a place higher than its contents they are spread: `addWidget(new QWidget, 1)` as the last
/// call keeps them at the top.
class UIELEMENTS_EXPORT OxaVMenu : public OxaWidget
{
    Q_OBJECT

public:
    /// Makes an empty menu.
    explicit OxaVMenu(QWidget *parent = nullptr);

    /// Adds an item whose click calls \a callback, which may delete the menu, and returns it. It is
    /// at least 240 by 40 pixels, in the sets "mainList-item" and "oxa-menuItemButton-text" and the
    /// menu's font. In an empty menu it takes the focus that the menu is given, or, while it is
    /// hidden or disabled, the first button that is neither.
    OxaProperties::SvgPushButtonWidget<OxaSvgPushButton> addMenuItem(
            std::function<void()> callback);

    /// Adds a button, at most as wide as the menu, and returns it. It has no style text, and shows
    /// nothing until it has one with `$textColors:`.
    OxaSvgPushButton *addButton();

    /// Adds a checkable button with an anchored icon, at most as wide as the menu, and returns it.
    /// It needs a style text as addButton() says.
    OxaSvgAnchorButton *addAnchorButton();

    /// Adds a title in the font token BodySecondary, at most as wide as the menu, and returns it.
    /// It needs a style text as addButton() says.
    OxaSvgLabel *addSectionTitle();

    /// Adds a line in the colours of the set called \a colorSetName, or with an empty name in its
    /// own, and returns it. With an \a inset above 0 it is centred, and as wide as the menu's
    /// maximum width without the margins and \a inset pixels on each side: a menu without a maximum
    /// width would become endless.
    OxaSeparator *addSeparator(const QString &colorSetName = QString(), int inset = 0);

    /// Adds \a height pixels of space.
    void addSpacer(int height);

    /// Adds \a widget, which becomes the menu's own, as QBoxLayout does.
    void addWidget(QWidget *widget, int stretch = 0, Qt::Alignment alignment = Qt::Alignment());

    /// Returns the number of things that were added, spaces included.
    int count() const;

    /// Removes everything, and deletes the widgets.
    void clear();

    /// Sets the space around the contents, in reading direction. None by default.
    void setMargin(const QMargins &margins);

    /// Sets the space between what is added, in pixels. 0 by default.
    void setSpacing(int spacing);

    /// Sets the background to the set called \a name and keeps the rest of the style text.
    void setBackgroundColorSet(const QString &name);

    /// Sets the radius of all corners in pixels, 0 to 255 (more wraps around), with a border of 1
    /// pixel on all sides, and keeps the rest of the style text.
    void setBorderRadius(int radius);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void addLimited(QWidget *widget);

    QVBoxLayout *const m_layout;
    bool m_passesFocusOn = false; ///< An item was the first to be added.
};
