// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Settings.h"

#include <UiElements/widgets/OxaDialog.h>

class OxaTextInput;
class QVBoxLayout;

/// Lets the user choose how the client looks, and what others see of them. All of it takes effect
/// at once; cancelling takes it back.
class SettingsDialog : public OxaDialog
{
    Q_OBJECT

public:
    /// Shows and changes the application's settings.
    explicit SettingsDialog(QWidget *parent = nullptr);

private:
    void addHeading(const QString &text);
    void addRow(const QString &name, QWidget *field);
    template <typename Choice>
    void addChoice(const QString &objectName, const QString &name, const QStringList &choices,
                   Choice Settings::*setting);
    template <typename Tell>
    void addSlider(const QString &name, int from, int to, int step, int Settings::*setting,
                   const Tell &tell);
    void addCheckBox(const QString &text, bool Settings::*setting);
    void addText(const QString &name, const QString &errorText, bool (*isValid)(const QString &),
                 QString Settings::*setting);
    void addButtons();
    void finish();

    const Settings m_before;
    QVBoxLayout *const m_column;
    QVector<OxaTextInput *> m_texts;
};
