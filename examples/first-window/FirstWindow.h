// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

class OxaSvgPushButton;
class QLayout;
class QListView;

/// A window with a greeting, a list, and buttons that change how it looks.
class FirstWindow : public OxaWidget
{
    Q_OBJECT

public:
    explicit FirstWindow(QWidget *parent = nullptr);

Q_SIGNALS:
    /// The user wants dark colours, or light ones.
    void darkChosen(bool dark);

    /// The user wants high contrast, or not.
    void highContrastChosen(bool highContrast);

private:
    QWidget *makeHeading();
    QWidget *makeGreeting();
    QListView *makeList();
    OxaSvgPushButton *makeButton(const QString &text);
    QLayout *makeButtons();
    void connectShortcuts(QListView *list);
};
