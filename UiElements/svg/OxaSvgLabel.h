// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/svg/OxaSvgIconBlock.h>
#include <UiElements/widgets/OxaLabel.h>

/// A label with an icon beside its text, both in the theme's colours.
///
/// The text is one line and always plain; it is elided by the label's elide mode. The style sheet's
/// frame and background are Qt's.
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

    /// The text's size and the paddings, and with an icon its size and padding too, side by side
    /// and one above the other at once.
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

protected Q_SLOTS:
    /// The base class's; then looks the icon's colours up anew where they have a set.
    void onThemeChanged() override;

private:
    void onStyleTextChanged();
};
