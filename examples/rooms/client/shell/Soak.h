// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPoint>
#include <QRandomGenerator>
#include <QTimer>
#include <QUrl>

class Backend;
class MainWindow;
class QWindow;

/// Uses the client at random, as many people would in a day: input of all kinds, other looks, sizes
/// and pages, windows that open and are killed. Prints once a minute what the client holds at rest,
/// and the longest time in which it did not answer, with how much of it a processor was busy for
/// it: on a machine with other work, only that is the client's own.
class Soak : public QObject
{
    Q_OBJECT

public:
    Soak(MainWindow *window, Backend *backend);

    /// Runs for \a minutes; 1 if there were warnings, else 0.
    int run(int minutes);

public Q_SLOTS:
    void ignore(const QUrl &) { }

private:
    struct Sample
    {
        qint64 residentKb = 0;
        qint64 heapKb = 0; ///< What is allocated, without what is free between it.
        int handles = 0;
        int widgets = 0;
        int timers = 0;
    };

    struct Target
    {
        QObject *receiver;
        QPoint position; ///< In that.
        QPoint global;
    };

    struct Action
    {
        const char *name;
        void (Soak::*run)();
    };

    static Sample sample();
    void beat();
    void act();
    void rest();
    void report();

    void point();
    void click();
    void type();
    void turnWheel();
    void changeLooks();
    void resize();
    void showPage();
    void openDialog();
    void killWindow();
    void openLongest();
    void jump();

    QWindow *otherWindow() const;
    Target target();
    QPoint placeIn(const QSize &size);

    MainWindow *const m_window;
    Backend *const m_backend;
    QRandomGenerator m_random { 1 };
    QTimer m_beats;
    QTimer m_actions;
    QTimer m_reports;
    QElapsedTimer m_sinceBeat;
    qint64 m_busyMs = 0; ///< Of a processor, at the last beat.
    qint64 m_longestMs = 0;
    qint64 m_longestBusyMs = 0;
    const char *m_action = "nothing"; ///< What was done last.
    const char *m_longestAction = ""; ///< What was done before the longest of them.
    int m_minute = 0;
    int m_minutes = 0;
    Sample m_first;
};
