// SPDX-License-Identifier: Apache-2.0
#include "Link.h"

#include "protocol/JsonLines.h"
#include "protocol/Literal.h"

namespace {

constexpr int shortestRetryMs = 100;
constexpr int longestRetryMs = 5000;

} // namespace

Link::Link(const QString &server, QObject *parent)
    : QObject(parent), m_server(server), m_lines(new JsonLines(&m_socket))
{
    m_retry.setSingleShot(true);
    m_retry.start(0);
    connect(&m_retry, &QTimer::timeout, this, &Link::connectToServer);
    connect(&m_socket, &QLocalSocket::connected, this, &Link::opened);
    connect(&m_socket, &QLocalSocket::disconnected, this, &Link::lose);
    connect(&m_socket, &QLocalSocket::stateChanged, this, [this] {
        if (m_socket.state() == QLocalSocket::UnconnectedState)
            m_retry.start();
    });
    connect(m_lines, &JsonLines::received, this, &Link::receive);
}

Link::~Link() { m_socket.disconnect(this); } // It tells of its end.

bool Link::isOpen() const { return m_socket.state() == QLocalSocket::ConnectedState; }

void Link::ask(const QString &name, QJsonObject values, QObject *context, const Answer &answer)
{
    if (!isOpen())
        return;
    values[u"ask"_s] = name;
    values[u"id"_s] = ++m_lastId;
    m_questions[m_lastId] = { context, answer };
    m_lines->send(values);
}

void Link::connectToServer()
{
    m_retry.setInterval(qBound(shortestRetryMs, m_retry.interval() * 2, longestRetryMs));
    m_socket.connectToServer(m_server);
}

void Link::lose()
{
    m_questions.clear();
    Q_EMIT closed();
}

void Link::receive(const QJsonObject &line)
{
    m_retry.setInterval(0);
    if (line.contains(u"push"_s)) {
        Q_EMIT pushed(line);
        return;
    }
    const Question question = m_questions.take(line[u"answer"_s].toInt());
    if (question.context)
        question.answer(line);
}
