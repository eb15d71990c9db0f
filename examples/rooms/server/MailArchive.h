// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Archive.h"
#include "Mail.h"

#include <QHash>
#include <QVector>

/// The mails of an mbox file, a conversation for each subject.
class MailArchive : public Archive
{
public:
    /// Reads \a file; of anything but a regular file, nothing. At most 512 MB, 5,000 subjects and
    /// 200,000 mails, of each the first megabyte.
    explicit MailArchive(const QString &file);

    QJsonArray people() const override;
    int conversationCount() const override { return m_threads.size(); }
    QJsonObject conversation(int index) const override;
    int total(int conversation) const override { return m_threads[conversation].size(); }
    QJsonObject message(int conversation, int seq) const override;

private:
    void add(const Mail &mail);

    QVector<QVector<Mail>> m_threads;
    QHash<QString, int> m_threadBySubject;
    QHash<QString, int> m_personByName;
    QStringList m_people;
    int m_count = 0;
};
