// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/TestApplication.h"

#include <UiElements/qml/OxaQmlController.h>
#include <UiElements/qml/OxaQmlEngine.h>

#include <QMetaEnum>
#include <QPointer>
#include <QRegularExpression>
#include <QStringList>
#include <QTest>

/// An engine whose protected functions a test can call.
class ClientEngine : public OxaQmlEngine
{
    Q_OBJECT

public:
    using OxaQmlEngine::OxaQmlEngine;
    using OxaQmlEngine::setPerformanceWatcherEnabled;
    using OxaQmlEngine::setReadQmlFromDisk;

    static OxaQmlEngine *make() { return new ClientEngine; }
};

/// Records what becomes of views, and what their controllers get, as one short text.
class EngineLog
{
public:
    static void note(const QString &entry) { entries().append(entry); }

    /// Returns the entries since the last call of take().
    static QString text() { return entries().join(QLatin1String(" | ")); }

    /// Returns the entries since the last call, and forgets them.
    static QString take()
    {
        const QString all = text();
        entries().clear();
        return all;
    }

private:
    static QStringList &entries()
    {
        static QStringList list;
        return list;
    }
};

/// A client's controller, "TestController" in QML. It notes its init().
class TestController : public OxaQmlController
{
    Q_OBJECT

public:
    using OxaQmlController::OxaQmlController;

    void init(const QVariantMap &initialProperties) override
    {
        EngineLog::note(QStringLiteral("init %1").arg(
                initialProperties.value(QStringLiteral("name")).toString()));
    }
};

/// Gives the application an engine of the test's own, and notes its signals, until it is destroyed.
class EngineFixture
{
    Q_DISABLE_COPY_MOVE(EngineFixture)

public:
    EngineFixture()
    {
        qmlRegisterType<TestController>("Tests", 1, 0, "TestController");
        OxaQmlEngine::setFactory(&ClientEngine::make);
        m_engine = static_cast<ClientEngine *>(application()->getQmlEngine());
        EngineLog::take();
        QObject::connect(engine(), &OxaQmlEngine::qmlViewStatusChanged, engine(), &noteStatus);
        QObject::connect(engine(), &OxaQmlEngine::sceneGraphCriticalError, engine(),
                         [] { EngineLog::note(QStringLiteral("sceneGraphCriticalError")); });
    }
    ~EngineFixture()
    {
        delete m_engine;
        OxaQmlEngine::setFactory(nullptr);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    static TestApplication *application() { return static_cast<TestApplication *>(qApp); }
    ClientEngine *engine() const { return m_engine; }

    /// Returns a callback that notes its call.
    static OxaQmlEngine::ControllerCallback callback()
    {
        return [](OxaQmlController *controller) {
            EngineLog::note(qobject_cast<TestController *>(controller)
                                    ? QStringLiteral("callback")
                                    : QStringLiteral("callback with another controller"));
        };
    }

    /// Returns initial properties with a name.
    static QVariantMap named(const QString &name) { return { { QStringLiteral("name"), name } }; }

private:
    static void noteStatus(OxaQmlEngine::QmlViewStatus status, const QString &viewName,
                           const QString &message)
    {
        const char *key = QMetaEnum::fromType<OxaQmlEngine::QmlViewStatus>().valueToKey(
                static_cast<int>(status));
        const QString entry = QStringLiteral("%1 %2").arg(QLatin1String(key), viewName);
        EngineLog::note(message.isEmpty() ? entry : entry + QStringLiteral(": ") + message);
    }

    QPointer<ClientEngine> m_engine;
};

/// Announces the warning of Qt that begins with \a text, as a QML file with an error causes it.
inline void ignoreWarningOfQml(const QString &text)
{
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("^%1").arg(
                                                    QRegularExpression::escape(text)),
                                            QRegularExpression::DotMatchesEverythingOption));
}
