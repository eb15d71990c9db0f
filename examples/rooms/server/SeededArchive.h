// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Archive.h"

#include <QDateTime>
#include <QStringList>

/// 5,000 conversations of 200 people in several scripts, the first of 100,000 messages. Each is
/// computed from a seed and its place when it is asked for, so nothing is stored.
class SeededArchive : public Archive
{
public:
    /// The newest messages are from before \a now; \a emoji are spread over the messages.
    SeededArchive(quint64 seed, const QDateTime &now, QStringList emoji);

    QJsonArray people() const override { return m_people; }
    int conversationCount() const override { return 5000; }
    QJsonObject conversation(int index) const override;
    int total(int conversation) const override;
    QJsonObject message(int conversation, int seq) const override;

    /// The file \a index of a million.
    QJsonObject file(int index) const;
    static constexpr int fileCount = 1'000'000;

    /// The calls of the last days.
    QJsonArray calls() const;

private:
    quint64 hash(quint64 what, quint64 first, quint64 second = 0) const;
    QJsonArray makePeople() const;
    int personOf(int conversation) const;
    int author(int conversation, int seq) const;
    qint64 at(int conversation, int seq) const;
    QString text(int conversation, int seq, int script) const;
    QJsonArray reactions(int conversation, int seq) const;

    const quint64 m_seed;
    const qint64 m_now;
    const QStringList m_emoji;
    const QJsonArray m_people;
};
