// SPDX-License-Identifier: Apache-2.0
#include "Records.h"

#include "protocol/Literal.h"

#include <QJsonArray>

namespace {

const QStringList kinds { u"text"_s, u"gif"_s, u"file"_s };
const QStringList presences { u"active"_s, u"away"_s, u"busy"_s, u"offline"_s };

} // namespace

QDateTime timeOf(const QJsonValue &value)
{
    return QDateTime::fromMSecsSinceEpoch(qint64(value.toDouble()));
}

Presence presenceOf(const QJsonValue &value)
{
    const int index = presences.indexOf(value.toString());
    return index < 0 ? Presence::Offline : Presence(index);
}

QString nameOf(Presence presence) { return presences.at(int(presence)); }

Person Person::fromJson(const QJsonObject &json)
{
    return { json[u"id"_s].toString(), json[u"name"_s].toString(), json[u"title"_s].toString(),
             json[u"about"_s].toString(), presenceOf(json[u"presence"_s]) };
}

QVector<Reaction> Reaction::fromJson(const QJsonArray &json)
{
    QVector<Reaction> reactions;
    for (const QJsonValue &value : json)
        reactions.append({ value[u"emoji"_s].toString(), value[u"count"_s].toInt(),
                           value[u"mine"_s].toBool() });
    return reactions;
}

Message Message::fromJson(const QJsonObject &json)
{
    Message message;
    message.seq = json[u"seq"_s].toInt(-1);
    message.key = json[u"key"_s].toString();
    message.author = json[u"author"_s].toString();
    message.at = timeOf(json[u"at"_s]);
    message.kind = Kind(qMax(0, kinds.indexOf(json[u"kind"_s].toString())));
    message.text = json[u"text"_s].toString();
    message.reactions = Reaction::fromJson(json[u"reactions"_s].toArray());
    return message;
}

QJsonObject Message::toJson() const
{
    return { { u"key"_s, key },
             { u"author"_s, author },
             { u"at"_s, at.toMSecsSinceEpoch() },
             { u"kind"_s, kinds[int(kind)] },
             { u"text"_s, text } };
}

Call Call::fromJson(const QJsonObject &json)
{
    return { json[u"title"_s].toString(), json[u"people"_s].toVariant().toStringList(),
             timeOf(json[u"at"_s]), json[u"minutes"_s].toInt(), json[u"missed"_s].toBool() };
}
