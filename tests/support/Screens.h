// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QGuiApplication>
#include <QScreen>
#include <QVector>
#include <qpa/qplatformscreen.h>
#include <qpa/qwindowsysteminterface.h>

/// A screen of the test's own, which exists as long as the guard.
class ScreenGuard
{
    Q_DISABLE_COPY_MOVE(ScreenGuard)

public:
    ScreenGuard(const QRect &geometry, const QRect &availableGeometry)
        : m_screen(new Screen(geometry, availableGeometry))
    {
        QWindowSystemInterface::handleScreenAdded(m_screen);
    }
    ~ScreenGuard() { QWindowSystemInterface::handleScreenRemoved(m_screen); }

    QScreen *screen() const { return m_screen->screen(); }

private:
    class Screen : public QPlatformScreen
    {
    public:
        Screen(const QRect &geometry, const QRect &availableGeometry)
            : m_geometry(geometry), m_availableGeometry(availableGeometry)
        {
        }

        QRect geometry() const override { return m_geometry; }
        QRect availableGeometry() const override { return m_availableGeometry; }
        int depth() const override { return 32; }
        QImage::Format format() const override { return QImage::Format_RGB32; }

    private:
        const QRect m_geometry;
        const QRect m_availableGeometry;
    };

    Screen *const m_screen; ///< Qt deletes it.
};

/// Takes all screens away, and gives them back when it is destroyed.
class NoScreenGuard
{
    Q_DISABLE_COPY_MOVE(NoScreenGuard)

public:
    NoScreenGuard()
    {
        const QList<QScreen *> screens = QGuiApplication::screens();
        for (QScreen *screen : screens) {
            m_screens += screen->handle();
            delete screen;
        }
    }
    ~NoScreenGuard()
    {
        for (QPlatformScreen *screen : m_screens)
            QWindowSystemInterface::handleScreenAdded(screen);
    }

private:
    QVector<QPlatformScreen *> m_screens;
};
