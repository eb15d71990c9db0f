// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

class TextSettings;
class ThemeSwitcher;
class WrapLayout;

/// The bar at the top of the window, with the settings of the whole gallery. Controls without room
/// beside the others go to another row.
class HeaderBar : public OxaWidget
{
    Q_OBJECT

public:
    HeaderBar(ThemeSwitcher *themeSwitcher, TextSettings *textSettings, QWidget *parent = nullptr);

private:
    void addControl(const QString &caption, QWidget *control);
    template <typename Sender, typename Signal, typename Current, typename Choose>
    void addChoice(const QString &caption, const QStringList &texts, Sender *sender, Signal changed,
                   Current current, Choose choose);
    void addThemeControls();
    void addTextControls();
    QWidget *makeFontScaleControl();

    ThemeSwitcher *const m_themeSwitcher;
    TextSettings *const m_textSettings;
    WrapLayout *m_controls;
};
