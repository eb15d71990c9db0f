// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "data/Records.h"

#include <UiElements/qml/DialogContext.h>
#include <UiElements/qml/PopupContext.h>

#include <QHash>
#include <QVariantMap>

class Backend;
class OxaQmlDialogController;

/// \a presence in words.
QString presenceText(Presence presence);

/// Shows who somebody is: a card under the pointer, and a profile in a dialog. Their QML knows it
/// as "cards", and emits its signals.
class PersonCards : public QObject
{
    Q_OBJECT
    /// Somebody without a name, as QML shows people.
    Q_PROPERTY(QVariantMap nobody READ nobody CONSTANT)

public:
    /// Takes the people from \a backend.
    explicit PersonCards(Backend *backend, QObject *parent = nullptr);

    /// Shows the card of \a person when the pointer rests on \a anchor, which may be deleted at any
    /// time. Another call for the same anchor replaces the person; an empty one ends it.
    void watch(QWidget *anchor, const QString &person);

    /// Shows the card of \a person when the pointer rests on \a place in \a widget.
    void showCard(QWidget *widget, const QRect &place, const QString &person);

    /// Closes the card, or lets none open that was to come.
    void closeCard() { m_popups.closeAllOxaQuickViews(); }

    /// Opens the profile of \a person above \a window.
    void showProfile(const QString &person, QWidget *window);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// The user wants to write to \a person.
    void messageRequested(const QString &person);
    /// The user wants to see the profile of \a person.
    void profileRequested(const QString &person);
    /// The user has enough of the profile.
    void profileClosed();

private:
    static QVariantMap nobody();
    void closeAll();

    Backend *const m_backend;
    PopupContext m_popups;
    DialogContext m_dialogs;
    QPointer<QWidget> m_window;                 ///< Where the card is.
    QString m_person;                           ///< Whose profile is open,
    QPointer<OxaQmlDialogController> m_profile; ///< and its controller.
    QHash<QObject *, QString> m_people;         ///< By their anchors.
};
