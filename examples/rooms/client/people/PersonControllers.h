// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "data/Records.h"

#include <UiElements/qml/OxaQmlDialogController.h>
#include <UiElements/qml/OxaQmlPopupController.h>

#include <QVariantMap>

class Backend;

/// \a presence in words.
QString presenceText(Presence presence);

/// \a person as QML shows it: id, name, title, about, initials, the number of the colour, and the
/// presence as its name and in words.
QVariantMap toQml(const Person &person);

/// The controller of a hover card.
class CardController : public OxaQmlPopupController
{
    Q_OBJECT

public:
    using OxaQmlPopupController::OxaQmlPopupController;

Q_SIGNALS:
    void messageRequested(const QString &person);
    void profileRequested(const QString &person);
};

/// The controller of a profile.
class ProfileController : public OxaQmlDialogController
{
    Q_OBJECT

public:
    using OxaQmlDialogController::OxaQmlDialogController;

Q_SIGNALS:
    void messageRequested(const QString &person);
    void closed();
};

/// Somebody whose profile is open, as they are at any time.
class ProfileModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QVariantMap person READ person NOTIFY personChanged)

public:
    /// Follows the person \a id of \a backend.
    ProfileModel(Backend *backend, QString id, QObject *parent);

    QVariantMap person() const;

Q_SIGNALS:
    void personChanged();

private:
    Backend *const m_backend;
    const QString m_id;
};
