// SPDX-License-Identifier: Apache-2.0
#include "SeededArchive.h"

#include "Words.h"
#include "protocol/Literal.h"

#include <algorithm>

namespace {

constexpr int personCount = 200;
constexpr qint64 minute = 60'000;

enum What : quint64 { Name, Title, Total, Unread, Member, Writes, Says, Likes, File, Talks, There };

QString personId(int index) { return u"p%1"_s.arg(index); }

template <typename List>
auto pick(const List &list, quint64 hash)
{
    return list[int(hash % quint64(list.size()))];
}

/// Half of the people write Latin letters, the others one of four scripts.
int scriptOf(int person) { return std::max(0, person % 8 - 3); }

} // namespace

SeededArchive::SeededArchive(quint64 seed, const QDateTime &now, QStringList emoji)
    : m_seed(seed),
      m_now(now.toMSecsSinceEpoch()),
      m_emoji(std::move(emoji)),
      m_people(makePeople())
{
}

quint64 SeededArchive::hash(quint64 what, quint64 first, quint64 second) const
{
    quint64 value = m_seed + what * 0x9e3779b97f4a7c15U + first * 0xd1342543de82ef95U
            + second * 0xaf251af3b0f025b5U;
    value = (value ^ value >> 30U) * 0xbf58476d1ce4e5b9U;
    value = (value ^ value >> 27U) * 0x94d049bb133111ebU;
    return (value ^ value >> 31U) >> 8U;
}

QJsonArray SeededArchive::makePeople() const
{
    static const QStringList presences { u"active"_s, u"active"_s, u"away"_s, u"busy"_s,
                                         u"offline"_s };
    QJsonArray people;
    for (int i = 0; i < personCount; ++i) {
        const int script = scriptOf(i);
        people.append(QJsonObject {
                { u"id"_s, personId(i) },
                { u"name"_s,
                  pick(Words::firstNames[script], quint64(i / 8 + i * 5)) + QLatin1Char(' ')
                          + pick(Words::lastNames[script], hash(Name, quint64(i))) },
                { u"title"_s, pick(Words::professions, hash(Title, quint64(i))) },
                { u"about"_s, pick(Words::sentences[script], hash(Says, quint64(i))) },
                { u"presence"_s, i == 0 ? presences[0] : pick(presences, hash(There, quint64(i))) },
        });
    }
    return people;
}

/// The person whom a conversation is with, or -1 for a group.
int SeededArchive::personOf(int conversation) const
{
    const int person = conversation / 4 + 1;
    return conversation % 4 == 1 && person < personCount ? person : -1;
}

QJsonObject SeededArchive::conversation(int index) const
{
    const quint64 unread = hash(Unread, quint64(index));
    QJsonObject row { { u"unread"_s,
                        unread % 9 ? 0 : std::min(total(index), 1 + int(unread % 12)) } };
    const int person = personOf(index);
    if (person < 0) {
        const QString topic = pick(Words::topics, quint64(index));
        row[u"title"_s] = index < 24 ? topic : topic + u" %1"_s.arg(index / 24 + 1);
    } else {
        row[u"title"_s] = m_people[person].toObject()[u"name"_s];
        row[u"person"_s] = personId(person);
    }
    return row;
}

int SeededArchive::total(int conversation) const
{
    if (conversation == 0)
        return 100'000;
    const quint64 size = hash(Total, quint64(conversation));
    return 3 + int(size % (size % 8 == 1 ? 4000 : 60));
}

int SeededArchive::author(int conversation, int seq) const
{
    const quint64 turn = hash(Writes, quint64(conversation), quint64(seq / 3));
    if (turn % 5 == 0)
        return 0;
    const int person = personOf(conversation);
    if (person >= 0)
        return person;
    const quint64 member = conversation == 0 ? turn / 5 % 60 : turn / 5 % 9;
    return 1 + int(hash(Member, quint64(conversation), member) % (personCount - 1));
}

/// Messages come in bursts of four, with half a minute between them. The bursts become rarer
/// towards the end of the list of conversations, and the last one of each is as old as its place in
/// the list.
qint64 SeededArchive::at(int conversation, int seq) const
{
    const qint64 step = (60 + qint64(hash(Talks, quint64(conversation)) % 120)) * minute;
    const qint64 end = m_now - qint64(conversation) * 7 * minute;
    const int last = total(conversation) - 1;
    return end - (last / 4 - seq / 4) * step - (last % 4 - seq % 4) * (minute / 2);
}

