// SPDX-License-Identifier: Apache-2.0
#include "JsonLines.h"

#include <QJsonDocument>
#include <QLocalSocket>
#include <QPointer>

namespace {

constexpr qint64 longestLine = 1'000'000;

} // namespace

JsonLines::JsonLines(QLocalSocket *socket) : QObject(socket), m_socket(socket)
{
    connect(socket, &QLocalSocket::readyRead, this, &JsonLines::read);
}

void JsonLines::send(const QJsonObject &object)
{
    m_socket->write(QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n');
}

void JsonLines::read()
{
    const QPointer<JsonLines> alive(this);
    while (alive && m_socket->canReadLine()) {
        const QJsonDocument line = QJsonDocument::fromJson(m_socket->readLine(longestLine));
        if (!line.isObject()) {
            m_socket->abort();
            return;
        }
        Q_EMIT received(line.object());
    }
    if (alive && m_socket->bytesAvailable() > longestLine)
        m_socket->abort();
}
