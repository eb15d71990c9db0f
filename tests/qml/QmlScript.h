// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/qml/OxaQmlTypes.h>

#include <QQmlComponent>
#include <QQmlEngine>
#include <QVariant>

#include <memory>

/// QML in tests.
namespace QmlScript {

/// Returns an object of the QML \a body, a type of QtQuick or of the library with its braces; null
/// with a warning if that fails.
inline std::unique_ptr<QObject> create(QQmlEngine &engine, const QString &body)
{
    static const bool isRegistered = (OxaQmlTypes::registerQmlTypes(), true);
    Q_UNUSED(isRegistered)
    QQmlComponent component(&engine);
    component.setData("import QtQuick 2.15\nimport UiElements 1.0\n" + body.toUtf8(), QUrl());
    std::unique_ptr<QObject> object(component.create());
    if (!object)
        qWarning("%s", qPrintable(component.errorString()));
    return object;
}

/// Runs \a script as QML, which knows \a object as "it", and returns what it returns.
inline QVariant run(QObject &object, const QString &script)
{
    QQmlEngine engine;
    const auto runner = create(engine,
                               QStringLiteral("QtObject { property var it; function run() { %1 } }")
                                       .arg(script));
    runner->setProperty("it", QVariant::fromValue(&object));
    QVariant result;
    QMetaObject::invokeMethod(runner.get(), "run", Q_RETURN_ARG(QVariant, result));
    return result;
}

} // namespace QmlScript
