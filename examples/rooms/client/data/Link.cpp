// SPDX-License-Identifier: Apache-2.0
#include "Link.h"

#include "protocol/JsonLines.h"
#include "protocol/Literal.h"

#include <QLocalSocket>

namespace {

constexpr int shortestRetryMs = 100;
constexpr int longestRetryMs = 5000;

} // namespace

Link::Link(const QString &server, QObject *parent) : QObject(parent), m_server(server)
{
    m_retry.setSingleShot(true);
    connect(&m_retry, &QTimer::timeout, this, &Link::connectToServer);
    m_retry.start(0);
}

Link::~Link()
{
    if (m_socket)
        m_socket->disconnect(this);
}

void Link::ask(const QString &name, QJsonObject values, QObject *context, const Answer &answer)
{
    if (!m_isOpen)
        return;
    values[u"ask"_s] = name;
    values[u"id"_s] = ++m_lastId;
    m_questions[m_lastId] = { context, answer };
    m_lines->send(values);
}

void Link::connectToServer()
{
    m_retry.setInterval(qBound(shortestRetryMs, m_retry.interval() * 2, longestRetryMs));
    m_socket = new QLocalSocket(this);
    m_lines = new JsonLines(m_socket);
    connect(m_lines, &JsonLines::received, this, &Link::receive);
    connect(m_socket, &QLocalSocket::connected, this, &Link::open);
    connect(m_socket, &QLocalSocket::disconnected, this, &Link::lose);
    connect(m_socket, &QLocalSocket::errorOccurred, this, &Link::lose);
    m_socket->connectToServer(m_server);
}

void Link::open()
{
    m_isOpen = true;
    Q_EMIT opened();
}

void Link::lose()
{
    if (!m_socket)
        return;
    m_socket->disconnect(this);
    m_lines->disconnect(this);
    m_socket->deleteLater();
    m_socket = nullptr;
    m_questions.clear();
    m_retry.start();
    if (std::exchange(m_isOpen, false))
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
