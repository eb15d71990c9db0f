// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDateTime>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVector>

/// Whether somebody is there.
enum class Presence { Active, Away, Busy, Offline };

/// Somebody who writes.
struct Person
{
    QString id;
    QString name;
    QString title;
    QString about;
    Presence presence = Presence::Offline;

    static Person fromJson(const QJsonObject &json);
};

/// An emoji below a message, and how many have put it there.
struct Reaction
{
    QString emoji;
    int count = 0;
    bool isMine = false;

    static QVector<Reaction> fromJson(const QJsonArray &json);

    bool operator==(const Reaction &other) const
    {
        return emoji == other.emoji && count == other.count && isMine == other.isMine;
    }
};

/// A message of a conversation.
struct Message
{
    enum class Kind { Text, Gif, File };
    enum class State { Sent, Waiting, Failed };

    int seq = -1; ///< Its place in the conversation; -1 until the server has it.
    QString key;  ///< The client's name of an own message; empty for others.
    QString author;
    QDateTime at;
    Kind kind = Kind::Text;
    QString text; ///< What was written, or the name of the movie or the file.
    QVector<Reaction> reactions;
    State state = State::Sent;

    static Message fromJson(const QJsonObject &json);

    /// What the server is told.
    QJsonObject toJson() const;
};

/// A call that was.
struct Call
{
    QString title;
    QStringList people;
    QDateTime at;
    int minutes = 0;
    bool isMissed = false;

    static Call fromJson(const QJsonObject &json);
};

/// The times and presences of the protocol.
QDateTime timeOf(const QJsonValue &value);
Presence presenceOf(const QJsonValue &value);

/// The protocol's name of \a presence.
QString nameOf(Presence presence);
