// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/widgets/OxaWidget.h>

class OxaLabel;
class OxaSvgLabel;
class QHBoxLayout;
class QSpacerItem;

/// A strip with an icon and a text with links, which looks like an error, a warning or an
/// information. It starts as a warning without a text, 400 by 56. A layout may make it as low as
/// its text: give it a minimum height there, e.g. 56.
///
/// The outer application supplies the icons as resources, ":/Resources/warning_12.svg" and
/// ":/Resources/info_16.svg".
///
/// Tab goes to the text and then from link to link, and Return activates one. Assistive technology
/// is told of an alert when the banner appears, and when a visible one gets a text.
class UIELEMENTS_EXPORT AlertBanner : public OxaWidget
{
    Q_OBJECT

public:
    /// What the banner looks like. Other values look like Info, without its icon.
    enum class AlertType {
        Error = 0,   ///< In the sets "alertText-error" and "alertBackground-error".
        Warning = 1, ///< In the sets "alertText-warning" and "alertBackground-warning".
        Info = 2,    ///< In the sets "text-secondary" and "background-primary", with its own icon.
    };

    /// What a banner shows. Its text is always rich: escape a plain one by
    /// QString::toHtmlEscaped().
    struct AlertBannerInfo
    {
        AlertType alertType = AlertType::Error; ///< The look.
        QString alertText;                      ///< Rich text.
        bool showIcon = true;                   ///< False hides the icon for good.
        bool wordWrap = true;                   ///< Breaks lines of the text.
        QSize bannerSize { 400, 56 };           ///< The size to resize the banner to.
    };

    /// Makes a banner without a text.
    explicit AlertBanner(QWidget *parent = nullptr);

    /// Shows \a info. The icon of AlertType::Info stays for other types that follow, and an icon
    /// that was hidden does not come back, nor does the space beside it.
    void setAlert(const AlertBannerInfo &info);

Q_SIGNALS:
    /// A link of the text was activated, whichever it is. A slot may delete the banner.
    void alertLinkActivated();

protected:
    void showEvent(QShowEvent *event) override;

private:
    void addIcon();
    void addLabel();
    void setAlertStyle(AlertType type);
    void hideAlertIcon();

    QHBoxLayout *const m_horizontalLayout;
    QSpacerItem *const m_spacerBeforeIcon;
    OxaSvgLabel *const m_alertIcon;
    QSpacerItem *const m_spacerAfterIcon;
    OxaLabel *const m_alertLabel;
};
