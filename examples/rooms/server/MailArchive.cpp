// SPDX-License-Identifier: Apache-2.0
#include "MailArchive.h"

#include "protocol/Literal.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {

constexpr qint64 mostBytes = 512 * 1024 * 1024;
constexpr qint64 longestLine = 64 * 1024;
constexpr int longestMail = 1024 * 1024;
constexpr int mostThreads = 5000;
constexpr int mostMails = 200'000;
constexpr int mostPeople = 2000;

QString idOf(int person) { return u"p%1"_s.arg(person); }

} // namespace

MailArchive::MailArchive(const QString &file) : m_people(u"You"_s)
{
    QFile mailbox(file);
    if (!QFileInfo(file).isFile() || !mailbox.open(QIODevice::ReadOnly))
        return;
    QByteArray mail;
    bool isAfterEmptyLine = true;
    while (!mailbox.atEnd() && mailbox.pos() < mostBytes && m_count < mostMails) {
        const QByteArray line = mailbox.readLine(longestLine);
        if (isAfterEmptyLine && line.startsWith("From ")) {
            add(Mail::fromBytes(mail));
            mail.clear();
        } else if (mail.size() + line.size() < longestMail) {
            mail += line.startsWith(">From ") ? line.mid(1) : line;
        }
        isAfterEmptyLine = line.trimmed().isEmpty();
    }
    add(Mail::fromBytes(mail));
    for (QVector<Mail> &thread : m_threads)
        std::stable_sort(thread.begin(), thread.end(),
                         [](const Mail &a, const Mail &b) { return a.at < b.at; });
}

void MailArchive::add(const Mail &mail)
{
    if (mail.text.isEmpty())
        return;
    const QString subject = mail.subject.toLower();
    if (!m_threadBySubject.contains(subject)) {
        if (m_threads.size() == mostThreads)
            return;
        m_threadBySubject[subject] = m_threads.size();
        m_threads.append(QVector<Mail>());
    }
    m_threads[m_threadBySubject[subject]].append(mail);
    ++m_count;
    if (!m_personByName.contains(mail.author) && m_people.size() < mostPeople) {
        m_personByName[mail.author] = m_people.size();
        m_people.append(mail.author);
    }
}

QJsonArray MailArchive::people() const
{
    QJsonArray people;
    for (int i = 0; i < m_people.size(); ++i)
        people.append(QJsonObject { { u"id"_s, idOf(i) },
                                    { u"name"_s, m_people[i] },
                                    { u"presence"_s, i == 0 ? u"active"_s : u"offline"_s } });
    return people;
}

QJsonObject MailArchive::conversation(int index) const
{
    return { { u"title"_s, m_threads[index].constFirst().subject }, { u"unread"_s, 0 } };
}

/// Past the end, the mails arrive once more.
QJsonObject MailArchive::message(int conversation, int seq) const
{
    const QVector<Mail> &thread = m_threads[conversation];
    const Mail &mail = thread[seq % thread.size()];
    return { { u"author"_s, idOf(m_personByName.value(mail.author, 1)) },
             { u"at"_s, mail.at },
             { u"kind"_s, u"text"_s },
             { u"text"_s, mail.text },
             { u"reactions"_s, QJsonArray() } };
}
