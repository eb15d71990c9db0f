// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Subjects.h"

#include <functional>

/// One way to make an object emit a signal.
struct SignalTrigger
{
    const QMetaObject
            *metaObject; ///< Of the class that emits it so, and of classes derived from it.
    QByteArray signal;
    const char *cause;
    std::function<void(QObject *)> prepare; ///< Runs before anything is connected to the signal.
    std::function<void(QObject *)> run;
};

using SignalTriggers = std::vector<SignalTrigger>;

/// An operation on an \a Object.
template <typename Object>
using Act = void (*)(Object &);

/// Returns one row of the table: an \a Object emits \a signal by \a run.
template <typename Object>
SignalTrigger row(const char *signal, const char *cause, Act<Object> run,
                  Act<Object> prepare = nullptr)
{
    const auto onObject = [](Act<Object> act) -> std::function<void(QObject *)> {
        if (!act)
            return {};
        return [act](QObject *object) { act(*static_cast<Object *>(object)); };
    };
    return { &Object::staticMetaObject, signal, cause, onObject(prepare), onObject(run) };
}

/// Adds the triggers of containers and range controls to \a rows.
void addContainerTriggers(SignalTriggers &rows);

/// Adds the triggers of painted items, controllers, engines and timers of QML to \a rows.
void addControllerTriggers(SignalTriggers &rows);

/// Adds the triggers of the controls of forms to \a rows.
void addFormTriggers(SignalTriggers &rows);

/// Returns whether nothing emits \a signal of a control of forms.
bool isNeverEmitted(const QMetaMethod &signal);

/// Adds the triggers of tab bars and menus to \a rows.
void addMenuTriggers(SignalTriggers &rows);

/// Adds the triggers of banners, notifications, movies and QML widgets to \a rows.
void addNoticeTriggers(SignalTriggers &rows);

/// Adds the triggers of the list models to \a rows.
void addModelTriggers(SignalTriggers &rows);

/// Returns the triggers by which an object of \a metaObject emits \a signal.
std::vector<const SignalTrigger *> triggersOf(const QMetaObject *metaObject,
                                              const QMetaMethod &signal);

/// Returns whether \a signal of objects of \a metaObject needs no trigger: they inherit it and
/// never emit it, or Qt itself uses the object after a slot has deleted it.
bool isLeftOut(const QMetaObject *metaObject, const QMetaMethod &signal);

/// Emits \a signal of \a sender, as users of a hub do.
void emitAsHubUser(QObject *sender, const QMetaMethod &signal);

/// Returns whether \a metaObject is a hub's, whose signals are emitted by others.
bool isHub(const QMetaObject *metaObject);
