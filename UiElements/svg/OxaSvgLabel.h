// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/svg/OxaSvgIconBlock.h>
#include <UiElements/widgets/OxaLabel.h>

/// A label with an icon beside its text, both in the theme's colours.
///
/// The text is one line and always plain; it is elided by the label's elide mode. Qt paints the
/// frame and background of the style sheet.
///
/// Without `$textColors:` in its style text it shows neither text nor icon, except an icon with a
/// set of its own.
class UIELEMENTS_EXPORT OxaSvgLabel : public OxaLabel
{
    Q_OBJECT
    UIELEMENTS_SVG_ICON_BLOCK

public:
    /// Makes an empty label without an icon.
    explicit OxaSvgLabel(QWidget *parent = nullptr, QAccessible::Role role = QAccessible::NoRole,
                         Qt::WindowFlags flags = {});

    /// Makes a label with \a text and no icon.
    explicit OxaSvgLabel(const QString &text, QWidget *parent = nullptr,
                         QAccessible::Role role = QAccessible::NoRole, Qt::WindowFlags flags = {});

    /// Returns the size of the text and the paddings. An icon adds its size and padding to the
    /// width and also to the height.
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

protected Q_SLOTS:
    /// Calls the base class; then looks the icon's colours up again if they have a set.
    void onThemeChanged() override;

private:
    void onStyleTextChanged();
};
