// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/qml/DialogContext.h>
#include <UiElements/qml/PopupContext.h>

#include <QLabel>
#include <QPushButton>

/// Two people with a card that opens under the pointer, a dialog, a popup of a button, and a
/// widget with QML in it.
class PeopleWindow : public QWidget
{
    Q_OBJECT

public:
    explicit PeopleWindow(QWidget *parent = nullptr);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QLabel *addPerson(const QString &name);
    void showCard(const QLabel *person);
    void showActions();
    void rename();

    PopupContext m_popups;
    DialogContext m_dialogs;
    QLabel *m_ada;
    QLabel *m_grace;
    QPushButton *m_actions;
    QPushButton *m_rename;
};
