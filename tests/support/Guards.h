// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/app/IOxaApplication.h>

#include <QGuiApplication>
#include <QVariant>

/// Sets two colour stores, and restores stores and theme flags when it is destroyed.
class StoreGuard
{
    Q_DISABLE_COPY_MOVE(StoreGuard)

public:
    explicit StoreGuard(const OxaColorSetMap &ordinary, const OxaColorSetMap &inverted = {});
    ~StoreGuard();

    /// Sets the application's flags until this guard is destroyed.
    void setFlags(bool isDarkTheme, bool isHighContrastTheme);

private:
    IOxaApplication *const m_application;
    const OxaColorSetMap m_ordinary;
    const OxaColorSetMap m_inverted;
    const QVariant m_isDarkTheme;
    const QVariant m_isHighContrastTheme;
};

/// Sets a property of the application object, and restores it when it is destroyed.
class ApplicationPropertyGuard
{
    Q_DISABLE_COPY_MOVE(ApplicationPropertyGuard)

public:
    ApplicationPropertyGuard(const char *name, const QVariant &value)
        : m_name(name), m_before(qApp->property(name))
    {
        qApp->setProperty(name, value);
    }
    ~ApplicationPropertyGuard() { qApp->setProperty(m_name, m_before); }

private:
    const char *const m_name;
    const QVariant m_before;
};

/// Sets the application's layout direction, and restores it when it is destroyed.
class LayoutDirectionGuard
{
    Q_DISABLE_COPY_MOVE(LayoutDirectionGuard)

public:
    explicit LayoutDirectionGuard(Qt::LayoutDirection direction)
        : m_before(QGuiApplication::layoutDirection())
    {
        QGuiApplication::setLayoutDirection(direction);
    }
    ~LayoutDirectionGuard() { QGuiApplication::setLayoutDirection(m_before); }

private:
    const Qt::LayoutDirection m_before;
};
