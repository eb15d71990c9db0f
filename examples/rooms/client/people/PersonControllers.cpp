// SPDX-License-Identifier: Apache-2.0
#include "PersonControllers.h"

#include "Avatar.h"
#include "data/Backend.h"

#include <QCoreApplication>

QString presenceText(Presence presence)
{
    switch (presence) {
    case Presence::Active:
        return QCoreApplication::translate("Presence", "Active");
    case Presence::Away:
        return QCoreApplication::translate("Presence", "Away");
    case Presence::Busy:
        return QCoreApplication::translate("Presence", "Busy");
    case Presence::Offline:
        break;
    }
    return QCoreApplication::translate("Presence", "Offline");
}

QVariantMap toQml(const Person &person)
{
    return {
        { QStringLiteral("id"), person.id },
        { QStringLiteral("name"), person.name },
        { QStringLiteral("title"), person.title },
        { QStringLiteral("about"), person.about },
        { QStringLiteral("initials"), Avatar::initials(person.name) },
        { QStringLiteral("color"), Avatar::colorNumber(person.id) },
        { QStringLiteral("presence"), nameOf(person.presence) },
        { QStringLiteral("presenceText"), presenceText(person.presence) },
    };
}

ProfileModel::ProfileModel(Backend *backend, QString id, QObject *parent)
    : QObject(parent), m_backend(backend), m_id(std::move(id))
{
    connect(backend, &Backend::personChanged, this, [this](const QString &changed) {
        if (changed == m_id)
            Q_EMIT personChanged();
    });
}

QVariantMap ProfileModel::person() const { return toQml(m_backend->person(m_id)); }
