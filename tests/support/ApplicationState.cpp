// SPDX-License-Identifier: Apache-2.0
#include "support/ApplicationState.h"

#include <UiElements/app/IOxaApplication.h>

#include <QApplication>
#include <QDebug>
#include <QMetaProperty>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace {

template <typename Value>
QString textOf(const Value &value)
{
    QString text;
    QDebug(&text).nospace() << value;
    return text;
}

QString textOf(const OxaColorSetMap &store)
{
    QMap<QString, QString> sets;
    for (const auto &[name, set] : store)
        sets.insert(QString::fromStdString(name),
                    textOf(QList<QColor>({ set.normal, set.hovered, set.pressed, set.disabled,
                                           set.focused, set.checked })));
    return textOf(sets);
}

} // namespace

ApplicationState ApplicationState::now()
{
    ApplicationState state;
    if (!QCoreApplication::instance())
        return state;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    state.addProperties();
    state.addStores();
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        state.addWindows();
    return state;
}

QStringList ApplicationState::differencesTo(const ApplicationState &before) const
{
    QStringList lines;
    QMap<QString, QString> all = m_texts;
    all.insert(before.m_texts);
    for (auto it = all.keyBegin(); it != all.keyEnd(); ++it) {
        if (m_texts.value(*it) != before.m_texts.value(*it))
            lines.append(QStringLiteral("%1: %2 (before: %3)")
                                 .arg(*it, m_texts.value(*it), before.m_texts.value(*it)));
    }
    return lines;
}

void ApplicationState::addProperties()
{
    const QMetaObject *const metaObject = QCoreApplication::instance()->metaObject();
    for (int i = 0; i < metaObject->propertyCount(); ++i) {
        const QMetaProperty property = metaObject->property(i);
        if (!property.isWritable())
            continue;
        QVariant value = property.read(QCoreApplication::instance());
        if (property.isEnumType()) // Reads as int until the type is registered.
            value.convert(QMetaType::Int);
        m_texts.insert(QLatin1String(property.name()), textOf(value));
    }
    const QList<QByteArray> names = QCoreApplication::instance()->dynamicPropertyNames();
    for (const QByteArray &name : names)
        m_texts.insert(QLatin1String(name),
                       textOf(QCoreApplication::instance()->property(name.constData())));
}

void ApplicationState::addWindows()
{
    m_texts.insert(QStringLiteral("font"), textOf(QGuiApplication::font()));
    m_texts.insert(QStringLiteral("palette"), textOf(QGuiApplication::palette()));
    if (qobject_cast<QApplication *>(QCoreApplication::instance()))
        m_texts.insert(QStringLiteral("widgets"), textOf(QApplication::topLevelWidgets()));
    QWindowList windows = QGuiApplication::topLevelWindows();
    const auto isOfDrag = [](const QWindow *window) {
        return window->inherits("QShapedPixmapWindow"); // Qt keeps that of the last drag.
    };
    windows.erase(std::remove_if(windows.begin(), windows.end(), isOfDrag), windows.end());
    m_texts.insert(QStringLiteral("windows"), textOf(windows));
}

void ApplicationState::addStores()
{
    const auto *const application = qobject_cast<IOxaApplication *>(QCoreApplication::instance());
    if (!application)
        return;
    m_texts.insert(QStringLiteral("store"), textOf(application->getColorSets()));
    m_texts.insert(QStringLiteral("inverted store"), textOf(application->getInvertedColorSets()));
}
