// SPDX-License-Identifier: Apache-2.0
#pragma once

// Longer than other headers: subclasses also find here what they paint with.

#include <UiElements/UiElementsExport.h>
#include <UiElements/fonts/OxaFontBlock.h>
#include <UiElements/theme/OxaNamedColorSet.h>
#include <UiElements/theme/OxaThemeBlock.h>
#include <UiElements/widgets/OxaElementBlock.h>
#include <UiElements/widgets/OxaElisionBlock.h>
#include <UiElements/widgets/RillsAccessible.h>

#include <QPixmap>
#include <QPushButton>
#include <QUuid>

class QStyleOptionButton;
class QTimer;

/// The library's button: a QPushButton that takes part in theming, elides its text, and reports
/// long presses, right clicks, hover and focus. It can have a badge and a pixmap under its frame.
/// Its size hint is that of the whole text: a layout elides it only if it has a minimum width.
///
/// Every button is auto-default at first. The order of the virtual functions is part of the binary
/// interface.
///
/// A slot may delete the button, but not a slot of toggled(), nor of a signal that follows from it:
/// QAbstractButton uses the button after that. Such a slot calls deleteLater().
class UIELEMENTS_EXPORT OxaPushButton : public QPushButton
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QPushButton)
    UIELEMENTS_FONT_BLOCK
    UIELEMENTS_ELISION_BLOCK
    UIELEMENTS_ELEMENT_ID_BLOCK
    UIELEMENTS_ACCESSIBLE_ROLE_BLOCK
    Q_PROPERTY(QString focusRectColorSet READ getFocusRectColorSet WRITE setFocusRectColorSet)
    Q_PROPERTY(bool longPressEnabled READ isLongPressEnabled WRITE setLongPressEnabled)
    Q_PROPERTY(bool badgeVisible READ isBadgeVisible WRITE setBadgeVisible)
    // QAbstractButton's, declared again so that the property system calls the setter below.
    Q_PROPERTY(QIcon icon READ icon WRITE setIcon)

public:
    /// Makes a button without a text.
    explicit OxaPushButton(QWidget *parent = nullptr,
                           const QAccessible::Role &role = QAccessible::PushButton);

    /// Makes a button with \a text.
    explicit OxaPushButton(const QString &text, QWidget *parent = nullptr,
                           const QAccessible::Role &role = QAccessible::PushButton);

    /// Makes a button with \a icon and \a text.
    OxaPushButton(const QIcon &icon, const QString &text, QWidget *parent = nullptr,
                  const QAccessible::Role &role = QAccessible::PushButton);

    /// Returns the name of the set whose normal colour the focus frame inverts. Empty by default:
    /// the button then draws no frame of its own.
    QString getFocusRectColorSet() const;

    /// Looks the set called \a name up in the button's theme and stores it. Does not repaint.
    void setFocusRectColorSet(const QString &name);

    /// True when holding the button down for 500 ms is a long press. Off by default.
    bool isLongPressEnabled() const;

    /// Sets whether there are long presses.
    void setLongPressEnabled(bool enabled);

    /// True when the badge shows. Off by default.
    bool isBadgeVisible() const;

    /// Shows or hides the badge, a dot at the top right in the colour of the set
    /// "badge-background". The colour is that of the application's theme, even if the button has
    /// another one. Repaints at once.
    void setBadgeVisible(bool visible);

    /// Sets the icon, as QAbstractButton does.
    void setIcon(const QIcon &icon);

    /// Paints \a color over the pixmaps of the icon for \a mode, keeping their shape.
    void setIconColor(const QColor &color, QIcon::Mode mode);

    /// Paints \a color over the pixmap of the icon for \a mode and \a state, keeping its shape.
    /// Does nothing without an icon.
    void setIconColor(const QColor &color, QIcon::Mode mode, QIcon::State state);

    /// Sets the pixmap that is painted under the frame. Does not repaint.
    void setPixmap(const QPixmap &pixmap);

    /// Shows or hides the pixmap under the frame, shown at first. Does not repaint.
    void setPixmapIconVisibility(bool visible);

    /// Returns the id of this button, generated when it is made.
    QUuid getObjectId() const;

    /// Returns the type that the outer application has stored. Zero by default.
    RillsAccessible::AcceleratorType getAcceleratorType() const;

    /// Stores \a type for the outer application.
    void setAcceleratorType(const RillsAccessible::AcceleratorType &type);

    /// Returns the mode that the outer application has stored. Zero by default.
    RillsAccessible::AccessibleMode getAccessibleMode() const;

    /// Stores \a mode for the outer application.
    void setAccessibleMode(const RillsAccessible::AccessibleMode &mode);

Q_SIGNALS:
    /// The button gets the focus; Qt has not handled the event yet. A slot calls deleteLater()
    /// instead of deleting the button: QWidget and QApplication use it after this event.
    void onFocusIn();

    /// The button loses the focus; Qt has not handled the event yet. As for onFocusIn(), a slot
    /// calls deleteLater() instead of deleting the button.
    void onFocusOut();

    /// The button was held down for 500 ms. No click follows.
    void longPressed();

    /// The pointer entered the button.
    void mouseEntered();

    /// The pointer left the button.
    void mouseExited();

    /// The right mouse button went down on the button.
    void rightClick();

protected:
    /// Returns \a text elided to the button's width minus the elide padding, twice \a sideMargin
    /// and \a extraWidth; with Qt::ElideNone, \a text itself.
    QString getElidedText(const QString &text, int extraWidth, int sideMargin) const;

    /// Returns the button's width minus the elide padding, in pixels.
    int getLineWidth() const;

    /// Returns the set that the style text's "$textColors:" names; not valid when it names none.
    const OxaColorSet &textColors() const;

    /// Returns the pixmap under the frame.
    const QPixmap &getPixmap() const;

    /// Fills \a option with what the style needs to draw the button.
    virtual void initButtonStyleOption(QStyleOptionButton *option) const;

protected Q_SLOTS:
    /// Runs at each change of the theme type, for subclasses to look up what they paint with.
    virtual void onThemeChanged();

protected:
    /// Paints what a plain button shows: the pixmap, the style's button, the focus frame, the
    /// badge.
    void paintButton();

    /// Ends a press that was long enough: the button goes up, and longPressed() is emitted.
    void onButtonDownTimeout();

    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    void paintFocusFrame(QPainter &painter, const QStyleOptionButton &option);
    void paintBadge(QPainter &painter) const;

    OxaColorSet m_textColors;
    OxaNamedColorSet m_focusRectColorSet;
    QPixmap m_pixmap;
    QUuid m_objectId = QUuid::createUuid();
    QTimer *m_longPressTimer = nullptr;
    RillsAccessible::AcceleratorType m_acceleratorType = {};
    RillsAccessible::AccessibleMode m_accessibleMode = {};
    bool m_isPixmapIconVisible = true;
    bool m_hasIcon = false;
    bool m_isLongPressEnabled = false;
    bool m_isBadgeVisible = false;
    const bool m_useGlobalFocusBorders;
};
