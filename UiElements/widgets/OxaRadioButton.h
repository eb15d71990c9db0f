// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/fonts/OxaFontBlock.h>
#include <UiElements/theme/OxaThemeBlock.h>

#include <QRadioButton>

/// A radio button that takes part in theming. The style paints it; while it has the focus by
/// keyboard, it draws a dotted frame in the inverse of the normal colour of the set
/// "background-primary", unless the application draws focus frames by its style.
class UIELEMENTS_EXPORT OxaRadioButton : public QRadioButton
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QRadioButton)
    UIELEMENTS_FONT_BLOCK

public:
    /// Makes a radio button without a text.
    explicit OxaRadioButton(QWidget *parent = nullptr);

    /// Makes a radio button with \a text.
    explicit OxaRadioButton(const QString &text, QWidget *parent = nullptr);

protected Q_SLOTS:
    /// Looks the focus frame's set up again. Runs at each change of the theme type.
    virtual void onThemeChanged();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    OxaColorSet m_focusColorSet;
};
