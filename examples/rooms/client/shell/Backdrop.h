// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

#include <string>

/// A widget that fills itself with a colour. A style sheet would do that too, but with each theme
/// Qt would style all widgets inside once more for it: half a window's widgets for a background.
class Backdrop : public OxaWidget
{
    Q_OBJECT

public:
    /// The colour is the normal one of the set called \a colors.
    Backdrop(const std::string &colors, QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const std::string m_colors;
};
