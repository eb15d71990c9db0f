// SPDX-License-Identifier: Apache-2.0
#include "PersonControllers.h"

#include "Avatar.h"
#include "data/Backend.h"

#include <QCoreApplication>

namespace {

struct PresenceTexts
{
    const char *name;
    const char *text;
};

constexpr PresenceTexts presenceTexts[] = {
    { "active", QT_TRANSLATE_NOOP("Presence", "Active") },
    { "away", QT_TRANSLATE_NOOP("Presence", "Away") },
    { "busy", QT_TRANSLATE_NOOP("Presence", "Busy") },
    { "offline", QT_TRANSLATE_NOOP("Presence", "Offline") },
};

} // namespace

QVariantMap toQml(const Person &person)
{
    const PresenceTexts &presence = presenceTexts[int(person.presence)];
    return {
        { QStringLiteral("id"), person.id },
        { QStringLiteral("name"), person.name },
        { QStringLiteral("title"), person.title },
        { QStringLiteral("about"), person.about },
        { QStringLiteral("initials"), Avatar::initials(person.name) },
        { QStringLiteral("color"), Avatar::colorNumber(person.id) },
        { QStringLiteral("presence"), QLatin1String(presence.name) },
        { QStringLiteral("presenceText"), QCoreApplication::translate("Presence", presence.text) },
    };
}

ProfileModel::ProfileModel(Backend *backend, QString id) : m_backend(backend), m_id(std::move(id))
{
    connect(backend, &Backend::personChanged, this, [this](const QString &changed) {
        if (changed == m_id)
            Q_EMIT personChanged();
    });
}

QVariantMap ProfileModel::person() const { return toQml(m_backend->person(m_id)); }
