// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/fonts/OxaFontBlock.h>
#include <UiElements/theme/OxaThemeBlock.h>

#include <QDialog>

/// A dialog that takes part in theming, and that is deleted once it is closed.
///
/// It takes over its parent's theme type when it is made, and follows it from then on.
///
/// It has Qt::WA_DeleteOnClose: make it with `new`, never on the stack. exec() deletes it before it
/// returns its result, so read what was entered in a slot of accepted() or finished().
class UIELEMENTS_EXPORT OxaDialog : public QDialog
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QDialog)
    UIELEMENTS_FONT_BLOCK

public:
    /// Makes an empty dialog without a help button in its title bar. Its icon is transparent where
    /// it has a parent, otherwise the application's.
    explicit OxaDialog(QWidget *parent = nullptr, Qt::WindowFlags flags = {});

Q_SIGNALS:
    /// The dialog is asked to close: by its window's close button, or by close(). Comes before Qt
    /// handles the event, and so before rejected(), also where the dialog then stays open. A slot
    /// may delete the dialog. accept(), reject(), and with it the Escape key, close it without this
    /// signal.
    void onClose();

protected Q_SLOTS:
    /// Runs at each change of the theme type, for subclasses to look up what they paint with.
    virtual void onThemeChanged();

private Q_SLOTS:
    void closeEvent(QCloseEvent *event) override;
};
