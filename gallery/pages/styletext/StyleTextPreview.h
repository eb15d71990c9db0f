// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

class OxaLabel;

/// Shows a style text on a label, on a disabled one, and on a container.
class StyleTextPreview : public OxaWidget
{
    Q_OBJECT

public:
    explicit StyleTextPreview(QWidget *parent = nullptr);

    /// Returns the selector of the rules of the shown style text.
    static QString selector();

    /// Sets \a styleText on all widgets. Qt's warnings about a faulty sheet are not printed.
    void setStyleText(const QString &styleText);

private:
    OxaLabel *m_label;
    OxaLabel *m_disabledLabel;
    OxaWidget *m_widget;
};
