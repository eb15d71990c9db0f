// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Settings.h"

#include <UiElements/widgets/OxaDialog.h>

#include <functional>

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
    using Change = std::function<void(Settings &)>;

    void setLooks();
    void change(const Change &change);
    void addHeading(const QString &text);
    void addRow(const QString &name, QWidget *field);
    void addChoice(const QString &objectName, const QString &name, const QStringList &choices,
                   int current, const std::function<void(Settings &, int)> &choose);
    void addSlider(const QString &name, int from, int to, int step, int value,
                   const std::function<QString(int)> &tell,
                   const std::function<void(Settings &, int)> &choose);
    void addCheckBox(const QString &text, bool isChecked,
                     const std::function<void(Settings &, bool)> &choose);
    void addText(const QString &name, const QString &text, const QString &errorText,
                 const std::function<bool(const QString &)> &isValid,
                 const std::function<void(Settings &, const QString &)> &choose);
    void addLooks();
    void addProfile();
    void addButtons();

    const Settings m_before;
    QVBoxLayout *const m_column;
    QVector<OxaTextInput *> m_texts;
};
