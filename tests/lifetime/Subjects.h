// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QMetaMethod>
#include <QObject>

#include <vector>

class QWidget;

/// One class of the library whose objects emit signals.
struct Subject
{
    const char *name;
    const QMetaObject *metaObject;
    QObject *(*make)(QWidget *parent); ///< Makes an object that \a parent owns.

    /// Returns the signals that the library's classes declare, inherited ones included, and those
    /// of QAbstractButton, whose event handlers and setters the library extends.
    std::vector<QMetaMethod> signalMethods() const;
};

/// Every class of the library that has signals, except the application, which has no parent.
const std::vector<Subject> &subjects();

/// Returns the signals that \a metaObject has from the library's classes and QAbstractButton.
std::vector<QMetaMethod> librarySignals(const QMetaObject *metaObject);
