// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>
#include <QJsonObject>
#include <QLocalSocket>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>

class JsonLines;

/// The connection to the server. Connects again by itself after it was lost, at growing intervals.
class Link : public QObject
{
    Q_OBJECT

public:
    using Answer = std::function<void(const QJsonObject &)>;

    /// Connects to the server called \a server, not before the event loop runs.
    explicit Link(const QString &server, QObject *parent = nullptr);
    ~Link() override;

    bool isOpen() const;

    /// Asks the request \a name with \a values. The answer goes to \a answer, unless \a context is
    /// gone by then. There is none if the connection is lost: ask again after opened().
    void ask(const QString &name, QJsonObject values = {}, QObject *context = nullptr,
             const Answer &answer = {});

Q_SIGNALS:
    void opened();
    void closed();
    /// The server tells something without having been asked.
    void pushed(const QJsonObject &line);

private:
    struct Question
    {
        QPointer<QObject> context;
        Answer answer;
    };

    void connectToServer();
    void lose();
    void receive(const QJsonObject &line);

    const QString m_server;
    QLocalSocket m_socket;
    JsonLines *const m_lines;
    int m_lastId = 0;
    QHash<int, Question> m_questions;
    QTimer m_retry;
};
