// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "shell/Page.h"

#include <UiElements/widgets/WidgetData.h>

#include <QPointer>

class Card;
class ControlPanel;
class DragSource;
class OxaLabel;
class PopupWidget;

/// A popup beside a source that is dragged about, with its settings and its numbers.
class PopupsPage : public Page
{
    Q_OBJECT

public:
    explicit PopupsPage(QWidget *parent = nullptr);
    ~PopupsPage() override;

    void showForPicture() override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void hideEvent(QHideEvent *event) override;

protected Q_SLOTS:
    void onThemeChanged() override;

private:
    /// When the popup hides by itself.
    enum class Dismissal { Never, ParentWithoutFocus, Always };
    struct Settings
    {
        WidgetData::ArrowPostion arrow = WidgetData::ArrowPostion::Top;
        WidgetData::Alignment alignment = WidgetData::Alignment::Center;
        bool isInWindow = true;
        Dismissal dismissal = Dismissal::Never;
        int cornerRadius = 8;
        int seconds = 0;
        bool hasHeader = true;
    };

    Card *makeSettingsCard();
    Card *makeStageCard();
    void addChoices(ControlPanel &panel);
    void addNumbers(ControlPanel &panel);
    WidgetData popupData() const;
    QWidget *makeContent();
    void makePopup();
    void toggle();
    void apply();
    void follow();
    void refresh();
    void note(const QString &signal);

    Settings m_settings;
    OxaWidget *m_stage;
    DragSource *m_source;
    QPointer<PopupWidget> m_popup;
    OxaLabel *m_sourcePlace;
    OxaLabel *m_popupPlace;
    OxaLabel *m_arrow;
    OxaLabel *m_signal;
};
