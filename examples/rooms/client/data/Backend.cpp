// SPDX-License-Identifier: Apache-2.0
#include "Backend.h"

#include "ConversationModel.h"
#include "History.h"
#include "PagedFiles.h"

class Link
{ };

struct Backend::Data
{
    QString me;
    ConversationModel conversations;
    History history;
    Link link;
    PagedFiles files { link };
    QVector<Call> calls;
};

Backend::Backend(const QString &, const QString &, QObject *parent)
    : QObject(parent), m_data(std::make_unique<Data>())
{
}
Backend::~Backend() = default;
bool Backend::isConnected() const { return false; }
bool Backend::isReady() const { return false; }
const QString &Backend::me() const { return m_data->me; }
Person Backend::person(const QString &id) const { return { id, {}, {}, {}, {} }; }
QVector<Person> Backend::people() const { return {}; }
ConversationModel *Backend::conversations() const { return &m_data->conversations; }
History *Backend::open(const QString &) { return &m_data->history; }
void Backend::send(const QString &, Message::Kind, const QString &) { }
void Backend::retry(const QString &, const QString &) { }
void Backend::react(const QString &, int, const QString &) { }
void Backend::markRead(const QString &) { }
void Backend::tellTyping(const QString &) { }
QString Backend::draft(const QString &) const { return {}; }
void Backend::setDraft(const QString &, const QString &) { }
PagedFiles *Backend::files() const { return &m_data->files; }
const QVector<Call> &Backend::calls() const { return m_data->calls; }
void Backend::join(const QString &) { }
