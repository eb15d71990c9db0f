// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/fonts/OxaFontBlock.h>
#include <UiElements/theme/OxaThemeBlock.h>

#include <QMenu>
#include <QPointer>

/// A menu that takes part in theming, and that popupAt() opens with its first action highlighted.
///
/// A style text with a background replaces the highlight of actions: add a rule for
/// `QMenu::item:selected`, or use UTContextMenuUtils::getContextMenuStyleSheet().
class UIELEMENTS_EXPORT OxaMenu : public QMenu
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QMenu)
    UIELEMENTS_FONT_BLOCK

public:
    /// Makes an empty menu. The second argument is not used.
    explicit OxaMenu(QWidget *parent = nullptr, bool = false);

    /// Makes a menu with the actions of \a other, which may be null. None of them is the first
    /// action of popupAt().
    OxaMenu(QMenu *other, QWidget *parent);

    /// The same without a parent, for a menu that does not follow changes of the theme type. A
    /// QMenu as the only argument is \a other, not the parent.
    explicit OxaMenu(QMenu *other);

    // QMenu's other forms. An action that they add does not become the first one.
    using QMenu::addAction;

    /// Adds \a action, as QWidget does. It becomes the first action if there is none.
    void addAction(QAction *action);

    /// Makes an action with \a text and adds it. It becomes the first action if there is none.
    QAction *addAction(const QString &text);

    /// Opens the menu at \a position on screen, with its first action highlighted; with none
    /// highlighted if there is no first action, or if it is disabled.
    void popupAt(const QPoint &position);

    /// Returns where popupAt() was last told to open the menu.
    QPoint getPopupPosition() const;

    /// Makes \a action the one that popupAt() highlights. The action stays the caller's, and the
    /// next one that is added takes its place once it is deleted.
    void setFirstAction(QAction *action);

protected:
    /// Resizes the menu to its actions, but to no more than two thirds of the screen, or what
    /// popup() has found room for.
    void showEvent(QShowEvent *event) override;

protected Q_SLOTS:
    /// Runs at each change of the theme type, for subclasses to look up what they paint with.
    virtual void onThemeChanged();

private:
    void becomeFirst(QAction *action);
    void copyActions(const QMenu *other);

    QPoint m_popupPosition;
    QPointer<QAction> m_firstAction;
};
