// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "data/Records.h"

#include <UiElements/qml/DialogContext.h>
#include <UiElements/qml/PopupContext.h>

#include <QHash>

class Backend;
class ProfileController;
class ProfileModel;

/// Shows who somebody is: a card under the pointer, and a profile in a dialog.
class PersonCards : public QObject
{
    Q_OBJECT

public:
    /// Takes the people from \a backend.
    explicit PersonCards(Backend *backend, QObject *parent = nullptr);

    /// Shows the card of \a person when the pointer rests on \a anchor, which may be deleted at any
    /// time. Another call for the same anchor replaces the person; an empty one ends it.
    void watch(QWidget *anchor, const QString &person);

    /// Opens the profile of \a person above \a window.
    void showProfile(const QString &person, QWidget *window);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// The user wants to write to \a person.
    void messageRequested(const QString &person);

private:
    void showCard(QWidget *anchor, const QString &person);
    void requestMessage(const QString &person);

    Backend *const m_backend;
    PopupContext m_popups;
    DialogContext m_dialogs;
    QPointer<ProfileController> m_profile; ///< Of the dialog that is open.
    QPointer<ProfileModel> m_model;        ///< Whose profile that is.
    QHash<QObject *, QString> m_people;    ///< By their anchors.
};
