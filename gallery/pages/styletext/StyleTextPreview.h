// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

class OxaLabel;

/// Shows a style text at work: on a label, on a disabled one, and on a container.
class StyleTextPreview : public OxaWidget
{
    Q_OBJECT

public:
    explicit StyleTextPreview(QWidget *parent = nullptr);

    /// Returns the selector that the rules of the shown style text bear.
    static QString selector();

    /// Gives \a styleText to all that is shown. What Qt says to a faulty sheet is not printed.
    void setStyleText(const QString &styleText);

private:
    OxaLabel *m_label;
    OxaLabel *m_disabledLabel;
    OxaWidget *m_widget;
};