QString SeededArchive::text(int conversation, int seq, int script) const
{
    const quint64 random = hash(Says, quint64(conversation), quint64(seq));
    const QString emoji = m_emoji.isEmpty() ? QString()
                                            : pick(m_emoji, quint64(seq / 3 + conversation * 17));
    if (seq % 29 == 0 && !emoji.isEmpty())
        return emoji.repeated(1 + int(random % 3));
    QString text = pick(Words::sentences[script], random);
    for (quint64 i = random / 64 % 4; i > 1; --i)
        text += QLatin1Char(' ') + pick(Words::sentences[script], random + i);
    if (seq % 41 == 0)
        text += u" https://rooms.example/notes/%1"_s.arg(random % 1000);
    return seq % 3 == 0 ? text + QLatin1Char(' ') + emoji : text;
}

QJsonArray SeededArchive::reactions(int conversation, int seq) const
{
    static const QStringList usual { u"👍"_s, u"❤️"_s, u"😂"_s, u"🎉"_s, u"👀"_s, u"🙏"_s };
    const quint64 random = hash(Likes, quint64(conversation), quint64(seq));
    QJsonArray reactions;
    for (quint64 i = 0; random % 16 == 0 && i <= random / 16 % 3; ++i)
        reactions.append(QJsonObject { { u"emoji"_s, pick(usual, random / 64 + i) },
                                       { u"count"_s, 1 + int(random / 512 % (5 - i)) },
                                       { u"mine"_s, random / 4096 % 4 == i } });
    return reactions;
}

QJsonObject SeededArchive::message(int conversation, int seq) const
{
    static const QStringList movies { u"wave"_s,   u"confetti"_s, u"heart"_s,
                                      u"coffee"_s, u"sun"_s,      u"yes"_s };
    const int writer = author(conversation, seq);
    const quint64 random = hash(Says, quint64(conversation), quint64(seq));
    QJsonObject message { { u"seq"_s, seq },
                          { u"author"_s, personId(writer) },
                          { u"at"_s, at(conversation, seq) },
                          { u"kind"_s, u"text"_s },
                          { u"reactions"_s, reactions(conversation, seq) } };
    if (seq % 97 == 5) {
        message[u"kind"_s] = u"gif"_s;
        message[u"text"_s] = pick(movies, random);
    } else if (seq % 89 == 7) {
        message[u"kind"_s] = u"file"_s;
        message[u"text"_s] = file(int(random % fileCount))[u"name"_s];
    } else {
        message[u"text"_s] = text(conversation, seq, scriptOf(writer));
    }
    return message;
}

QJsonObject SeededArchive::file(int index) const
{
    static const QVector<QPair<QString, QString>> kinds {
        { u"document"_s, u"pdf"_s }, { u"document"_s, u"txt"_s }, { u"picture"_s, u"png"_s },
        { u"table"_s, u"csv"_s },    { u"archive"_s, u"zip"_s },  { u"movie"_s, u"webm"_s },
    };
    const quint64 random = hash(File, quint64(index));
    const QPair<QString, QString> kind = pick(kinds, random);
    return { { u"name"_s,
               u"%1 %2.%3"_s.arg(pick(Words::topics, random / 8)).arg(index + 1).arg(kind.second) },
             { u"kind"_s, kind.first },
             { u"size"_s, qint64(1000 + random / 64 % 50'000'000) },
             { u"owner"_s, personId(int(random / 128 % personCount)) },
             { u"at"_s, m_now - qint64(index) * 3 * minute } };
}

QJsonArray SeededArchive::calls() const
{
    QJsonArray calls;
    for (int i = 0; i < 40; ++i) {
        const quint64 random = hash(Talks, quint64(i), 1);
        QJsonArray members { personId(0) };
        for (quint64 member = 0; member <= random % 7; ++member)
            members.append(personId(1 + int((random / 8 + member * 13) % (personCount - 1))));
        calls.append(QJsonObject { { u"title"_s, pick(Words::topics, random / 16) },
                                   { u"people"_s, members },
                                   { u"at"_s, m_now - i * 300 * minute },
                                   { u"minutes"_s, int(random / 32 % 90) + 1 },
                                   { u"missed"_s, random % 6 == 0 } });
    }
    return calls;
}
